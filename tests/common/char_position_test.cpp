#include <ravo/common/text_helpers.h>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

TEST(CharPosition, Rows) {
  struct Row {
    std::u16string_view text;
    char16_t ch;
    std::int32_t n;
    std::int32_t position;
  };
  constexpr Row rows[] = {
      {u"a;b;c", u';', 1, 2},         {u"a;b;c", u';', 2, 4}, {u"a;b;c", u';', 3, 0}, {u"a;b;c", u';', 0, 0},
      {u"a;b;c", u';', -1, 0},        {u"a;b;c", u'x', 1, 0}, {u"", u';', 1, 0},      {u";", u';', 1, 1},
      {u"a;b;c", u';', INT32_MIN, 0}, {u";;;", u';', 3, 3},   {u"žluť", u'ť', 1, 4},  {u"aA", u'A', 1, 2},
      {u"a;b;c", u';', INT32_MAX, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(CharPosition(row.text, row.ch, row.n), row.position)
        << testing::PrintToString(row.text) << ' ' << row.n;
  }
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
