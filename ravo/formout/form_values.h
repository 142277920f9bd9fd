#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <string>

/// Dates and flags in the format of statutory forms, independent of the locale. A date-time is rounded to the
/// millisecond and its time of day ignored, so the last half millisecond belongs to the next day. The empty
/// date 0 gives an empty text. Throws `ConvertError` outside the years 1 to 9999.
namespace ravo::RavoFileCommon {

/// Returns a date as year, month and day with hyphens: 2024-12-31.
[[nodiscard]] RAVO_API std::u16string Date2XML(DateTime date);

/// Returns a date as day, month and year with dots: 5.3.2024; 5.3. if `WithoutYear`, 05.03.2024 if
/// `LeadingZeros`.
[[nodiscard]] RAVO_API std::u16string Date2PDF(DateTime date, bool WithoutYear, bool LeadingZeros);

/// Returns "X" for true and an empty text for false.
[[nodiscard]] RAVO_API std::u16string Bool2XML(bool value);

}  // namespace ravo::RavoFileCommon
