#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/format_settings.h>

#include <cstdint>
#include <string>
#include <string_view>

/// Functions of the room that ask the machine, with what it answers as an argument.
namespace ravo::common {

/// Returns what `BytesToStr` does in a locale with these settings.
[[nodiscard]] std::u16string BytesText(std::int64_t size, bool with_bytes, const FormatSettings& locale);

/// Returns what `ParseZalohaFile` does if the clock shows `date`, and when it is read again `time`.
[[nodiscard]] std::u16string BackupName(std::u16string_view pattern, std::u16string_view company,
                                        DateTime date, DateTime time);

}  // namespace ravo::common
