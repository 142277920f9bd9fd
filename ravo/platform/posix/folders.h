#pragma once

#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// The folder of documents for everyone that the text of a "user-dirs.dirs" file names, "$HOME" expanded;
/// empty where it names none, or the home folder, which is that file's way of saying so.
[[nodiscard]] std::string PublicFolderFrom(std::string_view user_dirs, std::string_view home);

}  // namespace ravo::platform::posix
