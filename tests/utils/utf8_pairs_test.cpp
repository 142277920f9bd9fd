// `ToUtf8` and `FromUtf8` give the results of single characters with every set of kernels.
#include "support/guarded_buffer.h"
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/runtime/text.h>

#include <random>

#include <gtest/gtest.h>

namespace ravo {
namespace {

class Utf8PairsOfKernel : public testing::TestWithParam<codec::KernelSet> {
 protected:
  void SetUp() override {
    if (!GetParam().runs_here()) GTEST_SKIP() << "this processor does not run it";
  }
};
INSTANTIATE_TEST_SUITE_P(Kernels, Utf8PairsOfKernel,
                         testing::ValuesIn(codec::KernelSets().begin(), codec::KernelSets().end()),
                         [](const auto& row) { return std::string(row.param.name); });

struct Piece {
  std::string_view bytes;
  std::u16string_view text;
};
constexpr Piece kWhole[] = {{"a", u"a"},
                            {"č", u"č"},
                            {"faktura ", u"faktura "},
                            {"žluťoučký", u"žluťoučký"},
                            {"€", u"€"},
                            {"„", u"„"},
                            {"한", u"한"},
                            {"\xEF\xBF\xBD", u"\uFFFD"},
                            {"😀", u"😀"},
                            {"\xF4\x8F\xBF\xBF", u"\U0010FFFF"}};
constexpr Piece kBrokenBytes[] = {{"\x80", u"\uFFFD"},
                                  {"\xC0\xAF", u"\uFFFD\uFFFD"},
                                  {"\xE2\x82", u"\uFFFD"},
                                  {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
                                  {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
                                  {"\xF0\x9F\x98", u"\uFFFD"},
                                  {"\xFF", u"\uFFFD"}};
constexpr Piece kBrokenText[] = {{"\xEF\xBF\xBD", u"\xD800"}, {"\xEF\xBF\xBD", u"\xDC00"}};

struct Sample {
  std::string bytes;
  std::u16string text;
  void Append(const Piece& piece) {
    bytes += piece.bytes;
    text += piece.text;
  }
};

template <std::size_t size>
Sample SampleOf(std::mt19937& random, const Piece (&broken)[size]) {
  Sample sample;
  const std::size_t kinds = 1 + random() % std::size(kWhole);
  const bool is_whole = random() % 2 == 0;
  for (std::size_t count = random() % 80; count > 0; --count) {
    sample.Append(kWhole[random() % kinds]);
    // A letter separates them: two halves would form a pair.
    if (!is_whole && random() % 8 == 0) sample.Append(broken[random() % size]);
    if (!is_whole) sample.Append(kWhole[0]);
  }
  return sample;
}

TEST_P(Utf8PairsOfKernel, DecodesWhatIsWholeAndWhatIsBroken) {
  const codec::ScopedKernels scoped(GetParam());
  std::mt19937 random(41);
  for (int round = 0; round < 4000; ++round) {
    const Sample sample = SampleOf(random, kBrokenBytes);
    const test::GuardedBuffer buffer(std::as_bytes(std::span(sample.bytes)));
    const auto* const bytes = reinterpret_cast<const char*>(buffer.Bytes().data());
    ASSERT_EQ(FromUtf8({bytes, sample.bytes.size()}), sample.text) << sample.bytes;
  }
}

TEST_P(Utf8PairsOfKernel, EncodesWhatIsWholeAndWhatIsBroken) {
  const codec::ScopedKernels scoped(GetParam());
  std::mt19937 random(42);
  for (int round = 0; round < 4000; ++round) {
    const Sample sample = SampleOf(random, kBrokenText);
    const test::GuardedBuffer buffer(std::as_bytes(std::span(sample.text)));
    const auto* const text = reinterpret_cast<const char16_t*>(buffer.Bytes().data());
    ASSERT_EQ(ToUtf8({text, sample.text.size()}), sample.bytes);
  }
}

// Every set gives the result of the plain one for random bytes.
TEST_P(Utf8PairsOfKernel, DecodesRandomBytesAsThePlainOne) {
  std::mt19937 random(43);
  for (int round = 0; round < 4000; ++round) {
    std::string bytes;
    for (std::size_t count = random() % 200; count > 0; --count)
      bytes += static_cast<char>(random() % 4 == 0 ? random() : 'a' + random() % 26);
    const auto by = [&bytes](const codec::KernelSet& kernels) {
      const codec::ScopedKernels scoped(kernels);
      return FromUtf8(bytes);
    };
    ASSERT_EQ(by(GetParam()), by(codec::KernelSets().front()));
  }
}

}  // namespace
}  // namespace ravo
