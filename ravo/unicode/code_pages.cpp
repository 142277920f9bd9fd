#include <ravo/platform/machine.h>
#include <ravo/unicode/code_pages.h>

namespace ravo::unicode {

std::u16string FromCodePage(std::string_view bytes, std::uint32_t code_page) {
  const platform::Machine& machine = platform::CurrentMachine();
  if (code_page == kSystemCodePage) return machine.FromCodePage(bytes);
  return machine.DecodeCodePage(code_page, bytes).value_or(std::u16string());
}

std::string ToCodePage(std::u16string_view text, std::uint32_t code_page) {
  const platform::Machine& machine = platform::CurrentMachine();
  if (code_page == kSystemCodePage) return machine.ToCodePage(text);
  return machine.EncodeCodePage(code_page, text).value_or(std::string());
}

}  // namespace ravo::unicode

namespace ravo::DIUnicode {

std::uint32_t CodePageFromLocale(std::uint32_t Locale) {
  const platform::Machine& machine = platform::CurrentMachine();
  return machine.CodePageOfLocale(Locale).value_or(machine.CodePage());
}

}  // namespace ravo::DIUnicode
