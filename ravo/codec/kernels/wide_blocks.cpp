#include <ravo/codec/kernels/kernel_set.h>

// Sixty-four bytes at once, by the vectors of 512 bits: every mix of characters of one to three bytes takes
// the same way, and what ends a run is found on it.
#if defined(__x86_64__)
#include <algorithm>
#include <array>

#include <immintrin.h>

#define RAVO_WIDE __attribute__((target("avx512f,avx512bw,avx512vl,avx512vbmi2,bmi,bmi2,popcnt")))

namespace ravo::codec {
namespace {

constexpr std::size_t kWide = 64;
constexpr std::size_t kHalf = kWide / 2;
constexpr std::size_t kLongestRest = 2;  // bytes of a sequence behind the first one
constexpr std::size_t kAhead = 1024;

using Vector = __m512i;
using Bits = std::uint64_t;

// The lowest bits, up to all of them.
RAVO_WIDE inline Bits Lowest(std::size_t count) { return _bzhi_u64(~Bits{0}, static_cast<unsigned>(count)); }

RAVO_WIDE inline std::uint32_t LowestOfHalf(std::size_t count) {
  return _bzhi_u32(~std::uint32_t{0}, static_cast<unsigned>(count));
}

RAVO_WIDE inline Vector Load(const std::uint8_t* from) { return _mm512_loadu_si512(from); }
RAVO_WIDE inline Vector Everywhere(int byte) { return _mm512_set1_epi8(static_cast<char>(byte)); }
RAVO_WIDE inline Bits EqualTo(Vector bytes, int byte) {
  return _mm512_cmpeq_epi8_mask(bytes, Everywhere(byte));
}
RAVO_WIDE inline Bits From(Vector bytes, int first) {
  return _mm512_cmpge_epu8_mask(bytes, Everywhere(first));
}

// Half a block as characters of their own number.
RAVO_WIDE inline Vector Widened(const std::uint8_t* from) {
  return _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(from)));
}

template <std::size_t half>
RAVO_WIDE inline __mmask32 HalfOf(Bits bits) {
  return static_cast<__mmask32>(bits >> (half * kHalf));
}

// Where there is room the whole vector: what is stored in part has to reach the memory before it can be read.
RAVO_WIDE inline void Store(TextRoom to, std::size_t count, Vector text) {
  if (to.size() >= kHalf)
    _mm512_storeu_si512(to.data(), text);
  else
    _mm512_mask_storeu_epi16(to.data(), LowestOfHalf(count), text);
}

// A block at a place where it can be read whole, with what a sequence may have behind it.
struct Block {
  RAVO_WIDE Block(const std::uint8_t* begin, std::size_t size)
      : from(begin), length(size), beyond(_mm512_movepi8_mask(Load(begin)) & Lowest(size)) {}

  const std::uint8_t* from;
  std::size_t length;  ///< of what belongs to the run
  Bits beyond;         ///< bytes that are no ASCII
};

// Single bytes: the upper half of the table in four vectors.
class WideSingleByte {
 public:
  struct Maker {
    const ByteTable& table;
    RAVO_WIDE WideSingleByte operator()() const { return WideSingleByte(table); }
  };

  RAVO_WIDE explicit WideSingleByte(const ByteTable& table) {
    for (std::size_t i = 0; i < 4; ++i) parts_[i] = _mm512_loadu_si512(table.data() + 0x80 + i * kHalf);
  }

  RAVO_WIDE bool Decode(const Block& block, TextRoom to, Run& run) const {
    const Bits last_quarter = From(Load(block.from), 0xC0);
    Store(to, block.length, Characters<0>(block, last_quarter));
    if (block.length > kHalf)
      Store(to.subspan(kHalf), block.length - kHalf, Characters<1>(block, last_quarter));
    run = {block.length, block.length};
    return true;
  }

