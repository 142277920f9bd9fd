#include <ravo/codec/kernels/block.h>
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/utils/strings/find.h>
#include <ravo/utils/strings/first_letters.h>

#include <algorithm>
#include <array>

namespace ravo::strings {
namespace {

using codec::Block;
using codec::Hits;

// The characters that match one character of the search text, each in all lanes of a block.
template <class Fold, class Char>
class Wanted {
 public:
  explicit Wanted(Char c) {
    if constexpr (Fold::kIsExact) {
      blocks_[0] = Block<Char>(c);
    } else {
      const Variants<Char> variants = VariantsOf(c);
      std::transform(variants.begin(), variants.end(), blocks_,
                     [](Char variant) { return Block<Char>(variant); });
    }
  }

  Block<Char> In(const Char* text) const {
    const Block<Char> units = Block<Char>::Load(text);
    Block<Char> found = units.EqualTo(blocks_[0]);
    for (std::size_t i = 1; i < kCount; ++i) found = found | units.EqualTo(blocks_[i]);
    return found;
  }

 private:
  static constexpr std::size_t kCount = Fold::kIsExact ? 1 : std::tuple_size_v<Variants<Char>>;
  Block<Char> blocks_[kCount];
};

std::size_t SkipByKernel(const char* text, const char* last_text, std::size_t places, const char (&ends)[2]) {
  return codec::ChosenKernels().skip_bytes(text, last_text, places, ends);
}
std::size_t SkipByKernel(const char16_t* text, const char16_t* last_text, std::size_t places,
                         const char16_t (&ends)[2]) {
  return codec::ChosenKernels().skip_units(text, last_text, places, ends);
}

// Searches for the first and the last character of `search` at their distance, a block of positions at a
// time; compares the rest only where both match.
template <class Fold, class Char>
class Finder {
 public:
  explicit Finder(View<Char> search) : search_(search), first_(search.front()), last_(search.back()) {}

  std::size_t In(View<Char> text, std::size_t from) const {
    const std::size_t places = text.size() - search_.size() + 1;
    if (places - from < kLanes) return FindPlainly<Fold>(search_, text, from);
    unsigned empty = 0;
    for (; places - from >= 2 * kLanes; from += 2 * kLanes) {
      const Hits<Char> low = Candidates(text.data() + from);
      const Hits<Char> high = Candidates(text.data() + from + kLanes);
      if ((low | high).None()) {
        if (++empty % kManyEmpty == 0) from += Skipped(text, from + 2 * kLanes, places);
        continue;
      }
      if (const std::size_t at = Among(text, from, low); at != kNone) return at;
      if (const std::size_t at = Among(text, from + kLanes, high); at != kNone) return at;
    }
    // The last block overlaps the one before it.
    for (; from < places; from += kLanes) {
      from = std::min(from, places - kLanes);
      if (const std::size_t at = Among(text, from, Candidates(text.data() + from)); at != kNone) return at;
    }
    return kNone;
  }

 private:
  static constexpr std::size_t kLanes = Block<Char>::kUnits;
  // After this many pairs of blocks without a candidate, more are likely.
  static constexpr unsigned kManyEmpty = 4;
  // Fewer positions are not worth the call.
  static constexpr std::size_t kManyPlaces = 16 * kLanes;

  std::size_t Skipped(View<Char> text, std::size_t from, std::size_t places) const {
    if (!Fold::kIsExact || places - from < kManyPlaces) return 0;
    const Char* const place = text.data() + from;
    const Char ends[2] = {search_.front(), search_.back()};
    return SkipByKernel(place, place + search_.size() - 1, places - from, ends);
  }

  Hits<Char> Candidates(const Char* place) const {
    return (first_.In(place) & last_.In(place + search_.size() - 1)).AsHits();
  }

  // Returns the position of the first candidate that is a match; else `kNone`.
  std::size_t Among(View<Char> text, std::size_t from, Hits<Char> candidates) const {
    for (; !candidates.None(); candidates = candidates.WithoutFirst()) {
      const std::size_t at = from + candidates.First();
      if (IsHit(text.data() + at)) return at;
    }
    return kNone;
  }

  // Variants include false matches, so folded characters are compared again; exact first and last ones are
  // not.
  bool IsHit(const Char* place) const {
    if (!Fold::kIsExact) return SameUnits<Fold>(place, search_.data(), search_.size());
    return search_.size() <= 2 || SameUnits<Exact>(place + 1, search_.data() + 1, search_.size() - 2);
  }

  View<Char> search_;
  Wanted<Fold, Char> first_;
  Wanted<Fold, Char> last_;
};

template <class Fold, class Char>
std::size_t FindByBlocks(View<Char> search, View<Char> text, std::size_t from) {
  if (search.empty() || from >= text.size() || search.size() > text.size() - from) return kNone;
  return Finder<Fold, Char>(search).In(text, from);
}

constexpr std::size_t kPiece = 512;
constexpr std::size_t kLongestFolded = 128;

template <std::size_t size>
View<char16_t> FoldedInto(std::array<char16_t, size>& buffer, View<char16_t> text) {
  std::size_t at = 0;
  // Folds ASCII in blocks, other units one by one.
  using Units = Block<char16_t>;
  for (; text.size() - at >= Units::kUnits; at += Units::kUnits) {
    const Units units = Units::Load(text.data() + at);
    codec::AsciiLowered(units).Store(buffer.data() + at);
    auto others = ~(units & Units(char16_t{0xFF80})).EqualTo(u'\0').AsHits();
    for (; !others.None(); others = others.WithoutFirst()) {
      const std::size_t other = at + others.First();
      buffer[other] = Folded::Of(text[other]);
    }
  }
  for (; at < text.size(); ++at) buffer[at] = Folded::Of(text[at]);
  return {buffer.data(), text.size()};
}

// Folds the text block by block, for characters whose variants are unknown.
std::size_t FindInFolded(View<char16_t> search, View<char16_t> text, std::size_t from) {
  if (search.empty() || search.size() > kLongestFolded) return FindPlainly<Folded>(search, text, from);
  std::array<char16_t, kLongestFolded> search_buffer;
  std::array<char16_t, kPiece> buffer;
  const View<char16_t> folded_search = FoldedInto(search_buffer, search);
  // Blocks overlap by all but one character of the search text.
  for (; from < text.size() && search.size() <= text.size() - from; from += kPiece - search.size() + 1) {
    const std::size_t at = FindExactly(folded_search, FoldedInto(buffer, text.substr(from, kPiece)), 0);
    if (at != kNone) return from + at;
  }
  return kNone;
}

bool AreEndsKnown(View<char16_t> search) {
  return !search.empty() && AreVariantsKnown(search.front()) && AreVariantsKnown(search.back());
}

}  // namespace

std::size_t FindExactly(View<char> search, View<char> text, std::size_t from) noexcept {
  return FindByBlocks<Exact>(search, text, from);
}
std::size_t FindExactly(View<char16_t> search, View<char16_t> text, std::size_t from) noexcept {
  return FindByBlocks<Exact>(search, text, from);
}

std::size_t FindFolded(View<char> search, View<char> text, std::size_t from) noexcept {
  return FindByBlocks<Folded>(search, text, from);
}
std::size_t FindFolded(View<char16_t> search, View<char16_t> text, std::size_t from) noexcept {
  return AreEndsKnown(search) ? FindByBlocks<Folded>(search, text, from) : FindInFolded(search, text, from);
}

}  // namespace ravo::strings
