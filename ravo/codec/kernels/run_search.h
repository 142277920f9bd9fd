#pragma once

#include <ravo/codec/kernels/block.h>
#include <ravo/codec/kernels/run.h>

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>

/// Search of a run for the first unit of a kind, sixteen units at a time. A unit is a UTF-16 unit, or a byte
/// of a text whose bytes below 0x80 are ASCII.
namespace ravo::codec {

inline constexpr std::size_t kSearchBlock = 16;

/// Sixteen units. A comparison gives a bit for each, the first unit in the lowest bit.
template <class Unit>
class UnitBlock;

template <>
class UnitBlock<std::uint8_t> {
 public:
  explicit UnitBlock(const std::uint8_t* units) noexcept : units_(Block<std::uint8_t>::Load(units)) {}

  [[nodiscard]] unsigned EqualTo(std::uint8_t unit) const noexcept {
    return units_.EqualTo(unit).AsHits().Bits();
  }
  [[nodiscard]] unsigned From(std::uint8_t first, std::uint8_t last) const noexcept {
    return units_.Within(first, last).AsHits().Bits();
  }
  /// Returns the bits of bytes from 0x80 on.
  [[nodiscard]] unsigned NoAscii() const noexcept { return units_.AsHits().Bits(); }
  /// Writes each byte as a unit.
  void Widen(char16_t* to) const noexcept {
    WidenedLow(units_).Store(to);
    WidenedHigh(units_).Store(to + kSearchBlock / 2);
  }

 private:
  Block<std::uint8_t> units_;
};

template <>
class UnitBlock<char16_t> {
 public:
  explicit UnitBlock(const char16_t* units) noexcept
      : low_(Block<char16_t>::Load(units)), high_(Block<char16_t>::Load(units + kSearchBlock / 2)) {}

  [[nodiscard]] unsigned EqualTo(char16_t unit) const noexcept {
    const Block<char16_t> wanted(unit);
    return NarrowedLanes(low_.EqualTo(wanted), high_.EqualTo(wanted)).AsHits().Bits();
  }
  [[nodiscard]] unsigned From(char16_t first, char16_t last) const noexcept {
    return NarrowedLanes(low_.Within(first, last), high_.Within(first, last)).AsHits().Bits();
  }

 private:
  Block<char16_t> low_;
  Block<char16_t> high_;
};

/// Matches units that equal one of the arguments.
template <std::size_t kCount>
class OneOf {
 public:
  template <std::same_as<char16_t>... Chars>
  constexpr explicit OneOf(Chars... chars) : chars_{chars...} {}

  [[nodiscard]] constexpr bool operator()(char16_t c) const {
    bool hit = false;
    for (const char16_t ch : chars_) hit |= c == ch;
    return hit;
  }
  template <class Unit>
  [[nodiscard]] unsigned HitsIn(const UnitBlock<Unit>& block) const noexcept {
    unsigned hits = 0;
    for (const char16_t ch : chars_) hits |= block.EqualTo(static_cast<Unit>(ch));
    return hits;
  }
  [[nodiscard]] constexpr bool IsAscii() const {
    bool ascii = true;
    for (const char16_t ch : chars_) ascii &= ch < 0x80;
    return ascii;
  }
  [[nodiscard]] constexpr const std::array<char16_t, kCount>& Chars() const { return chars_; }

 private:
  std::array<char16_t, kCount> chars_;
};
template <class... Chars>
OneOf(Chars...) -> OneOf<sizeof...(Chars)>;

[[nodiscard]] constexpr OneOf<3> OneOfEnds(EndBytes ends) {
  return OneOf(char16_t{ends.First()}, char16_t{ends.Second()}, char16_t{ends.Third()});
}

inline constexpr OneOf kLineBreaks(u'\r', u'\n');

/// Matches blanks and white-space controls, which are nearly all white space.
struct PlainWhite {
  [[nodiscard]] constexpr bool operator()(char16_t c) const { return c == u' ' || (c >= 9 && c <= 13); }
  template <class Unit>
  [[nodiscard]] unsigned HitsIn(const UnitBlock<Unit>& block) const noexcept {
    return block.EqualTo(u' ') | block.From(9, 13);
  }
};

/// Matches units that a kind does not match.
template <class Kind>
class Not {
 public:
  constexpr explicit Not(Kind kind) : kind_(kind) {}