  RAVO_WIDE static bool IsBetweenCharacters() { return true; }
  RAVO_WIDE static Run WithoutUnfinished(const Run& run, ByteSpan) { return run; }

 private:
  template <std::size_t half>
  RAVO_WIDE Vector Characters(const Block& block, Bits last_quarter) const {
    const Vector places = Widened(block.from + half * kHalf);
    const Vector third = _mm512_permutex2var_epi16(parts_[0], places, parts_[1]);
    const Vector fourth = _mm512_permutex2var_epi16(parts_[2], places, parts_[3]);
    const Vector upper = _mm512_mask_mov_epi16(places, HalfOf<half>(block.beyond), third);
    return _mm512_mask_mov_epi16(upper, HalfOf<half>(last_quarter), fourth);
  }

  Vector parts_[4];
};

// Sequences may go on in the next block.
class WideUtf8 {
 public:
  struct Maker {
    RAVO_WIDE WideUtf8 operator()() const { return {}; }
  };

  // False where something is wrong: what is right in front of it is done.
  RAVO_WIDE bool Decode(const Block& block, TextRoom to, Run& run) {
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

  RAVO_WIDE bool IsBetweenCharacters() const { return expected_ == 0; }
  // A sequence that ends early, whose lead byte is the last or the last but one, is no character yet.
  RAVO_WIDE Run WithoutUnfinished(const Run& run, ByteSpan bytes) const {
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
  RAVO_WIDE static Bits NoLongLeads(const Block& block) {
    const Vector bytes = Load(block.from);
    return From(bytes, 0xF0) | (EqualTo(bytes, 0xE0) & ~From(Load(block.from + 1), 0xA0));
  }

  // A sequence that is not whole is left out. One of the block before stays expected.
  RAVO_WIDE std::size_t RightBefore(Bits wrong, Bits leads, Bits long_leads) {
    const std::size_t right = _tzcnt_u64(wrong);
    expected_ >>= right;
    if (expected_ != 0) return 0;
    if (right >= 1 && (leads >> (right - 1) & 1) != 0) return right - 1;
    return right >= 2 && (long_leads >> (right - 2) & 1) != 0 ? right - 2 : right;
  }

  // A byte is its own character, or with those behind it one of a sequence.
  template <std::size_t half>
  RAVO_WIDE static std::size_t Append(const Block& block, const Sequences& sequences, TextRoom to) {
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
    Store(to, made, _mm512_maskz_compress_epi16(kept, text));
    return made;
  }

  Bits expected_ = 0;  ///< bytes of the next block that continue a sequence of the last one
};

RAVO_WIDE inline void WidenBlock(const Block& block, TextRoom to) {
  Store(to, block.length, Widened(block.from));
  if (block.length > kHalf) Store(to.subspan(kHalf), block.length - kHalf, Widened(block.from + kHalf));
}

using Tail = std::array<std::uint8_t, 2 * kWide>;

// The place of a block, or of its copy where it cannot be read whole.
RAVO_WIDE inline const std::uint8_t* Readable(ByteSpan bytes, Tail& tail) {
  if (bytes.size() >= kWide + kLongestRest) return bytes.data();
  tail = {};
  std::copy(bytes.begin(), bytes.end(), tail.begin());
  return tail.data();
}

// The first `end` bytes, block after block until something that the engine does not decode. ASCII is looked
// for block by block, but for the last one, which takes the way of those in front of it; not at all where
// `mixed`, and bytes behind the end may be read then. How many bytes are taken follows from no character, so
// that nobody waits for the characters to know where the next run begins.
template <bool mixed, class Engine>
RAVO_WIDE inline Run DecodeBlocks(Engine engine, ByteSpan bytes, std::size_t end, TextRoom text) {
  alignas(Vector) Tail tail;
  std::size_t made = 0;
  for (std::size_t at = 0; at < end; at += kWide) {
    const std::uint8_t* const from = mixed ? bytes.data() + at : Readable(bytes.subspan(at), tail);
    const Block block(from, std::min(end - at, kWide));
    const TextRoom to = text.subspan(made);
    const bool plain = !mixed && block.beyond == 0 && (block.length == kWide || at == 0);
    if (plain && engine.IsBetweenCharacters()) {
      WidenBlock(block, to);
      made += block.length;
      continue;
    }
    Run some;
    const bool whole = engine.Decode(block, to, some);
    made += some.made;
    if (!whole) return engine.WithoutUnfinished({at + some.taken, made}, bytes);
  }
  return engine.WithoutUnfinished({end, made}, bytes);
}

// Apart, so that the common ways have little to keep.
template <class Engine>
[[gnu::noinline]] RAVO_WIDE Run DecodeAnyBlocks(Engine engine, ByteSpan bytes, std::size_t end,
                                                TextRoom text) {
  return DecodeBlocks<false>(engine, bytes, end, text);
}

// Where a run ends.
struct End {
  std::size_t at = 0;
  Bits beyond = 0;  ///< not 0 where something in front of it is no ASCII
  Lines lines = Lines::One;
};

// Two blocks at once: nobody waits for the first one to know where the next line begins.
class EndSearch {
 public:
  RAVO_WIDE explicit EndSearch(EndBytes ends)
      : ends_{Everywhere(ends.First()), Everywhere(ends.Second()), Everywhere(ends.Third())},
        breaks_end_(ends.HasBreaks()) {}

  RAVO_WIDE End In(ByteSpan bytes) const {
    End end;
    for (;;) {
      const std::size_t left = bytes.size() - end.at;
      const std::uint8_t* const from = bytes.data() + end.at;
      if (left < 2 * kWide) return InRest(from, left, end);
      // Where the next line begins is not known before this one ends: the processor does not look so far
      // ahead.
      const std::uint8_t* const ahead = from + std::min(left - kWide, kAhead);
      _mm_prefetch(reinterpret_cast<const char*>(ahead), _MM_HINT_T0);
      _mm_prefetch(reinterpret_cast<const char*>(ahead + kWide), _MM_HINT_T0);
      const Vector low = Load(from);
      const Vector high = Load(from + kWide);
      const std::size_t length = LengthIn(low, high);
      Pass(low, high, length, end);
      if (length < 2 * kWide) return end;
    }
  }

 private:
  RAVO_WIDE End InRest(const std::uint8_t* from, std::size_t left, End end) const {
    const std::size_t first = std::min(left, kWide);
    const Vector low = _mm512_maskz_loadu_epi8(Lowest(first), from);
    const Vector high = _mm512_maskz_loadu_epi8(Lowest(left - first), from + first);
    Pass(low, high, std::min(left, LengthIn(low, high)), end);
    return end;
  }

  RAVO_WIDE std::size_t LengthIn(Vector low, Vector high) const {
    const Bits in_low = EndsIn(low);
    const Bits nothing_in_low = Bits{0} - static_cast<Bits>(in_low == 0);
    return _tzcnt_u64(in_low) + (_tzcnt_u64(EndsIn(high)) & nothing_in_low);
  }

  RAVO_WIDE void Pass(Vector low, Vector high, std::size_t length, End& end) const {
    const std::size_t first = std::min(length, kWide);
    end.beyond |=
        (_mm512_movepi8_mask(low) & Lowest(first)) | (_mm512_movepi8_mask(high) & Lowest(length - first));
    if (!breaks_end_ && LineMayEnd(low, high, length)) end.lines = Lines::MayBeMore;
    end.at += length;
  }

  RAVO_WIDE Bits EndsIn(Vector bytes) const {
    return _mm512_cmpeq_epi8_mask(bytes, ends_[0]) | _mm512_cmpeq_epi8_mask(bytes, ends_[1]) |
           _mm512_cmpeq_epi8_mask(bytes, ends_[2]);
  }

  // A break that is the last character does not matter where nothing follows.
  RAVO_WIDE static bool LineMayEnd(Vector low, Vector high, std::size_t length) {
    const std::size_t before_last = length - (length != 0 && length < 2 * kWide ? 1 : 0);
    const std::size_t first = std::min(before_last, kWide);
    return ((BreaksIn(low) & Lowest(first)) | (BreaksIn(high) & Lowest(before_last - first))) != 0;
  }

  RAVO_WIDE static Bits BreaksIn(Vector bytes) { return EqualTo(bytes, '\r') | EqualTo(bytes, '\n'); }

  Vector ends_[3];
  bool breaks_end_;
};

// Where bytes and characters behind the end may be touched, there are no questions about the last block: two
// at once.
RAVO_WIDE inline void WidenAll(const std::uint8_t* from, std::size_t length, char16_t* to) {
  std::size_t at = 0;
  do {
    for (std::size_t i = 0; i < 4; ++i, at += kHalf) _mm512_storeu_si512(to + at, Widened(from + at));
  } while (at < length);
}

template <class Maker>
RAVO_WIDE inline RunUntil DecodeUntilEnd(Maker make_engine, ByteSpan bytes, TextRoom text, EndBytes ends) {
  const End end = EndSearch(ends).In(bytes.first(std::min(bytes.size(), text.size())));
  const std::size_t touched = end.at + 2 * kWide;
  const bool free = touched <= bytes.size() && touched <= text.size();
  if (free && end.beyond == 0) {
    WidenAll(bytes.data(), end.at, text.data());
    return {end.at, static_cast<std::uint32_t>(end.at), end.lines};
  }
  const Run run = free ? DecodeBlocks<true>(make_engine(), bytes, end.at, text)
                       : DecodeAnyBlocks(make_engine(), bytes, end.at, text);
  return {run.taken, static_cast<std::uint32_t>(run.made), end.lines};
}

}  // namespace

RAVO_WIDE Run DecodeSingleByteWide(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept {
  return DecodeBlocks<false>(WideSingleByte(table), bytes, std::min(bytes.size(), text.size()), text);
}

RAVO_WIDE Run DecodeUtf8Wide(ByteSpan bytes, TextRoom text) noexcept {
  return DecodeBlocks<false>(WideUtf8{}, bytes, std::min(bytes.size(), text.size()), text);
}

RAVO_WIDE RunUntil DecodeSingleByteUntilWide(const ByteTable& table, ByteSpan bytes, TextRoom text,
                                             EndBytes ends) noexcept {
  return DecodeUntilEnd(WideSingleByte::Maker{table}, bytes, text, ends);
}

RAVO_WIDE RunUntil DecodeUtf8UntilWide(ByteSpan bytes, TextRoom text, EndBytes ends) noexcept {
  return DecodeUntilEnd(WideUtf8::Maker{}, bytes, text, ends);
}

bool HasWideBlocks() noexcept {
  __builtin_cpu_init();
  return __builtin_cpu_supports("avx512bw") != 0 && __builtin_cpu_supports("avx512vl") != 0 &&
         __builtin_cpu_supports("avx512vbmi2") != 0 && __builtin_cpu_supports("bmi") != 0 &&
         __builtin_cpu_supports("bmi2") != 0 && __builtin_cpu_supports("popcnt") != 0;
}

}  // namespace ravo::codec

#else

namespace ravo::codec {

Run DecodeSingleByteWide(const ByteTable&, ByteSpan, TextRoom) noexcept { return {}; }
Run DecodeUtf8Wide(ByteSpan, TextRoom) noexcept { return {}; }
RunUntil DecodeSingleByteUntilWide(const ByteTable&, ByteSpan, TextRoom, EndBytes) noexcept { return {}; }
RunUntil DecodeUtf8UntilWide(ByteSpan, TextRoom, EndBytes) noexcept { return {}; }
bool HasWideBlocks() noexcept { return false; }

}  // namespace ravo::codec

#endif
