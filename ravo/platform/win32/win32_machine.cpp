#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>

#include <windows.h>

namespace ravo::platform {

const Machine& RealMachine() noexcept {
  // Never destroyed: the library's own shut-down may still ask after static objects are gone.
  static const Machine& machine = *new Win32Machine;
  return machine;
}

void Win32Machine::DebugOutput(std::u16string_view text) const { OutputDebugStringW(ToWide(text).c_str()); }

}  // namespace ravo::platform
