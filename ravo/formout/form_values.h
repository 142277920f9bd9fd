#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <string>

/// Dates and flags as statutory forms want them. The time of day is ignored, once it is rounded to the
/// millisecond: the last half of one belongs to the next day. The locale has no say, and the empty date 0
/// gives an empty text. `ConvertError` for a date outside the years 1 to 9999.
namespace ravo::RavoFileCommon {

/// Year, month and day with hyphens: 2024-12-31.
[[nodiscard]] RAVO_API std::u16string Date2XML(DateTime date);

/// Day, month and year with dots: 5.3.2024; 5.3. without the year, 05.03.2024 with leading zeros.
[[nodiscard]] RAVO_API std::u16string Date2PDF(DateTime date, bool WithoutYear, bool LeadingZeros);

/// "X" for true, an empty text for false.
[[nodiscard]] RAVO_API std::u16string Bool2XML(bool value);

}  // namespace ravo::RavoFileCommon
