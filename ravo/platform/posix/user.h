#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// An entry of the user database.
struct User {
  std::string name;
  std::string full_name;
  std::string home;
};

/// Returns the entry of the effective user; no value if the database has none.
[[nodiscard]] std::optional<User> CurrentUser();

/// Returns the full name in the database's comment field: the part before its first comma.
[[nodiscard]] std::string_view FullNameOf(std::string_view comment);

}  // namespace ravo::platform::posix
