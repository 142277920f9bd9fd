#include <ravo/utils/crc32_kernels.h>

#if defined(__x86_64__) || defined(__i386__)
#include <array>

#include <immintrin.h>

#define RAVO_CARRYLESS __attribute__((target("pclmul,sse4.1")))

namespace ravo::utils {
namespace {

// Polynomials over the field of two elements. A register has the highest power in its lowest bit, as the
// bytes of a text do. So the product of two 64-bit registers, read as a register of 128 bits, is the product
// of the polynomials times x; the constants have one power less to compensate.
constexpr std::uint64_t kPolynomial = 0x104C11DB7;
constexpr std::uint64_t kPolynomialRegister = 0x1DB710641;
constexpr std::size_t kBlock = 16;
constexpr std::size_t kBlockBits = 8 * kBlock;

constexpr std::uint64_t PowerModuloPolynomial(std::size_t power) {
  std::uint64_t value = 1;
  for (; power > 0; --power) value = (value << 1) ^ ((value >> 31 & 1) != 0 ? kPolynomial : 0);
  return value;
}

// Returns the polynomial as a register of `bits`, in its last bits.
constexpr std::uint64_t AsRegister(std::uint64_t polynomial, int bits) {
  std::uint64_t reversed = 0;
  for (int i = 0; i < bits; ++i) reversed |= (polynomial >> i & 1) << (bits - 1 - i);
  return reversed;
}

// Returns x^96 divided by the polynomial, as a register of the powers 64 to 1.
constexpr std::uint64_t QuotientRegister() {
  std::uint64_t quotient = 0;
  std::uint64_t rest = std::uint64_t{1} << 32;
  for (int i = 0; i < 64; ++i) {
    const bool contains = (rest >> 32 & 1) != 0;
    quotient |= std::uint64_t{contains} << i;
    rest = (rest ^ (contains ? kPolynomial : 0)) << 1;
  }
  return quotient;
}

using Block = __m128i;

// Returns the constants that fold the two halves of a block `blocks` blocks ahead.
template <std::size_t blocks>
RAVO_CARRYLESS Block Distance() {
  constexpr std::uint64_t first = AsRegister(PowerModuloPolynomial(blocks * kBlockBits + 63), 64);
  constexpr std::uint64_t second = AsRegister(PowerModuloPolynomial(blocks * kBlockBits - 1), 64);
  return _mm_set_epi64x(static_cast<long long>(second), static_cast<long long>(first));
}

RAVO_CARRYLESS Block Load(const std::byte* from) {
  return _mm_loadu_si128(reinterpret_cast<const Block*>(from));
}

// Folds `block` over `distance` into `onto`.
RAVO_CARRYLESS Block Fold(Block block, Block distance, Block onto) {
  const Block first = _mm_clmulepi64_si128(block, distance, 0x00);
  const Block second = _mm_clmulepi64_si128(block, distance, 0x11);
  return _mm_xor_si128(_mm_xor_si128(first, onto), second);
}

// Folds four blocks in parallel, and at the end all of them into the last one.
RAVO_CARRYLESS Block FoldFours(Block first, const std::byte*& from, std::size_t& count) {
  Block four[4] = {first, Load(from + kBlock), Load(from + 2 * kBlock), Load(from + 3 * kBlock)};
  for (from += 4 * kBlock, count -= 4 * kBlock; count >= 4 * kBlock;
       from += 4 * kBlock, count -= 4 * kBlock) {
    for (std::size_t i = 0; i < 4; ++i) four[i] = Fold(four[i], Distance<4>(), Load(from + i * kBlock));
  }
  const Block second = Fold(four[0], Distance<1>(), four[1]);
  const Block fourth = Fold(four[2], Distance<1>(), four[3]);
  return Fold(second, Distance<2>(), fourth);
}

// Folds in the last `count` bytes of a text, fewer than a block; `last` is the block that ends with them.
RAVO_CARRYLESS Block FoldRest(Block block, Block last, std::size_t count) {
  static constexpr std::array<std::uint8_t, 3 * kBlock> kShifts = {
      0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80,  //
      0,    1,    2,    3,    4,    5,    6,    7,    8,    9,    10,   11,   12,   13,   14,   15,    //
      0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80};
  const auto* shifts = reinterpret_cast<const std::byte*>(kShifts.data());
  const Block towards_front = Load(shifts + kBlock + count);
  const Block pushed_out = _mm_shuffle_epi8(block, Load(shifts + count));
  const Block kept = _mm_shuffle_epi8(block, towards_front);
  return Fold(pushed_out, Distance<1>(), _mm_blendv_epi8(kept, last, towards_front));
}

// Returns the remainder of a block times x^32: 96 bits by one product, then Barrett reduction.
RAVO_CARRYLESS std::uint32_t Reduce(Block block) {
  const Block constants = _mm_set_epi64x(static_cast<long long>(QuotientRegister()),
                                         static_cast<long long>(AsRegister(PowerModuloPolynomial(95), 32)));
  const Block polynomial = _mm_set_epi64x(0, static_cast<long long>(kPolynomialRegister));
  const Block rest = _mm_xor_si128(_mm_clmulepi64_si128(block, constants, 0x00), _mm_srli_si128(block, 8));
  const Block quotient = _mm_clmulepi64_si128(rest, constants, 0x10);
  const Block multiple = _mm_clmulepi64_si128(quotient, polynomial, 0x00);
  return static_cast<std::uint32_t>(_mm_extract_epi32(_mm_xor_si128(rest, multiple), 2));
}

}  // namespace

RAVO_CARRYLESS std::uint32_t UpdateCrc32Carryless(std::uint32_t crc,
                                                  std::span<const std::byte> bytes) noexcept {
  if (bytes.size() < kBlock) return UpdateCrc32Bytewise(crc, bytes);
  const std::byte* from = bytes.data();
  std::size_t count = bytes.size();
  Block block = _mm_xor_si128(Load(from), _mm_cvtsi32_si128(static_cast<int>(crc)));
  if (count >= 4 * kBlock) {
    block = FoldFours(block, from, count);
  } else {
    from += kBlock;
    count -= kBlock;
  }
  for (; count >= kBlock; from += kBlock, count -= kBlock) block = Fold(block, Distance<1>(), Load(from));
  if (count > 0) block = FoldRest(block, Load(from + count - kBlock), count);
  return Reduce(block);
}

bool CanMultiplyCarryless() noexcept {
  __builtin_cpu_init();
  return __builtin_cpu_supports("pclmul") != 0 && __builtin_cpu_supports("sse4.1") != 0;
}

}  // namespace ravo::utils

#else

namespace ravo::utils {

std::uint32_t UpdateCrc32Carryless(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  return UpdateCrc32Braided(crc, bytes);
}

bool CanMultiplyCarryless() noexcept { return false; }

}  // namespace ravo::utils

#endif
