#include <ravo/codec/kernels/kernels.h>

// UTF-8: every mix of sequences of one to three bytes takes the same way.
#if defined(__SSE2__) && defined(__x86_64__)
#include <ravo/codec/kernels/decode_avx512.inc>

namespace ravo::codec {
namespace {

// A sequence may cross into the next block.
class Utf8Engine {
 public:
  struct Maker {
    RAVO_AVX512 Utf8Engine operator()() const { return {}; }
  };

  // False if a sequence is malformed; those before it are decoded.
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

  RAVO_AVX512 bool IsBetweenCharacters() const { return expected_ == 0; }
  // A sequence that ends early, whose lead byte is the last or the last but one, is no character yet.
  RAVO_AVX512 Run WithoutUnfinished(const Run& run, ByteSpan bytes) const {
    if (expected_ == 0) return run;
    return {run.taken - (bytes[run.taken - 1] >= 0xC0 ? 1 : 2), run.made - 1};
  }

 private:
  struct Sequences {
    Bits leads;       ///< of two or three bytes
    Bits long_leads;  ///< of three bytes
    Bits starts;      ///< bytes that begin a character that counts
  };

  // Leads of more than three bytes, and those whose second byte makes them overlong.
  RAVO_AVX512 static Bits NoLongLeads(const ByteBlock& block) {
    const Vector bytes = Load(block.from);
    return From(bytes, 0xF0) | (EqualTo(bytes, 0xE0) & ~From(Load(block.from + 1), 0xA0));
  }

  // Leaves out a sequence that is not whole. One that the block before began stays expected.
  RAVO_AVX512 std::size_t RightBefore(Bits wrong, Bits leads, Bits long_leads) {
    const std::size_t right = _tzcnt_u64(wrong);
    expected_ >>= right;
    if (expected_ != 0) return 0;
    if (right >= 1 && (leads >> (right - 1) & 1) != 0) return right - 1;
    return right >= 2 && (long_leads >> (right - 2) & 1) != 0 ? right - 2 : right;
  }

  // Each byte as a unit: by itself, or as the lead of a sequence with the bytes after it.
  template <std::size_t half>
  RAVO_AVX512 static std::size_t Append(const ByteBlock& block, const Sequences& sequences, TextRoom to) {
    const std::uint8_t* const from = block.from + half * kHalf;
    const Vector bytes = Widened(from);
    const Vector six_bits = _mm512_set1_epi16(0x3F);
    const Vector second = _mm512_and_si512(Widened(from + 1), six_bits);
    const Vector upper = _mm512_slli_epi16(_mm512_and_si512(bytes, _mm512_set1_epi16(0x1F)), 6);
    Vector text = _mm512_mask_add_epi16(bytes, HalfOf<half>(sequences.leads), upper, second);
    if (sequences.long_leads != 0) {
      const Vector third = _mm512_and_si512(Widened(from + 2), six_bits);
      text =
          _mm512_mask_add_epi16(text, HalfOf<half>(sequences.long_leads), _mm512_slli_epi16(text, 6), third);
    }
    const __mmask32 kept = HalfOf<half>(sequences.starts);
    const auto made = static_cast<std::size_t>(_mm_popcnt_u32(kept));
    StoreUnits(to, made, _mm512_maskz_compress_epi16(kept, text));
    return made;
  }

  Bits expected_ = 0;  ///< bytes of the next block that continue a sequence of the last one
};

}  // namespace

RAVO_AVX512 Run DecodeUtf8Avx512(ByteSpan bytes, TextRoom text) noexcept {
  return DecodeBlocks<false>(Utf8Engine{}, bytes, std::min(bytes.size(), text.size()), text);
}

RAVO_AVX512 RunUntil DecodeUtf8UntilAvx512(ByteSpan bytes, TextRoom text, EndBytes ends) noexcept {
  return DecodeUntilEnd(Utf8Engine::Maker{}, bytes, text, ends);
}

}  // namespace ravo::codec

#endif
