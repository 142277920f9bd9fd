#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The order in which modules start, derived from what they use.
namespace ravo::frame {

/// One module; `uses` names other modules, separated by single spaces.
struct ModuleRow {
  const char* name;
  std::uint8_t flags;
  std::string_view uses;
};

inline constexpr std::size_t kMostModules = 64;
using PlacedModules = std::array<bool, kMostModules>;

/// Returns the row of that name, or the number of rows if there is no such row.
[[nodiscard]] constexpr std::size_t ModuleIndex(std::span<const ModuleRow> rows, std::string_view name) {
  std::size_t index = 0;
  while (index < rows.size() && rows[index].name != name) ++index;
  return index;
}

/// Removes one name from the front of `names`.
[[nodiscard]] constexpr std::string_view TakeName(std::string_view& names) {
  const std::size_t end = names.find(' ');
  const std::string_view name = names.substr(0, end);
  names.remove_prefix(end == std::string_view::npos ? names.size() : end + 1);
  return name;
}

/// Tells whether everything that `uses` names has its place; an unknown name never has.
[[nodiscard]] constexpr bool AllPlaced(std::span<const ModuleRow> rows, std::string_view uses,
                                       const PlacedModules& placed) {
  while (!uses.empty()) {
    const std::size_t used = ModuleIndex(rows, TakeName(uses));
    if (used == rows.size() || !placed[used]) return false;
  }
  return true;
}

/// Returns the first module that may come next, or the number of rows if none may.
[[nodiscard]] constexpr std::size_t NextModule(std::span<const ModuleRow> rows, const PlacedModules& placed) {
  std::size_t index = 0;
  while (index < rows.size() && (placed[index] || !AllPlaced(rows, rows[index].uses, placed))) ++index;
  return index;
}

/// Fills `order` with the numbers of all rows so that each comes after the ones that it uses, and otherwise
/// in the order of the rows; false if that is impossible: a circle, an unknown name, too many rows.
[[nodiscard]] constexpr bool OrderModules(std::span<const ModuleRow> rows, std::span<std::size_t> order) {
  // Untested: the library calls it at compile time only, with lists that fit.
  if (rows.size() > kMostModules || order.size() != rows.size()) return false;
  PlacedModules placed{};
  for (std::size_t& index : order) {
    index = NextModule(rows, placed);
    if (index == rows.size()) return false;
    placed[index] = true;
  }
  return true;
}

}  // namespace ravo::frame
