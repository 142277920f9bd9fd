#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// What the user database says of the user whose rights the process has.
struct User {
  std::string name;
  std::string full_name;
  std::string home;
};

/// No value for a user whom the database does not know.
[[nodiscard]] std::optional<User> CurrentUser();

/// The full name in the database's comment field: what stands before its first comma.
[[nodiscard]] std::string_view FullNameOf(std::string_view comment);

}  // namespace ravo::platform::posix
