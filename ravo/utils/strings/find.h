#pragma once

#include <ravo/utils/strings/text_kind.h>

namespace ravo::strings {

/// Returns the first index from `from` on at which `text` contains `search`; `kNone` if it does not or
/// `search` is empty. The reference of the other searches.
template <class Fold, class Char>
[[nodiscard]] std::size_t FindPlainly(View<Char> search, View<Char> text, std::size_t from) noexcept {
  if (search.empty() || from >= text.size() || search.size() > text.size() - from) return kNone;
  const Char first = Fold::Of(search.front());
  const std::size_t end = text.size() - search.size() + 1;
  for (std::size_t at = from; at < end; ++at) {
    if (Fold::Of(text[at]) == first &&
        SameUnits<Fold>(text.data() + at + 1, search.data() + 1, search.size() - 1)) {
      return at;
    }
  }
  return kNone;
}

/// As `FindPlainly`, case-sensitive, in vectors.
[[nodiscard]] std::size_t FindExactly(View<char> search, View<char> text, std::size_t from) noexcept;
[[nodiscard]] std::size_t FindExactly(View<char16_t> search, View<char16_t> text, std::size_t from) noexcept;
/// As `FindPlainly` after case folding, in vectors.
[[nodiscard]] std::size_t FindFolded(View<char> search, View<char> text, std::size_t from) noexcept;
[[nodiscard]] std::size_t FindFolded(View<char16_t> search, View<char16_t> text, std::size_t from) noexcept;

template <class Fold, class Char>
[[nodiscard]] std::size_t Find(View<Char> search, View<Char> text, std::size_t from) noexcept {
  if constexpr (Fold::kIsExact) {
    return FindExactly(search, text, from);
  } else {
    return FindFolded(search, text, from);
  }
}

/// Returns the last index up to `from` at which `text` contains `search`; `kNone` if it does not or `search`
/// is empty.
template <class Fold, class Char>
[[nodiscard]] std::size_t FindBack(View<Char> search, View<Char> text, std::size_t from) noexcept {
  if (search.empty() || search.size() > text.size()) return kNone;
  const std::size_t last = text.size() - search.size();
  for (std::size_t at = (from < last ? from : last) + 1; at-- > 0;) {
    if (SameUnits<Fold>(text.data() + at, search.data(), search.size())) return at;
  }
  return kNone;
}

}  // namespace ravo::strings
