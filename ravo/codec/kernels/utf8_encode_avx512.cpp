#include <ravo/codec/kernels/kernels.h>

#if defined(__SSE2__) && defined(__x86_64__)
#include <ravo/codec/kernels/block_avx512.h>

#include <algorithm>
#include <array>

namespace ravo::codec {
namespace {

constexpr std::size_t kUnits = kWide / sizeof(char16_t);
constexpr std::size_t kStep = 2 * kUnits;
// The last store of a step begins after three bytes for each unit but the last sixteen.
constexpr std::size_t kStepRoom = 3 * (kStep - 16) + kWide;
// Units of three bytes cluster: after one, this many steps are taken without a test.
constexpr std::size_t kLongSteps = 4;

// Masks of all lanes: the intrinsics without a mask read an undefined vector in the compiler's header.
constexpr Bits kEveryByte = ~Bits{0};
constexpr Bits kFirstOfTwo = 0x5555'5555'5555'5555;
constexpr Bits kThirdOfFour = 0x4444'4444'4444'4444;

// Untested: runs at compile time only.
constexpr std::array<std::uint8_t, kWide> EvenPlaces() {
  std::array<std::uint8_t, kWide> places{};
  for (std::size_t i = 0; i < kWide; ++i) places[i] = static_cast<std::uint8_t>(2 * i);
  return places;
}
constexpr std::array<std::uint8_t, kWide> kEvenPlaces = EvenPlaces();

RAVO_AVX512 inline Vector AllUnits(unsigned unit) { return _mm512_set1_epi16(static_cast<short>(unit)); }

RAVO_AVX512 inline __mmask32 HaveAny(Vector units, unsigned bits) {
  return _mm512_test_epi16_mask(units, AllUnits(bits));
}

RAVO_AVX512 inline std::size_t CountBits(Bits bits) { return static_cast<std::size_t>(_mm_popcnt_u64(bits)); }

// Stores the whole vector, because compressing to memory is slow on some processors.
RAVO_AVX512 inline std::uint8_t* PutKept(Vector bytes, Bits kept, std::uint8_t* to) {
  _mm512_storeu_si512(to, _mm512_maskz_compress_epi8(kept, bytes));
  return to + CountBits(kept);
}

// Encodes thirty-two units below U+0800: each lane becomes lead and trailing byte, or stays if it is ASCII.
RAVO_AVX512 inline std::uint8_t* PutPairs(Vector units, std::uint8_t* to) {
  const Vector trails = _mm512_and_si512(_mm512_slli_epi16(units, 8), AllUnits(0x3F00));
  const Vector both = _mm512_or_si512(_mm512_or_si512(trails, _mm512_srli_epi16(units, 6)), AllUnits(0x80C0));
  const Vector pairs = _mm512_mask_blend_epi16(HaveAny(units, 0xFF80), units, both);
  return PutKept(pairs, _mm512_movepi8_mask(pairs) | kFirstOfTwo, to);
}

// Encodes sixteen units of any kind into four bytes each, the third of which is the last of its sequence.
RAVO_AVX512 inline Vector AsTriples(__m256i units) {
  constexpr long long kShifts = 0x0020'262C'0000'060C;  // by 12, 6 and 0 bits in each half
  const Vector wide = _mm512_maskz_cvtepu16_epi32(static_cast<__mmask16>(kEveryByte), units);
  const __mmask16 beyond_ascii = _mm512_cmpge_epu32_mask(wide, _mm512_set1_epi32(0x80));
  const __mmask16 are_long = _mm512_cmpge_epu32_mask(wide, _mm512_set1_epi32(0x800));
  const Vector two = _mm512_maskz_mov_epi32(beyond_ascii, _mm512_set1_epi32(0x80C000));
  const Vector leads = _mm512_mask_mov_epi32(two, are_long, _mm512_set1_epi32(0x8080E0));
  const Vector used =
      _mm512_mask_mov_epi32(_mm512_set1_epi32(0xFF0000), beyond_ascii, _mm512_set1_epi32(0x3F3F0F));
  const Vector parts = _mm512_maskz_multishift_epi64_epi8(kEveryByte, _mm512_set1_epi64(kShifts), wide);
  return _mm512_or_si512(_mm512_and_si512(parts, used), leads);
}

RAVO_AVX512 inline Bits KeptOfTriples(Vector triples) { return _mm512_movepi8_mask(triples) | kThirdOfFour; }

// Encodes two vectors of units of any kind.
RAVO_AVX512 inline std::uint8_t* PutAny(const char16_t* from, std::uint8_t* to) {
  for (std::size_t at = 0; at < kStep; at += 16) {
    const Vector triples = AsTriples(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(from + at)));
    to = PutKept(triples, KeptOfTriples(triples), to);
  }
  return to;
}

class Encoder {
 public:
  RAVO_AVX512 Encoder(TextSpan text, ByteRoom bytes)
      : from_(text.data()), left_(text.size()), to_(bytes.data()), room_(bytes.size()) {}

