#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo {

/// A localisable text: an identifier of the library's string table and the built-in text.
///
/// The text is looked up when it is used, through the library's current resource instance, so that an
/// attached language module replaces it.
struct ResourceString {
  std::uint16_t id = 0;          ///< in the string table
  std::u16string_view built_in;  ///< what no language module has replaced

  /// Returns the current text, the built-in one if the attached language module lacks it. The view lives as
  /// long as the resource instance stays attached.
  [[nodiscard]] RAVO_API std::u16string_view View() const;

  /// Returns a copy of the current text.
  [[nodiscard]] std::u16string Text() const { return std::u16string(View()); }
};

/// Returns `caption` without its accelerator mark: every "&" is removed.
[[nodiscard]] RAVO_API std::u16string PlainCaption(std::u16string_view caption);

}  // namespace ravo
