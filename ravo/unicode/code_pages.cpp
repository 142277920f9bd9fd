#include <ravo/codec/texts.h>
#include <ravo/platform/code_pages.h>
#include <ravo/unicode/code_pages.h>

#include <utility>

namespace ravo {

// The system's own conversion takes precedence over the encodings of the library.
std::u16string FromCodePage(std::string_view bytes, std::uint32_t code_page) {
  if (code_page == kSystemCodePage) return platform::CodePages().FromCodePage(bytes);
  if (auto text = platform::CodePages().DecodeCodePage(code_page, bytes)) return *std::move(text);
  const codec::Encoding* const encoding = codec::FindEncoding(code_page);
  // Untested: every encoding with a code page can be read.
  return encoding != nullptr && encoding->decode_one != nullptr ? codec::Decoded(*encoding, bytes)
                                                                : std::u16string();
}

std::string ToCodePage(std::u16string_view text, std::uint32_t code_page) {
  if (code_page == kSystemCodePage) return platform::CodePages().ToCodePage(text);
  if (auto bytes = platform::CodePages().EncodeCodePage(code_page, text)) return *std::move(bytes);
  const codec::Encoding* const encoding = codec::FindEncoding(code_page);
  return encoding != nullptr && encoding->encode_one != nullptr ? codec::Encoded(*encoding, text)
                                                                : std::string();
}

}  // namespace ravo

namespace ravo::DIUnicode {

std::uint32_t CodePageFromLocale(std::uint32_t Locale) {
  const platform::CodePageCalls& code_pages = platform::CodePages();
  return code_pages.CodePageOfLocale(Locale).value_or(code_pages.CodePage());
}

}  // namespace ravo::DIUnicode
