// Differences between callers of one engine; every set of kernels has the results of single characters.
#include "one_by_one.h"
#include "support/guarded_buffer.h"
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/codec/texts.h>

#include <random>

#include <gtest/gtest.h>

namespace ravo::codec {
namespace {

std::u16string ReadUtf8(std::string_view bytes) { return test::ReadOneByOne(*FindEncoding("UTF_8"), bytes); }

// Five bytes 80 after FE or FF are trailing bytes for strings, and malformed for encodings.
TEST(Utf8Policies, DifferInTheLastTwoLeadBytes) {
  for (unsigned lead = 0x80; lead < 0x100; ++lead) {
    const std::string bytes = static_cast<char>(lead) + std::string(5, '\x80') + "A";
    const bool same = ReadUtf8(bytes) == DecodedUtf8OfStrings(bytes);
    EXPECT_EQ(same, lead < 0xFE) << lead;
  }
  EXPECT_EQ(ReadUtf8("\xFE\x80\x80\x80\x80\x80\x41"), u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA");
  EXPECT_EQ(DecodedUtf8OfStrings("\xFE\x80\x80\x80\x80\x80\x41"), u"\uFFFDA");
}

TEST(Utf8Policies, AreAlikeForAllElse) {
  constexpr std::string_view kPieces[] = {
      "a",    "č",    "€",        "😀",        "\xED\xA0\x80",    "\xC1\xBF", "\xE0\x9F\xBF",
      "\xC4", "\x8D", "\xE2\x82", "\xFC\x80", "\xF8\x80\x80\x80"};
  std::mt19937 random(3);
  for (int round = 0; round < 4000; ++round) {
    std::string bytes;
    for (std::size_t count = random() % 20; count > 0; --count)
      bytes += kPieces[random() % std::size(kPieces)];
    ASSERT_EQ(DecodedUtf8OfStrings(bytes), ReadUtf8(bytes));
    const std::u16string text = ReadUtf8(bytes);
    ASSERT_EQ(EncodedUtf8OfStrings(text), test::WriteOneByOne(*FindEncoding("UTF_8"), text));
    ASSERT_EQ(CountUtf8OfStrings(bytes), text.size());
  }
}

TEST(Windows1250OfSystem, DiffersFromTheRowInFiveBytes) {
  std::string differing;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    const std::u16string text = DecodedWindows1250OfSystem(bytes);
    EXPECT_EQ(EncodedWindows1250OfSystem(text), bytes);
    if (text == test::ReadOneByOne(*FindEncoding("Windows_1250"), bytes)) continue;
    EXPECT_EQ(text, std::u16string(1, static_cast<char16_t>(byte)));
    differing += bytes;
  }
  EXPECT_EQ(differing, "\x81\x83\x88\x90\x98");
  EXPECT_EQ(EncodedWindows1250OfSystem(u"ř\u4E00\uFFFDz"), "\xF8??z");
}

class TextsOfKernels : public ::testing::TestWithParam<KernelSet> {
 protected:
  void SetUp() override {
    if (!GetParam().runs_here()) GTEST_SKIP() << "not on this processor";
  }
};
INSTANTIATE_TEST_SUITE_P(Kernels, TextsOfKernels,
                         ::testing::ValuesIn(KernelSets().begin(), KernelSets().end()),
                         [](const auto& kernels) { return std::string(kernels.param.name); });

// The bytes end at a guard page.
void ExpectSameUtf8(const KernelSet& kernels, const std::string& bytes) {
  const test::GuardedBuffer buffer(std::as_bytes(std::span(bytes)));
  const std::string_view guarded(reinterpret_cast<const char*>(buffer.Bytes().data()), bytes.size());
  const auto by = [&guarded](const KernelSet& set) {
    const ScopedKernels chosen(set);
    return DecodedUtf8OfStrings(guarded);
  };
  const std::u16string text = by(kernels);
  ASSERT_EQ(text, by(KernelSets().front()));
  ASSERT_EQ(CountUtf8OfStrings(guarded), text.size());
  const test::GuardedBuffer units(std::as_bytes(std::span(text)));
  const std::u16string_view guarded_units(reinterpret_cast<const char16_t*>(units.Bytes().data()),
                                          text.size());
  const auto back = [&guarded_units](const KernelSet& set) {
    const ScopedKernels chosen(set);
    return EncodedUtf8OfStrings(guarded_units);
  };
  ASSERT_EQ(back(kernels), back(KernelSets().front()));
}

TEST_P(TextsOfKernels, AreThoseOfSingleCharacters) {
  std::mt19937 random(23);
  for (int round = 0; round < 4000; ++round) {
    std::string bytes;
    const std::size_t length = random() % 100;
    const auto most = 1 + random() % 255;
    while (bytes.size() < length)
      bytes.push_back(static_cast<char>(random() % 8 == 0 ? random() : random() % most));
    ExpectSameUtf8(GetParam(), bytes);
  }
}

// Mostly well-formed, so that runs are long, with a malformed piece now and then.
TEST_P(TextsOfKernels, AreAlikeForTextsWithBrokenPieces) {
  constexpr std::string_view kPieces[] = {"a",        "bc",   "č",    "ř",        "\xDF\xBF", "\xC2\x80", "€",
                                          "\xC1\xBF", "\xC4", "\x8D", "\xE2\x82", "😀",        "\xFF"};
  std::mt19937 random(31);
  for (int round = 0; round < 4000; ++round) {
    std::string bytes;
    const std::size_t kinds = random() % 4 == 0 ? std::size(kPieces) : 6;
    for (std::size_t count = random() % 90; count > 0; --count) bytes += kPieces[random() % kinds];
    if (random() % 2 == 0 && !bytes.empty()) bytes += kPieces[6 + random() % 7];
    ExpectSameUtf8(GetParam(), bytes);
  }
}

// Longer than the buffer on the stack, with a unit of each length at the end of every block.
TEST_P(TextsOfKernels, AreAlikeForLongTexts) {
  for (std::size_t size = 480; size < 560; ++size) {
    for (const std::u16string_view end : {u"x", u"č", u"€", u"\xD800"}) {
      std::u16string text(size, u'a');
      text.append(end).append(size, u'ř').append(end).append(size, u'„').append(end);
      ExpectSameUtf8(GetParam(), *test::WriteOneByOne(*FindEncoding("UTF_8"), text));
    }
  }
}

// Every pair of bytes at every position of a vector and across the boundary of two.
TEST_P(TextsOfKernels, AreAlikeForEveryTwoBytes) {
  const auto decoded = [](const KernelSet& set, const std::string& bytes) {
    const ScopedKernels chosen(set);
    return DecodedUtf8OfStrings(bytes);
  };
  for (unsigned pair = 0; pair < 0x10000; ++pair) {
    std::string bytes(36, 'a');
    const std::size_t at = pair % 35;
    bytes[at] = static_cast<char>(pair >> 8);
    bytes[at + 1] = static_cast<char>(pair);
    ASSERT_EQ(decoded(GetParam(), bytes), decoded(KernelSets().front(), bytes));
    const std::string more = "č" + bytes.substr(0, 14) + bytes.substr(at, 2) + "čč" + bytes;
    ASSERT_EQ(decoded(GetParam(), more), decoded(KernelSets().front(), more));
  }
}

}  // namespace
}  // namespace ravo::codec