  RAVO_AVX512 Run Encode() {
    const char16_t* const text = from_;
    const std::uint8_t* const bytes = to_;
    while (HasStep()) Step();
    while (left_ > 0 && PutLast()) {
    }
    return {static_cast<std::size_t>(from_ - text), static_cast<std::size_t>(to_ - bytes)};
  }

 private:
  RAVO_AVX512 bool HasStep() const { return left_ >= kStep && room_ >= kStepRoom; }

  RAVO_AVX512 void Step() {
    const Vector low = Load(from_);
    const Vector high = Load(from_ + kUnits);
    const Vector all = _mm512_or_si512(low, high);
    if (HaveAny(all, 0xFF80) == 0) {
      _mm512_storeu_si512(to_, _mm512_permutex2var_epi8(low, Load(kEvenPlaces.data()), high));
      Advance(kStep, to_ + kStep);
    } else if (HaveAny(all, 0xF800) == 0) {
      Advance(kStep, PutPairs(high, PutPairs(low, to_)));
    } else {
      for (std::size_t i = 0; i < kLongSteps && HasStep(); ++i) Advance(kStep, PutAny(from_, to_));
    }
  }

  // Encodes some of the last units with a masked store. False if there is no room for them.
  RAVO_AVX512 bool PutLast() {
    const std::size_t count = std::min<std::size_t>(left_, 16);
    const auto present = static_cast<__mmask16>(LowestOfHalf(count));
    const Vector triples = AsTriples(_mm256_maskz_loadu_epi16(present, from_));
    const Bits kept = KeptOfTriples(triples) & Lowest(4 * count);
    const std::size_t size = CountBits(kept);
    if (size > room_) return false;
    _mm512_mask_storeu_epi8(to_, Lowest(size), _mm512_maskz_compress_epi8(kept, triples));
    Advance(count, to_ + size);
    return true;
  }

  RAVO_AVX512 void Advance(std::size_t units, std::uint8_t* to) {
    from_ += units;
    left_ -= units;
    room_ -= static_cast<std::size_t>(to - to_);
    to_ = to;
  }

  const char16_t* from_;
  std::size_t left_;
  std::uint8_t* to_;
  std::size_t room_;
};

// Returns how many more bytes than units thirty-two units need.
RAVO_AVX512 inline std::size_t CountExtra(Vector units) {
  return CountBits(HaveAny(units, 0xFF80)) + CountBits(HaveAny(units, 0xF800));
}

}  // namespace

RAVO_AVX512 Run EncodeUtf8Avx512(TextSpan text, ByteRoom bytes) noexcept {
  return Encoder(text, bytes).Encode();
}

RAVO_AVX512 std::size_t Utf8LengthAvx512(TextSpan text) noexcept {
  std::size_t length = text.size();
  std::size_t at = 0;
  for (; text.size() - at >= 4 * kUnits; at += 4 * kUnits) {
    const char16_t* const from = text.data() + at;
    const Vector blocks[4] = {Load(from), Load(from + kUnits), Load(from + 2 * kUnits),
                              Load(from + 3 * kUnits)};
    const Vector all =
        _mm512_or_si512(_mm512_or_si512(blocks[0], blocks[1]), _mm512_or_si512(blocks[2], blocks[3]));
    if (HaveAny(all, 0xFF80) == 0) continue;
    for (const Vector block : blocks) length += CountBits(HaveAny(block, 0xFF80));
    if (HaveAny(all, 0xF800) == 0) continue;
    for (const Vector block : blocks) length += CountBits(HaveAny(block, 0xF800));
  }
  for (; at < text.size(); at += kUnits) {
    const std::uint32_t present = LowestOfHalf(std::min(text.size() - at, kUnits));
    length += CountExtra(_mm512_maskz_loadu_epi16(present, text.data() + at));
  }
  return length;
}

bool HasAvx512() noexcept {
  __builtin_cpu_init();
  return __builtin_cpu_supports("avx512bw") != 0 && __builtin_cpu_supports("avx512vl") != 0 &&
         __builtin_cpu_supports("avx512vbmi") != 0 && __builtin_cpu_supports("avx512vbmi2") != 0 &&
         __builtin_cpu_supports("bmi") != 0 && __builtin_cpu_supports("bmi2") != 0 &&
         __builtin_cpu_supports("popcnt") != 0;
}

}  // namespace ravo::codec

#endif
