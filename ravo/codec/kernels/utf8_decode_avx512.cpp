#include <ravo/codec/kernels/kernels.h>

// UTF-8: all mixes of sequences of one to three bytes take the same path.
#if defined(__SSE2__) && defined(__x86_64__)
#include <ravo/codec/kernels/decode_avx512.inc>

namespace ravo::codec {
namespace {

constexpr std::size_t kLongestRest = 2;  // bytes of a sequence after the first one

using Places = std::array<std::uint8_t, kWide>;

// Returns the indices of thirty-two bytes from `first` on, each followed by the next one.
// Untested: runs at compile time only.
constexpr Places PairsFrom(std::uint8_t first) {
  Places places{};
  for (std::size_t i = 0; i < kWide; ++i) places[i] = static_cast<std::uint8_t>(first + i / 2 + i % 2);
  return places;
}

// Decodes each byte of half a block as a unit: alone or, if it is one of `leads`, with its trailing byte. The
// first byte of the half is at `first` of `bytes`.
template <std::size_t half, std::size_t first>
RAVO_AVX512 inline Vector UnitsOfPairs(Vector bytes, Bits all_leads) {
  alignas(Vector) static constexpr Places kPairs = PairsFrom(first);
  constexpr Bits kEveryByte = ~Bits{0};
  const __mmask32 leads = HalfOf<half>(all_leads);
  const Vector pairs = _mm512_maskz_permutexvar_epi8(kEveryByte, Load(kPairs.data()), bytes);
  const Vector weights = _mm512_mask_blend_epi16(leads, _mm512_set1_epi16(1), _mm512_set1_epi16(0x140));
  const Vector units = _mm512_maddubs_epi16(pairs, weights);
  // Subtracts the marker bits of lead and trailing byte.
  return _mm512_mask_sub_epi16(units, leads, units, _mm512_set1_epi16(0xC0 * 0x40 + 0x80));
}

RAVO_AVX512 inline char16_t* PutKept(Vector units, __mmask32 kept, char16_t* to) {
  _mm512_storeu_si512(to, _mm512_maskz_compress_epi16(kept, units));
  return to + _mm_popcnt_u32(kept);
}

// Widens a block of ASCII and the pairs of such blocks after it, and returns their length.
RAVO_AVX512 inline std::size_t WidenBlocks(ByteSpan bytes, TextRoom to) {
  for (std::size_t i = 0; i < kWide; i += kHalf)
    _mm512_storeu_si512(to.data() + i, Widened(bytes.data() + i));
  std::size_t at = kWide;
  for (; bytes.size() >= at + 2 * kWide && to.size() >= at + 2 * kWide; at += 2 * kWide) {
    const std::uint8_t* const from = bytes.data() + at;
    if (_mm512_movepi8_mask(_mm512_or_si512(Load(from), Load(from + kWide))) != 0) break;
    for (std::size_t i = 0; i < 2 * kWide; i += kHalf)
      _mm512_storeu_si512(to.data() + at + i, Widened(from + i));
  }
  return at;
}

// Decodes whole blocks of ASCII and pairs, with room for one unit per byte, up to any other block.
RAVO_AVX512 inline Run DecodePairs(ByteSpan bytes, TextRoom text) {
  const std::size_t most = std::min(bytes.size(), text.size());
  std::size_t at = 0;
  char16_t* to = text.data();
  Bits expected = 0;
  while (most - at >= kWide + kLongestRest) {
    const std::uint8_t* const from = bytes.data() + at;
    const Vector block = Load(from);
    const Bits beyond = _mm512_movepi8_mask(block);
    if ((beyond | expected) == 0) {
      const std::size_t more =
          WidenBlocks(bytes.subspan(at, most - at), text.subspan(static_cast<std::size_t>(to - text.data())));
      at += more;
      to += more;
      continue;
    }
    const Bits trails = beyond & ~From(block, 0xC0);
    const Bits leads =
        _mm512_cmplt_epu8_mask(_mm512_sub_epi8(block, Everywhere(0xC2)), Everywhere(0xE0 - 0xC2));
    const Bits wrong = (beyond ^ (trails | leads)) | (trails ^ (leads << 1 | expected));
    if (wrong != 0) break;
    to = PutKept(UnitsOfPairs<0, 0>(block, leads), HalfOf<0>(~trails), to);
    // Loaded one byte late, so that it has the byte after the block.
    to = PutKept(UnitsOfPairs<1, kHalf - 1>(Load(from + 1), leads), HalfOf<1>(~trails), to);
    expected = leads >> (kWide - 1);
    at += kWide;
  }
  // A pair across the end was decoded before its trailing byte was checked.
  if (expected != 0) {
    const bool is_pair = (bytes[at] & 0xC0) == 0x80;
    at = is_pair ? at + 1 : at - 1;
    if (!is_pair) --to;
  }
  return {at, static_cast<std::size_t>(to - text.data())};
}

// Decodes the complete sequences at the front of a block.
class Utf8Engine {
 public:
  RAVO_AVX512 static Characters Decode(Vector bytes, std::size_t length, TextRoom to) {
    const Bits beyond = _mm512_movepi8_mask(bytes) & Lowest(length);
    const Bits rests = beyond & ~From(bytes, 0xC0);
    const Bits leads = beyond & ~rests;
    const Bits long_leads = leads & From(bytes, 0xE0);
    Bits wrong = ((leads << 1 | long_leads << 2) ^ rests) | (leads & ~From(bytes, 0xC2));
    if (long_leads != 0) wrong |= NoLongLeads(bytes) & long_leads;
    const std::size_t taken = CompleteIn(std::min<std::size_t>(_tzcnt_u64(wrong), length), leads, long_leads);
    const Sequences sequences{leads, long_leads, ~rests & Lowest(taken)};
    const std::size_t made = Append<0>(bytes, sequences, to);
    if (taken > kHalf) Append<1>(bytes, sequences, to.subspan(made));
    return {taken, sequences.starts};
  }

