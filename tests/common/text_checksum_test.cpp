#include <ravo/common/text_checksum.h>
#include <ravo/runtime/error.h>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

std::uint32_t Checksum(std::string_view text) {
  std::uint32_t crc = 0xDEADBEEF;
  CalcCRC32(text, crc);
  return crc;
}

TEST(CalcCRC32, KnownValues) {
  EXPECT_EQ(Checksum(""), 0u);
  EXPECT_EQ(Checksum("123456789"), 0xCBF43926u);
  EXPECT_EQ(Checksum(std::string_view("\0", 1)), 0xD202EF8Du);
}

TEST(CalcCRC32, TakesAtMost65535Bytes) {
  EXPECT_EQ(Checksum(std::string(65535, '\0')), 0x953675C7u);
  std::uint32_t crc = 42;
  EXPECT_THROW(CalcCRC32(std::string(65536, '\0'), crc), RangeError);
  EXPECT_THROW(CalcCRC32(std::string(65536 * 2, '\0'), crc), RangeError);
  EXPECT_EQ(crc, 42u);
}

TEST(ExtractCRCCase, EightUpperCaseDigits) {
  EXPECT_EQ(ExtractCRCCase("123456789"), "CBF43926");
  EXPECT_EQ(ExtractCRCCase(""), "00000000");
  EXPECT_EQ(ExtractCRCCase("16660"), "0000F9AD");
  EXPECT_THROW(static_cast<void>(ExtractCRCCase(std::string(65536, 'a'))), RangeError);
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
