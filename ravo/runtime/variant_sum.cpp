#include <ravo/runtime/binary_float.h>
#include <ravo/runtime/checked.h>
#include <ravo/runtime/decimal.h>
#include <ravo/runtime/decimal_parse.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/nearest_float.h>
#include <ravo/runtime/variant.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace ravo {
namespace {

// The kind that two values are added as: the later one of their kinds.
enum class SumKind : std::uint8_t { Integer32, Integer64, Float, Amount, Date };

[[noreturn]] void RaiseNotAddable() { throw VariantError(u"Values of these kinds cannot be added"); }

[[noreturn]] void RaiseNotANumber(const std::u16string& text) {
  throw VariantError(u"'" + text + u"' is not a number");
}

// Empty, null and bytes have no kind: they are handled before.
struct KindOf {
  SumKind operator()(std::int32_t) const { return SumKind::Integer32; }
  SumKind operator()(bool) const { return SumKind::Integer32; }
  SumKind operator()(std::int64_t) const { return SumKind::Integer64; }
  SumKind operator()(double) const { return SumKind::Float; }
  SumKind operator()(const std::u16string&) const { return SumKind::Float; }
  SumKind operator()(Currency) const { return SumKind::Amount; }
  SumKind operator()(DateValue) const { return SumKind::Date; }
  // Untested: these kinds are refused or joined before their number is read.
  template <class Other>
  SumKind operator()(const Other&) const {
    RaiseNotAddable();
  }
};

struct AsInteger {
  std::int64_t operator()(std::int32_t value) const { return value; }
  std::int64_t operator()(std::int64_t value) const { return value; }
  std::int64_t operator()(bool value) const { return value ? -1 : 0; }
  // Untested: these kinds are refused or joined before their number is read.
  template <class Other>
  std::int64_t operator()(const Other&) const {
    RaiseNotAddable();
  }
};

// A value as an exact decimal number.
struct AsDecimal {
  char16_t decimal_separator;

  DecimalNumber operator()(std::int32_t value) const { return ToDecimal(std::int64_t{value}, 0); }
  DecimalNumber operator()(std::int64_t value) const { return ToDecimal(value, 0); }
  DecimalNumber operator()(bool value) const { return ToDecimal(AsInteger{}(value), 0); }
  DecimalNumber operator()(double value) const { return ToDecimal(Extended{value}); }
  DecimalNumber operator()(Currency value) const { return ToDecimal(value.raw, Currency::kPlaces); }
  DecimalNumber operator()(const std::u16string& text) const {
    auto number = TryParseDecimal(text, decimal_separator);
    if (!number) RaiseNotANumber(text);
    return *std::move(number);
  }
  // Untested: these kinds are refused or joined before their number is read.
  template <class Other>
  DecimalNumber operator()(const Other&) const {
    RaiseNotAddable();
  }
};

// A value as the nearest float. Only a text can exceed the largest finite one.
struct AsFloat {
  AsDecimal as_decimal;

  double operator()(double value) const {
    if (FloatBits<double>::Kind(value) == FloatKind::Finite) return value;
    throw FloatError(u"Invalid floating point operation");
  }
  double operator()(DateValue date) const { return (*this)(date.value); }
  template <class Other>
  double operator()(const Other& other) const {
    const std::optional<double> value = NearestFloat<double>(as_decimal(other));
    if (!value) throw VariantError(u"Number out of range");
    return *value;
  }
};

Currency AsAmount(DecimalNumber number) {
  number.point += Currency::kPlaces;
  const std::optional<std::int64_t> raw = NearestInteger(number);
  if (!raw) throw OverflowError(u"Amount out of range");
  return {*raw};
}

double SumOfFloats(double left, double right) {
  const std::optional<double> sum = NearestSum(left, right);
  if (!sum) throw FloatError(u"Floating point overflow");
  return *sum;
}

template <class Integer>
Variant SumOfIntegers(std::int64_t left, std::int64_t right) {
  return CheckedAdd(static_cast<Integer>(left), static_cast<Integer>(right));
}

Variant SumOfNumbers(const Variant& left, const Variant& right, char16_t decimal_separator) {
  const AsDecimal as_decimal{decimal_separator};
  const auto integer = [](const Variant& value) { return std::visit(AsInteger{}, value.Get()); };
  const auto amount = [&](const Variant& value) { return AsAmount(std::visit(as_decimal, value.Get())); };
  const auto number = [&](const Variant& value) { return std::visit(AsFloat{as_decimal}, value.Get()); };
  switch (std::max(std::visit(KindOf{}, left.Get()), std::visit(KindOf{}, right.Get()))) {
    case SumKind::Integer32:
      return SumOfIntegers<std::int32_t>(integer(left), integer(right));
    case SumKind::Integer64:
      return SumOfIntegers<std::int64_t>(integer(left), integer(right));
    case SumKind::Float:
      return SumOfFloats(number(left), number(right));
    case SumKind::Amount:
      return amount(left) + amount(right);
    case SumKind::Date:
      return DateValue{SumOfFloats(number(left), number(right))};
  }
  // Untested: every kind with a sum returned above.
  RaiseNotAddable();
}

bool HoldsBytes(const Variant& value) { return std::holds_alternative<ByteArray>(value.Get()); }

}  // namespace

Variant VariantSum(const Variant& left, const Variant& right, const FormatSettings& settings) {
  if (left.IsNull() || right.IsNull()) return NullValue{};
  if (HoldsBytes(left) || HoldsBytes(right)) RaiseNotAddable();
  if (left.IsEmpty()) return right;
  if (right.IsEmpty()) return left;
  const auto* const left_text = std::get_if<std::u16string>(&left.Get());
  const auto* const right_text = std::get_if<std::u16string>(&right.Get());
  if (left_text != nullptr && right_text != nullptr) return *left_text + *right_text;
  return SumOfNumbers(left, right, settings.decimal_separator);
}

}  // namespace ravo
