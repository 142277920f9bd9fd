// Compares the multi-byte encodings with their rules, for all bytes, all pairs of bytes and mixtures of
// significant bytes.
#include "encoding_texts.h"
#include "support/effort.h"
#include "support/tried.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using test::Read;
using test::Write;
using namespace std::string_literals;

// The rules for bytes in memory, each a function from the rest of the bytes to a character and a length.

struct Step {
  char16_t ch;
  std::size_t length;
};

std::size_t CountContinuations(std::string_view bytes, std::size_t most) {
  std::size_t count = 0;
  while (count < most && count + 1 < bytes.size() && (bytes[count + 1] & 0xC0) == 0x80) ++count;
  return count;
}

Step Utf8Rule(std::string_view bytes) {
  const auto lead = static_cast<unsigned char>(bytes[0]);
  if (lead < 0x80) return {lead, 1};
  if (lead < 0xC0 || lead >= 0xFE) return {0xFFFD, 1};
  const std::size_t wanted = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : lead < 0xF8 ? 3 : lead < 0xFC ? 4 : 5;
  const std::size_t count = CountContinuations(bytes, wanted);
  if (count < wanted || wanted > 2) return {0xFFFD, count + 1};
  const auto rest = [bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]) & 0x3FU; };
  const unsigned last = rest(wanted);
  const unsigned value =
      wanted == 1 ? (lead - 0xC0U) * 64 + last : (lead - 0xE0U) * 4096 + rest(1) * 64 + last;
  const bool shortest = value >= (wanted == 1 ? 0x80U : 0x800U);
  return {shortest ? static_cast<char16_t>(value) : char16_t{0xFFFD}, wanted + 1};
}

// Tests only whether a sequence is complete, with a placeholder for its character.
std::size_t Gb18030Length(std::string_view bytes, bool& whole) {
  const auto at = [bytes](std::size_t i) {
    return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U;
  };
  const auto lead = [](unsigned byte) { return byte >= 0x81 && byte <= 0xFE; };
  const auto digit = [](unsigned byte) { return byte >= 0x30 && byte <= 0x39; };
  whole = at(0) < 0x80;
  if (!lead(at(0))) return 1;
  whole = at(1) >= 0x40 && at(1) <= 0xFE && at(1) != 0x7F;
  if (whole) return 2;
  if (!digit(at(1))) return 1;
  if (!lead(at(2))) return 2;
  whole = digit(at(3));
  return whole ? 4 : 3;
}

// Mixtures are shorter under sanitizers.
constexpr std::size_t kLess = test::kSanitized ? 1 : 0;

template <class Check>
void ForEachMixture(std::string_view alphabet, std::size_t length, Check check) {
  std::vector<std::size_t> digits(length, 0);
  std::string bytes(length, alphabet[0]);
  for (;;) {
    check(bytes);
    std::size_t at = 0;
    while (at < length && ++digits[at] == alphabet.size()) digits[at++] = 0;
    if (at == length) return;
    for (std::size_t i = 0; i <= at; ++i) bytes[i] = alphabet[digits[i]];
  }
}

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

std::u16string ByUtf8Rule(std::string_view bytes) {
  std::u16string text;
  for (std::size_t at = 0; at < bytes.size();) {
    const Step step = Utf8Rule(bytes.substr(at));
    text += step.ch;
    at += step.length;
  }
  return text;
}

TEST(EncodingRules, Utf8OfAllPairsAndOfMixtures) {
  const auto check = [](const std::string& bytes) {
    ASSERT_EQ(Read(Read_UTF_8, bytes), ByUtf8Rule(bytes)) << testing::PrintToString(bytes);
  };
  ForEachMixture(AllBytes(), 2, check);
  ForEachMixture("\x41\x7F\x80\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xED\xEF\xF0\xF7\xF8\xFC\xFD\xFE\xFF",
                 4 - kLess, check);
  ForEachMixture("\x41\x80\xBF\xE2\xF1\xF9\xFC", 7 - kLess, check);
}

