#pragma once

#include <ravo/platform/posix/drives.h>

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::platform::gnu_linux {

/// One line of the mount table.
struct Mount {
  std::string device;
  std::string folder;
  std::string type;
};

/// Returns the lines of a mount table (/proc/self/mounts), octal escapes decoded.
[[nodiscard]] std::vector<Mount> ParseMounts(std::string_view table);

/// Tells whether the disk of a device, given by its name below /dev, is removable.
using IsRemovable = std::function<bool(std::string_view)>;

/// Returns the drives of a mount table: "C" for "/", then the letters in order for each further device with a
/// file system, in the table's order, then for file systems of other computers.
///
/// Devices backed by a file or by memory have no letter. A device has one letter however often it is mounted.
[[nodiscard]] std::vector<posix::Drive> DrivesOf(std::span<const Mount> mounts,
                                                 const IsRemovable& is_removable);

}  // namespace ravo::platform::gnu_linux
