#include "amount.h"

#include <charconv>
#include <cstdint>

namespace tool {
namespace {

bool IsDigits(std::string_view text) {
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

std::optional<ravo::Currency> ParseAmount(std::string_view text) {
  constexpr std::size_t kDecimals = 4;
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const std::size_t point = text.find_first_of(".,");
  const std::string_view whole = text.substr(0, point);
  const std::string_view decimals =
      point == std::string_view::npos ? std::string_view() : text.substr(point + 1);
  if (whole.empty() || decimals.size() > kDecimals || (point != std::string_view::npos && decimals.empty()))
    return {};
  if (!IsDigits(whole) || !IsDigits(decimals)) return {};
  // The digits keep their sign, so the smallest amount is parsed within 64 bits.
  std::string digits = negative ? "-" : "";
  digits.append(whole).append(decimals).append(kDecimals - decimals.size(), '0');
  std::int64_t raw = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), raw);
  if (error != std::errc()) return {};
  return ravo::Currency{raw};
}

std::string AmountText(ravo::Currency amount) {
  const auto bits = static_cast<std::uint64_t>(amount.raw);
  std::string digits = std::to_string(amount.raw < 0 ? 0 - bits : bits);
  if (digits.size() < 5) digits.insert(0, 5 - digits.size(), '0');
  digits.insert(digits.size() - 4, ".");
  for (int i = 0; i < 2 && digits.back() == '0'; ++i) digits.pop_back();
  return (amount.raw < 0 ? "-" : "") + digits;
}

}  // namespace tool
