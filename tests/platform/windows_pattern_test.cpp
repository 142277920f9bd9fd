#include <ravo/platform/windows_pattern.h>

#include <gtest/gtest.h>

namespace ravo::platform {
namespace {

TEST(FromWindowsPattern, Rows) {
  struct Row {
    std::u16string_view windows;
    std::u16string_view ours;
  };
  constexpr Row rows[] = {
      {u"", u""},
      {u"d. M. yyyy", u"d. m. yyyy"},
      {u"dd.MM.yyyy", u"dd.mm.yyyy"},
      {u"dddd d. MMMM yy", u"dddd d. mmmm yy"},
      {u"H:mm:ss", u"h:nn:ss"},
      {u"HH:m:s", u"hh:n:s"},
      {u"h:mm:ss tt", u"h:nn:ss AMPM"},
      {u"h:mm t", u"h:nn A/P"},
      // Runs longer than the longest known.
      {u"ddddd MMMMM", u"dddd mmmm"},
      {u"y yyy yyyyy", u"y yyyy yyyy"},
      {u"HHH:mmm:sss ttt", u"hh:nn:ss AMPM"},
      // Eras are left out.
      {u"gg yyyy", u" yyyy"},
      // Quoted texts, with a quote inside, and cut short.
      {u"d 'de' MMMM", u"d 'de' mmmm"},
      {u"H 'o''clock'", u"h 'o'\"'clock\""},
      {u"''''d", u"\"'\"d"},
      {u"''d", u"d"},
      {u"d 'r", u"d 'r'"},
      {u"d '", u"d "},
      {u"'\"'\"", u"'\"''\"'"},
      // Letters that are literal for Windows alone, and letters that are literal for both.
      {u"yyyynz", u"yyyy'n''z'"},
      {u"H\u6642mm\u5206", u"h\u6642nn\u5206"},
      {u"d\u00A0/", u"d\u00A0/"},
  };
  for (const Row& row : rows) EXPECT_EQ(FromWindowsPattern(row.windows), row.ours);
}

}  // namespace
}  // namespace ravo::platform
