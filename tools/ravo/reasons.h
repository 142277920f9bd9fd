#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tool {

/// Why a value or a row of a table is a finding.
enum class Reason : std::uint8_t {
  Invalid,
  Empty,
  TooLong,
  NoCheckDigit,
  WrongCheckDigit,
  // Of whole rows.
  Ragged,
  OpenQuote,
  TextAfterQuote,
  WrongByte,
};

inline constexpr std::size_t kReasons = 9;

/// Returns the code of a reason for scripts; it never changes and is never translated.
[[nodiscard]] constexpr std::string_view CodeOf(Reason reason) noexcept {
  constexpr std::string_view kCodes[kReasons] = {
      "invalid", "empty",      "too-long",         "no-check-digit", "wrong-check-digit",
      "ragged",  "open-quote", "text-after-quote", "wrong-byte"};
  return kCodes[static_cast<std::size_t>(reason)];
}

}  // namespace tool
