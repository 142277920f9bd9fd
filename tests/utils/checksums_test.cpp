#include <ravo/runtime/error.h>
#include <ravo/utils/checksums.h>

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

constexpr std::uint32_t kStart = 0xFFFFFFFF;

TEST(Crc32OfStrA, StatedValues) {
  EXPECT_EQ(Crc32OfStrA("123456789"), 0xCBF43926u);
  EXPECT_EQ(Crc32OfStrA(""), 0u);
  EXPECT_EQ(Crc32OfBuf("123456789", 9), 0xCBF43926u);
  EXPECT_EQ(Crc32OfBuf(nullptr, 0), 0u);
}

TEST(Crc32OfStrW, IsThatOfTheLittleEndianBytes) {
  EXPECT_EQ(Crc32OfStrW(u"AČ"), Crc32OfStrA(std::string_view("A\0\x0C\x01", 4)));
  EXPECT_EQ(Crc32OfStrW(u""), 0u);
  EXPECT_EQ(UpdateCrc32OfStrW(5, u"AČ"), UpdateCrc32OfBuf(5, "A\0\x0C\x01", 4));
}

TEST(UpdateCrc32OfBuf, DoesNotComplement) {
  EXPECT_EQ(UpdateCrc32OfBuf(kStart, "123456789", 9), ~0xCBF43926u);
  EXPECT_EQ(UpdateCrc32OfStrA(kStart, "123456789"), ~0xCBF43926u);
  EXPECT_EQ(UpdateCrc32OfBuf(0x12345678, nullptr, 0), 0x12345678u);
}

TEST(UpdateCrc32OfBuf, TwoHalvesGiveTheWhole) {
  const std::string text = "The quick brown fox jumps over the lazy dog";
  for (std::size_t at = 0; at <= text.size(); ++at) {
    const std::uint32_t front = UpdateCrc32OfBuf(kStart, text.data(), at);
    EXPECT_EQ(~UpdateCrc32OfBuf(front, text.data() + at, text.size() - at),
              Crc32OfBuf(text.data(), text.size()));
  }
}

// The text is never read, so no memory is needed.
TEST(Crc32OfStrW, RaisesFrom2To30UnitsOn) {
  const char16_t unit = u'x';
  const std::u16string_view text(&unit, std::size_t{1} << 30);
  EXPECT_THROW(static_cast<void>(Crc32OfStrW(text)), OverflowError);
  EXPECT_THROW(static_cast<void>(UpdateCrc32OfStrW(kStart, text)), OverflowError);
  if constexpr (std::numeric_limits<std::size_t>::max() > 0xFFFFFFFF) {
    const std::u16string_view longer(&unit, std::size_t{1} << 31);
    EXPECT_THROW(static_cast<void>(Crc32OfStrW(longer)), RangeError);
  }
}

}  // namespace
}  // namespace ravo::DIUtils
