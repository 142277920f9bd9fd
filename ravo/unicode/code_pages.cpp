#include <ravo/codec/texts.h>
#include <ravo/platform/machine.h>
#include <ravo/unicode/code_pages.h>

#include <utility>

namespace ravo::unicode {

// The system's own conversion where it has one, then the encodings of the library.
std::u16string FromCodePage(std::string_view bytes, std::uint32_t code_page) {
  const platform::Machine& machine = platform::CurrentMachine();
  if (code_page == kSystemCodePage) return machine.FromCodePage(bytes);
  if (auto text = machine.DecodeCodePage(code_page, bytes)) return *std::move(text);
  const codec::Encoding* const encoding = codec::FindEncoding(code_page);
  // Untested: every encoding with a code page can be read.
  return encoding != nullptr && encoding->decode_one != nullptr ? codec::Decoded(*encoding, bytes)
                                                                : std::u16string();
}

std::string ToCodePage(std::u16string_view text, std::uint32_t code_page) {
  const platform::Machine& machine = platform::CurrentMachine();
  if (code_page == kSystemCodePage) return machine.ToCodePage(text);
  if (auto bytes = machine.EncodeCodePage(code_page, text)) return *std::move(bytes);
  const codec::Encoding* const encoding = codec::FindEncoding(code_page);
  return encoding != nullptr && encoding->encode_one != nullptr ? codec::Encoded(*encoding, text)
                                                                : std::string();
}

}  // namespace ravo::unicode

namespace ravo::DIUnicode {

std::uint32_t CodePageFromLocale(std::uint32_t Locale) {
  const platform::Machine& machine = platform::CurrentMachine();
  return machine.CodePageOfLocale(Locale).value_or(machine.CodePage());
}

}  // namespace ravo::DIUnicode
