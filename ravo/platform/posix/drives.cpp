#include <ravo/platform/posix/attributes.h>
#include <ravo/platform/posix/drives.h>
#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <limits>

#include <sys/statvfs.h>

namespace ravo::platform::posix {
namespace {

std::int64_t SizeOfBlocks(std::uint64_t count, std::uint64_t size) {
  constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  // Untested: needs a disk over eight exbibytes.
  return static_cast<std::int64_t>(size != 0 && count > most / size ? most : count * size);
}

// Returns the drive of that name, or null.
const Drive* NamedDrive(std::span<const Drive> drives, std::u16string_view name) {
  const auto letter = DriveLetterOf(name);
  const std::u16string_view rest = name.substr(std::min<std::size_t>(name.size(), 2));
  const bool is_drive = letter && (rest.empty() || rest == u"\\" || rest == u"/");
  return is_drive ? FindDrive(drives, *letter) : nullptr;
}

}  // namespace

std::optional<char16_t> DriveLetterOf(std::u16string_view text) {
  if (text.size() < 2 || text[1] != u':') return std::nullopt;
  const char16_t lower = AsciiLower(text[0]);
  if (lower < u'a' || lower > u'z') return std::nullopt;
  return static_cast<char16_t>(lower - u'a' + u'A');
}

const Drive* FindDrive(std::span<const Drive> drives, char16_t letter) {
  const auto at = std::ranges::find(drives, letter, &Drive::letter);
  return at == drives.end() ? nullptr : &*at;
}

std::uint32_t PosixDrives::LogicalDrives() const {
  std::uint32_t mask = 0;
  for (const Drive& drive : CurrentDrives(root_)) mask |= std::uint32_t{1} << (drive.letter - u'A');
  return mask;
}

DriveKind PosixDrives::KindOfDrive(std::u16string_view drive) const {
  const auto drives = CurrentDrives(root_);
  const Drive* found = NamedDrive(drives, drive);
  return found ? found->kind : DriveKind::NoRoot;
}

std::optional<DiskSpace> PosixDrives::SpaceOfFolder(std::u16string_view folder) const {
  const auto path = HostPath(folder, root_);
  struct statvfs facts {};
  // Untested: the folder would have to be deleted between two calls.
  if (!path || !IsFolder(*path) || statvfs(path->c_str(), &facts) != 0) return std::nullopt;
  return DiskSpace{SizeOfBlocks(facts.f_blocks, facts.f_frsize), SizeOfBlocks(facts.f_bavail, facts.f_frsize),
                   SizeOfBlocks(facts.f_bfree, facts.f_frsize)};
}

}  // namespace ravo::platform::posix
