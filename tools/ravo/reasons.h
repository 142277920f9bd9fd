#pragma once

#include <ravo/czech/reason.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tool {

/// Why a value or a row of a table is a finding; the country's rules add theirs, one for each code, behind
/// these.
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

inline constexpr std::size_t kOwnReasons = 9;
/// The places of the country's reasons.
enum CzechReason : std::uint8_t {
#define RAVO_REASON(number, name, text, czech, english) k##name,
#include <ravo/czech/reasons.inc>
#undef RAVO_REASON
  kCzechReasons
};
inline constexpr std::size_t kReasons = kOwnReasons + kCzechReasons;
static_assert(kReasons < 256);

/// Returns the reason of a refusal by the country's rules.
[[nodiscard]] Reason ReasonOf(ravo::czech::Code code) noexcept;

/// Returns the code of a reason for scripts; it never changes and is never translated.
[[nodiscard]] std::string_view CodeOf(Reason reason) noexcept;

/// Returns a reason as people read it.
[[nodiscard]] std::string Described(Reason reason);

/// Describes a row that has another number of fields than the first row.
[[nodiscard]] std::string DescribedRagged(std::size_t fields, std::size_t wanted);

}  // namespace tool
