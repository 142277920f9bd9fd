#include <ravo/runtime/currency.h>
#include <ravo/runtime/decimal.h>
#include <ravo/runtime/float_text.h>
#include <ravo/runtime/integer_parse.h>

#include <algorithm>
#include <string>

namespace ravo {
namespace {

constexpr std::size_t kMostDecimals = Currency::kPlaces;

bool IsDigitsOnly(std::u16string_view text) {
  return std::ranges::all_of(text, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

std::u16string_view WithoutTrailingZeros(std::u16string_view decimals) {
  return decimals.substr(0, decimals.find_last_not_of(u'0') + 1);
}

}  // namespace

std::u16string CurrencyText(Currency value, char16_t decimal_separator, int least_places) {
  std::u16string text = ExactText(ToDecimal(value.raw, Currency::kPlaces), decimal_separator);
  const std::size_t separator = std::min(text.find(decimal_separator), text.size());
  const auto least = static_cast<std::size_t>(std::clamp(least_places, 0, Currency::kPlaces));
  if (separator == text.size() && least > 0) text += decimal_separator;
  if (least > 0) text.resize(std::max(text.size(), separator + 1 + least), u'0');
  return text;
}

std::optional<Currency> TryParseCurrency(std::u16string_view text, char16_t decimal_separator) {
  const bool is_signed = !text.empty() && (text.front() == u'-' || text.front() == u'+');
  const std::size_t separator = std::min(text.find(decimal_separator), text.size());
  const std::u16string_view whole =
      text.substr(is_signed, separator - std::min<std::size_t>(separator, is_signed));
  const std::u16string_view decimals = text.substr(std::min(separator + 1, text.size()));
  const std::u16string_view kept = WithoutTrailingZeros(decimals);
  if (whole.empty() && decimals.empty()) return {};
  if (!IsDigitsOnly(whole) || !IsDigitsOnly(decimals) || kept.size() > kMostDecimals) return {};
  // The digits keep their sign, so the smallest amount is read within 64 bits.
  std::u16string digits(text.substr(0, is_signed));
  digits.append(whole).append(kept).append(kMostDecimals - kept.size(), u'0');
  const auto raw = ReadInteger<std::int64_t>(std::u16string_view(digits));
  if (raw.error != 0) return {};
  return Currency{raw.value};
}

Currency ParseCurrency(std::u16string_view text, char16_t decimal_separator) {
  if (const auto value = TryParseCurrency(text, decimal_separator)) return *value;
  throw ConvertError(u"'" + std::u16string(text) + u"' is not a valid amount");
}

}  // namespace ravo
