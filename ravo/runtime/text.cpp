#include <ravo/runtime/text.h>

#include <algorithm>
#include <array>

namespace ravo {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// Removes the first code point from `rest` and returns it.
char32_t TakeUtf16(std::u16string_view& rest) {
  const char16_t unit = rest.front();
  rest.remove_prefix(1);
  if (!IsHighSurrogate(unit)) return IsLowSurrogate(unit) ? kReplacement : char32_t{unit};
  if (rest.empty() || !IsLowSurrogate(rest.front())) return kReplacement;
  const char16_t low = rest.front();
  rest.remove_prefix(1);
  return 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (char32_t{low} - 0xDC00);
}

void AppendUtf8(std::string& out, char32_t ch) {
  const auto trail = [&](int shift) { out.push_back(static_cast<char>(0x80 | ((ch >> shift) & 0x3F))); };
  if (ch < 0x80) {
    out.push_back(static_cast<char>(ch));
  } else if (ch < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (ch >> 6)));
    trail(0);
  } else if (ch < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (ch >> 12)));
    trail(6);
    trail(0);
  } else {
    out.push_back(static_cast<char>(0xF0 | (ch >> 18)));
    trail(12);
    trail(6);
    trail(0);
  }
}

void AppendUtf16(std::u16string& out, char32_t ch) {
  if (ch < 0x10000) {
    out.push_back(static_cast<char16_t>(ch));
    return;
  }
  out.push_back(static_cast<char16_t>(0xD800 + ((ch - 0x10000) >> 10)));
  out.push_back(static_cast<char16_t>(0xDC00 + ((ch - 0x10000) & 0x3FF)));
}

// The number of trailing bytes of a lead byte, and the range of the first one. The range rules out overlong
// forms, surrogates and code points past U+10FFFF (Unicode Standard, table 3-7).
struct Utf8Lead {
  int trails;
  unsigned char first_low;
  unsigned char first_high;
};

Utf8Lead LeadOf(unsigned char byte) {
  if (byte < 0xC2 || byte > 0xF4) return {-1, 0, 0};
  if (byte < 0xE0) return {1, 0x80, 0xBF};
  if (byte < 0xF0) {
    return {2, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
            static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
  }
  return {3, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
          static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
}

char32_t TakeUtf8(std::string_view& rest) {
  const auto lead_byte = static_cast<unsigned char>(rest.front());
  rest.remove_prefix(1);
  if (lead_byte < 0x80) return lead_byte;
  const Utf8Lead lead = LeadOf(lead_byte);
  if (lead.trails < 0) return kReplacement;
  char32_t ch = lead_byte & (0x3F >> lead.trails);
  for (int i = 0; i < lead.trails; ++i) {
    const unsigned char low = i == 0 ? lead.first_low : 0x80;
    const unsigned char high = i == 0 ? lead.first_high : 0xBF;
    if (rest.empty()) return kReplacement;
    const auto byte = static_cast<unsigned char>(rest.front());
    if (byte < low || byte > high) return kReplacement;
    ch = (ch << 6) | (byte & 0x3F);
    rest.remove_prefix(1);
  }
  return ch;
}

constexpr bool IsBlankOrControl(char16_t ch) { return ch <= 0x20; }

}  // namespace

std::string ToUtf8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) AppendUtf8(out, TakeUtf16(text));
  return out;
}

std::u16string FromUtf8(std::string_view bytes) {
  std::u16string out;
  out.reserve(bytes.size());
  while (!bytes.empty()) AppendUtf16(out, TakeUtf8(bytes));
  return out;
}

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
