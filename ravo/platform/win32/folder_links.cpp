#include <ravo/platform/win32/drive_name.h>
#include <ravo/platform/win32/folder_links.h>

#include <string_view>
#include <vector>

#include <windows.h>

namespace ravo::platform {
namespace {

bool IsLinkOrUnknown(const WIN32_FIND_DATAW& found) {
  constexpr DWORD folder_link = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  if ((found.dwFileAttributes & folder_link) != folder_link) return false;
  return found.dwReserved0 == 0 || IsReparseTagNameSurrogate(found.dwReserved0);
}

// A tag that is no link's belongs to a system that shows links of another system and follows them in every
// call: such a link cannot be removed.
bool RemoveLink(const std::wstring& name, const WIN32_FIND_DATAW& found) {
  return IsReparseTagNameSurrogate(found.dwReserved0) && RemoveDirectoryW(name.c_str());
}

bool IsSelfOrParent(std::wstring_view name) { return name == L"." || name == L".."; }

// The shell lists a folder by its name followed by this.
constexpr std::wstring_view kEverything = L"\\*.*";

bool FitsTheShell(std::size_t length) { return length < MAX_PATH; }

// Makes one entry of a folder safe, or queues it for a look inside.
bool MakeEntrySafe(const std::wstring& name, const WIN32_FIND_DATAW& found,
                   std::vector<std::wstring>& folders) {
  if (IsLinkOrUnknown(found)) return RemoveLink(name, found);
  if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return FitsTheShell(name.size());
  folders.push_back(name);
  return true;
}

// Makes all entries of a folder safe except its folders, which it collects.
bool MakeFolderSafe(const std::wstring& folder, std::vector<std::wstring>& folders) {
  if (!FitsTheShell(folder.size() + kEverything.size())) return false;
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return true;
  bool is_safe = true;
  do {
    if (IsSelfOrParent(found.cFileName)) continue;
    is_safe = MakeEntrySafe(folder + L'\\' + found.cFileName, found, folders);
  } while (is_safe && FindNextFileW(search, &found));
  FindClose(search);
  return is_safe;
}

}  // namespace

bool IsFolderLink(const std::wstring& name) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(name.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return IsLinkOrUnknown(found);
}

bool MakeSafeForShell(const std::wstring& folder) {
  std::vector<std::wstring> folders = {FullName(folder)};
  while (folders.front().ends_with(L'\\')) folders.front().pop_back();
  while (!folders.empty()) {
    const std::wstring next = std::move(folders.back());
    folders.pop_back();
    if (!MakeFolderSafe(next, folders)) return false;
  }
  return true;
}

}  // namespace ravo::platform
