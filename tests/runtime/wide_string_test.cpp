#include <ravo/runtime/error.h>
#include <ravo/runtime/wide_string.h>

#include <cstdint>
#include <cstring>

#include <gtest/gtest.h>

namespace ravo {
namespace {

constexpr std::u16string_view kInnerZero(u"a\0b", 3);

std::uint32_t LengthPrefixOf(const char16_t* text) {
  std::uint32_t bytes = 0;
  std::memcpy(&bytes, reinterpret_cast<const char*>(text) - sizeof bytes, sizeof bytes);
  return bytes;
}

TEST(WideString, HoldsACopyWithItsZeros) {
  for (const std::u16string_view text : {std::u16string_view(u"Účet"), kInnerZero, std::u16string_view()}) {
    const WideString wide(text);
    EXPECT_EQ(wide.View(), text);
    EXPECT_EQ(wide.Length(), text.size());
  }
}

TEST(WideString, LayoutIsThatOfAutomationTexts) {
  WideString wide(kInnerZero);
  char16_t* text = wide.Release();
  EXPECT_EQ(LengthPrefixOf(text), 6u);
  EXPECT_EQ(std::u16string_view(text, 4), std::u16string_view(u"a\0b\0", 4));
  EXPECT_EQ(wide.Length(), 0u);
  EXPECT_EQ(wide.Release(), nullptr);
  EXPECT_EQ(WideString::Adopt(text).View(), kInnerZero);
}

TEST(WideString, TheEmptyTextIsNull) {
  WideString wide(u"");
  EXPECT_EQ(wide.Release(), nullptr);
  EXPECT_EQ(WideString().View(), u"");
  EXPECT_EQ(WideString::Adopt(nullptr).Length(), 0u);
  EXPECT_EQ(WideTextLength(nullptr), 0u);
  FreeWideText(nullptr);
}

TEST(WideString, AnAllocatedEmptyTextIsAdopted) {
  char16_t* text = AllocateWideText(nullptr, 0);
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(LengthPrefixOf(text), 0u);
  EXPECT_EQ(*text, u'\0');
  EXPECT_EQ(WideString::Adopt(text), WideString());
}

TEST(WideString, CopiesAreIndependentAndMovesHandOver) {
  WideString first(u"one");
  WideString copy(first);
  WideString moved(std::move(first));
  EXPECT_EQ(copy, moved);
  EXPECT_NE(copy.View().data(), moved.View().data());
  copy = WideString(u"two");
  EXPECT_EQ(copy.View(), u"two");
  EXPECT_EQ(moved.View(), u"one");
  const WideString& self = copy;
  copy = self;
  EXPECT_EQ(copy.View(), u"two");
}

TEST(WideString, ALengthBeyondThirtyTwoBitsRaises) {
  // Only the length is used: the units after the first are never read.
  const std::u16string_view endless(u"a", std::size_t{0x80000000});
  EXPECT_THROW(WideString{endless}, RangeError);
}

}  // namespace
}  // namespace ravo
