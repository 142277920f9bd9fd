#include <ravo/platform/posix/folders.h>
#include <ravo/platform/posix/host_file.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <span>

namespace ravo::platform::posix {
namespace {

// A folder named by a variable; the fallback is a place below the home folder.
struct NamedFolder {
  std::int32_t number;
  const char* variable;
  const char* otherwise;
};

// Variables of "user-dirs.dirs".
constexpr NamedFolder kUserFolders[] = {
    {0, "XDG_DESKTOP_DIR", "/Desktop"}, {5, "XDG_DOCUMENTS_DIR", ""},        {13, "XDG_MUSIC_DIR", ""},
    {14, "XDG_VIDEOS_DIR", ""},         {16, "XDG_DESKTOP_DIR", "/Desktop"}, {21, "XDG_TEMPLATES_DIR", ""},
    {39, "XDG_PICTURES_DIR", ""},
};

// Variables of the environment.
constexpr NamedFolder kDataFolders[] = {
    {26, "XDG_CONFIG_HOME", "/.config"}, {28, "XDG_DATA_HOME", "/.local/share"}, {40, "HOME", ""}};

constexpr std::int32_t kWindows = 36;
constexpr std::int32_t kSystem = 37;
constexpr std::int32_t kCommonDocuments = 46;

const NamedFolder* FolderOf(std::span<const NamedFolder> folders, std::int32_t number) {
  const auto at = std::ranges::find(folders, number, &NamedFolder::number);
  return at == folders.end() ? nullptr : &*at;
}

// Untested: needs an account that the system does not list.
std::string Below(const std::string& home, const char* place) { return home.empty() ? home : home + place; }

std::string FolderUnder(std::int32_t number) {
  const std::string home = HomeFolder();
  if (const NamedFolder* folder = FolderOf(kUserFolders, number)) {
    const std::string named = UserFolderFrom(UserFolders(), folder->variable, home);
    return named.empty() ? Below(home, folder->otherwise) : named;
  }
  const NamedFolder* folder = FolderOf(kDataFolders, number);
  if (!folder) return {};
  const std::string named = EnvironmentText(folder->variable);
  return named.empty() ? Below(home, folder->otherwise) : named;
}

}  // namespace

std::u16string PosixFolders::ShellFolder(std::int32_t number) const {
  switch (number) {
    case kWindows:
      return Folder(SystemFolder::Windows);
    case kSystem:
      return Folder(SystemFolder::System);
    case kCommonDocuments:
      return Folder(SystemFolder::CommonDocuments);
    default:
      return FromUtf8(FolderUnder(number));
  }
}

}  // namespace ravo::platform::posix
