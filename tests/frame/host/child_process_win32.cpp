#include "child_process.h"

#include <windows.h>

namespace ravo::test {
namespace {

constexpr DWORD kMilliseconds = 60'000;

ChildEnd WaitFor(HANDLE child) {
  if (WaitForSingleObject(child, kMilliseconds) != WAIT_OBJECT_0) {
    TerminateProcess(child, 1);
    return ChildEnd::Hang;
  }
  DWORD code = 1;
  return GetExitCodeProcess(child, &code) && code == 0 ? ChildEnd::Success : ChildEnd::Failure;
}

}  // namespace

ChildEnd RunChild(const std::string& program, const std::string& argument) {
  std::string line = "\"" + program + "\" \"" + argument + "\"";
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION child{};
  if (!CreateProcessA(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                      &child)) {
    return ChildEnd::Failure;
  }
  const ChildEnd end = WaitFor(child.hProcess);
  CloseHandle(child.hThread);
  CloseHandle(child.hProcess);
  return end;
}

void LingerAtTheEnd() {}

}  // namespace ravo::test
