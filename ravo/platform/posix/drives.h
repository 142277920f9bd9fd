#pragma once

#include <ravo/platform/machine.h>

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::platform::posix {

/// One line of the mount table.
struct Mount {
  std::string device;
  std::string folder;
  std::string type;
};

/// The lines of a mount table (/proc/self/mounts), their octal escapes taken out.
[[nodiscard]] std::vector<Mount> ParseMounts(std::string_view table);

/// A mounted file system under the letter of a drive.
struct Drive {
  char16_t letter = 0;
  DriveKind kind = DriveKind::Fixed;
  std::string folder;
};

/// Whether the disk of a device, given by its name below /dev, can be taken out.
using IsRemovable = std::function<bool(std::string_view)>;

/// The drives that a mount table amounts to: "C" for "/", then the letters in order for each further device
/// with a file system, in the table's order, then for file systems of other computers. Devices that only
/// stand for files and memory have none, and a device has one letter however often it is mounted.
[[nodiscard]] std::vector<Drive> DrivesOf(std::span<const Mount> mounts, const IsRemovable& is_removable);

/// The drives of now, by the mount table below `root`.
[[nodiscard]] std::vector<Drive> CurrentDrives(const std::string& root);

/// The letter, in upper case, of a text that begins with a letter and a colon; no value for others.
[[nodiscard]] std::optional<char16_t> DriveLetterOf(std::u16string_view text);

/// Null where no drive has that letter.
[[nodiscard]] const Drive* FindDrive(std::span<const Drive> drives, char16_t letter);

}  // namespace ravo::platform::posix
