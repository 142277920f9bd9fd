#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
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
[[nodiscard]] std::string_view CodeOf(Reason reason) noexcept;

/// Returns a reason as people read it.
[[nodiscard]] std::string Described(Reason reason);

/// Describes a row that has another number of fields than the first row.
[[nodiscard]] std::string DescribedRagged(std::size_t fields, std::size_t wanted);

}  // namespace tool
