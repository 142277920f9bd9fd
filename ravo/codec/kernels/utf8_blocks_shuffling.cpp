#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/codec/kernels/vector_block.h>

// Text whose characters have one or two bytes, as that of European languages: the bytes or units that mean
// nothing are shuffled out of a block. Vectors of 128 bits only: the stack of a 64-bit Windows program aligns
// no wider ones.
#if defined(__SSE2__)
#include <array>

#include <immintrin.h>

#define RAVO_SHUFFLING __attribute__((target("ssse3,popcnt")))

namespace ravo::codec {
namespace {

constexpr std::uint8_t kNothing = 0x80;
using Shuffle = std::array<std::uint8_t, kBlock>;

// Moves those of eight units to the front whose bit is set.
// Untested: runs at compile time only.
constexpr Shuffle KeepUnits(unsigned mask) {
  Shuffle shuffle{};
  shuffle.fill(kNothing);
  std::size_t to = 0;
  for (std::uint8_t unit = 0; unit < 8; ++unit) {
    if ((mask >> unit & 1) == 0) continue;
    shuffle[to++] = static_cast<std::uint8_t>(2 * unit);
    shuffle[to++] = static_cast<std::uint8_t>(2 * unit + 1);
  }
  return shuffle;
}

// Of eight pairs of bytes, leaves out the second one where the bit is set.
// Untested: runs at compile time only.
constexpr Shuffle KeepFirstBytes(unsigned mask) {
  Shuffle shuffle{};
  shuffle.fill(kNothing);
  std::size_t to = 0;
  for (std::uint8_t pair = 0; pair < 8; ++pair) {
    shuffle[to++] = static_cast<std::uint8_t>(2 * pair);
    if ((mask >> pair & 1) == 0) shuffle[to++] = static_cast<std::uint8_t>(2 * pair + 1);
  }
  return shuffle;
}

// Untested: runs at compile time only.
template <Shuffle (*make)(unsigned)>
constexpr auto MakeShuffles() {
  std::array<Shuffle, 256> shuffles{};
  for (unsigned mask = 0; mask < 256; ++mask) shuffles[mask] = make(mask);
  return shuffles;
}

constexpr auto kKeepUnits = MakeShuffles<KeepUnits>();
constexpr auto kKeepFirstBytes = MakeShuffles<KeepFirstBytes>();

Vector Masked(Vector bytes, int bits) { return _mm_and_si128(bytes, _mm_set1_epi8(static_cast<char>(bits))); }

Vector EqualBytes(Vector bytes, int value) {
  return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(static_cast<char>(value)));
}

Vector Choose(Vector condition, Vector yes, Vector no) {
  return _mm_or_si128(_mm_and_si128(condition, yes), _mm_andnot_si128(condition, no));
}

// What eight positions mean: the byte itself, or with the next one where it leads a sequence.
Vector Units(Vector bytes, Vector next, Vector leads) {
  const Vector upper = _mm_slli_epi16(_mm_and_si128(bytes, _mm_set1_epi16(0x1F)), 6);
  const Vector lower = _mm_and_si128(next, _mm_set1_epi16(0x3F));
  return Choose(leads, _mm_or_si128(upper, lower), bytes);
}

RAVO_SHUFFLING std::size_t StoreUnits(Vector units, unsigned kept, char16_t* to) {
  StoreVector(to, _mm_shuffle_epi8(units, LoadVector(kKeepUnits[kept].data())));
  return static_cast<std::size_t>(__builtin_popcount(kept));
}

// A block and the byte behind it. No progress where a byte belongs to no sequence of one or two bytes.
RAVO_SHUFFLING Run DecodeBlock(const std::uint8_t* from, char16_t* to) {
  const Vector bytes = LoadVector(from);
  const Vector lead = EqualBytes(Masked(bytes, 0xE0), 0xC0);
  const Vector rest = EqualBytes(Masked(bytes, 0xC0), 0x80);
  const Vector overlong = EqualBytes(Masked(bytes, 0xFE), 0xC0);
  const unsigned leads = Mask(lead);
  const unsigned rests = Mask(rest);
  const bool longer = Mask(bytes) != (leads | rests);
  if (longer || Mask(overlong) != 0 || rests != (leads << 1 & 0xFFFF)) return {};
  // A sequence that begins with the last byte is left for the next block.
  const unsigned kept = ~rests & (0xFFFF ^ (leads & 0x8000));
  const Vector next = LoadVector(from + 1);
  const Vector zero = _mm_setzero_si128();
  const Vector first =
      Units(_mm_unpacklo_epi8(bytes, zero), _mm_unpacklo_epi8(next, zero), _mm_unpacklo_epi8(lead, lead));
  const Vector second =
      Units(_mm_unpackhi_epi8(bytes, zero), _mm_unpackhi_epi8(next, zero), _mm_unpackhi_epi8(lead, lead));
  const std::size_t made = StoreUnits(first, kept & 0xFF, to);
  return {kBlock - (leads >> 15), made + StoreUnits(second, kept >> 8, to + made)};
}

// Eight units. No progress where one needs three bytes.
RAVO_SHUFFLING Run EncodeBlock(const char16_t* from, std::uint8_t* to) {
  const Vector units = LoadVector(from);
  const Vector beyond = _mm_and_si128(units, _mm_set1_epi16(-0x800));
  if (Mask(_mm_cmpeq_epi16(beyond, _mm_setzero_si128())) != 0xFFFF) return {};
  const Vector lead = _mm_or_si128(_mm_srli_epi16(units, 6), _mm_set1_epi16(0xC0));
  const Vector rest = _mm_or_si128(_mm_and_si128(units, _mm_set1_epi16(0x3F)), _mm_set1_epi16(0x80));
  const Vector ascii = _mm_cmplt_epi16(units, _mm_set1_epi16(0x80));
  const Vector pairs = Choose(ascii, units, _mm_or_si128(lead, _mm_slli_epi16(rest, 8)));
  const unsigned single = Mask(_mm_packs_epi16(ascii, _mm_setzero_si128()));
  StoreVector(to, _mm_shuffle_epi8(pairs, LoadVector(kKeepFirstBytes[single].data())));
  return {8, static_cast<std::size_t>(16 - __builtin_popcount(single))};
}

}  // namespace

