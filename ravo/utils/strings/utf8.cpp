#include <ravo/utils/strings/in_pieces.h>
#include <ravo/utils/strings/kernels.h>
#include <ravo/utils/strings/text_kind.h>
#include <ravo/utils/strings/utf8.h>
#include <ravo/utils/strings/utf8_kernels.h>

namespace ravo::DIUtils {

std::size_t StrCountUtf8Chars(std::string_view bytes) noexcept {
  std::size_t count = 0;
  for (; !bytes.empty(); ++count) static_cast<void>(strings::TakeUtf8Unit(bytes));
  return count;
}
std::size_t BufCountUtf8Chars(const char* buffer, std::size_t length) noexcept {
  return StrCountUtf8Chars(strings::Buffer(buffer, length));
}

std::u16string StrDecodeUtf8(std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  text.resize(
      static_cast<std::size_t>(strings::ChosenKernel().decode_utf8(bytes, text.data()) - text.data()));
  return text;
}
std::u16string BufDecodeUtf8(const char* buffer, std::size_t length) {
  return StrDecodeUtf8(strings::Buffer(buffer, length));
}

std::string StrEncodeUtf8(std::u16string_view text) {
  return strings::EncodedInPieces(text, strings::ChosenKernel().encode_utf8);
}
std::string BufEncodeUtf8(const char16_t* buffer, std::size_t length) {
  return StrEncodeUtf8(strings::Buffer(buffer, length));
}

}  // namespace ravo::DIUtils
