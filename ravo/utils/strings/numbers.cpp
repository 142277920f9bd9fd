#include <ravo/runtime/integer_parse.h>
#include <ravo/utils/strings/assemble.h>
#include <ravo/utils/strings/numbers.h>
#include <ravo/utils/strings/text_kind.h>

#include <algorithm>

namespace ravo::DIUtils {
namespace {

using strings::Buffer;
using strings::View;

template <class Integer, class Char>
Integer Value(View<Char> text, std::size_t& error) {
  const ParsedInteger<Integer> parsed = ReadInteger<Integer>(text);
  error = parsed.error;
  return parsed.value;
}

template <class Integer>
bool TryValue(std::u16string_view text, Integer& value) {
  const ParsedInteger<Integer> parsed = ReadInteger<Integer>(text);
  if (parsed.error == 0) value = parsed.value;
  return parsed.error == 0;
}

template <class Integer>
Integer ValueOr(std::u16string_view text, Integer default_value) {
  const ParsedInteger<Integer> parsed = ReadInteger<Integer>(text);
  return parsed.error == 0 ? parsed.value : default_value;
}

template <class Char>
std::int32_t HexValue(View<Char> text, std::int32_t default_value) {
  std::size_t error = 0;
  const auto value = ReadDigits(text, 0, 16, std::uint32_t{0xFFFFFFFF}, error);
  return error == 0 ? static_cast<std::int32_t>(value) : default_value;
}

// Pads by itself, because `digits` may exceed the sixteen digits of the largest value.
std::u16string PaddedHex(std::uint64_t value, int digits) { return PadLeftW(ToHex(value, 1), digits, u'0'); }

// The digits are ASCII.
std::string Narrowed(const std::u16string& digits) {
  std::string text(digits.size(), '\0');
  std::transform(digits.begin(), digits.end(), text.begin(), [](char16_t c) { return static_cast<char>(c); });
  return text;
}

}  // namespace

std::int32_t ValIntA(std::string_view text, std::size_t& error) noexcept {
  return Value<std::int32_t>(text, error);
}
std::int32_t ValIntA(const char* buffer, std::size_t length, std::size_t& error) noexcept {
  return ValIntA(Buffer(buffer, length), error);
}
std::int32_t ValIntW(std::u16string_view text, std::size_t& error) noexcept {
  return Value<std::int32_t>(text, error);
}
std::int32_t ValIntW(const char16_t* buffer, std::size_t length, std::size_t& error) noexcept {
  return ValIntW(Buffer(buffer, length), error);
}
std::int32_t ValInt(std::u16string_view text, std::size_t& error) noexcept { return ValIntW(text, error); }
std::int32_t ValInt(const char16_t* buffer, std::size_t length, std::size_t& error) noexcept {
  return ValIntW(buffer, length, error);
}
std::int64_t ValInt64A(std::string_view text, std::size_t& error) noexcept {
  return Value<std::int64_t>(text, error);
}
std::int64_t ValInt64A(const char* buffer, std::size_t length, std::size_t& error) noexcept {
  return ValInt64A(Buffer(buffer, length), error);
}
std::int64_t ValInt64W(std::u16string_view text, std::size_t& error) noexcept {
  return Value<std::int64_t>(text, error);
}
std::int64_t ValInt64W(const char16_t* buffer, std::size_t length, std::size_t& error) noexcept {
  return ValInt64W(Buffer(buffer, length), error);
}

bool TryStrToIntW(std::u16string_view text, std::int32_t& value) noexcept { return TryValue(text, value); }
bool TryStrToInt64W(std::u16string_view text, std::int64_t& value) noexcept { return TryValue(text, value); }

std::int32_t StrToIntDefW(std::u16string_view text, std::int32_t default_value) noexcept {
  return ValueOr(text, default_value);
}
std::int64_t StrToInt64DefW(std::u16string_view text, std::int64_t default_value) noexcept {
  return ValueOr(text, default_value);
}

std::int32_t HexToIntA(std::string_view text, std::int32_t default_value) noexcept {
  return HexValue(text, default_value);
}
std::int32_t HexToIntW(std::u16string_view text, std::int32_t default_value) noexcept {
  return HexValue(text, default_value);
}
std::int32_t BufHexToIntA(const char* buffer, std::size_t length, std::int32_t default_value) noexcept {
  return HexToIntA(Buffer(buffer, length), default_value);
}
std::int32_t BufHexToIntW(const char16_t* buffer, std::size_t length, std::int32_t default_value) noexcept {
  return HexToIntW(Buffer(buffer, length), default_value);
}

int HexCodePointToInt(char32_t c) noexcept { return c < 0x80 ? HexDigitValue(static_cast<char16_t>(c)) : -1; }

std::u16string IntToStrW(std::int32_t value) { return ToText(std::int64_t{value}); }
std::u16string IntToStrW(std::int64_t value) { return ToText(value); }
std::string IntToStrA(std::int32_t value) { return Narrowed(IntToStrW(value)); }
std::string IntToStrA(std::int64_t value) { return Narrowed(IntToStrW(value)); }

std::u16string IntToHexW(std::int32_t value, int digits) {
  return PaddedHex(static_cast<std::uint32_t>(value), digits);
}
std::u16string IntToHexW(std::int64_t value, int digits) {
  return PaddedHex(static_cast<std::uint64_t>(value), digits);
}
std::string IntToHexA(std::int32_t value, int digits) { return Narrowed(IntToHexW(value, digits)); }
std::string IntToHexA(std::int64_t value, int digits) { return Narrowed(IntToHexW(value, digits)); }

}  // namespace ravo::DIUtils