RAVO_SHUFFLING Run DecodeUtf8Shuffling(ByteSpan bytes, TextRoom text) noexcept {
  Run run;
  while (bytes.size() - run.taken > kBlock && text.size() - run.made >= kBlock) {
    const std::uint8_t* const from = bytes.data() + run.taken;
    char16_t* const to = text.data() + run.made;
    const Run block = WidenAsciiBlock(from, to) ? Run{kBlock, kBlock} : DecodeBlock(from, to);
    if (block.taken == 0) break;
    run.taken += block.taken;
    run.made += block.made;
  }
  return run;
}

RAVO_SHUFFLING Run EncodeUtf8Shuffling(TextSpan text, ByteRoom bytes) noexcept {
  Run run;
  while (text.size() - run.taken >= kBlock && bytes.size() - run.made >= kBlock) {
    const char16_t* const from = text.data() + run.taken;
    std::uint8_t* const to = bytes.data() + run.made;
    const Run block = NarrowAsciiBlock(from, to) ? Run{kBlock, kBlock} : EncodeBlock(from, to);
    if (block.taken == 0) break;
    run.taken += block.taken;
    run.made += block.made;
  }
  return run;
}

bool HasByteShuffle() noexcept {
  __builtin_cpu_init();
  return __builtin_cpu_supports("ssse3") != 0 && __builtin_cpu_supports("popcnt") != 0;
}

}  // namespace ravo::codec

#else

namespace ravo::codec {

Run DecodeUtf8Shuffling(ByteSpan, TextRoom) noexcept { return {}; }
Run EncodeUtf8Shuffling(TextSpan, ByteRoom) noexcept { return {}; }
bool HasByteShuffle() noexcept { return false; }

}  // namespace ravo::codec

#endif
