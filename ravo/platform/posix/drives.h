#pragma once

#include <ravo/platform/drives.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::platform::posix {

/// A mounted file system under the letter of a drive.
struct Drive {
  char16_t letter = 0;
  DriveKind kind = DriveKind::Fixed;
  std::string folder;
};

/// Returns the current drives, by the files of the system below `root`. POSIX has no mount table: `linux/`
/// defines it.
[[nodiscard]] std::vector<Drive> CurrentDrives(const std::string& root);

/// Returns the letter, in upper case, of a text that begins with a letter and a colon; no value for others.
[[nodiscard]] std::optional<char16_t> DriveLetterOf(std::u16string_view text);

/// Returns the drive of that letter, or null.
[[nodiscard]] const Drive* FindDrive(std::span<const Drive> drives, char16_t letter);

}  // namespace ravo::platform::posix
