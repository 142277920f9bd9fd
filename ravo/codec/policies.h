#pragma once

#include <ravo/codec/kernels/single_byte_table.h>

#include <cstdint>

/// Where callers of one engine want different things: each difference is a policy, and all of them are here.
///
/// UTF-8. Both policies know units of UTF-16 alone: a surrogate is three bytes, read and written; a sequence
/// of four to six bytes, an overlong one and one that is cut short read as one U+FFFD; the byte that cuts it
/// short begins the next character. They differ in two lead bytes:
///
///     bytes                 Utf8OfEncodings                     Utf8OfStrings
///     FE 80 80 80 80 80 41  FE leads nothing:                   FE leads five trailing bytes:
///                           U+FFFD six times, "A"               U+FFFD once, "A"
///     FF                    as FE                               as FE
///
/// Windows-1250. Five bytes (81, 83, 88, 90, 98) have no character in the published mapping:
///
///     byte                  Windows_1250 of the rows            kWindows1250OfSystem
///     81                    reads as U+FFFD                     U+0081, both ways
///
/// A character without a byte ends a conversion by a row; what a caller writes in its place is the caller's.
namespace ravo::codec {

/// Readers, writers, code pages, conversions between encodings.
struct Utf8OfEncodings {
  static constexpr int kTrailsOfLastLeads = 0;  ///< how many trailing bytes FE and FF ask for
};

/// `StrDecodeUtf8` and its family.
struct Utf8OfStrings {
  static constexpr int kTrailsOfLastLeads = 5;
};

/// `table` with each byte that it does not assign as the control character of its own number, as systems read
/// their code page.
// Untested: runs at compile time only.
constexpr ByteTable WithControls(ByteTable table) noexcept {
  for (std::size_t byte = 0; byte < table.size(); ++byte) {
    if (table[byte] == kReplacement) table[byte] = static_cast<char16_t>(byte);
  }
  return table;
}

}  // namespace ravo::codec
