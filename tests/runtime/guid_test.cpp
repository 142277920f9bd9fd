#include <ravo/runtime/guid.h>

#include <gtest/gtest.h>

namespace ravo {
namespace {

constexpr Guid kNumbered("{00112233-4455-6677-8899-aAbBcCdDeEfF}");

TEST(Guid, BytesInMemoryOrder) {
  constexpr std::array<std::uint8_t, 16> expected{0x33, 0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66,
                                                  0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF};
  EXPECT_EQ(kNumbered.bytes, expected);
}

TEST(Guid, ToTextIsBracedUpperCase) {
  EXPECT_EQ(kNumbered.ToText(), u"{00112233-4455-6677-8899-AABBCCDDEEFF}");
  EXPECT_EQ(Guid().ToText(), u"{00000000-0000-0000-0000-000000000000}");
}

TEST(Guid, FromTextTakesBothFormsAndCases) {
  EXPECT_EQ(Guid::FromText(std::u16string_view(u"00112233-4455-6677-8899-aabbccddeeff")), kNumbered);
  EXPECT_EQ(Guid::FromText(std::string_view("{00112233-4455-6677-8899-AABBCCDDEEFF}")), kNumbered);
  EXPECT_EQ(Guid::FromText(std::u16string_view(kNumbered.ToText())), kNumbered);
}

TEST(Guid, FromTextRefusesEverythingElse) {
  constexpr std::u16string_view rows[] = {
      u"",
      u"{}",
      u"{00112233-4455-6677-8899-AABBCCDDEEFF",
      u"00112233-4455-6677-8899-AABBCCDDEEFF}",
      u"(00112233-4455-6677-8899-AABBCCDDEEFF)",
      u"00112233-4455-6677-8899-AABBCCDDEEF",
      u"00112233-4455-6677-8899-AABBCCDDEEFF0",
      u"00112233+4455-6677-8899-AABBCCDDEEFF",
      u"0011223-34455-6677-8899-AABBCCDDEEFF",
      u"00112233-4455-6677-8899-AABBCCDDEEFG",
      u"00112233-4455-6677-8899-AABBCCDDEE\u0146F",  // its low byte is a digit
  };
  for (const std::u16string_view row : rows) EXPECT_FALSE(Guid::FromText(row)) << ToUtf8(row);
}

}  // namespace
}  // namespace ravo
