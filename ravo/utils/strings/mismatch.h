#pragma once

#include <ravo/utils/strings/text_kind.h>

namespace ravo::strings {

/// The first place at which two texts of one length differ; the length where they are the same.
template <class Fold, class Char>
[[nodiscard]] std::size_t Mismatch(const Char* left, const Char* right, std::size_t length) noexcept {
  std::size_t at = 0;
  while (at < length && SameChar<Fold>(left[at], right[at])) ++at;
  return at;
}

}  // namespace ravo::strings
