#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <string_view>

/// How far characters of some kind go at the front of a run. Blocks go at once: a block's tests have no
/// branches, so that the compiler makes vectors of them.
namespace ravo::unicode {

inline constexpr std::size_t kSearchBlock = 16;

/// How many characters stand before the first one that is a hit.
template <class IsHit>
[[nodiscard]] constexpr std::size_t LengthBefore(std::u16string_view run, const IsHit& is_hit) {
  std::size_t at = 0;
  for (; run.size() - at >= kSearchBlock; at += kSearchBlock) {
    const char16_t* const block = run.data() + at;
    unsigned hits = 0;
    for (std::size_t i = 0; i < kSearchBlock; ++i) hits |= is_hit(block[i]) ? 1U : 0U;
    if (hits != 0) break;
  }
  while (at < run.size() && !is_hit(run[at])) ++at;
  return at;
}

/// Characters equal to one of those given.
template <std::size_t kCount>
class OneOf {
 public:
  template <std::same_as<char16_t>... Chars>
  constexpr explicit OneOf(Chars... chars) : chars_{chars...} {}

  constexpr bool operator()(char16_t c) const {
    bool hit = false;
    for (const char16_t ch : chars_) hit |= c == ch;
    return hit;
  }

 private:
  std::array<char16_t, kCount> chars_;
};
template <class... Chars>
OneOf(Chars...) -> OneOf<sizeof...(Chars)>;

inline constexpr OneOf kLineBreaks(u'\r', u'\n');

/// Everything that a kind is not.
template <class Kind>
class Except {
 public:
  constexpr explicit Except(Kind kind) : kind_(kind) {}

  constexpr bool operator()(char16_t c) const { return !kind_(c); }
  [[nodiscard]] constexpr std::size_t LengthIn(std::u16string_view run) const {
    return LengthBefore(run, kind_);
  }

 private:
  Kind kind_;
};

}  // namespace ravo::unicode
