#include <ravo/platform/win32/drive_name.h>
#include <ravo/platform/win32/folder_links.h>
#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>

// The system's own order.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

namespace ravo::platform {
namespace {

// Without questions and windows, and past the recycle bin.
bool DeleteByShell(std::wstring source) {
  source.push_back(L'\0');
  SHFILEOPSTRUCTW operation{};
  operation.wFunc = FO_DELETE;
  operation.pFrom = source.c_str();
  operation.fFlags = FOF_SILENT | FOF_NOCONFIRMATION;
  return SHFileOperationW(&operation) == 0;
}

}  // namespace

std::optional<std::uint32_t> Win32Files::Attributes(std::u16string_view name) const {
  const auto system_name = SystemName(name);
  const DWORD attributes = system_name ? GetFileAttributesW(system_name->c_str()) : INVALID_FILE_ATTRIBUTES;
  return attributes == INVALID_FILE_ATTRIBUTES ? std::nullopt : std::optional(std::uint32_t{attributes});
}

std::u16string Win32Files::CurrentFolder() const {
  for (;;) {
    std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
    const DWORD length = GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data());
    // Another thread may have changed to a longer one meanwhile.
    if (length != 0 && length >= folder.size()) continue;
    folder.resize(length);
    return FromWide(folder);
  }
}

bool Win32Files::SetCurrentFolder(std::u16string_view folder) const {
  const auto name = SystemName(folder);
  return name && SetCurrentDirectoryW(name->c_str()) != 0;
}

bool Win32Files::CreateFolder(std::u16string_view folder) const {
  const auto name = SystemName(folder);
  return name && CreateDirectoryW(name->c_str(), nullptr) != 0;
}

bool Win32Files::DeleteFolder(std::u16string_view folder, FolderPart part) const {
  auto name = SystemName(folder);
  // The shell reports success for a missing folder, and would expand wildcards.
  if (!name || !Attributes(folder)) return false;
  if (part == FolderPart::Whole && IsDriveName(*name)) return false;
  if (part == FolderPart::Whole && IsFolderLink(*name)) return RemoveDirectoryW(name->c_str()) != 0;
  if (!MakeSafeForShell(*name)) return false;
  if (part == FolderPart::Contents) name->append(name->ends_with(L'\\') ? L"*" : L"\\*");
  return DeleteByShell(std::move(*name));
}

bool Win32Files::RemoveFile(std::u16string_view name) const {
  const auto system_name = SystemName(name);
  return system_name && DeleteFileW(system_name->c_str()) != 0;
}

}  // namespace ravo::platform
