#include <ravo/platform/drives.h>
#include <ravo/platform/files.h>
#include <ravo/utils/ansi_text.h>
#include <ravo/utils/file_name_parts.h>
#include <ravo/utils/folders.h>

#include <algorithm>
#include <vector>

namespace ravo::DIUtils {
namespace {

constexpr std::size_t kShortestFolder = 3;

// A drive, such as "C:": no system can delete one itself.
bool IsDrive(std::u16string_view folder) { return folder.size() == 2 && folder.back() == u':'; }

std::int64_t SpaceOf(std::u16string_view folder, std::int64_t platform::DiskSpace::*part) {
  const auto space = platform::Drives().SpaceOfFolder(folder);
  return space ? *space.*part : -1;
}

}  // namespace

using utils::Wide;

bool DirectoryExistsA(std::string_view folder) { return DirectoryExistsW(Wide(folder)); }
bool DirectoryExistsW(std::u16string_view folder) {
  const auto attributes = platform::Files().Attributes(folder);
  return attributes && (*attributes & platform::kFolderAttribute) != 0;
}

bool ForceDirectories(std::u16string_view folder) { return ForceDirectoriesW(folder); }
bool ForceDirectoriesA(std::string_view folder) { return ForceDirectoriesW(Wide(folder)); }
bool ForceDirectoriesW(std::u16string_view folder) {
  // A folder comes before its parents: they are created in reverse order.
  std::vector<std::u16string_view> missing;
  while (!DirectoryExistsW(folder)) {
    folder = utils::WithoutDelimiter(folder);
    const std::u16string_view parent = utils::PathOf(folder);
    if (folder.size() < kShortestFolder || parent.size() == folder.size()) break;
    missing.push_back(folder);
    folder = parent;
  }
  return std::all_of(missing.rbegin(), missing.rend(),
                     [](std::u16string_view name) { return platform::Files().CreateFolder(name); });
}

bool DeleteDirectory(std::u16string_view folder, bool with_folder) {
  return DeleteDirectoryW(folder, with_folder);
}
bool DeleteDirectoryA(std::string_view folder, bool with_folder) {
  return DeleteDirectoryW(Wide(folder), with_folder);
}
bool DeleteDirectoryW(std::u16string_view folder, bool with_folder) {
  const platform::FileCalls& files = platform::Files();
  if (!with_folder) return files.DeleteFolder(folder, platform::FolderPart::Contents);
  const std::u16string_view itself = utils::WithoutDelimiter(folder);
  return !IsDrive(itself) && files.DeleteFolder(itself, platform::FolderPart::Whole);
}

std::int64_t DiskFreeA(std::string_view folder) { return DiskFreeW(Wide(folder)); }
std::int64_t DiskFreeW(std::u16string_view folder) {
  return SpaceOf(folder, &platform::DiskSpace::available);
}
std::int64_t DiskSizeA(std::string_view folder) { return SpaceOf(Wide(folder), &platform::DiskSpace::total); }
std::int64_t DiskTotalFreeA(std::string_view folder) {
  return SpaceOf(Wide(folder), &platform::DiskSpace::free);
}

}  // namespace ravo::DIUtils
