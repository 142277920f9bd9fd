#pragma once

#include <ravo/runtime/currency.h>
#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/format_settings.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace ravo {

/// A growable array of bytes, indexed from 0.
using ByteArray = std::vector<std::uint8_t>;

/// The state of a variant that was never assigned a value.
struct EmptyValue {
  friend bool operator==(EmptyValue, EmptyValue) = default;
};

/// SQL's null: there is deliberately no value.
struct NullValue {
  friend bool operator==(NullValue, NullValue) = default;
};

/// A date-time in a variant; a type of its own distinguishes it from a float.
struct DateValue {
  DateTime value = 0;  ///< the date-time itself
  friend bool operator==(const DateValue&, const DateValue&) = default;
};

/// A tagged value: empty, null, integer, float, currency, date, text, boolean or bytes.
class Variant {
 public:
  /// The kinds of value that a variant may hold.
  using Value = std::variant<EmptyValue, NullValue, std::int32_t, std::int64_t, double, Currency, DateValue,
                             std::u16string, bool, ByteArray>;

  Variant() noexcept = default;
  /// Constructs SQL's null.
  Variant(NullValue) noexcept : value_(NullValue{}) {}
  /// An integer of 32 bits.
  Variant(std::int32_t value) noexcept : value_(value) {}
  /// An integer of 64 bits.
  Variant(std::int64_t value) noexcept : value_(value) {}
  /// A floating-point number.
  Variant(double value) noexcept : value_(value) {}
  /// An amount.
  Variant(Currency value) noexcept : value_(value) {}
  /// A date-time.
  Variant(DateValue value) noexcept : value_(value) {}
  /// A boolean.
  Variant(bool value) noexcept : value_(value) {}
  /// A text.
  Variant(std::u16string value) noexcept : value_(std::move(value)) {}
  /// A copy of a text.
  Variant(std::u16string_view value) : value_(std::u16string(value)) {}
  /// A copy of a zero-terminated text; must not be null.
  Variant(const char16_t* value) : value_(std::u16string(value)) {}
  /// Bytes.
  Variant(ByteArray value) noexcept : value_(std::move(value)) {}

  /// Returns the value with its kind.
  [[nodiscard]] const Value& Get() const noexcept { return value_; }
  /// Returns whether no value was ever assigned.
  [[nodiscard]] bool IsEmpty() const noexcept { return std::holds_alternative<EmptyValue>(value_); }
  /// Returns whether the value is SQL's null.
  [[nodiscard]] bool IsNull() const noexcept { return std::holds_alternative<NullValue>(value_); }
  /// Returns whether the value is empty or null.
  [[nodiscard]] bool IsEmptyOrNull() const noexcept { return IsEmpty() || IsNull(); }

  friend bool operator==(const Variant&, const Variant&) = default;

 private:
  Value value_;
};

/// Returns the text of a value in the format of the locale.
///
/// Empty and null give an empty text, integers their digits, floats the general float format (15 significant
/// digits), amounts every digit without trailing zeros, dates the locale's date and time, booleans "True" or
/// "False". Floats and amounts use the locale's decimal separator. Throws `ConvertError` for a date out of
/// range, and `VariantError` for bytes, which have no text.
[[nodiscard]] RAVO_API std::u16string VariantToText(const Variant& value, const FormatSettings& settings);

/// Returns the sum of two values. The kinds are tested in this order:
///
///   null     with any value, the sum is null
///   bytes    throw `VariantError`
///   empty    the sum is the other value, unchanged
///   texts    two texts are concatenated; a text with any other kind must be a number in the locale, else
///            `VariantError` is thrown, and counts as a float
///   date     the sum is a date
///   amount   the sum is an amount
///   float    the sum is a float
///   integer  the sum has the wider type; a boolean counts as the 32-bit integer -1 or 0
///
/// Floats are rounded to the four decimal places of an amount, to nearest, ties to even. Throws
/// `OverflowError` if the sum of integers or amounts does not fit, and `FloatError` if a float sum is not
/// finite.
[[nodiscard]] RAVO_API Variant VariantSum(const Variant& left, const Variant& right,
                                          const FormatSettings& settings);

}  // namespace ravo
