// Compares every set of kernels with plain loops; sources and room end at a guard page.
#include "support/guarded_buffer.h"
#include <ravo/codec/kernels/block.h>
#include <ravo/codec/kernels/kernel_set.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::codec {
namespace {

class Kernels : public testing::TestWithParam<KernelSet> {
 protected:
  void SetUp() override {
    if (!GetParam().runs_here()) GTEST_SKIP() << "this processor does not run it";
  }
};
INSTANTIATE_TEST_SUITE_P(Sets, Kernels, testing::ValuesIn(KernelSets().begin(), KernelSets().end()),
                         [](const auto& row) { return std::string(row.param.name); });

// Encodes each unit by itself, as the Unicode Standard forms sequences of up to three bytes.
std::string EncodedPlainly(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) {
    if (unit < 0x80) {
      bytes += static_cast<char>(unit);
      continue;
    }
    if (unit >= 0x800) bytes += static_cast<char>(0xE0 | unit >> 12);
    bytes += static_cast<char>(unit < 0x800 ? 0xC0 | unit >> 6 : 0x80 | (unit >> 6 & 0x3F));
    bytes += static_cast<char>(0x80 | (unit & 0x3F));
  }
  return bytes;
}

// Returns text with long runs of one sequence length, and mixed ones.
std::u16string TextOf(std::mt19937& random, std::size_t size) {
  std::u16string text;
  while (text.size() < size) {
    const auto kind = random() % 4;
    for (std::size_t count = random() % 150; count > 0; --count) {
      const unsigned limit = kind == 0   ? 0x80
                             : kind == 1 ? 0x800
                             : kind == 2 ? 0x10000
                                         : 0x80U << random() % 10;
      text += static_cast<char16_t>(random() % std::min(limit, 0x10000U));
    }
  }
  text.resize(size);
  return text;
}

template <class Unit>
std::span<const Unit> UnitsIn(const test::GuardedBuffer& buffer) {
  return {reinterpret_cast<const Unit*>(buffer.Bytes().data()), buffer.Bytes().size() / sizeof(Unit)};
}

template <class Text>
test::GuardedBuffer Guarded(const Text& text) {
  return test::GuardedBuffer(std::as_bytes(std::span(text)));
}

template <class Unit>
std::span<Unit> RoomIn(test::GuardedBuffer& buffer) {
  return {reinterpret_cast<Unit*>(buffer.Bytes().data()), buffer.Bytes().size() / sizeof(Unit)};
}

void ExpectEncoded(const KernelSet& kernels, const std::u16string& text, std::size_t room) {
  const test::GuardedBuffer source = Guarded(text);
  test::GuardedBuffer target = Guarded(std::string(room, '?'));
  const auto to = RoomIn<std::uint8_t>(target);
  const Run run = kernels.encode_utf8(UnitsIn<char16_t>(source), to);
  ASSERT_LE(run.taken, text.size());
  const std::string wanted = EncodedPlainly(text.substr(0, run.taken));
  ASSERT_EQ(std::string(to.begin(), to.begin() + static_cast<std::ptrdiff_t>(run.made)), wanted);
}

TEST_P(Kernels, EncodeAPrefixOfUtf8) {
  std::mt19937 random(11);
  for (std::size_t size = 0; size < 500; ++size) {
    const std::u16string text = TextOf(random, size);
    const std::string bytes = EncodedPlainly(text);
    for (const std::size_t room : {bytes.size(), bytes.size() + 300, std::size_t{random() % (3 * size + 1)}})
      ASSERT_NO_FATAL_FAILURE(ExpectEncoded(GetParam(), text, room));
    ASSERT_EQ(GetParam().utf8_length(UnitsIn<char16_t>(Guarded(text))), bytes.size());
  }
}

// Texts too long for the counter in a lane.
TEST_P(Kernels, CountTheBytesOfLongTexts) {
  constexpr std::size_t kSize = 1'100'007;
  EXPECT_EQ(GetParam().utf8_length(std::u16string(kSize, u'a')), kSize);
  EXPECT_EQ(GetParam().utf8_length(std::u16string(kSize, u'č')), 2 * kSize);
  EXPECT_EQ(GetParam().utf8_length(std::u16string(kSize, u'€')), 3 * kSize);
  EXPECT_EQ(GetParam().utf8_length(std::u16string(kSize, u'\xD800')), 3 * kSize);
}

