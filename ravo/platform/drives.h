#pragma once

#include <ravo/platform/chapter.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace ravo::platform {

/// The kind of a drive, with the numbers that Windows gives.
enum class DriveKind : std::uint32_t {
  Unknown = 0,
  NoRoot = 1,
  Removable = 2,
  Fixed = 3,
  Remote = 4,
  CdRom = 5,
  RamDisk = 6
};

/// The space of a drive, in bytes.
struct DiskSpace {
  std::int64_t total = 0;      ///< free or not
  std::int64_t available = 0;  ///< free, and within the caller's quota
  std::int64_t free = 0;       ///< free, for whichever user
};

/// Drives, named by a letter and a colon.
class DriveCalls : public Chapter {
 public:
  /// Returns a bit for each drive: bit 0 for "A:" and so on.
  [[nodiscard]] virtual std::uint32_t LogicalDrives() const = 0;
  /// Returns the kind of a drive; `NoRoot` if no drive has that name.
  [[nodiscard]] virtual DriveKind KindOfDrive(std::u16string_view drive) const = 0;
  /// Returns the space of the disk that holds a folder (a drive is a folder); no value if it cannot be read.
  [[nodiscard]] virtual std::optional<DiskSpace> SpaceOfFolder(std::u16string_view folder) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const DriveCalls& Drives() noexcept;

}  // namespace ravo::platform