  [[nodiscard]] constexpr bool operator()(char16_t c) const { return !kind_(c); }
  template <class Unit>
  [[nodiscard]] unsigned HitsIn(const UnitBlock<Unit>& block) const noexcept {
    return ~kind_.HitsIn(block) & 0xFFFF;
  }
  [[nodiscard]] constexpr const Kind& What() const { return kind_; }

 private:
  Kind kind_;
};

/// The line starts in a run: each unit after a line feed, or after a carriage return unless it is a line
/// feed.
struct LineStarts {
  std::size_t count = 0;
  std::size_t last = 0;  ///< index of the last line start
};

/// Finds the line starts; `before` is the unit before the run.
template <class Unit>
[[nodiscard]] LineStarts FindLineStarts(char16_t before, std::span<const Unit> run) {
  LineStarts starts;
  unsigned feed = before == u'\n' ? 1 : 0;
  unsigned carriage = before == u'\r' ? 1 : 0;
  const auto add = [&](unsigned feeds, unsigned carriages, std::size_t at, std::size_t size) {
    const unsigned after_feeds = feeds << 1 | feed;
    const unsigned after_carriages = carriages << 1 | carriage;
    feed = feeds >> (size - 1) & 1;
    carriage = carriages >> (size - 1) & 1;
    const unsigned found = (after_feeds | (after_carriages & ~feeds)) & ((1U << size) - 1);
    if (found == 0) return;
    for (unsigned rest = found; rest != 0; rest &= rest - 1) ++starts.count;
    starts.last = at + static_cast<std::size_t>(std::bit_width(found)) - 1;
  };
  std::size_t at = 0;
  for (; run.size() - at >= kSearchBlock; at += kSearchBlock) {
    const UnitBlock<Unit> block(run.data() + at);
    add(block.EqualTo('\n'), block.EqualTo('\r'), at, kSearchBlock);
  }
  for (; at < run.size(); ++at) add(run[at] == '\n' ? 1 : 0, run[at] == '\r' ? 1 : 0, at, 1);
  return starts;
}

/// Adds the line starts to the progress of a run before `ends`.
[[nodiscard]] inline RunUntil WithLineStarts(const Run& run, ByteSpan bytes, TextRoom text, EndBytes ends) {
  LineStarts starts;
  // Reading units that were just stored would stall on store forwarding; bytes that are as many are equal to
  // them.
  if (!ends.AreBreaks())
    starts = run.made == run.taken ? FindLineStarts(u'\0', bytes.first(run.taken))
                                   : FindLineStarts(u'\0', TextSpan(text.first(run.made)));
  return {run.taken, run.made, starts.count, starts.last};
}

/// Returns the number of units before the first one of a kind. The last block overlaps the one before it.
template <class Unit, class Kind>
[[nodiscard]] std::size_t LengthBefore(std::span<const Unit> run, const Kind& kind) {
  std::size_t at = 0;
  if (run.size() >= kSearchBlock) {
    const std::size_t last = run.size() - kSearchBlock;
    for (;; at = std::min(at + kSearchBlock, last)) {
      const unsigned hits = kind.HitsIn(UnitBlock<Unit>(run.data() + at));
      if (hits != 0) return at + static_cast<std::size_t>(std::countr_zero(hits));
      if (at == last) return run.size();
    }
  }
  while (at < run.size() && !kind(run[at])) ++at;
  return at;
}

}  // namespace ravo::codec
