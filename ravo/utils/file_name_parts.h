#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

/// The parts of a file name as views of it; "\" and ":" end its folders.
namespace ravo::utils {

template <class Char>
using Name = std::basic_string_view<Char>;

template <class Char>
[[nodiscard]] constexpr Name<Char> PathOf(Name<Char> name) noexcept {
  constexpr Char delimiters[] = {Char{'\\'}, Char{':'}};
  return name.substr(0, name.find_last_of(Name<Char>(delimiters, 2)) + 1);
}

template <class Char>
[[nodiscard]] constexpr Name<Char> BaseNameOf(Name<Char> name) noexcept {
  return name.substr(PathOf(name).size());
}

template <class Char>
[[nodiscard]] constexpr Name<Char> ExtensionOf(Name<Char> name) noexcept {
  const Name<Char> base = BaseNameOf(name);
  return base.substr(std::min(base.rfind(Char{'.'}), base.size()));
}

template <class Char>
[[nodiscard]] constexpr Name<Char> DriveOf(Name<Char> name) noexcept {
  constexpr Char delimiter{'\\'};
  if (name.size() >= 2 && name[1] == Char{':'}) return name.substr(0, 2);
  if (name.size() < 2 || name[0] != delimiter || name[1] != delimiter) return {};
  const std::size_t server_end = name.find(delimiter, 2);
  const std::size_t share_end = server_end == name.npos ? name.npos : name.find(delimiter, server_end + 1);
  const Name<Char> drive = name.substr(0, share_end);
  return drive.size() > 2 && drive.ends_with(delimiter) ? drive.substr(0, drive.size() - 1) : drive;
}

template <class Char>
[[nodiscard]] constexpr bool IsDelimiterAt(Name<Char> text, std::size_t index) noexcept {
  return index != 0 && index <= text.size() && text[index - 1] == Char{'\\'};
}

template <class Char>
[[nodiscard]] constexpr Name<Char> WithoutDelimiter(Name<Char> name) noexcept {
  return name.substr(0, name.size() - (IsDelimiterAt(name, name.size()) ? 1 : 0));
}

}  // namespace ravo::utils
