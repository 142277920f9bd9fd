// Compares whole runs with single characters; sources and room end at a guard page.
#include "one_by_one.h"
#include "support/effort.h"
#include "support/guarded_buffer.h"
#include <ravo/codec/kernels/kernel_set.h>

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::codec {
namespace {

using test::ReadOneByOne;
using test::WriteOneByOne;

using Bytes = std::vector<std::uint8_t>;

// Decodes runs as far as they go and a single character where they stop, as a reader does. Room ends at a
// guard page.
std::u16string ByRuns(const Encoding& row, const Bytes& bytes, std::size_t room) {
  const test::GuardedBuffer source(std::as_bytes(std::span(bytes)));
  const std::vector<std::byte> empty(2 * room);
  const test::GuardedBuffer target(empty);
  const std::span from(reinterpret_cast<const std::uint8_t*>(source.Bytes().data()), bytes.size());
  const std::span to(reinterpret_cast<char16_t*>(target.Bytes().data()), room);
  std::u16string text;
  for (std::size_t at = 0;;) {
    const auto run = row.decode_run(from.subspan(at), to);
    text.append(to.data(), run.made);
    at += run.taken;
    if (run.made > 0) continue;
    const std::u16string rest = ReadOneByOne(row, test::TextOf(from.subspan(at)));
    return text + rest;
  }
}

// Returns words of few kinds of bytes, so that both uniform blocks and changes of kind occur.
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

std::string_view AlphabetOf(const Encoding& row) {
  static const std::string all = [] {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
  }();
  if (row.name == "UTF_8") return "aaa\xC3\xA1\xC5\x99\xC3\xA1\xC5\x99\xE2\x82\xAC\xF0\x80\xC0\xED\xA0";
  if (row.engine == "SingleByte" || row.name == "GB_18030") return all;
  return std::string_view("aaabb\0\0\0\0\0\xD8\xDC\x20", 13);
}

// Each test that decodes or encodes runs once with every kernel.
class EncodingRunsOfKernel : public ::testing::TestWithParam<KernelSet> {
 protected:
  void SetUp() override {
    if (!GetParam().runs_here()) GTEST_SKIP() << "not on this processor";
  }

 private:
  ScopedKernels chosen_{GetParam()};
};

TEST_P(EncodingRunsOfKernel, DecodeWhatSingleCharactersDecode) {
  std::mt19937 random(1);
  for (const Encoding& row : Encodings()) {
    if (row.decode_run == nullptr) continue;
    for (int i = 0; i < 60; ++i) {
      const Bytes bytes = RandomBytes(random, AlphabetOf(row));
      ASSERT_EQ(ByRuns(row, bytes, 1 + random() % 200), ReadOneByOne(row, test::TextOf(bytes)))
          << row.name << ' ' << i;
    }
  }
}

// Expects a run up to an end to be a prefix of the single characters before the end; bytes and room end at
// guard pages.
void ExpectRunUntil(const Encoding& row, const Bytes& bytes, std::size_t room, EndBytes ends) {
  const test::GuardedBuffer source(std::as_bytes(std::span(bytes)));
  const std::vector<std::byte> empty(2 * room);
  const test::GuardedBuffer target(empty);
  const std::span from(reinterpret_cast<const std::uint8_t*>(source.Bytes().data()), bytes.size());
  const std::span to(reinterpret_cast<char16_t*>(target.Bytes().data()), room);
  const RunUntil run = row.decode_until(from, to, ends);
  const std::size_t end = static_cast<std::size_t>(
      std::ranges::find_if(bytes, [ends](std::uint8_t byte) { return ends.Has(byte); }) - bytes.begin());
  ASSERT_LE(run.Taken(), end) << row.name;
  const std::u16string text(to.data(), run.Made());
  ASSERT_EQ(text, ReadOneByOne(row, test::TextOf(bytes).substr(0, run.Taken()))) << row.name;
  std::size_t starts = 0;
  std::size_t last = 0;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i - 1] != u'\n' && (text[i - 1] != u'\r' || text[i] == u'\n')) continue;
    ++starts;
    last = i;
  }
  ASSERT_EQ(run.LineStarts(), starts) << row.name;
  ASSERT_EQ(run.LastLineStart(), last) << row.name;
}

TEST_P(EncodingRunsOfKernel, EndBeforeAByte) {
  std::mt19937 random(4);
  for (const Encoding& row : Encodings()) {
    if (row.decode_until == nullptr) continue;
    for (int i = 0; i < 150; ++i) {
      Bytes bytes = RandomBytes(random, AlphabetOf(row));
      for (const char byte : {'\n', '\r', ';'}) {
        if (!bytes.empty() && random() % 2 == 0)
          bytes[random() % bytes.size()] = static_cast<std::uint8_t>(byte);
      }
      const EndBytes ends = i % 3 == 0   ? EndBytes('\r', '\n')
                            : i % 3 == 1 ? EndBytes(';')
                                         : EndBytes('\n', 'q', 0);
      ASSERT_NO_FATAL_FAILURE(ExpectRunUntil(row, bytes, random() % 400, ends));
    }
  }
}

