// Whole runs against single characters, with sources and room that end at a guard page.
#include "encoding_texts.h"
#include "support/guarded_buffer.h"
#include <ravo/unicode/encodings/run_blocks.h>

#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using test::Read;
using test::Write;

using Bytes = std::vector<std::uint8_t>;

// Runs as far as they go, a single character where they stop, as a reader does it. Room at a guard page.
std::u16string ByRuns(const EncodingRow& row, const Bytes& bytes, std::size_t room) {
  const test::GuardedBuffer source(std::as_bytes(std::span(bytes)));
  const std::vector<std::byte> empty(2 * room);
  const test::GuardedBuffer target(empty);
  const std::span from(reinterpret_cast<const std::uint8_t*>(source.Bytes().data()), bytes.size());
  const std::span to(reinterpret_cast<char16_t*>(target.Bytes().data()), room);
  std::u16string text;
  for (std::size_t at = 0;;) {
    const auto run = DecodeRunOf(*row.read)(from.subspan(at), to);
    text.append(to.data(), run.made);
    at += run.taken;
    if (run.made > 0) continue;
    const std::u16string rest = Read(*row.read, test::TextOf(from.subspan(at)));
    return text + rest;
  }
}

// Bytes of long words of few kinds, so that blocks of a kind and changes between them both occur.
Bytes RandomBytes(std::mt19937& random, std::string_view alphabet) {
  Bytes bytes;
  const std::size_t words = random() % 12;
  for (std::size_t word = 0; word < words; ++word) {
    const bool ascii = random() % 2 == 0;
    for (std::size_t left = random() % 90; left > 0; --left) {
      bytes.push_back(ascii ? static_cast<std::uint8_t>('a' + random() % 26)
                            : static_cast<std::uint8_t>(alphabet[random() % alphabet.size()]));
    }
  }
  return bytes;
}

std::string_view AlphabetOf(const EncodingRow& row) {
  static const std::string all = [] {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
  }();
  if (row.name == "UTF_8") return "aaa\xC3\xA1\xC5\x99\xC3\xA1\xC5\x99\xE2\x82\xAC\xF0\x80\xC0\xED\xA0";
  if (row.engine == "SingleByte" || row.name == "GB_18030") return all;
  return std::string_view("aaabb\0\0\0\0\0\xD8\xDC\x20", 13);
}

TEST(EncodingRuns, DecodeWhatSingleCharactersDecode) {
  std::mt19937 random(1);
  for (const EncodingRow& row : EncodingRows()) {
    if (row.read == nullptr || DecodeRunOf(*row.read) == nullptr) continue;
    for (int i = 0; i < 60; ++i) {
      const Bytes bytes = RandomBytes(random, AlphabetOf(row));
      ASSERT_EQ(ByRuns(row, bytes, 1 + random() % 200), Read(*row.read, test::TextOf(bytes)))
          << row.name << ' ' << i;
    }
  }
}

std::u16string RandomText(std::mt19937& random, const EncodingRow& row) {
  std::u16string text;
  const std::size_t words = random() % 8;
  for (std::size_t word = 0; word < words; ++word) {
    const auto kind = random() % 3;
    for (std::size_t left = random() % 90; left > 0; --left) {
      const auto ascii = static_cast<char16_t>('a' + random() % 26);
      const auto other =
          static_cast<char16_t>(row.engine == "SingleByte" ? 0xA0 + random() % 0xE0 : random() % 0x900);
      text += kind == 0 ? ascii : kind == 1 ? other : static_cast<char16_t>(random());
    }
  }
  return text;
}

// A run stops at the first refused character or where the room ends, and has the bytes of single characters.
TEST(EncodingRuns, EncodeWhatSingleCharactersEncode) {
  std::mt19937 random(2);
  for (const EncodingRow& row : EncodingRows()) {
    if (row.write == nullptr || EncodeRunOf(*row.write) == nullptr) continue;
    for (int i = 0; i < 120; ++i) {
      std::u16string text = RandomText(random, row);
      // Every other time only what the encoding has.
      if (i % 2 == 0) std::erase_if(text, [&](char16_t ch) { return EncodedCharacter(row, ch).empty(); });
      const std::vector<std::byte> empty(random() % 700);
      const test::GuardedBuffer target(empty);
      const std::span to(reinterpret_cast<std::uint8_t*>(target.Bytes().data()), empty.size());
      const auto run = EncodeRunOf(*row.write)(text, to);
      ASSERT_EQ(Write(*row.write, text.substr(0, run.taken)), test::TextOf(to.first(run.made))) << row.name;
      const bool stopped_by_room = to.size() - run.made < 4;
      if (run.taken < text.size() && !stopped_by_room) {
        ASSERT_TRUE(EncodedCharacter(row, text[run.taken]).empty()) << row.name;
      }
    }
  }
}

TEST(EncodingRuns, EveryKernelOfUtf8GivesTheSame) {
  std::mt19937 random(3);
  const EncodingRow& row = *FindEncoding("UTF_8");
  for (const RunKernel& kernel : RunKernels()) {
    if (!kernel.runs_here()) continue;
    for (int i = 0; i < 3000; ++i) {
      const Bytes bytes = RandomBytes(random, AlphabetOf(row));
      std::u16string text(bytes.size(), u'\0');
      const auto decoded = kernel.decode_utf8(bytes, text);
      ASSERT_EQ(Read(Read_UTF_8, test::TextOf(bytes).substr(0, decoded.taken)), text.substr(0, decoded.made));
      const std::u16string source = RandomText(random, row);
      Bytes made(3 * source.size());
      const auto encoded = kernel.encode_utf8(source, made);
      ASSERT_EQ(Write(Write_UTF_8, source.substr(0, encoded.taken)),
                test::TextOf(std::span(made).first(encoded.made)));
    }
  }
}

TEST(EncodingRuns, NoneForForeignRoutinesAndForUtf7) {
  const auto foreign = [](TDIUnicodeReader&, char16_t&) { return false; };
  EXPECT_EQ(DecodeRunOf({nullptr, foreign, nullptr}), nullptr);
  EXPECT_EQ(DecodeRunOf(Read_UTF_7), nullptr);
  EXPECT_EQ(EncodeRunOf(Write_UTF_7), nullptr);
  EXPECT_EQ(EncodeRunOf({}), nullptr);
}

}  // namespace
}  // namespace ravo::DIUnicode
