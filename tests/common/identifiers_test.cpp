#include "support/czech_settings.h"
#include "support/fake_machine.h"
#include <ravo/common/identifiers.h>
#include <ravo/runtime/error.h>

#include <limits>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

TEST(UIDToString, Unquoted) {
  test::FakeMachine machine;
  machine.locale = test::CzechSettings();
  const platform::ScopedMachine in_force(machine);
  EXPECT_EQ(UIDToString(NullValue{}, false), u"");
  EXPECT_EQ(UIDToString(Variant(), false), u"");
  EXPECT_EQ(UIDToString(u"abc", false), u"abc");
  EXPECT_EQ(UIDToString(42, false), u"42");
  EXPECT_EQ(UIDToString(1.5, false), u"1,5");
  EXPECT_EQ(UIDToString(true, false), u"True");
}

TEST(UIDToString, AmountsAreExact) {
  test::FakeMachine machine;
  machine.locale = test::CzechSettings();
  const platform::ScopedMachine in_force(machine);
  EXPECT_EQ(UIDToString(Currency{std::numeric_limits<std::int64_t>::max()}, false), u"922337203685477,5807");
  EXPECT_EQ(UIDToString(Currency{std::numeric_limits<std::int64_t>::min()}, false), u"-922337203685477,5808");
}

TEST(UIDToString, Quoted) {
  const test::FakeMachine machine;
  const platform::ScopedMachine in_force(machine);
  EXPECT_EQ(UIDToString(NullValue{}, true), u"Null");
  EXPECT_EQ(UIDToString(Variant(), true), u"Null");
  EXPECT_EQ(UIDToString(u"abc", true), u"'abc'");
  EXPECT_EQ(UIDToString(u"", true), u"''");
  EXPECT_EQ(UIDToString(u"O'Neil", true), u"'O'Neil'");
}

TEST(UIDToString, QuotesAreAddedToTextsOnly) {
  const test::FakeMachine machine;
  const platform::ScopedMachine in_force(machine);
  const Variant values[] = {42, std::int64_t{42}, 1.5, true, DateValue{1}, Currency{10000}, ByteArray{1}};
  for (const Variant& value : values) {
    EXPECT_THROW(static_cast<void>(UIDToString(value, true)), VariantError) << value.Get().index();
  }
}

TEST(TimestampToBytes, EightBytesInTheWrittenOrder) {
  const ByteArray expected{0, 0, 0, 0, 0, 0, 0x07, 0xD1};
  EXPECT_EQ(TimestampToBytes(u"0x00000000000007D1"), expected);
  EXPECT_EQ(TimestampToBytes(u"00000000000007d1"), expected);
  EXPECT_EQ(TimestampToBytes(u"0x000x00000x00000007D1"), expected);
  EXPECT_EQ(TimestampToBytes(u"0x00000000000007D1FF, no digits"), expected);
  EXPECT_EQ(TimestampToBytes(u"0x0123456789ABCDEF"),
            (ByteArray{0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF}));
  EXPECT_EQ(TimestampToBytes(u"FFFFFFFFFFFFFFFF"), ByteArray(8, 0xFF));
}

TEST(TimestampToBytes, ShortTextsGiveNothing) {
  for (const std::u16string_view text : {u"", u"0", u"0x", u"0x1", u"xyz"}) {
    EXPECT_EQ(TimestampToBytes(text), ByteArray{});
  }
}

TEST(TimestampToBytes, BrokenPairsRaise) {
  constexpr std::u16string_view rows[] = {
      u"0x12",                // seven pairs are missing
      u"0x0x",                // all pairs are missing
      u"0x000000000000",      // two pairs are missing
      u"0x00000000000007D",   // half a pair
      u"0x00000000000007G1",  // not a digit
      u"0X00000000000007D1",  // only a lower-case "x" is removed
      u"x1000000000000000",   // the prefix of an integer is not accepted
      u" 100000000000000",
      u"-100000000000000",
      u"+100000000000000",
      u"$100000000000000",
      u"1 00000000000000",
      u"00xx000000000000",  // a "0x" formed by a removal stays
      u"ěš00000000000000",
  };
  for (const std::u16string_view text : rows) {
    EXPECT_THROW(static_cast<void>(TimestampToBytes(text)), ConvertError) << testing::PrintToString(text);
  }
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