// Splits bytes by the rule; each piece alone must read as it does in the whole.
void ExpectGb18030InPieces(const std::string& bytes) {
  std::u16string pieces;
  for (std::size_t at = 0; at < bytes.size();) {
    bool whole = false;
    const std::size_t length =
        std::min(Gb18030Length(std::string_view(bytes).substr(at), whole), bytes.size() - at);
    const std::u16string piece = Read(Read_GB_18030, std::string_view(bytes).substr(at, length));
    ASSERT_EQ(piece.size(), 1U) << testing::PrintToString(bytes);
    if (!whole) {
      ASSERT_EQ(piece, u"\uFFFD") << testing::PrintToString(bytes);
    }
    pieces += piece;
    at += length;
  }
  ASSERT_EQ(Read(Read_GB_18030, bytes), pieces) << testing::PrintToString(bytes);
}

TEST(EncodingRules, Gb18030OfAllPairsAndOfMixtures) {
  ForEachMixture(AllBytes(), 2, ExpectGb18030InPieces);
  ForEachMixture("\x29\x30\x39\x3A\x40\x7E\x7F\x80\x81\x84\x90\xFE\xFF", 5 - kLess, ExpectGb18030InPieces);
}

// Reading always ends, with at most as many characters as bytes.
TEST(EncodingRules, Utf7OfMixturesEnds) {
  ForEachMixture("+-A/z! \x80", 6, [](const std::string& bytes) {
    ASSERT_LE(Read(Read_UTF_7, bytes).size(), bytes.size()) << bytes;
  });
}

TEST(EncodingRules, EveryUnitOfTwoBytes) {
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    const std::string big = {static_cast<char>(unit >> 8), static_cast<char>(unit & 0xFF)};
    const std::string little = {big[1], big[0]};
    const std::u16string text(1, static_cast<char16_t>(unit));
    const std::u16string utf16 = unit < 0xD800 || unit > 0xDFFF ? text : unit < 0xDC00 ? u"\uFFFD" : u"";
    const std::u16string utf32 = unit < 0xD800 || unit > 0xDFFF ? text : u"\uFFFD";
    ASSERT_EQ(Read(Read_UCS_2_BE, big), text);
    ASSERT_EQ(Read(Read_UCS_2_LE, little), text);
    ASSERT_EQ(Read(Read_UTF_16_BE, big), utf16);
    ASSERT_EQ(Read(Read_UTF_16_LE, little), utf16);
    ASSERT_EQ(Read(Read_UCS_4_BE, "\0\0"s + big), text);
    ASSERT_EQ(Read(Read_UCS_4_LE, little + "\0\0"s), text);
    ASSERT_EQ(Read(Read_UTF_32_BE, "\0\0"s + big), utf32);
    ASSERT_EQ(Read(Read_UTF_32_LE, little + "\0\0"s), utf32);
    if (unit != 0) {
      ASSERT_EQ(Read(Read_UTF_32_BE, big + "\0z"s), u"\uFFFD");
    }
  }
}

// Every encoding reads what it writes.
TEST(EncodingRules, WhatIsWrittenIsRead) {
  for (const EncodingRow& row : EncodingRows()) {
    const TDIUnicodeReadMethods& read = row.read != nullptr ? *row.read : Read_UTF_7;
    if (row.write == nullptr || !test::TriesAllCharacters(row)) continue;
    std::u16string all;
    std::size_t refused = 0;
    for (unsigned unit = 0; unit < 0x10000; ++unit) {
      const std::u16string text(1, static_cast<char16_t>(unit));
      const std::optional<std::string> bytes = Write(*row.write, text);
      refused += bytes ? 0 : 1;
      if (!bytes) continue;
      ASSERT_EQ(Read(read, *bytes), text) << row.name << ' ' << unit;
      all += text;
    }
    EXPECT_EQ(Read(read, Write(*row.write, all).value()), all) << row.name;
    test::Tried("code_units_written_and_read_back", 0x10000);
    if (row.engine == "SingleByte") {
      EXPECT_GE(refused, 0x10000U - 256U) << row.name;
    } else {
      EXPECT_EQ(refused, row.name.starts_with("UTF_16") || row.name.starts_with("UTF_32") ? 0x800U : 0U)
          << row.name;
    }
  }
}

}  // namespace
}  // namespace ravo::DIUnicode
