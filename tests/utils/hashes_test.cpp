#include "support/guarded_buffer.h"
#include <ravo/runtime/error.h>
#include <ravo/unicode/characters.h>
#include <ravo/utils/ansi_upper.h>
#include <ravo/utils/hash_stream.h>
#include <ravo/utils/hashes.h>

#include <array>
#include <cctype>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using Triple = std::array<std::uint32_t, 3>;

// lookup2 over the values added to a, b and c, step by step: an independent implementation of the algorithm.
std::uint32_t PlainHash(const std::vector<Triple>& added, std::uint32_t initial) {
  Triple v = {0x9E3779B9, 0x9E3779B9, initial};
  for (const Triple& words : added) {
    for (std::size_t i = 0; i < 3; ++i) v[i] += words[i];
    const std::array<int, 9> shifts = {13, 8, 13, 12, 16, 5, 3, 10, 15};
    for (std::size_t step = 0; step < shifts.size(); ++step) {
      const std::uint32_t second = v[(step + 1) % 3];
      const std::uint32_t third = v[(step + 2) % 3];
      const std::uint32_t moved = step % 3 == 1 ? third << shifts[step] : third >> shifts[step];
      v[step % 3] = (v[step % 3] - second - third) ^ moved;
    }
  }
  return v[2];
}

// The length occupies the low byte of the last word.
std::uint32_t PlainHashOfBytes(std::vector<std::uint8_t> bytes, std::uint32_t initial) {
  const auto length = static_cast<std::uint32_t>(bytes.size());
  const std::size_t whole = bytes.size() / 12 * 12;
  if (bytes.size() - whole > 8) bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(whole + 8), 0);
  bytes.resize(whole + 12);
  std::vector<Triple> added(bytes.size() / 12);
  for (std::size_t i = 0; i < bytes.size(); ++i)
    added[i / 12][i % 12 / 4] += std::uint32_t{bytes[i]} << 8 * (i % 4);
  added.back()[2] += length;
  return PlainHash(added, initial);
}

std::uint32_t PlainHashOfUnits(std::u16string text, std::uint32_t initial) {
  const std::size_t whole = text.size() / 6 * 6;
  const std::size_t left = text.size() - whole;
  const auto length = static_cast<std::uint32_t>(text.size());
  text.resize(whole + 6);
  if (left >= 3) text[whole + 2] = 0;
  if (left >= 4) text[whole + 3] = 0;
  // The last of five units is in the upper half of b.
  if (left == 5) std::swap(text[whole + 3], text[whole + 4]);
  std::vector<Triple> added(text.size() / 6);
  for (std::size_t i = 0; i < text.size(); ++i)
    added[i / 6][i % 6 / 2] += std::uint32_t{DIUnicode::CharToCaseFoldW(text[i])} << 16 * (i % 2);
  added.back()[2] += length;
  return PlainHash(added, initial);
}

std::vector<std::uint8_t> RandomBytes(std::size_t count) {
  std::mt19937 random(static_cast<std::uint32_t>(count));
  std::vector<std::uint8_t> bytes(count);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
  return bytes;
}

TEST(HashBuf, IsLookup2AtEveryLength) {
  for (std::size_t count = 0; count < 200; ++count) {
    const std::vector<std::uint8_t> bytes = RandomBytes(count);
    const test::GuardedBuffer buffer(std::as_bytes(std::span(bytes)));
    for (const std::uint32_t initial : {0u, 1u, 0xFFFFFFFFu, 0x12345678u})
      ASSERT_EQ(HashBuf(buffer.Bytes().data(), count, initial), PlainHashOfBytes(bytes, initial)) << count;
  }
}

TEST(HashStream, PiecesGiveWhatTheWholeGives) {
  const std::vector<std::uint8_t> bytes = RandomBytes(100);
  const auto all = std::as_bytes(std::span(bytes));
  for (std::size_t count = 0; count <= bytes.size(); ++count) {
    for (std::size_t cut = 0; cut <= count; ++cut) {
      HashStream exact(77);
      HashStream upper(78, HashStream::Letters::InUpperCase);
      for (HashStream* stream : {&exact, &upper}) {
        stream->Update(all.first(cut));
        static_cast<void>(stream->Value());
        stream->Update(all.subspan(cut, count - cut));
      }
      ASSERT_EQ(exact.Value(), HashBuf(bytes.data(), count, 77)) << count;
      ASSERT_EQ(upper.Value(), HashBufIA(bytes.data(), count, 78)) << count;
    }
  }
}

TEST(HashStrA, KnownValues) {
  EXPECT_EQ(HashStrA("", 0), 0xBD49D10Du);
  EXPECT_EQ(HashStrA("", 0), HashBuf(nullptr, 0, 0));
  EXPECT_NE(HashStrA("abc", 0), HashStrA("abc", 1));
}

TEST(HashStrIA, TakesLettersOfBothCasesAsOne) {
  EXPECT_EQ(HashStrIA("abc", 0), HashStrIA("ABC", 0));
  EXPECT_NE(HashStrA("abc", 0), HashStrA("ABC", 0));
  EXPECT_EQ(HashStrIA("ABC", 5), HashStrA("ABC", 5));
}

