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

/// No value was ever assigned.
struct EmptyValue {
  friend bool operator==(EmptyValue, EmptyValue) = default;
};

/// There is deliberately no value: SQL's null.
struct NullValue {
  friend bool operator==(NullValue, NullValue) = default;
};

/// A date-time inside a variant, so that it is told apart from a plain float.
struct DateValue {
  DateTime value = 0;  ///< the date-time itself
  friend bool operator==(const DateValue&, const DateValue&) = default;
};

/// A tagged value: empty, null, integer, float, currency, date, text, boolean or bytes.
class Variant {
 public:
  /// What a variant may hold, one kind at a time.
  using Value = std::variant<EmptyValue, NullValue, std::int32_t, std::int64_t, double, Currency, DateValue,
                             std::u16string, bool, ByteArray>;

  Variant() noexcept = default;
  /// Null.
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
  /// A copy of a text ended by a zero; not for null.
  Variant(const char16_t* value) : value_(std::u16string(value)) {}
  /// Bytes.
  Variant(ByteArray value) noexcept : value_(std::move(value)) {}

  /// The value with its kind.
  [[nodiscard]] const Value& Get() const noexcept { return value_; }
  /// Whether no value was ever assigned.
  [[nodiscard]] bool IsEmpty() const noexcept { return std::holds_alternative<EmptyValue>(value_); }
  /// Whether it is SQL's null.
  [[nodiscard]] bool IsNull() const noexcept { return std::holds_alternative<NullValue>(value_); }
  /// Whether it is either.
  [[nodiscard]] bool IsEmptyOrNull() const noexcept { return IsEmpty() || IsNull(); }

  friend bool operator==(const Variant&, const Variant&) = default;

 private:
  Value value_;
};

/// The text of a value: nothing for empty and null, digits for integers, the general float format for floats
/// (15 significant digits), every digit of amounts without trailing zeros, both with the locale's decimal
/// separator, the locale's date and time for dates (`ConvertError` for what is no date), "True" or "False".
/// Bytes have no text: `VariantError`.
[[nodiscard]] RAVO_API std::u16string VariantToText(const Variant& value, const FormatSettings& settings);

/// The sum of two values. Null with anything is null. Bytes have no sum: `VariantError`. Empty counts as
/// nothing: the sum is the other value as it is. Two texts are joined. A text beside any other kind must read
/// as a number in the locale, else `VariantError`, and counts as a float. Integers add as the wider of both
/// and raise `OverflowError`; a boolean counts as the 32-bit integer -1 or 0; a date makes the sum a date,
/// else an amount makes it an amount, else a float makes it a float. Floats are rounded to the nearest, ties
/// to even, to the four places of an amount, which raises `OverflowError`; a float sum that is not finite
/// raises `FloatError`.
[[nodiscard]] RAVO_API Variant VariantSum(const Variant& left, const Variant& right,
                                          const FormatSettings& settings);

}  // namespace ravo
