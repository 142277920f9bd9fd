#include <ravo/utils/strings/utf8_kernels.h>
#include <ravo/utils/strings/utf8_shuffled.h>

#ifdef __SSE2__
#include <ravo/utils/strings/vector.h>

#include <array>
#include <cstdint>

#include <immintrin.h>

#define RAVO_SHUFFLES __attribute__((target("ssse3,popcnt")))

namespace ravo::strings {
namespace {

using Shuffle = std::array<std::uint8_t, kVectorBytes>;
using Shuffles = std::array<Shuffle, 256>;
constexpr std::size_t kUnits = kVectorBytes / sizeof(char16_t);

// Untested: runs at compile time only.
constexpr unsigned Bit(unsigned bits, std::size_t i) { return bits >> i & 1; }

// By one bit for each of eight units: those whose bit is set, side by side.
// Untested: runs at compile time only.
constexpr Shuffles KeepingUnits() {
  Shuffles shuffles{};
  for (unsigned bits = 0; bits < shuffles.size(); ++bits) {
    std::size_t at = 0;
    for (std::size_t i = 0; i < kUnits; ++i) {
      if (Bit(bits, i) == 0) continue;
      shuffles[bits][at++] = static_cast<std::uint8_t>(2 * i);
      shuffles[bits][at++] = static_cast<std::uint8_t>(2 * i + 1);
    }
  }
  return shuffles;
}

// By one bit for each of eight units: the lower byte alone of those whose bit is set, both of the others.
// Untested: runs at compile time only.
constexpr Shuffles KeepingLowerBytes() {
  Shuffles shuffles{};
  for (unsigned bits = 0; bits < shuffles.size(); ++bits) {
    std::size_t at = 0;
    for (std::size_t i = 0; i < kUnits; ++i) {
      shuffles[bits][at++] = static_cast<std::uint8_t>(2 * i);
      if (Bit(bits, i) == 0) shuffles[bits][at++] = static_cast<std::uint8_t>(2 * i + 1);
    }
  }
  return shuffles;
}

constexpr Shuffles kKeepingUnits = KeepingUnits();
constexpr Shuffles kKeepingLowerBytes = KeepingLowerBytes();

RAVO_SHUFFLES __m128i Shuffled(__m128i vector, const Shuffle& shuffle) {
  return _mm_shuffle_epi8(vector, LoadVector(shuffle.data()));
}

RAVO_SHUFFLES std::size_t CountBits(unsigned bits) {
  return static_cast<std::size_t>(__builtin_popcount(bits));
}

RAVO_SHUFFLES char16_t* PutKept(__m128i units, unsigned kept, char16_t* out) {
  StoreVector(out, Shuffled(units, kKeepingUnits[kept]));
  return out + CountBits(kept);
}

// Vector after vector of forms of one and two bytes, which may go across the border of two.
class Decoder {
 public:
  RAVO_SHUFFLES explicit Decoder(std::string_view bytes) : rest_(bytes), before_(_mm_setzero_si128()) {}

