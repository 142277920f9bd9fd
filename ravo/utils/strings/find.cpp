#include <ravo/utils/strings/find.h>
#include <ravo/utils/strings/first_letters.h>
#include <ravo/utils/strings/kernels.h>
#include <ravo/utils/strings/vector.h>

#include <algorithm>
#include <array>

namespace ravo::strings {
namespace {

#ifdef __SSE2__

// Vectors with the characters that one character of a search text may stand for.
template <class Fold, class Char>
class Wanted {
 public:
  explicit Wanted(Char c) {
    if constexpr (Fold::kIsExact) {
      lanes_[0] = Everywhere(c);
    } else {
      const Variants<Char> variants = VariantsOf(c);
      std::transform(variants.begin(), variants.end(), lanes_,
                     [](Char variant) { return Everywhere(variant); });
    }
  }

  __m128i In(const Char* text) const {
    const __m128i units = LoadVector(text);
    __m128i found = SameLanes<Char>(units, lanes_[0]);
    for (std::size_t i = 1; i < kCount; ++i) found = _mm_or_si128(found, SameLanes<Char>(units, lanes_[i]));
    return found;
  }

 private:
  static constexpr std::size_t kCount = Fold::kIsExact ? 1 : std::tuple_size_v<Variants<Char>>;
  __m128i lanes_[kCount];
};

template <class Fold>
std::size_t PassOverByKernel(const char* text, const char* last_text, std::size_t places,
                             const char (&ends)[2]) {
  // Untested: `kIsExact` is a constant of each instance.
  return Fold::kIsExact ? ChosenKernel().pass_over_bytes(text, last_text, places, ends) : 0;
}
template <class Fold>
std::size_t PassOverByKernel(const char16_t* text, const char16_t* last_text, std::size_t places,
                             const char16_t (&ends)[2]) {
  // Untested: `kIsExact` is a constant of each instance.
  return Fold::kIsExact ? ChosenKernel().pass_over_units(text, last_text, places, ends) : 0;
}

// Looks for the first and the last character of `search` at their distance, a vector of places at a time;
// only where both stand it looks at what is between.
template <class Fold, class Char>
class Finder {
 public:
  explicit Finder(View<Char> search) : search_(search), first_(search.front()), last_(search.back()) {}

  std::size_t In(View<Char> text, std::size_t from) const {
    const std::size_t places = text.size() - search_.size() + 1;
    if (places - from < kLanes) return FindPlainly<Fold>(search_, text, from);
    unsigned empty = 0;
    for (; places - from >= 2 * kLanes; from += 2 * kLanes) {
      const unsigned low = Candidates(text.data() + from);
      const unsigned high = Candidates(text.data() + from + kLanes);
      if ((low | high) == 0) {
        if (++empty % kManyEmpty == 0) from += PassedOver(text, from + 2 * kLanes, places);
        continue;
      }
      if (const std::size_t at = Among(text, from, low); at != kNone) return at;
      if (const std::size_t at = Among(text, from + kLanes, high); at != kNone) return at;
    }
    // What remains is looked at again together with some places before it.
    for (; from < places; from += kLanes) {
      from = std::min(from, places - kLanes);
      if (const std::size_t at = Among(text, from, Candidates(text.data() + from)); at != kNone) return at;
    }
    return kNone;
  }

 private:
  static constexpr std::size_t kLanes = kVectorBytes / sizeof(Char);
  // Behind so many vectors without a candidate there are likely to be more.
  static constexpr unsigned kManyEmpty = 4;
  // Fewer are not worth the call.
  static constexpr std::size_t kManyPlaces = 16 * kLanes;

  std::size_t PassedOver(View<Char> text, std::size_t from, std::size_t places) const {
    if (!Fold::kIsExact || places - from < kManyPlaces) return 0;
    const Char* const place = text.data() + from;
    const Char ends[2] = {search_.front(), search_.back()};
    return PassOverByKernel<Fold>(place, place + search_.size() - 1, places - from, ends);
  }

