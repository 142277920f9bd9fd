#pragma once

#include <ravo/codec/kernels/single_byte_table.h>

#include <cstdint>

/// Policies: all differences between callers of one engine.
///
/// UTF-8. Both policies convert single UTF-16 units: a surrogate is three bytes, read and written; a sequence
/// of four to six bytes, an overlong one and a truncated one read as one U+FFFD; the byte after a truncated
/// sequence begins the next character. They differ in two lead bytes:
///
///     bytes                 Utf8OfEncodings                     Utf8OfStrings
///     FE 80 80 80 80 80 41  FE is no lead byte:                 FE leads five trailing bytes:
///                           U+FFFD six times, "A"               U+FFFD once, "A"
///     FF                    as FE                               as FE
///
/// Windows-1250. Five bytes (81, 83, 88, 90, 98) have no character in the published mapping:
///
///     byte                  Windows_1250 of the rows            kWindows1250OfSystem
///     81                    reads as U+FFFD                     U+0081, both ways
///
/// A character without a byte stops a conversion by a row; the caller chooses the replacement.
namespace ravo::codec {

/// For readers, writers, code pages and conversions between encodings.
struct Utf8OfEncodings {
  static constexpr int kTrailsOfLastLeads = 0;  ///< the number of trailing bytes after FE and FF
};

/// For `StrDecodeUtf8` and its family.
struct Utf8OfStrings {
  static constexpr int kTrailsOfLastLeads = 5;
};

/// Returns `table` with each unassigned byte mapped to the control character of the same number, as systems
/// do.
// Untested: runs at compile time only.
constexpr ByteTable WithControls(ByteTable table) noexcept {
  for (std::size_t byte = 0; byte < table.size(); ++byte) {
    if (table[byte] == kReplacement) table[byte] = static_cast<char16_t>(byte);
  }
  return table;
}

}  // namespace ravo::codec
