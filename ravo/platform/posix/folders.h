#pragma once

#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// The home folder of the user; empty where there is none to be told.
[[nodiscard]] std::string HomeFolder();

/// The text of the user's "user-dirs.dirs" file; empty where there is none.
[[nodiscard]] std::string UserFolders();

/// A folder that the text of a "user-dirs.dirs" file names under a variable, "$HOME" expanded; empty where it
/// names none, or the home folder, which is that file's way of saying so.
[[nodiscard]] std::string UserFolderFrom(std::string_view user_dirs, std::string_view variable,
                                         std::string_view home);

/// The documents for everyone; empty where the user has none.
[[nodiscard]] std::string PublicFolder();

}  // namespace ravo::platform::posix
