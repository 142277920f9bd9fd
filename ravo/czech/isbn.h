#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <string_view>

namespace ravo::czech {

/// A number of a book: ten or thirteen characters.
struct Isbn {
  FixedText<13> text;  ///< as long as it was written, without hyphens
  friend constexpr bool operator==(const Isbn&, const Isbn&) noexcept = default;
};

/// Returns the ISBN in `text`, correct in form by ISO 2108: ten characters by modulus 11, or thirteen digits
/// by modulus 10.
///
/// Thirteen digits begin with 978 or with 979 (979-0 is music, not a book). Refused: `IsbnEmpty`,
/// `IsbnCharacter`, `IsbnLength`, `IsbnPrefix`, `IsbnChecksum`. Hyphens are skipped like blanks. Whether
/// the group and the publisher exist is not asked.
[[nodiscard]] Parsed<Isbn> ParseIsbn(std::string_view text) noexcept;
[[nodiscard]] Parsed<Isbn> ParseIsbn(std::u16string_view text) noexcept;

/// Returns the ISBN of thirteen digits of the same book.
[[nodiscard]] Isbn ToIsbn13(const Isbn& isbn) noexcept;

/// Returns the usual spelling, with hyphens between prefix, group, publisher, title and check digit:
/// "978-80-200-0980-9".
///
/// Without hyphens if the list of ranges has no such group or publisher.
[[nodiscard]] FixedText<17> Format(const Isbn& isbn) noexcept;

}  // namespace ravo::czech
