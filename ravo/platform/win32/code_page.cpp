#include <ravo/platform/win32/win32_machine.h>
#include <ravo/runtime/checked.h>

#include <array>
#include <cwchar>

#include <windows.h>

namespace ravo::platform {
namespace {

std::u16string Decode(UINT code_page, std::string_view bytes) {
  const int size = CheckedCast<int>(bytes.size());
  const int units = MultiByteToWideChar(code_page, 0, bytes.data(), size, nullptr, 0);
  std::u16string text(static_cast<std::size_t>(units), u'\0');
  MultiByteToWideChar(code_page, 0, bytes.data(), size, reinterpret_cast<wchar_t*>(text.data()), units);
  return text;
}

std::string Encode(UINT code_page, std::u16string_view text) {
  const int units = CheckedCast<int>(text.size());
  const auto* wide = reinterpret_cast<const wchar_t*>(text.data());
  const int size = WideCharToMultiByte(code_page, 0, wide, units, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(code_page, 0, wide, units, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

}  // namespace

std::uint32_t Win32CodePages::CodePage() const { return GetACP(); }

std::u16string Win32CodePages::FromCodePage(std::string_view bytes) const { return Decode(CP_ACP, bytes); }

std::string Win32CodePages::ToCodePage(std::u16string_view text) const { return Encode(CP_ACP, text); }

std::optional<std::u16string> Win32CodePages::DecodeCodePage(std::uint32_t code_page,
                                                             std::string_view bytes) const {
  return IsValidCodePage(code_page) ? std::optional(Decode(code_page, bytes)) : std::nullopt;
}

std::optional<std::string> Win32CodePages::EncodeCodePage(std::uint32_t code_page,
                                                          std::u16string_view text) const {
  return IsValidCodePage(code_page) ? std::optional(Encode(code_page, text)) : std::nullopt;
}

std::optional<std::uint32_t> Win32CodePages::CodePageOfLocale(std::uint32_t locale) const {
  // Five digits and a zero.
  std::array<wchar_t, 6> digits{};
  const int units = GetLocaleInfoW(locale, LOCALE_IDEFAULTANSICODEPAGE, digits.data(), digits.size());
  if (units <= 0) return {};
  wchar_t* end = nullptr;
  const unsigned long number = std::wcstoul(digits.data(), &end, 10);
  return end != digits.data() ? std::optional(static_cast<std::uint32_t>(number)) : std::nullopt;
}

}  // namespace ravo::platform
