// Compares every byte and character with other programs that know the encoding. encoding_differences.txt
// lists all differences among them and the library, one per line.
#include "encoding_texts.h"
#include <ravo/DIUnicode.h>
#include <ravo/runtime/text.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using TextLines = std::vector<std::string>;

TextLines LinesOf(const std::string& name) {
  std::ifstream file("unicode-data/" + name, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << name << ": run from the folder of the test program";
  TextLines lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

struct Witness {
  std::string kind;
  std::string encoding;
  std::string name;
  std::vector<std::string> values;
};

template <class Use>
void ForEachWitness(const std::string& kind, Use use) {
  std::size_t count = 0;
  for (const std::string& line : LinesOf("encoding_witnesses.txt")) {
    std::istringstream in(line);
    Witness witness;
    in >> witness.kind >> witness.encoding >> witness.name;
    if (witness.kind != kind) continue;
    for (std::string value; in >> value;) witness.values.push_back(value);
    use(witness);
    ++count;
  }
  EXPECT_GT(count, 0U) << "no witness of kind " << kind;
}

std::string Hex(unsigned number, int digits) {
  std::string hex;
  for (int i = digits - 1; i >= 0; --i) hex += "0123456789ABCDEF"[number >> (4 * i) & 15];
  return hex;
}

std::string UnHex(std::string_view digits) {
  std::string bytes;
  if (digits == "-") return bytes;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    const int high = HexDigitValue(static_cast<unsigned char>(digits[i]));
    const int low = HexDigitValue(static_cast<unsigned char>(digits[i + 1]));
    bytes += static_cast<char>(16 * high + low);
  }
  return bytes;
}

std::u16string UnHexUnits(std::string_view digits) {
  const std::string bytes = UnHex(digits);
  std::u16string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    text += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) << 8 |
                                  static_cast<unsigned char>(bytes[i + 1]));
  }
  return text;
}

// Returns the listed differences whose line begins with `kind`.
std::multiset<std::string> Listed(std::string_view kind) {
  std::multiset<std::string> listed;
  for (const std::string& line : LinesOf("encoding_differences.txt")) {
    if (line.starts_with(kind)) listed.insert(line);
  }
  return listed;
}

std::string Joined(const std::multiset<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

std::string CharacterOf(const EncodingRow& row, unsigned byte) {
  const char16_t ch = test::Read(*row.read, std::string(1, static_cast<char>(byte))).at(0);
  return ch == 0xFFFD ? "-" : Hex(ch, 4);
}

TEST(EncodingWitnesses, ReadEveryByteAlike) {
  std::multiset<std::string> found;
  ForEachWitness("read", [&found](const Witness& witness) {
    const EncodingRow& row = *FindEncoding(witness.encoding);
    ASSERT_EQ(witness.values.size(), 256U);
    for (unsigned byte = 0; byte < 256; ++byte) {
      const std::string theirs = witness.values[byte] == "FFFD" ? "-" : witness.values[byte];
      const std::string ours = CharacterOf(row, byte);
      if (ours == theirs) continue;
      found.insert("read " + witness.encoding + " " + witness.name + " " + Hex(byte, 2) + " " + theirs + " " +
                   ours);
    }
  });
  EXPECT_EQ(Joined(found), Joined(Listed("read ")));
}

using ByteOf = std::map<std::string, std::string>;

ByteOf OurBytes(const EncodingRow& row) {
  ByteOf bytes;
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    const std::vector<std::uint8_t> byte = EncodedCharacter(row, static_cast<char16_t>(unit));
    if (!byte.empty()) bytes[Hex(unit, 4)] = Hex(byte[0], 2);
  }
  return bytes;
}

ByteOf TheirBytes(const Witness& witness) {
  ByteOf bytes;
  for (const std::string& pair : witness.values) {
    const std::size_t colon = pair.find(':');
    bytes[pair.substr(colon + 1)] = Hex(static_cast<unsigned char>(UnHex(pair.substr(0, colon))[0]), 2);
  }
  return bytes;
}

