#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>
#include <ravo/runtime/undestroyed.h>

#include <windows.h>

namespace ravo::platform {

namespace {

constinit const Undestroyed<Win32Machine> real_machine;

}  // namespace

const Machine& RealMachine() noexcept { return real_machine.value; }

void Win32Machine::DebugOutput(std::u16string_view text) const { OutputDebugStringW(ToWide(text).c_str()); }

}  // namespace ravo::platform
