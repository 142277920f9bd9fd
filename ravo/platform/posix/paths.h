#pragma once

#include <ravo/platform/posix/drives.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// Returns a name of the suite as the system's path, in UTF-8: "/" for "\", the folder of the file system
/// for the letter of one of `drives`. No value for a name with a zero in it, which the system would cut
/// short.
///
/// A letter without a drive is a part of the name.
[[nodiscard]] std::optional<std::string> HostPath(std::u16string_view name, std::span<const Drive> drives);

/// The same with the current drives, which are read only if the name begins with a letter and a colon.
[[nodiscard]] std::optional<std::string> HostPath(std::u16string_view name, const std::string& root = {});

/// Returns an absolute path without ".", ".." and repeated delimiters, by its text alone; "/" at its end
/// stays.
[[nodiscard]] std::string NormalizedPath(std::string_view path);

}  // namespace ravo::platform::posix