  // Stops where something else comes, or less than a vector is left.
  RAVO_SHUFFLES char16_t* Run(char16_t* out) {
    while (rest_.size() >= kVectorBytes) {
      const __m128i bytes = LoadVector(rest_.data());
      if (BitsOf(bytes) == 0 && open_ == 0) {
        StoreVector(out, _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
        StoreVector(out + kUnits, _mm_unpackhi_epi8(bytes, _mm_setzero_si128()));
        out += kVectorBytes;
      } else if (!Take(bytes, out)) {
        break;
      }
      before_ = bytes;
      rest_.remove_prefix(kVectorBytes);
    }
    return out;
  }

  // What is not decoded. A lead byte at the end of a vector waits for its trail.
  [[nodiscard]] std::string_view Rest() const { return {rest_.data() - open_, rest_.size() + open_}; }

 private:
  RAVO_SHUFFLES bool Take(__m128i bytes, char16_t*& out) {
    const __m128i are_trails = _mm_cmpgt_epi8(Everywhere(static_cast<char>(0xC0)), bytes);
    const __m128i are_leads = _mm_and_si128(_mm_cmpgt_epi8(bytes, Everywhere(static_cast<char>(0xC1))),
                                            _mm_cmpgt_epi8(Everywhere(static_cast<char>(0xE0)), bytes));
    const unsigned trails = BitsOf(are_trails);
    const unsigned leads = BitsOf(are_leads);
    if ((trails | leads) != BitsOf(bytes) || trails != ((leads << 1 | open_) & 0xFFFF)) return false;
    const __m128i leads_before =
        _mm_and_si128(_mm_alignr_epi8(bytes, before_, 15), _mm_and_si128(are_trails, Everywhere('\x1F')));
    const __m128i lower =
        _mm_xor_si128(bytes, _mm_and_si128(are_trails, Everywhere(static_cast<char>(0x80))));
    const __m128i weights = Everywhere(char16_t{0x4001});
    const unsigned kept = ~leads & 0xFFFF;
    out = PutKept(_mm_maddubs_epi16(_mm_unpacklo_epi8(lower, leads_before), weights), kept & 0xFF, out);
    out = PutKept(_mm_maddubs_epi16(_mm_unpackhi_epi8(lower, leads_before), weights), kept >> 8, out);
    open_ = leads >> 15;
    return true;
  }

  std::string_view rest_;
  __m128i before_;
  unsigned open_ = 0;
};

// Eight units below U+0800, in `ascii` lanes of ones where they are below U+0080.
RAVO_SHUFFLES char* PutUnits(__m128i units, __m128i ascii, char* out) {
  const __m128i lead = _mm_or_si128(_mm_srli_epi16(units, 6), Everywhere(char16_t{0xC0}));
  const __m128i trail =
      _mm_or_si128(_mm_and_si128(units, Everywhere(char16_t{0x3F})), Everywhere(char16_t{0x80}));
  const __m128i two = _mm_or_si128(lead, _mm_slli_epi16(trail, 8));
  const __m128i bytes = _mm_or_si128(_mm_and_si128(ascii, units), _mm_andnot_si128(ascii, two));
  const unsigned single = BitsOf(_mm_packs_epi16(ascii, _mm_setzero_si128()));
  StoreVector(out, Shuffled(bytes, kKeepingLowerBytes[single]));
  return out + kVectorBytes - CountBits(single);
}

RAVO_SHUFFLES __m128i HaveNone(__m128i units, char16_t bits) {
  return _mm_cmpeq_epi16(_mm_and_si128(units, Everywhere(bits)), _mm_setzero_si128());
}

// Stops where a unit from U+0800 on comes, or less than two vectors are left.
RAVO_SHUFFLES char* EncodeRun(std::u16string_view& text, char* out) {
  for (; text.size() >= 2 * kUnits; text.remove_prefix(2 * kUnits)) {
    const __m128i low = LoadVector(text.data());
    const __m128i high = LoadVector(text.data() + kUnits);
    const __m128i all = _mm_or_si128(low, high);
    if (BitsOf(HaveNone(all, 0xFF80)) == 0xFFFF) {
      StoreVector(out, _mm_packus_epi16(low, high));
      out += 2 * kUnits;
      continue;
    }
    if (BitsOf(HaveNone(all, 0xF800)) != 0xFFFF) break;
    out = PutUnits(low, HaveNone(low, 0xFF80), out);
    out = PutUnits(high, HaveNone(high, 0xFF80), out);
  }
  return out;
}

}  // namespace

char16_t* DecodeUtf8Shuffled(std::string_view bytes, char16_t* out) noexcept {
  while (!bytes.empty()) {
    Decoder decoder(bytes);
    out = decoder.Run(out);
    bytes = decoder.Rest();
    out = DecodeFewUtf8(bytes, out);
  }
  return out;
}

char* EncodeUtf8Shuffled(std::u16string_view text, char* out) noexcept {
  while (!text.empty()) {
    out = EncodeRun(text, out);
    const std::u16string_view few = text.substr(0, 2 * kUnits);
    out = EncodeUtf8Plainly(few, out);
    text.remove_prefix(few.size());
  }
  return out;
}

bool CanShuffle() noexcept {
  return __builtin_cpu_supports("ssse3") != 0 && __builtin_cpu_supports("popcnt") != 0;
}

}  // namespace ravo::strings

#else

namespace ravo::strings {

char16_t* DecodeUtf8Shuffled(std::string_view bytes, char16_t* out) noexcept {
  return DecodeUtf8(bytes, out);
}
char* EncodeUtf8Shuffled(std::u16string_view text, char* out) noexcept { return EncodeUtf8(text, out); }
bool CanShuffle() noexcept { return false; }

}  // namespace ravo::strings

#endif
