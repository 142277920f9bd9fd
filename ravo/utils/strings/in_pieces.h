#pragma once

#include <ravo/runtime/checked.h>
#include <ravo/utils/strings/text_kind.h>

#include <array>

namespace ravo::strings {

/// What `encode` makes of `text`: it takes a view and a place with room for three bytes per character and one
/// more, and gives the end of what it wrote; each character is encoded by itself. The result is allocated
/// once, for the worst case, and only what is used of it is ever touched. `OverflowError` where that is too
/// long to count.
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
