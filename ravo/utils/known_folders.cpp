#include <ravo/platform/files.h>
#include <ravo/platform/folders.h>
#include <ravo/platform/paths.h>
#include <ravo/utils/ansi_text.h>
#include <ravo/utils/file_names.h>
#include <ravo/utils/folders.h>
#include <ravo/utils/strings/narrow.h>

#include <algorithm>

namespace ravo::DIUtils {
namespace {

using utils::Wide;

constexpr std::int32_t kDesktop = 0;
constexpr std::int32_t kPersonal = 5;
constexpr std::int32_t kDesktopDirectory = 16;

// Returns a name of the system in the form that the functions of file names take.
std::u16string InOurForm(std::u16string name) {
  std::ranges::replace(name, platform::Paths().PathDelimiter(), u'\\');
  return name;
}

}  // namespace

std::u16string GetCurrentFolder() { return GetCurrentFolderW(); }
std::string GetCurrentFolderA() { return WStrToAStr(GetCurrentFolderW()); }
std::u16string GetCurrentFolderW() { return InOurForm(platform::Files().CurrentFolder()); }

bool SetCurrentFolder(std::u16string_view folder) { return SetCurrentFolderW(folder); }
bool SetCurrentFolderA(std::string_view folder) { return SetCurrentFolderW(Wide(folder)); }
bool SetCurrentFolderW(std::u16string_view folder) { return platform::Files().SetCurrentFolder(folder); }

std::string ExpandFileNameA(std::string_view name) { return WStrToAStr(ExpandFileNameW(Wide(name))); }
std::u16string ExpandFileNameW(std::u16string_view name) {
  return InOurForm(platform::Paths().FullPath(name.substr(0, name.find(u'\0'))));
}

std::u16string GetSpecialFolder(std::int32_t number) { return GetSpecialFolderW(number); }
std::string GetSpecialFolderA(std::int32_t number) { return WStrToAStr(GetSpecialFolderW(number)); }
std::u16string GetSpecialFolderW(std::int32_t number) {
  std::u16string folder = InOurForm(platform::Folders().ShellFolder(number));
  if (!folder.empty()) IncludeTrailingPathDelimiterByRefW(folder);
  return folder;
}

std::string GetPersonalFolderA() { return GetSpecialFolderA(kPersonal); }
std::u16string GetPersonalFolderW() { return GetSpecialFolderW(kPersonal); }

std::u16string GetDesktopFolder() { return GetSpecialFolderW(kDesktop); }
std::string GetDesktopFolderA() { return GetSpecialFolderA(kDesktop); }
std::u16string GetDesktopFolderW() { return GetSpecialFolderW(kDesktop); }

std::u16string GetDesktopDirectoryFolder() { return GetSpecialFolderW(kDesktopDirectory); }
std::string GetDesktopDirectoryFolderA() { return GetSpecialFolderA(kDesktopDirectory); }
std::u16string GetDesktopDirectoryFolderW() { return GetSpecialFolderW(kDesktopDirectory); }

std::u16string GetTempFolder() { return GetTempFolderW(); }
std::string GetTempFolderA() { return WStrToAStr(GetTempFolderW()); }
std::u16string GetTempFolderW() {
  return InOurForm(platform::Folders().Folder(platform::SystemFolder::Temporary));
}

}  // namespace ravo::DIUtils