// Line breaks of all kinds at every place of the first blocks, also of text that is not ASCII or is
// malformed.
TEST_P(EncodingRunsOfKernel, CountTheLinesOfARun) {
  using namespace std::string_view_literals;
  constexpr std::string_view kPieces[] = {"\r"sv,       "\n"sv,           "\r\n"sv,       "a"sv,
                                          "\xC4\x8D"sv, "\xE2\x82\xAC"sv, "plain text "sv};
  std::mt19937 random(6);
  for (const char* const name : {"Windows_1250", "ISO_8859_2", "UTF_8"}) {
    for (int i = 0; i < 600; ++i) {
      const std::size_t kinds = i % 2 == 0 ? std::size(kPieces) : 4;
      std::string text(random() % 3, 'x');
      while (text.size() < 600) text += kPieces[random() % kinds];
      if (i % 5 == 0) text[random() % text.size()] = '\xC4';
      text[random() % (i % 3 == 0 ? 600 : 140)] = ';';
      const Bytes bytes(text.begin(), text.end());
      for (const EndBytes ends :
           {EndBytes(';'), EndBytes(';', '\r'), EndBytes(';', ';', 'a'), EndBytes(';', '#', '\n')})
        ASSERT_NO_FATAL_FAILURE(ExpectRunUntil(*FindEncoding(name), bytes, 1000, ends)) << i;
    }
  }
}

// Complete, truncated and overlong sequences at every position of a block.
TEST_P(EncodingRunsOfKernel, TakeSequencesAcrossBlocks) {
  using namespace std::string_view_literals;
  const Encoding& row = *FindEncoding("UTF_8");
  for (const std::string_view piece :
       {"\xC4\x8D"sv, "\xE2\x82\xAC"sv, "\xE2\x82"sv, "\xE2"sv, "\xC4"sv, "\x8D"sv, "\xE0\x9F\xBF"sv,
        "\xE0\xA0\x80"sv, "\xC1\xBF"sv, "\xF0\x9F\x98\x80"sv, "\xED\xA0\x80"sv, "\xE2\x82\xC4\x8D"sv}) {
    for (std::size_t before = 0; before < 200; before += test::StepUnderSanitizers(3)) {
      for (const std::size_t behind : {0U, 1U, 2U, 3U, 70U}) {
        std::string text = std::string(before, 'x').append(piece).append(behind, 'y');
        const Bytes bytes(text.begin(), text.end());
        ASSERT_EQ(ByRuns(row, bytes, 300), ReadOneByOne(row, text)) << before << ' ' << behind;
        ASSERT_NO_FATAL_FAILURE(ExpectRunUntil(row, bytes, 300, EndBytes('y', '\n', '\n')));
        // Also for blocks that are not ASCII.
        text.insert(0, "\xC5\xBE");
        const Bytes mixed(text.begin(), text.end());
        ASSERT_EQ(ByRuns(row, mixed, 300), ReadOneByOne(row, text)) << before << ' ' << behind;
        ASSERT_NO_FATAL_FAILURE(ExpectRunUntil(row, mixed, 300, EndBytes('y', '\n', '\n')));
      }
    }
  }
}

std::u16string RandomText(std::mt19937& random, const Encoding& row) {
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

// A run stops at the first refused character or at the end of the room, with the bytes of single characters.
TEST_P(EncodingRunsOfKernel, EncodeWhatSingleCharactersEncode) {
  std::mt19937 random(2);
  for (const Encoding& row : Encodings()) {
    if (row.encode_run == nullptr) continue;
    for (int i = 0; i < test::Rounds(120); ++i) {
      std::u16string text = RandomText(random, row);
      // Every second text has only characters of the encoding.
      if (i % 2 == 0)
        std::erase_if(text, [&](char16_t ch) { return !WriteOneByOne(row, std::u16string_view(&ch, 1)); });
      const std::vector<std::byte> empty(random() % 700);
      const test::GuardedBuffer target(empty);
      const std::span to(reinterpret_cast<std::uint8_t*>(target.Bytes().data()), empty.size());
      const auto run = row.encode_run(text, to);
      ASSERT_EQ(WriteOneByOne(row, text.substr(0, run.taken)), test::TextOf(to.first(run.made))) << row.name;
      const bool stopped_by_room = to.size() - run.made < 4;
      if (run.taken < text.size() && !stopped_by_room) {
        ASSERT_TRUE(WriteOneByOne(row, text.substr(run.taken, 1)) == std::nullopt) << row.name;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Kernels, EncodingRunsOfKernel,
                         ::testing::ValuesIn(KernelSets().begin(), KernelSets().end()),
                         [](const auto& kernel) { return std::string(kernel.param.name); });

TEST(EncodingRuns, UntilAnEndOnlyIfAsciiIsKeptApart) {
  for (const char* name : {"UTF_8", "Windows_1250"})
    EXPECT_NE(FindEncoding(name)->decode_until, nullptr) << name;
  for (const char* name : {"UTF_16_LE", "GB_18030", "UTF_7", "CP_424"})
    EXPECT_EQ(FindEncoding(name)->decode_until, nullptr) << name;
  for (const Encoding& row : Encodings()) {
    if (row.engine != "SingleByte") continue;
    bool kept = true;
    for (int byte = 0; byte < 256; ++byte) {
      const std::u16string text = ReadOneByOne(row, std::string(1, static_cast<char>(byte)));
      kept = kept && (byte < 0x80 ? text[0] == byte : text[0] >= 0x80);
    }
    EXPECT_EQ(row.decode_until != nullptr, kept) << row.name;
  }
}

TEST(EncodingRuns, NoneForEncodingsWithState) {
  EXPECT_EQ(FindEncoding("UTF_7")->decode_run, nullptr);
  EXPECT_EQ(FindEncoding("UTF_7")->encode_run, nullptr);
  EXPECT_EQ(FindEncoding("UTF_7_ODC")->encode_run, nullptr);
}

}  // namespace
}  // namespace ravo::codec