TEST_P(Kernels, EncodeEveryUnit) {
  for (unsigned first = 0; first < 0x10000; first += 256) {
    std::u16string text;
    for (unsigned unit = first; unit < first + 256; ++unit) text += static_cast<char16_t>(unit);
    ASSERT_NO_FATAL_FAILURE(ExpectEncoded(GetParam(), text, 1000));
  }
}

void ExpectDecoded(const KernelSet& kernels, const std::u16string& text, std::size_t room) {
  const std::string bytes = EncodedPlainly(text);
  const test::GuardedBuffer source = Guarded(bytes);
  test::GuardedBuffer target = Guarded(std::u16string(room, u'?'));
  const auto to = RoomIn<char16_t>(target);
  const Run run = kernels.decode_utf8(UnitsIn<std::uint8_t>(source), to);
  const std::u16string made(to.data(), run.made);
  ASSERT_EQ(made, text.substr(0, run.made));
  ASSERT_EQ(EncodedPlainly(made).size(), run.taken);
}

TEST_P(Kernels, DecodeAPrefixOfUtf8) {
  std::mt19937 random(12);
  for (std::size_t size = 0; size < 500; ++size) {
    const std::u16string text = TextOf(random, size);
    for (const std::size_t room : {3 * size, size + 300, std::size_t{random() % (size + 1)}})
      ASSERT_NO_FATAL_FAILURE(ExpectDecoded(GetParam(), text, room));
  }
}

// Pairs give fewer units than bytes, so the room for ASCII after them must be counted in units.
TEST_P(Kernels, KeepToTheRoomInAsciiAfterPairs) {
  for (std::size_t pairs = 0; pairs < 200; pairs += 8) {
    const std::u16string text = std::u16string(pairs, u'č') + std::u16string(700, u'x');
    for (std::size_t room = 0; room < 500; room += 7)
      ASSERT_NO_FATAL_FAILURE(ExpectDecoded(GetParam(), text, room));
  }
}

// The faster sets must not leave such texts to the engine of one character.
TEST_P(Kernels, TakeWholeTextsOfTheirKind) {
  if (GetParam().name == "plain") GTEST_SKIP() << "leaves everything";
  const bool only_ascii = GetParam().name == "baseline";
  for (const std::u16string_view word : {u"faktura ", u"účet č. ", u"„účet“ – €"}) {
    std::u16string text;
    while (text.size() < 4000) text += word;
    if (only_ascii && word != u"faktura ") continue;
    const std::string bytes = EncodedPlainly(text);
    std::vector<std::uint8_t> to(3 * text.size());
    std::vector<char16_t> back(bytes.size());
    EXPECT_GE(GetParam().encode_utf8(text, to).taken, text.size() - 64);
    EXPECT_GE(GetParam().decode_utf8(UnitsIn<std::uint8_t>(Guarded(bytes)), back).taken, bytes.size() - 64);
  }
}

// A malformed piece at every position of a block: a prefix of what precedes it is decoded.
TEST_P(Kernels, StopBeforeMalformedSequences) {
  for (const std::string_view piece :
       {"\xC4", "\x8D", "\xC1\xBF", "\xE0\x9F\xBF", "\xE2\x82", "\xF0\x9F\x98\x80", "\xFF"}) {
    for (const std::u16string_view filler : {u"x", u"č", u"€"}) {
      for (std::size_t before = 0; before < 140; ++before) {
        std::u16string text;
        while (text.size() < before) text += filler;
        const std::string start = EncodedPlainly(text);
        const std::string bytes = start + std::string(piece) + std::string(100, 'y');
        std::vector<char16_t> to(bytes.size());
        const auto run = GetParam().decode_utf8(UnitsIn<std::uint8_t>(Guarded(bytes)), to);
        ASSERT_LE(run.taken, start.size()) << before;
        ASSERT_EQ(std::u16string(to.data(), run.made), text.substr(0, run.made));
        ASSERT_EQ(EncodedPlainly({to.data(), run.made}).size(), run.taken);
      }
    }
  }
}

TEST_P(Kernels, FindEachSpecialUnit) {
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    const bool is_special = (unit >= 0xD800 && unit <= 0xDFFF) || unit == 0xFFFD;
    for (const std::size_t before : {0U, 8U}) {
      const std::u16string text = std::u16string(before, u'č') + static_cast<char16_t>(unit);
      ASSERT_EQ(GetParam().find_special(text), is_special ? before : before + 1) << unit;
    }
  }
}

