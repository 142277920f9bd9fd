#include <ravo/utils/strings/find.h>
#include <ravo/utils/strings/vector.h>

#include <algorithm>
#include <array>

namespace ravo::strings {
namespace {

#ifdef __SSE2__

// Looks for the first and the last character of `search` at their distance, a vector of places at a time;
// only where both stand it looks at what is between.
template <class Char>
class Finder {
 public:
  explicit Finder(View<Char> search)
      : search_(search), first_(Everywhere(search.front())), last_(Everywhere(search.back())) {}

  std::size_t In(View<Char> text, std::size_t from) const {
    const std::size_t places = text.size() - search_.size() + 1;
    if (places - from < kLanes) return FindPlainly<Exact>(search_, text, from);
    for (; places - from >= 2 * kLanes; from += 2 * kLanes) {
      const unsigned low = Candidates(text.data() + from);
      const unsigned high = Candidates(text.data() + from + kLanes);
      if ((low | high) == 0) continue;
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

  unsigned Candidates(const Char* place) const {
    const __m128i first = SameLanes<Char>(LoadVector(place), first_);
    const __m128i last = SameLanes<Char>(LoadVector(place + search_.size() - 1), last_);
    return BitsOf(_mm_and_si128(first, last));
  }

  // The first of the candidates, one bit per byte, that is a whole hit.
  std::size_t Among(View<Char> text, std::size_t from, unsigned candidates) const {
    constexpr unsigned kLane = (1U << sizeof(Char)) - 1;
    while (candidates != 0) {
      const unsigned bit = LowestBit(candidates);
      const std::size_t at = from + bit / sizeof(Char);
      if (search_.size() <= 2 || Between(text.data() + at)) return at;
      candidates &= ~(kLane << bit);
    }
    return kNone;
  }

  bool Between(const Char* place) const {
    return SameUnits<Exact>(place + 1, search_.data() + 1, search_.size() - 2);
  }

  View<Char> search_;
  __m128i first_;
  __m128i last_;
};

template <class Char>
std::size_t FindByVectors(View<Char> search, View<Char> text, std::size_t from) {
  if (search.empty() || from >= text.size() || search.size() > text.size() - from) return kNone;
  return Finder<Char>(search).In(text, from);
}

#else

template <class Char>
std::size_t FindByVectors(View<Char> search, View<Char> text, std::size_t from) {
  return FindPlainly<Exact>(search, text, from);
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

}  // namespace

std::size_t FindExactly(View<char> search, View<char> text, std::size_t from) noexcept {
  return FindByVectors(search, text, from);
}
std::size_t FindExactly(View<char16_t> search, View<char16_t> text, std::size_t from) noexcept {
  return FindByVectors(search, text, from);
}

std::size_t FindFolded(View<char16_t> search, View<char16_t> text, std::size_t from) noexcept {
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

}  // namespace ravo::strings
