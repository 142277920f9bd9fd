#include <ravo/utils/strings/char_tests.h>

namespace ravo::DIUtils {

bool CharIsCrLfA(char c) noexcept { return c == '\r' || c == '\n'; }
bool CharIsCrLf(char16_t c) noexcept { return CharIsCrLfW(c); }

bool CharIsDigitA(char c) noexcept { return c >= '0' && c <= '9'; }
bool CharIsDigit(char16_t c) noexcept { return CharIsDigitW(c); }

bool CharIn(char16_t c, std::u16string_view chars) noexcept {
  return chars.find(c) != std::u16string_view::npos;
}
bool CharIn(char c, std::string_view chars) noexcept { return chars.find(c) != std::string_view::npos; }

}  // namespace ravo::DIUtils
