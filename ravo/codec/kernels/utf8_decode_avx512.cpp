#include <ravo/codec/kernels/kernels.h>

// UTF-8: all mixes of sequences of one to three bytes take the same path.
#if defined(__SSE2__) && defined(__x86_64__)
#include <ravo/codec/kernels/decode_avx512.inc>

namespace ravo::codec {
namespace {

using Places = std::array<std::uint8_t, kWide>;

// Returns the indices of thirty-two bytes from `first` on, each followed by the next one.
// Untested: runs at compile time only.
constexpr Places PairsFrom(std::uint8_t first) {
  Places places{};
  for (std::size_t i = 0; i < kWide; ++i) places[i] = static_cast<std::uint8_t>(first + i / 2 + i % 2);
  return places;
}

// The second half of a block starts one byte late, so that the byte after its last one is in the block.
alignas(Vector) constexpr Places kPairs[] = {PairsFrom(0), PairsFrom(kHalf - 1)};

// Decodes each byte of half a block as a unit: alone or, if it is one of `leads`, with its trailing byte.
template <std::size_t half>
RAVO_AVX512 inline Vector UnitsOfPairs(const std::uint8_t* block, Bits all_leads) {
  constexpr Bits kEveryByte = ~Bits{0};
  const __mmask32 leads = HalfOf<half>(all_leads);
  const Vector pairs =
      _mm512_maskz_permutexvar_epi8(kEveryByte, Load(kPairs[half].data()), Load(block + half));
  const Vector weights = _mm512_mask_blend_epi16(leads, _mm512_set1_epi16(1), _mm512_set1_epi16(0x140));
  const Vector units = _mm512_maddubs_epi16(pairs, weights);
  // Subtracts the marker bits of lead and trailing byte.
  return _mm512_mask_sub_epi16(units, leads, units, _mm512_set1_epi16(0xC0 * 0x40 + 0x80));
}

RAVO_AVX512 inline char16_t* PutKept(Vector units, __mmask32 kept, char16_t* to) {
  _mm512_storeu_si512(to, _mm512_maskz_compress_epi16(kept, units));
  return to + _mm_popcnt_u32(kept);
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
    to = PutKept(UnitsOfPairs<0>(from, leads), HalfOf<0>(~trails), to);
    to = PutKept(UnitsOfPairs<1>(from, leads), HalfOf<1>(~trails), to);
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

// Decodes blocks; a sequence may continue in the next block.
class Utf8Engine {
 public:
  struct Maker {
    RAVO_AVX512 Utf8Engine operator()() const { return {}; }
  };

  // Decodes a block. False if a sequence is malformed; those before it are decoded.
  RAVO_AVX512 bool Decode(const ByteBlock& block, TextRoom to, Run& run) {
    const Vector bytes = Load(block.from);
    const Bits rests = block.beyond & ~From(bytes, 0xC0);
    const Bits leads = block.beyond & ~rests;
    const Bits long_leads = leads & From(bytes, 0xE0);
    const Bits expected = leads << 1 | long_leads << 2 | expected_;
    Bits wrong = (expected ^ rests) | (leads & ~From(bytes, 0xC2));
    if (long_leads != 0) wrong |= NoLongLeads(block) & long_leads;
    run.taken = wrong == 0 ? block.length : RightBefore(wrong, leads, long_leads);
    const Sequences sequences{leads, long_leads, ~rests & Lowest(run.taken)};
    run.made = Append<0>(block, sequences, to);
    if (run.taken > kHalf) run.made += Append<1>(block, sequences, to.subspan(run.made));
    if (wrong == 0) expected_ = leads >> (kWide - 1) | long_leads >> (kWide - 2);
    return wrong == 0;
  }

  RAVO_AVX512 Run DecodeNear(ByteSpan bytes, std::size_t length, TextRoom text) const {
    return DecodeBlocks<true>(*this, bytes, length, text);
  }

  RAVO_AVX512 static Bits StartsIn(Vector bytes) { return _mm512_cmpge_epi8_mask(bytes, Everywhere(-0x40)); }
  RAVO_AVX512 bool IsBetweenCharacters() const { return expected_ == 0; }
  // Drops a last sequence that is incomplete: its lead byte is the last byte or the one before it.
  RAVO_AVX512 Run WithoutUnfinished(const Run& run, ByteSpan bytes) const {
    if (expected_ == 0) return run;
    return {run.taken - (bytes[run.taken - 1] >= 0xC0 ? 1 : 2), run.made - 1};
  }

 private:
  struct Sequences {
    Bits leads;       ///< of two or three bytes
    Bits long_leads;  ///< of three bytes
    Bits starts;      ///< bytes that begin a character of the result
  };

  // Returns lead bytes of more than three bytes, and those whose second byte makes them overlong.
  RAVO_AVX512 static Bits NoLongLeads(const ByteBlock& block) {
    const Vector bytes = Load(block.from);
    return From(bytes, 0xF0) | (EqualTo(bytes, 0xE0) & ~From(Load(block.from + 1), 0xA0));
  }

  // Returns the length before an incomplete or malformed sequence. One that began in the previous block stays
  // expected.
  RAVO_AVX512 std::size_t RightBefore(Bits wrong, Bits leads, Bits long_leads) {
    const std::size_t right = _tzcnt_u64(wrong);
    expected_ >>= right;
    if (expected_ != 0) return 0;
    if (right >= 1 && (leads >> (right - 1) & 1) != 0) return right - 1;
    return right >= 2 && (long_leads >> (right - 2) & 1) != 0 ? right - 2 : right;
  }

  template <std::size_t half>
  RAVO_AVX512 static Vector UnitsOfAll(const std::uint8_t* from, const Sequences& sequences) {
    const Vector bytes = Widened(from);
    const Vector six_bits = _mm512_set1_epi16(0x3F);
    const Vector second = _mm512_and_si512(Widened(from + 1), six_bits);
    const Vector third = _mm512_and_si512(Widened(from + 2), six_bits);
    const Vector upper = _mm512_slli_epi16(_mm512_and_si512(bytes, _mm512_set1_epi16(0x1F)), 6);
    const Vector text = _mm512_mask_add_epi16(bytes, HalfOf<half>(sequences.leads), upper, second);
    return _mm512_mask_add_epi16(text, HalfOf<half>(sequences.long_leads), _mm512_slli_epi16(text, 6), third);
  }

  // Decodes each byte of half a block as a unit: alone or, if it is a lead byte, with its trailing bytes.
  template <std::size_t half>
  RAVO_AVX512 static std::size_t Append(const ByteBlock& block, const Sequences& sequences, TextRoom to) {
    const Vector text = sequences.long_leads == 0 ? UnitsOfPairs<half>(block.from, sequences.leads)
                                                  : UnitsOfAll<half>(block.from + half * kHalf, sequences);
    const __mmask32 kept = HalfOf<half>(sequences.starts);
    const auto made = static_cast<std::size_t>(_mm_popcnt_u32(kept));
    StoreUnits(to, made, _mm512_maskz_compress_epi16(kept, text));
    return made;
  }

  Bits expected_ = 0;  ///< bytes of the next block that continue a sequence of the last one
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
    const Run mixed =
        DecodeBlocks<false>(Utf8Engine{}, rest, std::min({rest.size(), room.size(), kMixed}), room);
    if (mixed.taken == 0) return run;
    run = {run.taken + mixed.taken, run.made + mixed.made};
  }
}

RAVO_AVX512 RunUntil DecodeUtf8UntilAvx512(ByteSpan bytes, TextRoom text, EndBytes ends) noexcept {
  return DecodeUntilEnd(Utf8Engine::Maker{}, bytes, text, ends);
}

}  // namespace ravo::codec

#endif
