#include "interruption.h"

#include <array>
#include <atomic>
#include <string>

#include <windows.h>

namespace tool {

struct DeleteOnInterruption::Entry {
  std::wstring name;
};

namespace {

// What the handler accesses, in a thread of its own. Commands write three files at most.
std::array<std::atomic<const wchar_t*>, 16> files;

// The files are open, and go with the process.
BOOL WINAPI DeleteFiles(DWORD) {
  for (const auto& file : files) {
    if (const wchar_t* const name = file.load()) DeleteFileW(name);
  }
  return FALSE;
}

}  // namespace

DeleteOnInterruption::DeleteOnInterruption(int, const std::filesystem::path& name)
    : entry_(std::make_unique<Entry>(Entry{name.wstring()})) {
  static const BOOL handled = SetConsoleCtrlHandler(DeleteFiles, TRUE);
  static_cast<void>(handled);
  for (auto& file : files) {
    const wchar_t* none = nullptr;
    if (file.compare_exchange_strong(none, entry_->name.c_str())) return;
  }
}

DeleteOnInterruption::~DeleteOnInterruption() {
  for (auto& file : files) {
    const wchar_t* own = entry_->name.c_str();
    file.compare_exchange_strong(own, nullptr);
  }
}

}  // namespace tool
