#include <ravo/platform/win32/win32_machine.h>
#include <ravo/runtime/checked.h>

#include <windows.h>

namespace ravo::platform {

std::uint32_t Win32Machine::CodePage() const { return GetACP(); }

std::u16string Win32Machine::FromCodePage(std::string_view bytes) const {
  const int size = CheckedCast<int>(bytes.size());
  const int units = MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, nullptr, 0);
  std::u16string text(static_cast<std::size_t>(units), u'\0');
  MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, reinterpret_cast<wchar_t*>(text.data()), units);
  return text;
}

std::string Win32Machine::ToCodePage(std::u16string_view text) const {
  const int units = CheckedCast<int>(text.size());
  const auto* wide = reinterpret_cast<const wchar_t*>(text.data());
  const int size = WideCharToMultiByte(CP_ACP, 0, wide, units, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, 0, wide, units, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

}  // namespace ravo::platform
