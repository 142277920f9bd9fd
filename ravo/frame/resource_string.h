#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo {

/// A localisable text: an identifier of the library's string table and the text that the library itself was
/// built with. The text is fetched at the moment of use through the library's current resource instance, so a
/// language module attached to the library replaces it without a change of code.
struct ResourceString {
  std::uint16_t id = 0;          ///< in the string table
  std::u16string_view built_in;  ///< what no language module has replaced

  /// The text now. What an attached language module lacks reads as built in. The view lives as long as the
  /// resource instance stays attached.
  [[nodiscard]] RAVO_API std::u16string_view View() const;

  /// A copy of the text now.
  [[nodiscard]] std::u16string Text() const { return std::u16string(View()); }
};

/// `caption` without its accelerator mark: every "&" is removed.
[[nodiscard]] RAVO_API std::u16string PlainCaption(std::u16string_view caption);

}  // namespace ravo
