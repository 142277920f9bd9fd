#pragma once

#include <string>

#include <gtest/gtest.h>
#include <windows.h>

namespace ravo::test {

/// A key of the current user. The destructor deletes it unless the test has.
class ScratchKey {
 public:
  ScratchKey() {
    EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, WidePath().c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &key_, nullptr),
              ERROR_SUCCESS);
  }
  ScratchKey(const ScratchKey&) = delete;
  ScratchKey& operator=(const ScratchKey&) = delete;
  ~ScratchKey() {
    Delete();
    RegCloseKey(key_);
  }

  /// Several copies of a program may run at once.
  [[nodiscard]] static std::u16string Path() {
    const std::wstring path = WidePath();
    return {path.begin(), path.end()};
  }

  void Set(const wchar_t* name, DWORD type, const void* data, std::size_t size) const {
    EXPECT_EQ(RegSetValueExW(key_, name, 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size)),
              ERROR_SUCCESS);
  }
  static void Delete() { RegDeleteKeyW(HKEY_CURRENT_USER, WidePath().c_str()); }

 private:
  static std::wstring WidePath() {
    return L"Software\\RavoInterface test " + std::to_wstring(GetCurrentProcessId());
  }

  HKEY key_ = nullptr;
};

}  // namespace ravo::test
