#include "support/memory_limit.h"
#include <ravo/runtime/error.h>
#include <ravo/utils/wide_str_buf.h>

#include <cstdlib>
#include <new>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

// Exposes the capacity.
class Buffer : public TWideStrBuf {
 public:
  using TWideStrBuf::Capacity;
  using TWideStrBuf::GrowBuffer;

  [[nodiscard]] std::u16string Text() const { return std::u16string(GetAsStr().View()); }
  [[nodiscard]] std::u16string Trimmed() const { return std::u16string(GetAsStrTrimRight().View()); }
};

TEST(TWideStrBuf, BeginsEmpty) {
  const Buffer buffer;
  EXPECT_EQ(buffer.GetCount(), 0u);
  EXPECT_EQ(buffer.Capacity(), 0u);
  EXPECT_TRUE(buffer.IsEmpty());
  EXPECT_FALSE(buffer.IsNotEmpty());
  EXPECT_EQ(buffer.Text(), u"");
  EXPECT_EQ(buffer.Trimmed(), u"");
}

TEST(TWideStrBuf, AddCharGrowsWhenFull) {
  Buffer buffer;
  buffer.AddChar(u'x');
  EXPECT_EQ(buffer.Capacity(), 4097u);
  for (int i = 1; i < 4097; ++i) buffer.AddChar(u'x');
  EXPECT_EQ(buffer.Capacity(), 4097u);
  EXPECT_EQ(buffer.GetCount(), 4097u);
  buffer.AddChar(u'y');
  EXPECT_EQ(buffer.Capacity(), 4097u + 4097u);
  EXPECT_EQ(buffer.Text(), std::u16string(4097, u'x') + u"y");
}

TEST(TWideStrBuf, AddStrGrowsAlsoWhereTheTextJustFits) {
  Buffer buffer;
  buffer.AddStr(u"");
  EXPECT_EQ(buffer.Capacity(), 4096u);
  buffer.AddStr(std::u16string(4095, u'a'));
  EXPECT_EQ(buffer.Capacity(), 4096u);
  buffer.AddStr(u"b");
  EXPECT_EQ(buffer.Capacity(), 4096u + 1 + 4096);
  EXPECT_EQ(buffer.GetCount(), 4096u);
  buffer.AddStr(std::u16string(4097, u'c'));
  EXPECT_EQ(buffer.Capacity(), 8193u + 4097 + 4096);
  EXPECT_EQ(buffer.Text(), std::u16string(4095, u'a') + u"b" + std::u16string(4097, u'c'));
}

TEST(TWideStrBuf, AddStrTakesWideStrings) {
  Buffer buffer;
  buffer.AddStr(WideString(u"příliš"));
  EXPECT_EQ(buffer.Text(), u"příliš");
}

TEST(TWideStrBuf, AddBufDoesNothingForNull) {
  Buffer buffer;
  buffer.AddBuf(nullptr, 5);
  EXPECT_EQ(buffer.Capacity(), 0u);
  EXPECT_TRUE(buffer.IsEmpty());
  buffer.AddBuf(u"abcdef", 3);
  EXPECT_EQ(buffer.Text(), u"abc");
  EXPECT_EQ(buffer.Capacity(), 4099u);
  buffer.AddBuf(u"", 0);
  EXPECT_EQ(buffer.Capacity(), 4099u);
}

TEST(TWideStrBuf, AddCrLfGrowsBelowThreeFreeUnits) {
  Buffer buffer;
  buffer.AddCrLf();
  EXPECT_EQ(buffer.Capacity(), 4098u);
  EXPECT_EQ(buffer.Text(), u"\r\n");
  while (buffer.GetCount() < 4095) buffer.AddChar(u'x');
  buffer.AddCrLf();
  EXPECT_EQ(buffer.Capacity(), 4098u) << "three were free";
  buffer.Delete(4096, 1);
  buffer.AddCrLf();
  EXPECT_EQ(buffer.Capacity(), 4098u + 2 + 4096) << "two were free";
  EXPECT_EQ(buffer.Text().substr(4094), u"x\r\r\n");
}

TEST(TWideStrBuf, KeepsEveryUnit) {
  Buffer buffer;
  const std::u16string text = {u'a', 0, 0xD800, 0xFFFF, u'z'};
  buffer.AddStr(text);
  for (const char16_t unit : text) buffer.AddChar(unit);
  EXPECT_EQ(buffer.Text(), text + text);
}

TEST(TWideStrBuf, Delete) {
  struct Row {
    std::uint32_t index;
    std::uint32_t count;
    std::u16string_view left;
  };
  constexpr std::uint32_t kLargest = 0xFFFFFFFF;
  const Row rows[] = {{1, 100, u"a"}, {1, 1, u"ac"},         {3, 1, u"abc"},     {0, 0, u"abc"},
                      {0, 3, u""},    {0, 2, u"c"},          {2, 1, u"ab"},      {1, kLargest, u"a"},
                      {0, 1, u"bc"},  {kLargest, 1, u"abc"}, {0, kLargest, u""}, {2, kLargest - 1, u"ab"}};
  for (const Row& row : rows) {
    Buffer buffer;
    buffer.AddStr(u"abc");
    buffer.Delete(row.index, row.count);
    EXPECT_EQ(buffer.Text(), row.left) << row.index << ", " << row.count;
    EXPECT_EQ(buffer.GetCount(), row.left.size());
    EXPECT_EQ(buffer.Capacity(), 4099u);
  }
  Buffer empty;
  empty.Delete(0, 1);
  EXPECT_TRUE(empty.IsEmpty());
}

