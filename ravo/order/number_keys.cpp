#include <ravo/order/number_keys.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace ravo::order {
namespace {

// Before the digits: how many. From 255 on, eight bytes more.
void AppendLength(std::uint64_t length, std::string& key) {
  constexpr std::uint64_t kLong = 0xFF;
  key += static_cast<char>(std::min(length, kLong));
  if (length < kLong) return;
  for (int shift = 56; shift >= 0; shift -= 8) key += static_cast<char>(length >> shift & 0xFF);
}

bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }

// A blank, a no-break space or a narrow one, before a digit.
std::size_t LengthOfGroupBlank(std::string_view text) noexcept {
  for (const std::string_view blank : {" ", "\u00A0", "\u202F"}) {
    if (text.starts_with(blank) && text.size() > blank.size() && IsDigit(text[blank.size()]))
      return blank.size();
  }
  return 0;
}

// Digits and the blanks between them.
std::string_view TakeWhole(std::string_view& text) noexcept {
  std::size_t size = LengthOfDigits(text);
  for (std::size_t blank = size; blank != 0;) {
    blank = LengthOfGroupBlank(text.substr(size));
    size += blank + LengthOfDigits(text.substr(size + blank));
  }
  const std::string_view whole = text.substr(0, size);
  text.remove_prefix(size);
  return whole;
}

std::string_view TakeFraction(std::string_view& text) noexcept {
  if (text.empty() || (text[0] != ',' && text[0] != '.')) return {};
  return text.substr(1, LengthOfDigits(text.substr(1)));
}

bool TakeMinus(std::string_view& text) noexcept {
  for (const std::string_view minus : {"-", "\u2212"}) {
    if (!text.starts_with(minus)) continue;
    text.remove_prefix(minus.size());
    return true;
  }
  if (text.starts_with('+')) text.remove_prefix(1);
  return false;
}

// The first byte of a key.
enum class Kind : std::uint8_t { NoNumber = 1, BelowZero = 2, FromZero = 3 };

struct Decimal {
  Kind kind = Kind::NoNumber;
  /// From the first digit that is not 0, with blanks.
  std::string_view whole;
  std::size_t whole_digits = 0;
  /// Without zeros at the end.
  std::string_view fraction;
};

Decimal FirstDecimal(std::string_view text) noexcept {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  const bool minus = TakeMinus(text);
  std::string_view whole = TakeWhole(text);
  std::string_view fraction = TakeFraction(text);
  if (whole.empty() && fraction.empty()) return {};
  while (fraction.ends_with('0')) fraction.remove_suffix(1);
  whole.remove_prefix(std::min(whole.find_first_of("123456789"), whole.size()));
  const bool is_zero = whole.empty() && fraction.empty();
  return {minus && !is_zero ? Kind::BelowZero : Kind::FromZero, whole,
          static_cast<std::size_t>(std::ranges::count_if(whole, IsDigit)), fraction};
}

template <class Number>
int Order(Number a, Number b) noexcept {
  return a == b ? 0 : a < b ? -1 : 1;
}

// Of numbers with as many digits.
int CompareWholes(std::string_view a, std::string_view b) noexcept {
  for (;;) {
    a.remove_prefix(std::min(a.find_first_of("0123456789"), a.size()));
    b.remove_prefix(std::min(b.find_first_of("0123456789"), b.size()));
    if (a.empty() || a[0] != b[0]) break;
    a.remove_prefix(1);
    b.remove_prefix(1);
  }
  return a.empty() ? 0 : Order(a[0], b[0]);
}

int CompareSizes(const Decimal& a, const Decimal& b) noexcept {
  if (a.whole_digits != b.whole_digits) return Order(a.whole_digits, b.whole_digits);
  const int wholes = CompareWholes(a.whole, b.whole);
  return wholes != 0 ? wholes : Order(a.fraction, b.fraction);
}

}  // namespace

std::size_t LengthOfDigits(std::string_view text) noexcept {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) - text.begin());
}

std::string_view WithoutZeros(std::string_view digits) noexcept {
  return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

void AppendNumberKey(std::string_view digits, std::string& key) {
  digits = WithoutZeros(digits);
  AppendLength(digits.size(), key);
  key += digits;
}

int CompareDecimals(std::string_view a, std::string_view b) noexcept {
  const Decimal left = FirstDecimal(a);
  const Decimal right = FirstDecimal(b);
  if (left.kind != right.kind) return Order(left.kind, right.kind);
  return left.kind == Kind::BelowZero ? CompareSizes(right, left) : CompareSizes(left, right);
}

void AppendDecimalKey(std::string_view text, std::string& key) {
  const Decimal number = FirstDecimal(text);
  key += static_cast<char>(number.kind);
  if (number.kind == Kind::NoNumber) return;
  const std::size_t start = key.size();
  AppendLength(number.whole_digits, key);
  std::ranges::copy_if(number.whole, std::back_inserter(key), IsDigit);
  key += number.fraction;
  // The end is less than any further digit.
  key += '\x01';
  if (number.kind != Kind::BelowZero) return;
  std::transform(key.begin() + static_cast<std::ptrdiff_t>(start), key.end(),
                 key.begin() + static_cast<std::ptrdiff_t>(start),
                 [](char c) { return static_cast<char>(~c); });
}

}  // namespace ravo::order
