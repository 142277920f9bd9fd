#pragma once

#include <ravo/platform/chapter.h>
#include <ravo/runtime/date_time.h>
#include <ravo/runtime/format_settings.h>

#include <string_view>

namespace ravo::platform {

/// The user's locale and the clock.
class LocaleCalls : public Chapter {
 public:
  /// Returns the user's current settings for the text of numbers and dates.
  [[nodiscard]] virtual FormatSettings Settings() const = 0;
  /// Tells whether two texts are equal without regard to case, by the rules of the user's language.
  [[nodiscard]] virtual bool SameText(std::u16string_view left, std::u16string_view right) const = 0;
  /// Returns the local time.
  [[nodiscard]] virtual DateTime Now() const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const LocaleCalls& Locale() noexcept;

}  // namespace ravo::platform