TEST(TWideStrBuf, ResetKeepsTheMemoryAndClearFreesIt) {
  Buffer buffer;
  buffer.AddStr(u"abc");
  EXPECT_TRUE(buffer.IsNotEmpty());
  buffer.Reset();
  EXPECT_TRUE(buffer.IsEmpty());
  EXPECT_EQ(buffer.Capacity(), 4099u);
  buffer.AddStr(u"d");
  EXPECT_EQ(buffer.Text(), u"d");
  buffer.Clear();
  EXPECT_TRUE(buffer.IsEmpty());
  EXPECT_EQ(buffer.Capacity(), 0u);
  buffer.AddChar(u'e');
  EXPECT_EQ(buffer.Capacity(), 4097u);
  EXPECT_EQ(buffer.Text(), u"e");
}

TEST(TWideStrBuf, GetAsStrTrimRightLeavesTheBufferAlone) {
  Buffer buffer;
  buffer.AddStr(u"  ab\r\n  ");
  EXPECT_EQ(buffer.Trimmed(), u"  ab");
  EXPECT_EQ(buffer.Text(), u"  ab\r\n  ");
  for (char16_t unit = 0; unit < 40; ++unit) {
    buffer.Reset();
    buffer.AddChar(u'x');
    buffer.AddChar(unit);
    EXPECT_EQ(buffer.Trimmed().size(), unit < 33 ? 1u : 2u) << static_cast<int>(unit);
  }
  buffer.Reset();
  buffer.AddStr(u" \t\r\n");
  EXPECT_EQ(buffer.Trimmed(), u"");
  buffer.Reset();
  buffer.AddChar(0xA0);
  EXPECT_EQ(buffer.Trimmed(), u"\xA0");
}

// The stated growth compared with a plain model, over pieces of many sizes.
TEST(TWideStrBuf, GrowsToTheUnitAsStated) {
  std::mt19937 random(5);
  Buffer buffer;
  std::u16string text;
  std::uint32_t capacity = 0;
  for (int i = 0; i < 3000; ++i) {
    const auto size = static_cast<std::uint32_t>(random() % 8 == 0 ? random() % 9000 : random() % 40);
    if (capacity - text.size() <= size) capacity += size + 4096;
    const std::u16string piece(size, static_cast<char16_t>('a' + i % 26));
    buffer.AddStr(piece);
    text += piece;
    ASSERT_EQ(buffer.Capacity(), capacity);
    ASSERT_EQ(buffer.GetCount(), text.size());
  }
  EXPECT_EQ(buffer.Text(), text);
}

TEST(TWideStrBuf, RaisesWhereTheCapacityLeaves32Bits) {
  Buffer buffer;
  buffer.AddStr(u"abc");
  EXPECT_THROW(buffer.GrowBuffer(0xFFFFFFFF), OverflowError);
  EXPECT_THROW(buffer.GrowBuffer(0xFFFFFFFF - 4099 - 4096 + 1), OverflowError);
  // Never read; the compiler must not know its length.
  const char16_t* volatile somewhere = u"x";
  const volatile std::uint32_t most = 0xFFFFFFFF;
  EXPECT_THROW(buffer.AddBuf(somewhere, most), OverflowError);
  if constexpr (sizeof(std::size_t) > 4) {
    EXPECT_THROW(buffer.GrowBuffer(std::size_t{1} << 32), OverflowError);
    EXPECT_THROW(buffer.AddStr({somewhere, std::size_t{1} << 33}), OverflowError);
  }
  EXPECT_EQ(buffer.Text(), u"abc");
  EXPECT_EQ(buffer.Capacity(), 4099u);
}

// In a separate process: returns 0 if the error came and changed nothing, 1 if it did not come, 2 if memory
// cannot be limited.
int GrownWithoutMemory() {
  constexpr std::size_t kLimit = std::size_t{1} << 30;
  Buffer buffer;
  buffer.AddStr(u"abc");
  if (!test::LimitMemory(kLimit)) return 1;
  try {
    buffer.GrowBuffer(kLimit);
  } catch (const std::bad_alloc&) {
    return buffer.Text() == u"abc" && buffer.Capacity() == 4099 ? 0 : 1;
  }
  return 1;
}

TEST(TWideStrBufDeathTest, StaysAsItWasWithoutMemory) {
  if (!test::kMemoryCanBeLimited) GTEST_SKIP() << "memory cannot be limited here";
#if GTEST_HAS_DEATH_TEST
  EXPECT_EXIT(std::exit(GrownWithoutMemory()), ::testing::ExitedWithCode(0), "");
#endif
}

// Four such buffers do not fit 32 bits.
TEST(TWideStrBuf, RaisesWithoutMemory) {
  if constexpr (sizeof(std::size_t) == 4) {
    Buffer buffers[4];
    const auto grow_all = [&buffers] {
      for (Buffer& buffer : buffers) buffer.GrowBuffer(std::size_t{300} << 20);
    };
    EXPECT_THROW(grow_all(), std::bad_alloc);
    EXPECT_EQ(buffers[3].Capacity(), 0u);
  }
}

}  // namespace
}  // namespace ravo::DIUtils
