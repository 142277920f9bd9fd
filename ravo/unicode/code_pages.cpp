#include <ravo/platform/code_pages.h>
#include <ravo/unicode/code_pages.h>
#include <ravo/unicode/encodings.h>

#include <utility>

namespace ravo {
namespace {

using DIUnicode::EncodingRow;

std::u16string Decode(const EncodingRow& encoding, std::string_view bytes) {
  DIUnicode::TDIUnicodeReader reader;
  reader.SetReadMethods(*encoding.read);
  reader.SetSourceBufferAsStrA(bytes);
  reader.ReadChar();
  reader.ReadChars([](char16_t) { return true; });
  return reader.DataAsStrW();
}

std::string Encode(const EncodingRow& encoding, std::u16string_view text) {
  DIUnicode::TDIUnicodeWriter writer;
  writer.SetWriteMethods(*encoding.write);
  writer.WriteStrW(text);
  writer.FlushDataBuffer();
  return writer.DataToStrRaw();
}

}  // namespace

// The system's own conversion where it has one, then the encodings of the library.
std::u16string FromCodePage(std::string_view bytes, std::uint32_t code_page) {
  if (code_page == kSystemCodePage) return platform::CodePages().FromCodePage(bytes);
  if (auto text = platform::CodePages().DecodeCodePage(code_page, bytes)) return *std::move(text);
  const EncodingRow* const encoding = DIUnicode::FindEncodingByCodePage(code_page);
  // Untested: every encoding with a code page can be read.
  return encoding != nullptr && encoding->read != nullptr ? Decode(*encoding, bytes) : std::u16string();
}

std::string ToCodePage(std::u16string_view text, std::uint32_t code_page) {
  if (code_page == kSystemCodePage) return platform::CodePages().ToCodePage(text);
  if (auto bytes = platform::CodePages().EncodeCodePage(code_page, text)) return *std::move(bytes);
  const EncodingRow* const encoding = DIUnicode::FindEncodingByCodePage(code_page);
  return encoding != nullptr && encoding->write != nullptr ? Encode(*encoding, text) : std::string();
}

}  // namespace ravo

namespace ravo::DIUnicode {

std::uint32_t CodePageFromLocale(std::uint32_t Locale) {
  const platform::CodePageCalls& code_pages = platform::CodePages();
  return code_pages.CodePageOfLocale(Locale).value_or(code_pages.CodePage());
}

}  // namespace ravo::DIUnicode
