#include <ravo/czech/day_text.h>

#include <gtest/gtest.h>

namespace ravo::czech {
namespace {

TEST(TakeDate, TakesEachFormAndLeavesTheRest) {
  struct Row {
    std::string_view text;
    std::string_view rest;
  };
  for (const Row& row : {Row{"2026-03-05", ""},
                         {"2026-3-5T10:00", "T10:00"},
                         {"5.3.2026+14d", "+14d"},
                         {"5. 3. 2026", ""},
                         {"05.\u00A003.\u00A02026 ", " "},
                         {"20260305", ""}}) {
    std::string_view text = row.text;
    EXPECT_EQ(TakeDate(text), (DateParts{2026, 3, 5})) << row.text;
    EXPECT_EQ(text, row.rest);
  }
}

TEST(TakeDate, LeavesWhatIsNoDate) {
  for (const std::string_view row :
       {"", "5. 3.", "26-03-05", "202603051", "2026-03", "x2026-03-05", "5.3.26"}) {
    std::string_view text = row;
    EXPECT_FALSE(TakeDate(text)) << row;
    EXPECT_EQ(text, row);
  }
}

TEST(TakeDate, TakesDatesThatDoNotExist) {
  std::string_view text = "31.2.0000";
  EXPECT_EQ(TakeDate(text), (DateParts{0, 2, 31}));
}

TEST(DateText, WritesWhatTakeDateTakes) {
  for (const Day day : {detail::kFirstDay, DayOf({2026, 3, 5}), detail::kLastDay}) {
    for (const DateForm form : {DateForm::Iso, DateForm::Czech, DateForm::Compact}) {
      const auto written = DateText(day, form);
      std::string_view text = written.View();
      EXPECT_EQ(TakeDate(text), PartsOf(day)) << written.View();
      EXPECT_TRUE(text.empty());
    }
  }
  EXPECT_EQ(DateText(DayOf({2026, 3, 5}), DateForm::Czech).View(), "5. 3. 2026");
  EXPECT_EQ(DateText(DayOf({2026, 3, 5}), DateForm::Iso).View(), "2026-03-05");
}

}  // namespace
}  // namespace ravo::czech
