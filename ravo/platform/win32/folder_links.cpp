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

// A tag that is none belongs to a system that shows the links of another one and follows them whatever it is
// asked: there is no way to take such a link away.
bool RemoveLink(const std::wstring& name, const WIN32_FIND_DATAW& found) {
  return IsReparseTagNameSurrogate(found.dwReserved0) && RemoveDirectoryW(name.c_str());
}

bool IsSelfOrParent(std::wstring_view name) { return name == L"." || name == L".."; }

// Takes away the links in one folder and collects its folders.
bool RemoveLinksIn(const std::wstring& folder, std::vector<std::wstring>& folders) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW((folder + L"*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return true;
  bool are_gone = true;
  do {
    const std::wstring name = folder + found.cFileName;
    if (IsSelfOrParent(found.cFileName)) continue;
    if (IsLinkOrUnknown(found))
      are_gone = RemoveLink(name, found) && are_gone;
    else if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
      folders.push_back(name + L'\\');
  } while (are_gone && FindNextFileW(search, &found));
  FindClose(search);
  return are_gone;
}

}  // namespace

bool IsFolderLink(const std::wstring& name) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(name.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return IsLinkOrUnknown(found);
}

bool RemoveFolderLinks(const std::wstring& folder) {
  std::vector<std::wstring> folders = {folder.ends_with(L'\\') ? folder : folder + L'\\'};
  while (!folders.empty()) {
    const std::wstring next = std::move(folders.back());
    folders.pop_back();
    if (!RemoveLinksIn(next, folders)) return false;
  }
  return true;
}

}  // namespace ravo::platform