TEST_P(Kernels, FindTheFirstSpecialUnit) {
  std::mt19937 random(23);
  constexpr char16_t kSpecial[] = {0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xFFFD};
  constexpr char16_t kUsual[] = {0x8000, 0xD7FF, 0xE000, 0xFFFC, 0xFFFE, 0xFFFF, u'a', u'č', u'€'};
  for (std::size_t size = 0; size < 700; ++size) {
    const std::size_t kinds = 1 + random() % std::size(kUsual);
    std::u16string text(size, u'a');
    for (char16_t& unit : text) unit = kUsual[std::size(kUsual) - 1 - random() % kinds];
    ASSERT_EQ(GetParam().find_special(UnitsIn<char16_t>(Guarded(text))), size);
    for (std::size_t first = size; first-- > 0;) {
      text[first] = kSpecial[random() % std::size(kSpecial)];
      if (first % 7 != 0 && first + 9 < size) continue;
      ASSERT_EQ(GetParam().find_special(text), first) << size;
    }
  }
}

template <class Char>
void ExpectSkipped(SkipPlaces<Char> skip, std::mt19937& random) {
  std::basic_string<Char> text(random() % 300, Char{'.'});
  const std::size_t distance = random() % 4;
  for (std::size_t count = random() % 3; count > 0 && !text.empty(); --count)
    text[random() % text.size()] = static_cast<Char>(random() % 2 == 0 ? 'a' : 'b');
  if (text.size() < distance) return;
  const test::GuardedBuffer buffer = Guarded(text);
  const Char* const from = UnitsIn<Char>(buffer).data();
  const Char ends[2] = {Char{'a'}, Char{'b'}};
  const std::size_t places = text.size() - distance;
  const std::size_t skipped = skip(from, from + distance, places, ends);
  ASSERT_LE(skipped, places);
  for (std::size_t at = 0; at < skipped; ++at)
    ASSERT_FALSE(text[at] == Char{'a'} && text[at + distance] == Char{'b'}) << at;
}

TEST_P(Kernels, SkipNoPlaceThatMayMatch) {
  std::mt19937 random(13);
  for (int round = 0; round < 5000; ++round) {
    ASSERT_NO_FATAL_FAILURE(ExpectSkipped<char>(GetParam().skip_bytes, random));
    ASSERT_NO_FATAL_FAILURE(ExpectSkipped<char16_t>(GetParam().skip_units, random));
  }
}

TEST(ScopedKernels, ForceASetAndGiveTheChoiceBack) {
  const KernelSet& before = ChosenKernels();
  {
    const ScopedKernels plain(KernelSets().front());
    EXPECT_EQ(ChosenKernels().name, "plain");
    const ScopedKernels baseline(KernelSets()[1]);
    EXPECT_EQ(ChosenKernels().name, "baseline");
  }
  EXPECT_EQ(&ChosenKernels(), &before);
  EXPECT_TRUE(before.runs_here());
}

// Compares each lane of a block separately.
template <class Unit>
void ExpectLanes(unsigned low, unsigned high) {
  constexpr std::size_t kUnits = Block<Unit>::kUnits;
  const unsigned limit = sizeof(Unit) == 1 ? 0x100 : 0x10000;
  for (unsigned code = 0; code < limit; ++code) {
    Unit units[kUnits] = {};
    units[code % kUnits] = static_cast<Unit>(code);
    const auto block = Block<Unit>::Load(units);
    const bool hit = code >= low && code <= high;
    const Hits<Unit> hits = block.Within(static_cast<Unit>(low), static_cast<Unit>(high)).AsHits();
    ASSERT_EQ(hits.None(), !hit) << code;
    if (hit) {
      ASSERT_EQ(hits.First(), code % kUnits);
      ASSERT_TRUE(hits.WithoutFirst().None());
    }
    ASSERT_EQ(block.EqualTo(static_cast<Unit>(high)).AsHits().None(), code != high);
  }
}

TEST(Block, AnswersForEachLane) {
  ExpectLanes<std::uint8_t>(0x80, 0xBF);
  ExpectLanes<char>('a', 'z');
  ExpectLanes<std::uint8_t>(0x20, 0xFF);
  ExpectLanes<char16_t>(0x178, 0x17E);
  ExpectLanes<char16_t>(0x7F00, 0x8100);
}

}  // namespace
}  // namespace ravo::codec