void AddDifferences(const std::string& head, const ByteOf& theirs, const ByteOf& ours,
                    std::multiset<std::string>& found) {
  const auto byte_in = [](const ByteOf& bytes, const std::string& unit) {
    const auto byte = bytes.find(unit);
    return byte == bytes.end() ? std::string("-") : byte->second;
  };
  std::set<std::string> units;
  for (const auto& [unit, byte] : theirs) units.insert(unit);
  for (const auto& [unit, byte] : ours) units.insert(unit);
  for (const std::string& unit : units) {
    const std::string their_byte = byte_in(theirs, unit);
    const std::string our_byte = byte_in(ours, unit);
    if (their_byte != our_byte) found.insert(head + " " + unit + " " + their_byte + " " + our_byte);
  }
}

TEST(EncodingWitnesses, WriteEveryCharacterAlike) {
  if (test::kSanitized) GTEST_SKIP() << "compares tables: the other builds do";
  std::multiset<std::string> found;
  std::map<std::string, ByteOf> ours;
  ForEachWitness("write", [&](const Witness& witness) {
    ByteOf& bytes = ours[witness.encoding];
    if (bytes.empty()) bytes = OurBytes(*FindEncoding(witness.encoding));
    AddDifferences("write " + witness.encoding + " " + witness.name, TheirBytes(witness), bytes, found);
  });
  EXPECT_EQ(Joined(found), Joined(Listed("write ")));
}

TEST(EncodingWitnesses, EverySingleByteEncodingHasOne) {
  std::set<std::string> witnessed;
  ForEachWitness("read", [&](const Witness& witness) { witnessed.insert(witness.encoding); });
  for (const EncodingRow& row : EncodingRows()) {
    EXPECT_EQ(witnessed.contains(std::string(row.name)), row.engine == "SingleByte") << row.name;
  }
}

// All two-byte sequences and all four-byte ones up to U+FFFF.
TEST(EncodingWitnesses, Gb18030ReadsEverySequenceAlike) {
  std::multiset<std::string> found;
  std::size_t sequences = 0;
  ForEachWitness("text", [&](const Witness& witness) {
    if (witness.encoding != "GB_18030") return;
    const std::string bytes = UnHex(witness.values[0]);
    const std::u16string theirs = UnHexUnits(witness.values[1]);
    const std::u16string ours = test::Read(Read_GB_18030, bytes);
    ASSERT_EQ(ours.size(), theirs.size());
    const std::size_t length = bytes.size() / theirs.size();
    for (std::size_t i = 0; i < theirs.size(); ++i, ++sequences) {
      if (ours[i] == theirs[i]) continue;
      std::string key;
      for (const char byte : bytes.substr(i * length, length))
        key += Hex(static_cast<unsigned char>(byte), 2);
      found.insert("text GB_18030 " + witness.name + " " + key + " " + Hex(theirs[i], 4) + " " +
                   Hex(ours[i], 4));
    }
  });
  EXPECT_EQ(sequences, 2U * (126 * 190 + 4 * 10 * 126 * 10));
  EXPECT_EQ(Joined(found), Joined(Listed("text ")));
}

TEST(EncodingWitnesses, Utf7IsWrittenAndReadAlike) {
  std::map<std::string, int> counts;
  ForEachWitness("text", [&](const Witness& witness) {
    if (!witness.encoding.starts_with("UTF_7")) return;
    ++counts[witness.encoding + " " + witness.name];
    const std::string bytes = UnHex(witness.values[0]);
    const std::u16string text = UnHexUnits(witness.values[1]);
    EXPECT_EQ(test::Write(*FindEncoding(witness.encoding)->write, text), bytes) << witness.name;
    EXPECT_EQ(test::Read(Read_UTF_7, bytes), text) << witness.name;
  });
  EXPECT_GE(counts["UTF_7_ODC python"], 4000);
  EXPECT_GE(counts["UTF_7 iconv"], 4000);
}

}  // namespace
}  // namespace ravo::DIUnicode
