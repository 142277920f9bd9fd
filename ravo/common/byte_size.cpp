#include <ravo/common/byte_size.h>
#include <ravo/common/machine_free.h>
#include <ravo/platform/locale.h>
#include <ravo/runtime/float_text.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <bit>

namespace ravo {
namespace {

constexpr std::int64_t kKilobyte = 1024;
constexpr std::int64_t kMegabyte = 1048576;
constexpr int kMantissaBits = 64;

// Returns value / 2^shift, rounded to nearest, ties to even.
constexpr std::uint64_t RoundedShift(std::uint64_t value, int shift) {
  if (shift == 0) return value;
  const std::uint64_t quotient = value >> shift;
  const std::uint64_t rest = value & ((std::uint64_t{1} << shift) - 1);
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  return quotient + (rest > half || (rest == half && quotient % 2 == 1) ? 1 : 0);
}

// Returns size / 2^shift * 10 as an integer. The extended float rounds once before that: the product may need
// 67 bits, its mantissa has 64. Only the fraction is affected.
std::int64_t TenthsOf(std::int64_t size, int shift) {
  const std::uint64_t unit = std::uint64_t{1} << shift;
  const auto bytes = static_cast<std::uint64_t>(size);
  const std::uint64_t scaled_rest = bytes % unit * 10;
  const std::uint64_t whole = bytes / unit * 10 + scaled_rest / unit;
  const int lost = std::max(static_cast<int>(std::bit_width(whole)) + shift - kMantissaBits, 0);
  const std::uint64_t fraction = RoundedShift(scaled_rest % unit, lost) << lost;
  const std::uint64_t parity = whole % 2 * unit;
  return static_cast<std::int64_t>(whole - whole % 2 + RoundedShift(parity + fraction, shift));
}

std::u16string InMegabytes(std::int64_t size, const FormatSettings& locale) {
  return NumberText(ToDecimal(TenthsOf(size, 20), 1), 1, locale.decimal_separator,
                    locale.thousands_separator) +
         u" MB";
}

std::u16string InKilobytes(std::int64_t size, const FormatSettings& locale) {
  return GeneralText(ToDecimal(TenthsOf(size, 10), 1), locale.decimal_separator) + u" kB";
}

}  // namespace

std::u16string common::BytesText(std::int64_t size, bool with_bytes, const FormatSettings& locale) {
  std::u16string bytes = ToText(size) + u" B";
  if (size <= kKilobyte) return bytes;
  const std::u16string text = size > kMegabyte ? InMegabytes(size, locale) : InKilobytes(size, locale);
  return with_bytes ? text + u" (" + bytes + u")" : text;
}

std::u16string RavoInterfaceCommon::BytesToStr(std::int64_t size, bool withBytes) {
  return common::BytesText(size, withBytes,
                           size > kKilobyte ? platform::Locale().Settings() : FormatSettings());
}

}  // namespace ravo
