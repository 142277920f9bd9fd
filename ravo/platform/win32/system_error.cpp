#include <ravo/platform/win32/system_error.h>
#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>
#include <ravo/runtime/text.h>

#include <array>

#include <windows.h>

namespace ravo::platform {

namespace {

template <std::size_t size>
std::u16string Message(std::uint32_t code, DWORD line_breaks) {
  std::array<wchar_t, size> buffer;
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | line_breaks, nullptr, code,
                     0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  return FromWide({buffer.data(), length});
}

}  // namespace

std::optional<std::u16string> KnownSystemErrorText(std::uint32_t code) {
  const std::u16string text = Message<1024>(code, FORMAT_MESSAGE_MAX_WIDTH_MASK);
  return text.empty() ? std::nullopt : std::optional(std::u16string(Trimmed(text)));
}

std::u16string SystemErrorText(std::uint32_t code) {
  return KnownSystemErrorText(code).value_or(u"System error " + ToText(std::uint64_t{code}));
}

std::u16string Win32Diagnostics::ErrorText(std::uint32_t code) const { return Message<256>(code, 0); }

std::uint32_t Win32Diagnostics::LastErrorCode() const noexcept { return GetLastError(); }

void Win32Diagnostics::DebugOutput(std::u16string_view text) const {
  OutputDebugStringW(ToWide(text).c_str());
}

}  // namespace ravo::platform
