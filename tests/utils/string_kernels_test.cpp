// Vector kernels and plain loops have identical results.
#include "support/guarded_buffer.h"
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/utils/strings/find.h>
#include <ravo/utils/strings/first_letters.h>
#include <ravo/utils/strings/mismatch.h>

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::strings {
namespace {

// Few characters, so that near hits are common; some differ only in case, some are past ASCII.
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
  for (int round = 0; round < 4000; ++round) {
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

// Repeats each test with every set of kernels that this processor runs.
class StringsOfKernel : public testing::TestWithParam<codec::KernelSet> {
 protected:
  void SetUp() override {
    if (!GetParam().runs_here()) GTEST_SKIP() << "this processor does not run it";
  }

 private:
  const codec::ScopedKernels scoped_{GetParam()};
};
INSTANTIATE_TEST_SUITE_P(Kernels, StringsOfKernel,
                         testing::ValuesIn(codec::KernelSets().begin(), codec::KernelSets().end()),
                         [](const auto& row) { return std::string(row.param.name); });

template <class Char>
void ExpectSameLongSearch(std::mt19937& random) {
  // A long text without the first and last units of the search text, with a few of them sprinkled in.
  String<Char> text(random() % 1500, static_cast<Char>('.'));
  const String<Char> search = RandomText<Char>(random, 1 + random() % 6, 3);
  for (std::size_t count = random() % 40; count > 0 && !text.empty(); --count) {
    const auto piece = random() % 2 == 0 ? search : RandomText<Char>(random, 3, 3);
    const std::size_t at = random() % text.size();
    text.replace(at, std::min(piece.size(), text.size() - at), piece, 0,
                 std::min(piece.size(), text.size() - at));
  }
  const test::GuardedBuffer guarded(BytesOf(text));
  for (std::size_t from = 0; from <= text.size();) {
    const auto wanted = FindPlainly<Exact>(View<Char>(search), In<Char>(guarded), from);
    ASSERT_EQ((Find<Exact>(View<Char>(search), In<Char>(guarded), from)), wanted);
    ASSERT_EQ((Find<Folded>(View<Char>(search), In<Char>(guarded), from)),
              (FindPlainly<Folded>(View<Char>(search), In<Char>(guarded), from)));
    from = wanted == kNone ? text.size() + 1 : wanted + 1;
  }
}

TEST_P(StringsOfKernel, SearchesLongTextsAsThePlainOne) {
  std::mt19937 random(29);
  for (int round = 0; round < 3000; ++round) {
    ExpectSameLongSearch<char>(random);
    ExpectSameLongSearch<char16_t>(random);
  }
}

// One hit in a uniform text, at every position and so at every alignment.
TEST_P(StringsOfKernel, FindsAHitAtEveryPlace) {
  for (std::size_t size = 1; size < 700; size += 1 + size / 40) {
    std::u16string text(size, u'.');
    for (std::size_t at = 0; at + 2 <= size; ++at) {
      text[at] = u'č';
      text[at + 1] = u'X';
      ASSERT_EQ((Find<Exact, char16_t>(u"čX", text, 0)), at) << size;
      ASSERT_EQ((Find<Folded, char16_t>(u"Čx", text, 0)), at) << size;
      text[at] = text[at + 1] = u'.';
    }
  }
}

TEST(StringKernels, KnowEveryVariant) {
  for (unsigned code = 0; code < 0x10000; ++code) {
    const auto c = static_cast<char16_t>(code);
    if (!AreVariantsKnown(c)) continue;
    const auto variants = VariantsOf(Folded::Of(c));
    ASSERT_NE(std::find(variants.begin(), variants.end(), c), variants.end()) << code;
  }
  for (unsigned code = 0; code < 0x100; ++code) {
    const auto c = static_cast<char>(code);
    const auto variants = VariantsOf(Folded::Of(c));
    ASSERT_NE(std::find(variants.begin(), variants.end(), c), variants.end()) << code;
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
  for (int round = 0; round < 4000; ++round) {
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

// Compares every unit with those of nearby codes, where a rule for pairs of letters may fail.
TEST(StringKernels, UnitsThatAreNearFoldAsThePlainOne) {
  for (unsigned code = 0; code < 0x10000; ++code) {
    for (const unsigned distance : {1u, 2u, 8u, 16u, 26u, 31u, 32u, 33u, 48u, 80u, 0x79u, 0x8000u}) {
      const std::u16string here(8, static_cast<char16_t>(code));
      const std::u16string there(8, static_cast<char16_t>(code + distance));
      const std::size_t wanted = MismatchPlainly<Folded>(here.data(), there.data(), 0, 8);
      ASSERT_EQ((Mismatch<Folded>(here.data(), there.data(), 8)), wanted) << code << ' ' << distance;
      ASSERT_EQ((Mismatch<Folded>(there.data(), here.data(), 8)), wanted) << code << ' ' << distance;
    }
  }
}
TEST(StringKernels, LettersOfLatinFoldAsThePlainOne) {
  for (unsigned left = 0; left < 0x250; ++left) {
    for (unsigned right = 0; right < 0x250; ++right) {
      const std::u16string here(8, static_cast<char16_t>(left));
      const std::u16string there(8, static_cast<char16_t>(right));
      const std::size_t wanted = MismatchPlainly<Folded>(here.data(), there.data(), 0, 8);
      ASSERT_EQ((Mismatch<Folded>(here.data(), there.data(), 8)), wanted) << left << ' ' << right;
    }
  }
}

}  // namespace
}  // namespace ravo::strings
