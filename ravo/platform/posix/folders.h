#pragma once

#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// Returns the user's home folder; empty if it is unknown.
[[nodiscard]] std::string HomeFolder();

/// Returns the text of the user's "user-dirs.dirs" file; empty if it does not exist.
[[nodiscard]] std::string UserFolders();

/// Returns the folder that the text of a "user-dirs.dirs" file gives a variable, "$HOME" expanded; empty if
/// it gives none. The home folder itself means "none" in that file.
[[nodiscard]] std::string UserFolderFrom(std::string_view user_dirs, std::string_view variable,
                                         std::string_view home);

/// Returns the folder of documents for everyone; empty if the user has none.
[[nodiscard]] std::string PublicFolder();

}  // namespace ravo::platform::posix
