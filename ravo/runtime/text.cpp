#include <ravo/runtime/text.h>

#include <algorithm>
#include <array>

namespace ravo {
namespace {

constexpr bool IsBlankOrControl(char16_t ch) { return ch <= 0x20; }

}  // namespace

std::u16string_view Trimmed(std::u16string_view text) noexcept {
  while (!text.empty() && IsBlankOrControl(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlankOrControl(text.back())) text.remove_suffix(1);
  return text;
}

bool SameAsciiText(std::u16string_view left, std::u16string_view right) noexcept {
  return std::ranges::equal(left, right, {}, AsciiLower, AsciiLower);
}

std::u16string ReplaceFirst(std::u16string_view text, std::u16string_view what, std::u16string_view with) {
  std::u16string result(text);
  const std::size_t at = what.empty() ? std::u16string::npos : text.find(what);
  if (at != std::u16string::npos) result.replace(at, what.size(), with);
  return result;
}

std::u16string ReplaceAll(std::u16string_view text, std::u16string_view what, std::u16string_view with) {
  std::u16string result;
  result.reserve(text.size());
  for (;;) {
    const std::size_t at = what.empty() ? std::u16string_view::npos : text.find(what);
    result += text.substr(0, at);
    if (at == std::u16string_view::npos) return result;
    result += with;
    text.remove_prefix(at + what.size());
  }
}

std::u16string ToText(std::uint64_t value) {
  std::array<char16_t, 20> digits;
  auto at = digits.end();
  do {
    *--at = static_cast<char16_t>(u'0' + value % 10);
    value /= 10;
  } while (value != 0);
  return {at, digits.end()};
}

std::u16string ToText(std::int64_t value) {
  const auto magnitude =
      value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
  return value < 0 ? u"-" + ToText(magnitude) : ToText(magnitude);
}

std::u16string ToHex(std::uint64_t value, int digits) {
  std::u16string text;
  for (int shift = 60; shift >= 0; shift -= 4) {
    const auto digit = static_cast<unsigned>((value >> shift) & 0xF);
    if (digit != 0 || !text.empty() || shift < 4 * digits) text.push_back(u"0123456789ABCDEF"[digit]);
  }
  return text;
}

}  // namespace ravo
