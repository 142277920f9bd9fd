#include "natural_order.h"

#include <algorithm>
#include <cstdint>

namespace tool {
namespace {

// Before the digits: how many. From 255 on, eight bytes more.
void AppendLength(std::uint64_t length, std::string& key) {
  constexpr std::uint64_t kLong = 0xFF;
  key += static_cast<char>(std::min(length, kLong));
  if (length < kLong) return;
  for (int shift = 56; shift >= 0; shift -= 8) key += static_cast<char>(length >> shift & 0xFF);
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// A blank, a no-break space or a narrow one, before a digit.
std::size_t LengthOfGroupBlank(std::string_view text) {
  for (const std::string_view blank : {" ", "\u00A0", "\u202F"}) {
    if (text.starts_with(blank) && text.size() > blank.size() && IsDigit(text[blank.size()]))
      return blank.size();
  }
  return 0;
}

std::string TakeWhole(std::string_view& text) {
  std::string digits;
  for (;;) {
    const std::size_t count = LengthOfDigits(text);
    digits += text.substr(0, count);
    text.remove_prefix(count);
    const std::size_t blank = digits.empty() ? 0 : LengthOfGroupBlank(text);
    if (blank == 0) return digits;
    text.remove_prefix(blank);
  }
}

std::string_view TakeFraction(std::string_view& text) {
  if (text.empty() || (text[0] != ',' && text[0] != '.')) return {};
  std::string_view digits = text.substr(1, LengthOfDigits(text.substr(1)));
  while (digits.ends_with('0')) digits.remove_suffix(1);
  return digits;
}

bool TakeMinus(std::string_view& text) {
  for (const std::string_view minus : {"-", "\u2212"}) {
    if (!text.starts_with(minus)) continue;
    text.remove_prefix(minus.size());
    return true;
  }
  if (text.starts_with('+')) text.remove_prefix(1);
  return false;
}

// First of a key.
constexpr char kNoNumber = 1;
constexpr char kBelowZero = 2;
constexpr char kFromZero = 3;

}  // namespace

std::size_t LengthOfDigits(std::string_view text) {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) - text.begin());
}

void AppendNumberKey(std::string_view digits, std::string& key) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  AppendLength(digits.size(), key);
  key += digits;
}

void AppendDecimalKey(std::string_view text, std::string& key) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  const bool minus = TakeMinus(text);
  const std::string whole = TakeWhole(text);
  const std::string_view fraction = TakeFraction(text);
  if (whole.empty() && fraction.empty()) {
    key += kNoNumber;
    return;
  }
  const bool below_zero = minus && !(whole.find_first_not_of('0') == std::string::npos && fraction.empty());
  key += below_zero ? kBelowZero : kFromZero;
  const std::size_t start = key.size();
  AppendNumberKey(whole, key);
  key += fraction;
  // The end is less than any further digit.
  key += '\x01';
  if (below_zero)
    std::transform(key.begin() + static_cast<std::ptrdiff_t>(start), key.end(),
                   key.begin() + static_cast<std::ptrdiff_t>(start),
                   [](char c) { return static_cast<char>(~c); });
}

}  // namespace tool