 private:
  struct Sequences {
    Bits leads;       ///< of two or three bytes
    Bits long_leads;  ///< of three bytes
    Bits starts;      ///< bytes that begin a character of the result
  };

  // Returns `length` without an incomplete last sequence.
  RAVO_AVX512 static std::size_t CompleteIn(std::size_t length, Bits leads, Bits long_leads) {
    const Bits last = Lowest(length) ^ Lowest(length) >> 1;
    return length - ((leads & last) != 0 ? 1 : 0) - ((long_leads & last >> 1) != 0 ? 2 : 0);
  }

  // Returns the bytes `count` places later.
  template <std::size_t count>
  RAVO_AVX512 static Vector After(Vector bytes) {
    alignas(Vector) static constexpr Places kPlaces = [] {
      Places places{};
      for (std::size_t i = 0; i < kWide; ++i) places[i] = static_cast<std::uint8_t>(i + count);
      return places;
    }();
    return _mm512_maskz_permutexvar_epi8(~Bits{0}, Load(kPlaces.data()), bytes);
  }

  // Returns lead bytes of more than three bytes, and those whose second byte makes them overlong.
  RAVO_AVX512 static Bits NoLongLeads(Vector bytes) {
    return From(bytes, 0xF0) | (EqualTo(bytes, 0xE0) & ~From(After<1>(bytes), 0xA0));
  }

  template <std::size_t half>
  RAVO_AVX512 static Vector UnitsOfAll(Vector bytes, const Sequences& sequences) {
    const Vector first = WidenedHalf<half>(bytes);
    const Vector six_bits = _mm512_set1_epi16(0x3F);
    const Vector second = _mm512_and_si512(WidenedHalf<half>(After<1>(bytes)), six_bits);
    const Vector third = _mm512_and_si512(WidenedHalf<half>(After<2>(bytes)), six_bits);
    const Vector upper = _mm512_slli_epi16(_mm512_and_si512(first, _mm512_set1_epi16(0x1F)), 6);
    const Vector text = _mm512_mask_add_epi16(first, HalfOf<half>(sequences.leads), upper, second);
    return _mm512_mask_add_epi16(text, HalfOf<half>(sequences.long_leads), _mm512_slli_epi16(text, 6), third);
  }

  // Decodes each byte of half a block as a unit: alone or, if it is a lead byte, with its trailing bytes.
  template <std::size_t half>
  RAVO_AVX512 static std::size_t Append(Vector bytes, const Sequences& sequences, TextRoom to) {
    const Vector text = sequences.long_leads == 0 ? UnitsOfPairs<half, half * kHalf>(bytes, sequences.leads)
                                                  : UnitsOfAll<half>(bytes, sequences);
    const __mmask32 kept = HalfOf<half>(sequences.starts);
    const auto made = static_cast<std::size_t>(_mm_popcnt_u32(kept));
    StoreUnits(to, made, _mm512_maskz_compress_epi16(kept, text));
    return made;
  }
};

}  // namespace

RAVO_AVX512 Run DecodeUtf8Avx512(ByteSpan bytes, TextRoom text) noexcept {
  // Sequences of three bytes cluster: after one, this many bytes take the path for all kinds.
  constexpr std::size_t kMixed = 16 * kWide;
  Run run;
  for (;;) {
    const Run pairs = DecodePairs(bytes.subspan(run.taken), text.subspan(run.made));
    run = {run.taken + pairs.taken, run.made + pairs.made};
    const ByteSpan rest = bytes.subspan(run.taken);
    const TextRoom room = text.subspan(run.made);
    const Run mixed = DecodeBlocks(Utf8Engine(), rest.first(std::min(rest.size(), kMixed)), room);
    if (mixed.taken == 0) return run;
    run = {run.taken + mixed.taken, run.made + mixed.made};
  }
}

RAVO_AVX512 RunUntil DecodeUtf8UntilAvx512(ByteSpan bytes, TextRoom text, EndBytes ends) noexcept {
  return DecodeUntilEnd(bytes, text, ends, Utf8Engine());
}

}  // namespace ravo::codec

#endif
