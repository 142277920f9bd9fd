#include <ravo/platform/win32/win32_machine.h>
#include <ravo/runtime/checked.h>

#include <windows.h>

namespace ravo::platform {

std::optional<TextSize> Win32System::TextExtent(DeviceContext device, std::u16string_view text) const {
  SIZE size{};
  const auto* units = reinterpret_cast<const wchar_t*>(text.data());
  if (!GetTextExtentPoint32W(static_cast<HDC>(device), units, CheckedCast<int>(text.size()), &size))
    return std::nullopt;
  return TextSize{static_cast<std::int32_t>(size.cx), static_cast<std::int32_t>(size.cy)};
}

}  // namespace ravo::platform
