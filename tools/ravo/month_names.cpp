#include "month_names.h"

#include "text.h"

#include <array>

namespace tool {
namespace {

constexpr std::array<const char*, 12> kMonthNames = {
    ToTranslate("January"),   ToTranslate("February"), ToTranslate("March"),    ToTranslate("April"),
    ToTranslate("May"),       ToTranslate("June"),     ToTranslate("July"),     ToTranslate("August"),
    ToTranslate("September"), ToTranslate("October"),  ToTranslate("November"), ToTranslate("December")};

constexpr std::array<const char*, 7> kWeekdays = {
    ToTranslate("Monday"), ToTranslate("Tuesday"),  ToTranslate("Wednesday"), ToTranslate("Thursday"),
    ToTranslate("Friday"), ToTranslate("Saturday"), ToTranslate("Sunday")};

}  // namespace

std::string MonthName(int month) { return Text(kMonthNames[static_cast<std::size_t>(month - 1)]); }

const char* WeekdayKey(int weekday) { return kWeekdays[static_cast<std::size_t>(weekday)]; }

}  // namespace tool
