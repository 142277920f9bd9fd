#pragma once

#include <ravo/runtime/checked.h>
#include <ravo/utils/strings/text_kind.h>

#include <array>

namespace ravo::strings {

/// Returns `text` encoded block by block.
///
/// `encode` takes a view and a buffer with room for three bytes per character plus one, encodes each
/// character by itself, and returns the end of its output. The result is allocated once, for the worst case,
/// and only the part in use is touched. Throws `OverflowError` if the worst case is too long to count.
template <class Char, class Encode>
[[nodiscard]] std::string EncodedInPieces(View<Char> text, Encode encode) {
  constexpr std::size_t kPiece = 1024;
  std::array<char, 3 * kPiece + 1> piece;
  std::string result;
  const std::size_t worst = CheckedMultiply<std::size_t>(text.size(), 3);
  if (text.size() > kPiece) result.reserve(worst);
  for (std::size_t at = 0; at < text.size(); at += kPiece) {
    char* const end = encode(text.substr(at, kPiece), piece.data());
    result.append(piece.data(), static_cast<std::size_t>(end - piece.data()));
  }
  return result;
}

}  // namespace ravo::strings