  unsigned Candidates(const Char* place) const {
    return BitsOf(_mm_and_si128(first_.In(place), last_.In(place + search_.size() - 1)));
  }

  // The first of the candidates, one bit per byte, that is a whole hit.
  std::size_t Among(View<Char> text, std::size_t from, unsigned candidates) const {
    constexpr unsigned kLane = (1U << sizeof(Char)) - 1;
    while (candidates != 0) {
      const unsigned bit = LowestBit(candidates);
      const std::size_t at = from + bit / sizeof(Char);
      if (IsHit(text.data() + at)) return at;
      candidates &= ~(kLane << bit);
    }
    return kNone;
  }

  // Variants may be some too many, but a character that stands for itself alone is right.
  bool IsHit(const Char* place) const {
    if (!Fold::kIsExact) return SameUnits<Fold>(place, search_.data(), search_.size());
    return search_.size() <= 2 || SameUnits<Exact>(place + 1, search_.data() + 1, search_.size() - 2);
  }

  View<Char> search_;
  Wanted<Fold, Char> first_;
  Wanted<Fold, Char> last_;
};

template <class Fold, class Char>
std::size_t FindByVectors(View<Char> search, View<Char> text, std::size_t from) {
  if (search.empty() || from >= text.size() || search.size() > text.size() - from) return kNone;
  return Finder<Fold, Char>(search).In(text, from);
}

#else

template <class Fold, class Char>
std::size_t FindByVectors(View<Char> search, View<Char> text, std::size_t from) {
  return FindPlainly<Fold>(search, text, from);
}

#endif

constexpr std::size_t kPiece = 512;
constexpr std::size_t kLongestFolded = 128;

template <std::size_t size>
View<char16_t> FoldedInto(std::array<char16_t, size>& buffer, View<char16_t> text) {
  std::size_t at = 0;
#ifdef __SSE2__
  // ASCII by vectors, what else there is one by one.
  constexpr std::size_t kLanes = kVectorBytes / sizeof(char16_t);
  for (; text.size() - at >= kLanes; at += kLanes) {
    const __m128i units = LoadVector(text.data() + at);
    StoreVector(buffer.data() + at, LowerLanes<char16_t>(units));
    const __m128i high = _mm_and_si128(units, Everywhere(char16_t{0xFF80}));
    for (unsigned bits = ~BitsOf(_mm_cmpeq_epi16(high, _mm_setzero_si128())) & 0xFFFF; bits != 0;) {
      const unsigned bit = LowestBit(bits);
      buffer[at + bit / 2] = Folded::Of(text[at + bit / 2]);
      bits &= ~(3U << bit);
    }
  }
#endif
  for (; at < text.size(); ++at) buffer[at] = Folded::Of(text[at]);
  return {buffer.data(), text.size()};
}

// For characters whose variants are not known: everything is folded, piece by piece.
std::size_t FindInFolded(View<char16_t> search, View<char16_t> text, std::size_t from) {
  if (search.empty() || search.size() > kLongestFolded) return FindPlainly<Folded>(search, text, from);
  std::array<char16_t, kLongestFolded> search_buffer;
  std::array<char16_t, kPiece> buffer;
  const View<char16_t> folded_search = FoldedInto(search_buffer, search);
  // Pieces overlap by all but one character of what is looked for.
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
  return FindByVectors<Exact>(search, text, from);
}
std::size_t FindExactly(View<char16_t> search, View<char16_t> text, std::size_t from) noexcept {
  return FindByVectors<Exact>(search, text, from);
}

std::size_t FindFolded(View<char> search, View<char> text, std::size_t from) noexcept {
  return FindByVectors<Folded>(search, text, from);
}
std::size_t FindFolded(View<char16_t> search, View<char16_t> text, std::size_t from) noexcept {
  return AreEndsKnown(search) ? FindByVectors<Folded>(search, text, from) : FindInFolded(search, text, from);
}

}  // namespace ravo::strings
