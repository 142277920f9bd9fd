// The ways to do one thing: by vectors and plainly, with identical results.
#include "support/guarded_buffer.h"
#include <ravo/utils/strings/find.h>
#include <ravo/utils/strings/mismatch.h>
#include <ravo/utils/strings/utf8_kernels.h>

#include <random>

#include <gtest/gtest.h>

namespace ravo::strings {
namespace {

// Few characters, so that near hits abound; some differ in case alone, some beyond ASCII.
constexpr std::u16string_view kUnits = u"aAbčČž\u0130i\u212AkKſs";

template <class Char>
String<Char> RandomText(std::mt19937& random, std::size_t length, std::size_t kinds) {
  String<Char> text;
  while (text.size() < length) text.push_back(static_cast<Char>(kUnits[random() % kinds]));
  return text;
}

template <class Char>
std::span<const std::byte> BytesOf(const String<Char>& text) {
  return std::as_bytes(std::span(text));
}

template <class Char>
View<Char> In(const test::GuardedBuffer& buffer) {
  return {reinterpret_cast<const Char*>(buffer.Bytes().data()), buffer.Bytes().size() / sizeof(Char)};
}

template <class Fold, class Char>
void ExpectSameSearch(std::mt19937& random) {
  const std::size_t kinds = 2 + random() % (kUnits.size() - 1);
  const test::GuardedBuffer text(BytesOf(RandomText<Char>(random, random() % 100, kinds)));
  const test::GuardedBuffer search(BytesOf(RandomText<Char>(random, random() % 6, kinds)));
  const std::size_t from = random() % 50;
  const auto wanted = FindPlainly<Fold>(In<Char>(search), In<Char>(text), from);
  ASSERT_EQ((Find<Fold>(In<Char>(search), In<Char>(text), from)), wanted);
}

TEST(StringKernels, SearchAsThePlainOne) {
  std::mt19937 random(17);
  for (int round = 0; round < 20000; ++round) {
    ExpectSameSearch<Exact, char>(random);
    ExpectSameSearch<Exact, char16_t>(random);
    ExpectSameSearch<Folded, char16_t>(random);
  }
}

TEST(StringKernels, FoldedSearchAcrossItsPieces) {
  for (const std::size_t length : {1u, 2u, 100u, 128u, 129u, 300u}) {
    const std::u16string search = std::u16string(length - 1, u'Č') + u'X';
    for (std::size_t before = 380; before < 1100; ++before) {
      const std::u16string text = std::u16string(before, u'č') + u'x';
      const std::size_t wanted = before + 1 < length ? kNone : before + 1 - length;
      ASSERT_EQ((Find<Folded, char16_t>(search, text, 0)), wanted) << length << ' ' << before;
    }
  }
}

template <class Fold, class Char>
void ExpectSameMismatch(std::mt19937& random) {
  const std::size_t length = random() % 60;
  String<Char> other = RandomText<Char>(random, length, kUnits.size());
  const test::GuardedBuffer left(BytesOf(other));
  for (Char& c : other) {
    if (random() % 30 == 0) c = static_cast<Char>(kUnits[random() % kUnits.size()]);
    if (random() % 2 == 0) c = Fold::Of(c);
  }
  const test::GuardedBuffer right(BytesOf(other));
  const Char* here = In<Char>(left).data();
  const Char* there = In<Char>(right).data();
  ASSERT_EQ((Mismatch<Fold>(here, there, length)), (MismatchPlainly<Fold>(here, there, 0, length)));
}

TEST(StringKernels, CompareAsThePlainOne) {
  std::mt19937 random(19);
  for (int round = 0; round < 20000; ++round) {
    ExpectSameMismatch<Exact, char>(random);
    ExpectSameMismatch<Exact, char16_t>(random);
    ExpectSameMismatch<Folded, char>(random);
    ExpectSameMismatch<Folded, char16_t>(random);
  }
}

TEST(StringKernels, EveryPairOfUnitsFoldsAsThePlainOne) {
  for (unsigned code = 0; code < 0x10000; ++code) {
    const std::u16string text(9, static_cast<char16_t>(code));
    const std::u16string folded(9, Folded::Of(static_cast<char16_t>(code)));
    ASSERT_EQ((Mismatch<Folded>(text.data(), folded.data(), 9)), 9u) << code;
    ASSERT_EQ((Find<Folded, char16_t>(folded, text, 0)), 0u) << code;
  }
}

TEST(StringKernels, Utf8AsThePlainOne) {
  std::mt19937 random(23);
  for (int round = 0; round < 20000; ++round) {
    std::string bytes;
    const std::size_t length = random() % 100;
    const auto most = 1 + random() % 255;
    while (bytes.size() < length)
      bytes.push_back(static_cast<char>(random() % 8 == 0 ? random() : random() % most));
    const test::GuardedBuffer buffer(BytesOf(bytes));
    std::u16string text(length, u'\0');
    std::u16string plain(length, u'\0');
    text.resize(static_cast<std::size_t>(DecodeUtf8(In<char>(buffer), text.data()) - text.data()));
    plain.resize(static_cast<std::size_t>(DecodeUtf8Plainly(In<char>(buffer), plain.data()) - plain.data()));
    ASSERT_EQ(text, plain);
    const test::GuardedBuffer units(BytesOf(text));
    std::string back(3 * text.size(), '\0');
    std::string plain_back(3 * text.size(), '\0');
    back.resize(static_cast<std::size_t>(EncodeUtf8(In<char16_t>(units), back.data()) - back.data()));
    plain_back.resize(
        static_cast<std::size_t>(EncodeUtf8Plainly(text, plain_back.data()) - plain_back.data()));
    ASSERT_EQ(back, plain_back);
  }
}

}  // namespace
}  // namespace ravo::strings
