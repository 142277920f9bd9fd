#include <ravo/codec/texts.h>
#include <ravo/runtime/checked.h>
#include <ravo/utils/strings/text_kind.h>
#include <ravo/utils/strings/utf8.h>

namespace ravo::DIUtils {

// Kept: a sequence of four bytes or more gives one U+FFFD, because the library has no code point past U+FFFF.
// Test: StrDecodeUtf8.FourBytesAndMoreGiveOneReplacement
std::u16string StrDecodeUtf8(std::string_view bytes) { return codec::DecodedUtf8OfStrings(bytes); }
std::u16string BufDecodeUtf8(const char* buffer, std::size_t length) {
  return StrDecodeUtf8(strings::Buffer(buffer, length));
}

std::size_t StrCountUtf8Chars(std::string_view bytes) noexcept { return codec::CountUtf8OfStrings(bytes); }
std::size_t BufCountUtf8Chars(const char* buffer, std::size_t length) noexcept {
  return StrCountUtf8Chars(strings::Buffer(buffer, length));
}

std::string StrEncodeUtf8(std::u16string_view text) {
  static_cast<void>(CheckedMultiply<std::size_t>(text.size(), 3));
  return codec::EncodedUtf8OfStrings(text);
}
std::string BufEncodeUtf8(const char16_t* buffer, std::size_t length) {
  return StrEncodeUtf8(strings::Buffer(buffer, length));
}

}  // namespace ravo::DIUtils
