#include <ravo/platform/win32/drive_name.h>

#include <windows.h>

namespace ravo::platform {

bool IsDriveName(const std::wstring& name) {
  std::wstring path(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
  path.resize(GetFullPathNameW(name.c_str(), static_cast<DWORD>(path.size()), path.data(), nullptr));
  while (path.ends_with(L'\\')) path.pop_back();
  return path.ends_with(L':');
}

}  // namespace ravo::platform