TEST(HashBufIA, IsTheHashOfTheUpperCaseBytes) {
  for (std::size_t count = 0; count < 100; ++count) {
    const std::vector<std::uint8_t> bytes = RandomBytes(count + 1000);
    std::vector<std::uint8_t> upper;
    for (const std::uint8_t byte : bytes) upper.push_back(ANSI_UPPER_CHAR_TABLE[byte]);
    ASSERT_EQ(HashBufIA(bytes.data(), bytes.size(), 9), HashBuf(upper.data(), upper.size(), 9));
  }
}

TEST(HashStrW, IsTheHashOfTheLittleEndianBytes) {
  EXPECT_EQ(HashStrW(u"AČ", 3), HashStrA(std::string_view("A\0\x0C\x01", 4), 3));
  EXPECT_EQ(HashStrW(u"", 3), HashStrA("", 3));
}

TEST(HashStrIW, DiffersFromHashStrWEvenInLowerCase) {
  EXPECT_NE(HashStrW(u"abcdefgh", 0), HashStrIW(u"abcdefgh", 0));
  EXPECT_EQ(HashStrW(u"", 0), HashStrIW(u"", 0));
}

TEST(HashBufIW, HashesFoldedUnitsAtEveryLength) {
  std::mt19937 random(11);
  for (std::size_t count = 0; count < 100; ++count) {
    std::u16string text;
    for (std::size_t i = 0; i < count; ++i) text += static_cast<char16_t>(random() % 0x600);
    const test::GuardedBuffer buffer(std::as_bytes(std::span(text)));
    const auto* units = reinterpret_cast<const char16_t*>(buffer.Bytes().data());
    for (const std::uint32_t initial : {0u, 77u, 0xFFFFFFFFu})
      ASSERT_EQ(HashBufIW(units, count, initial), PlainHashOfUnits(text, initial)) << count;
  }
}

TEST(HashBufIW, FoldsEveryUnit) {
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    const std::u16string text(1, static_cast<char16_t>(unit));
    ASSERT_EQ(HashStrIW(text, 0), PlainHashOfUnits(text, 0)) << unit;
  }
}

TEST(HashBufIW, DropsThirdAndFourthUnitOfTheLastPiece) {
  EXPECT_EQ(HashStrIW(u"abcd", 0), HashStrIW(u"abXY", 0));
  EXPECT_EQ(HashStrIW(u"abc", 0), HashStrIW(u"abX", 0));
  EXPECT_EQ(HashStrIW(u"abcde", 0), HashStrIW(u"abXYe", 0));
  EXPECT_NE(HashStrIW(u"abcde", 0), HashStrIW(u"abcdX", 0));
  EXPECT_NE(HashStrIW(u"abcd", 0), HashStrIW(u"aXcd", 0));
  EXPECT_NE(HashStrIW(u"abcdef", 0), HashStrIW(u"abXYef", 0));
  EXPECT_EQ(HashStrIW(u"123456abcd", 0), HashStrIW(u"123456abXY", 0));
  EXPECT_NE(HashStrIW(u"abc", 0), HashStrIW(u"abcd", 0));
}

TEST(HashStrIW, TakesLettersOfBothCasesAsOne) {
  EXPECT_EQ(HashStrIW(u"PŘÍLIŠ ŽLUŤOUČKÝ", 1), HashStrIW(u"příliš žluťoučký", 1));
  EXPECT_EQ(HashStrIW(u"ΣΑΣ", 1), HashStrIW(u"σας", 1));
}

TEST(HashStrW, RaisesFrom2To30UnitsOn) {
  const char16_t unit = u'x';
  EXPECT_THROW(static_cast<void>(HashStrW({&unit, std::size_t{1} << 30}, 0)), OverflowError);
}

TEST(AnsiUpperCharTable, ChangesSixtyBytes) {
  std::set<unsigned> changed;
  for (unsigned byte = 0; byte < 256; ++byte) {
    const unsigned upper = ANSI_UPPER_CHAR_TABLE[byte];
    if (upper != byte) changed.insert(byte);
    if (byte < 0x80) {
      EXPECT_EQ(static_cast<int>(upper), std::toupper(static_cast<int>(byte)));
    }
    if (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7) {
      EXPECT_EQ(upper, byte - 0x20);
    }
    EXPECT_EQ(ANSI_UPPER_CHAR_TABLE[upper], upper);
  }
  EXPECT_EQ(changed.size(), 60u);
  EXPECT_EQ(ANSI_UPPER_CHAR_TABLE[0x9A], 0x8A);
  EXPECT_EQ(ANSI_UPPER_CHAR_TABLE[0x9C], 0x8C);
  EXPECT_EQ(ANSI_UPPER_CHAR_TABLE[0x9E], 0x8E);
  EXPECT_EQ(ANSI_UPPER_CHAR_TABLE[0xFF], 0x9F);
  EXPECT_EQ(ANSI_UPPER_CHAR_TABLE[0xF7], 0xF7);
  EXPECT_EQ(ANSI_UPPER_CHAR_TABLE[0xDF], 0xDF);
}

}  // namespace
}  // namespace ravo::DIUtils
