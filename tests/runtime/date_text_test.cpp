#include "support/float_environment.h"
#include <ravo/runtime/date_text.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/text.h>

#include <limits>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

FormatSettings CzechSettings() {
  FormatSettings settings;
  settings.decimal_separator = u',';
  settings.thousands_separator = u"\u00A0";
  settings.short_date = u"d. M. yyyy";
  settings.long_time = u"H:mm:ss";
  settings.am_text = u"dop.";
  settings.pm_text = u"odp.";
  settings.short_day_names = {u"ne", u"po", u"út", u"st", u"čt", u"pá", u"so"};
  settings.long_day_names = {u"neděle", u"pondělí", u"úterý", u"středa", u"čtvrtek", u"pátek", u"sobota"};
  settings.short_month_names[1] = u"úno";
  settings.long_month_names[1] = u"únor";
  return settings;
}

// Thursday 29 February 2024, 13:07:09.005.
DateTime Afternoon() { return EncodeDateTime({{2024, 2, 29}, {13, 7, 9, 5}}); }
// Monday 3 January 2000, 00:30:00.
DateTime AfterMidnight() { return EncodeDateTime({{2000, 1, 3}, {0, 30, 0, 0}}); }

struct Row {
  std::u16string_view pattern;
  std::u16string_view text;
};

void ExpectTexts(std::span<const Row> rows, DateTime value) {
  const FormatSettings settings = CzechSettings();
  for (const Row& row : rows) {
    EXPECT_EQ(FormatDateTime(row.pattern, value, settings), row.text) << ToUtf8(row.pattern);
  }
}

TEST(DateText, Dates) {
  constexpr Row rows[] = {
      {u"", u""},
      {u"d. m. yyyy", u"29. 2. 2024"},
      {u"dd.mm.yy", u"29.02.24"},
      {u"D.M.Y", u"29.2.24"},
      {u"ddd dddd", u"čt čtvrtek"},
      {u"ddddd", u"čtvrtek"},
      {u"mmm mmmm mmmmm", u"úno únor únor"},
      {u"yyy yyyyy", u"2024 2024"},
      {u"yymmdd", u"240229"},
      {u"yyyymmddhhnnsszzz", u"20240229130709005"},
      {u"yyyy-mm-dd", u"2024-02-29"},
  };
  ExpectTexts(rows, Afternoon());
  constexpr Row early[] = {{u"d dd", u"3 03"}, {u"m mm mmm", u"1 01 Jan"}, {u"yy y yyyy", u"00 00 2000"}};
  ExpectTexts(early, AfterMidnight());
  constexpr Row first[] = {{u"yyyy yy dddd", u"0001 01 pondělí"}};
  ExpectTexts(first, EncodeDate(1, 1, 1));
}

TEST(DateText, Times) {
  constexpr Row rows[] = {
      {u"h:n:s.z", u"13:7:9.5"},
      {u"hh:nn:ss.zzz", u"13:07:09.005"},
      {u"hhh:nnn:sss.zz", u"13:07:09.005"},
      {u"hhmmss", u"130709"},
      {u"H:MM", u"13:07"},
      {u"h 'm' m", u"13 m 7"},
      {u"h \"hodin\" mm", u"13 hodin 07"},
      {u"hh mmm", u"13 úno"},
      {u"hh:mm mm", u"13:07 02"},
      {u"hh ss mm", u"13 09 02"},
      {u"hh am/pm mm", u"01 pm 02"},
      {u"mm:ss", u"02:09"},
  };
  ExpectTexts(rows, Afternoon());
}

TEST(DateText, HalvesOfTheDay) {
  constexpr Row afternoon[] = {
      {u"h:mm AM/PM", u"1:07 PM"}, {u"hh:mm am/pm", u"01:07 pm"},
      {u"h a/p", u"1 p"},          {u"h A/P", u"1 P"},
      {u"h ampm", u"1 odp."},      {u"AMPM h", u"odp. 1"},
      {u"h 'am/pm'", u"13 am/pm"}, {u"h a", u"13 a"},
      {u"h am", u"13 a7"},
  };
  ExpectTexts(afternoon, Afternoon());
  constexpr Row midnight[] = {
      {u"h:mm AM/PM", u"12:30 AM"}, {u"hh A/p", u"12 A"}, {u"ampm", u"dop."}, {u"h", u"0"}};
  ExpectTexts(midnight, AfterMidnight());
  constexpr Row noon[] = {{u"h AM/PM", u"12 PM"}};
  ExpectTexts(noon, 0.5);
}

TEST(DateText, LiteralText) {
  constexpr Row rows[] = {
      {u"'dne' d", u"dne 29"},
      {u"\"d'd\" d", u"d'd 29"},
      {u"'d\"d' d", u"d\"d 29"},
      {u"d''m", u"292"},
      {u"d 'never closed d", u"29 never closed d"},
      {u"d '", u"29 "},
      {u"d/m:y (k)č\U0001F600", u"29/2:24 (k)č\U0001F600"},
  };
  ExpectTexts(rows, Afternoon());
}

TEST(DateText, DateTimeText) {
  const FormatSettings czech = CzechSettings();
  EXPECT_EQ(DateTimeText(Afternoon(), czech), u"29. 2. 2024 13:07:09");
  EXPECT_EQ(DateTimeText(EncodeDate(2024, 2, 29), czech), u"29. 2. 2024");
  EXPECT_EQ(DateTimeText(EncodeDateTime({{2024, 2, 29}, {0, 0, 0, 1}}), czech), u"29. 2. 2024 0:00:00");
  EXPECT_EQ(DateTimeText(-1.25, czech), u"29. 12. 1899 6:00:00");
  EXPECT_EQ(DateTimeText(-1.9999999999, czech), u"30. 12. 1899");
  EXPECT_EQ(DateTimeText(0.5, FormatSettings{}), u"1899-12-30 12:00:00");
}

TEST(DateText, WhatIsNoDateRaises) {
  EXPECT_THROW((void)FormatDateTime(u"d", 1e300, {}), ConvertError);
  EXPECT_THROW((void)FormatDateTime(u"", std::numeric_limits<double>::quiet_NaN(), {}), ConvertError);
  EXPECT_THROW((void)DateTimeText(2958466, {}), ConvertError);
}

TEST(DateText, SameInEveryFloatState) {
  std::vector<DateTime> values;
  for (int i = 0; i < 200; ++i) values.push_back(45000 + i / 7.0);
  test::ExpectSameInEveryFloatState([&] {
    std::vector<std::u16string> results;
    for (const DateTime value : values) results.push_back(FormatDateTime(u"yyyymmddhhnnsszzz", value, {}));
    return results;
  });
}

}  // namespace
}  // namespace ravo
