#include <ravo/runtime/binary_float.h>

#include <bit>
#include <cstring>

namespace ravo {
namespace {

// Normal numbers are stored with an exponent from 1 on; 0 marks subnormal ones, which share the exponent of
// 1.
unsigned StoredExponent(const BinaryFloat& parts, const BinaryFormat& format) {
  const bool is_normal = (parts.mantissa >> (format.bits - 1)) != 0;
  return is_normal ? static_cast<unsigned>(parts.exponent - format.lowest_exponent + 1) : 0;
}

int ExponentOf(unsigned stored, const BinaryFormat& format) {
  return format.lowest_exponent + (stored == 0 ? 0 : static_cast<int>(stored) - 1);
}

constexpr std::uint64_t kDoubleFraction = (std::uint64_t{1} << 52) - 1;
constexpr unsigned kDoubleSpecial = 0x7FF;

unsigned DoubleExponent(double value) {
  return static_cast<unsigned>(std::bit_cast<std::uint64_t>(value) >> 52) & kDoubleSpecial;
}

std::uint64_t DoubleFraction(double value) { return std::bit_cast<std::uint64_t>(value) & kDoubleFraction; }

}  // namespace

FloatKind FloatBits<double>::Kind(double value) noexcept {
  if (DoubleExponent(value) != kDoubleSpecial) return FloatKind::Finite;
  return DoubleFraction(value) == 0 ? FloatKind::Infinite : FloatKind::NotANumber;
}

bool FloatBits<double>::IsNegative(double value) noexcept {
  return (std::bit_cast<std::uint64_t>(value) >> 63) != 0;
}

BinaryFloat FloatBits<double>::Split(double value) noexcept {
  const unsigned stored = DoubleExponent(value);
  const std::uint64_t hidden_bit = stored == 0 ? 0 : kDoubleFraction + 1;
  return {IsNegative(value), DoubleFraction(value) | hidden_bit, ExponentOf(stored, kFormat)};
}

double FloatBits<double>::Join(const BinaryFloat& parts) noexcept {
  const std::uint64_t sign = std::uint64_t{parts.negative} << 63;
  const std::uint64_t exponent = std::uint64_t{StoredExponent(parts, kFormat)} << 52;
  return std::bit_cast<double>(sign | exponent | (parts.mantissa & kDoubleFraction));
}

#if LDBL_MANT_DIG == 64
namespace {

constexpr std::uint64_t kIntegerBit = std::uint64_t{1} << 63;
constexpr unsigned kExtendedSpecial = 0x7FFF;

// The ten bytes of the value; the padding up to the size of the type is left untouched.
struct ExtendedFields {
  std::uint64_t mantissa;
  std::uint16_t sign_and_exponent;

  [[nodiscard]] unsigned Exponent() const { return sign_and_exponent & kExtendedSpecial; }
};

ExtendedFields FieldsOf(long double value) {
  ExtendedFields fields{};
  std::memcpy(&fields.mantissa, &value, sizeof fields.mantissa);
  std::memcpy(&fields.sign_and_exponent, reinterpret_cast<const char*>(&value) + sizeof fields.mantissa,
              sizeof fields.sign_and_exponent);
  return fields;
}

}  // namespace

FloatKind FloatBits<long double>::Kind(long double value) noexcept {
  const ExtendedFields fields = FieldsOf(value);
  if (fields.Exponent() == 0) return FloatKind::Finite;
  if ((fields.mantissa & kIntegerBit) == 0) return FloatKind::NotANumber;
  if (fields.Exponent() != kExtendedSpecial) return FloatKind::Finite;
  return fields.mantissa == kIntegerBit ? FloatKind::Infinite : FloatKind::NotANumber;
}

bool FloatBits<long double>::IsNegative(long double value) noexcept {
  return (FieldsOf(value).sign_and_exponent >> 15) != 0;
}

BinaryFloat FloatBits<long double>::Split(long double value) noexcept {
  const ExtendedFields fields = FieldsOf(value);
  return {IsNegative(value), fields.mantissa, ExponentOf(fields.Exponent(), kFormat)};
}

long double FloatBits<long double>::Join(const BinaryFloat& parts) noexcept {
  const auto sign_and_exponent =
      static_cast<std::uint16_t>((parts.negative ? 0x8000U : 0U) | StoredExponent(parts, kFormat));
  long double value = 0;
  std::memcpy(&value, &parts.mantissa, sizeof parts.mantissa);
  std::memcpy(reinterpret_cast<char*>(&value) + sizeof parts.mantissa, &sign_and_exponent,
              sizeof sign_and_exponent);
  return value;
}
#endif

}  // namespace ravo
