#include <ravo/platform/posix/folders.h>
#include <ravo/platform/posix/host_file.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/platform/posix/shell_text.h>
#include <ravo/platform/posix/user.h>
#include <ravo/runtime/text.h>

namespace ravo::platform::posix {
namespace {

constexpr std::size_t kMostFolderUnits = 259;

std::string_view WithoutTrailingDelimiters(std::string_view folder) {
  while (folder.ends_with('/')) folder.remove_suffix(1);
  return folder;
}

std::string TemporaryFolder() {
  std::string folder = EnvironmentText("TMPDIR");
  if (folder.empty()) folder = "/tmp";
  return folder.ends_with('/') ? folder : folder + "/";
}

std::string FolderBytes(SystemFolder folder) {
  switch (folder) {
    case SystemFolder::System:
      return "/usr/lib";
    case SystemFolder::Windows:
      return "/usr";
    case SystemFolder::Temporary:
      return TemporaryFolder();
    case SystemFolder::CommonDocuments:
      return PublicFolder();
  }
  // Untested: `folder` is never outside its enumeration.
  return {};
}

}  // namespace

std::string HomeFolder() {
  std::string home = EnvironmentText("HOME");
  if (!home.empty()) return home;
  const auto user = CurrentUser();
  // Untested: needs an account that the system does not list.
  return user ? user->home : std::string();
}

std::string UserFolders() {
  std::string configuration = EnvironmentText("XDG_CONFIG_HOME");
  if (configuration.empty()) configuration = HomeFolder() + "/.config";
  return ReadHostFile(configuration + "/user-dirs.dirs").value_or("");
}

std::string UserFolderFrom(std::string_view user_dirs, std::string_view variable, std::string_view home) {
  constexpr std::string_view home_reference = "$HOME";
  std::string folder = ShellAssignment(user_dirs, variable).value_or("");
  if (folder.starts_with(home_reference)) folder.replace(0, home_reference.size(), home);
  const bool is_home = WithoutTrailingDelimiters(folder) == WithoutTrailingDelimiters(home);
  return folder.starts_with('/') && !is_home ? folder : std::string();
}

std::string PublicFolder() {
  constexpr const char* variable = "XDG_PUBLICSHARE_DIR";
  const std::string folder = EnvironmentText(variable);
  return folder.empty() ? UserFolderFrom(UserFolders(), variable, HomeFolder()) : folder;
}

std::u16string PosixFolders::Folder(SystemFolder folder) const {
  std::u16string text = FromUtf8(FolderBytes(folder));
  return text.size() <= kMostFolderUnits ? text : std::u16string();
}

}  // namespace ravo::platform::posix
