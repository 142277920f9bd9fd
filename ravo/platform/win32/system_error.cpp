#include <ravo/platform/win32/system_error.h>
#include <ravo/platform/win32/wide.h>
#include <ravo/runtime/text.h>

#include <array>

#include <windows.h>

namespace ravo::platform {

std::optional<std::u16string> KnownSystemErrorText(std::uint32_t code) {
  std::array<wchar_t, 1024> buffer;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK, nullptr,
      code, 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  if (length == 0) return std::nullopt;
  return std::u16string(Trimmed(FromWide({buffer.data(), length})));
}

std::u16string SystemErrorText(std::uint32_t code) {
  return KnownSystemErrorText(code).value_or(u"System error " + ToText(std::uint64_t{code}));
}

}  // namespace ravo::platform
