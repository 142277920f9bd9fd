#include <ravo/utils/integers.h>

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>

namespace ravo::DIUtils {
namespace {

constexpr std::uint32_t kNoBit = 0xFFFFFFFF;

constexpr std::array<std::uint8_t, 256> kBitsOfByte = [] {
  std::array<std::uint8_t, 256> table{};
  for (std::size_t byte = 1; byte < table.size(); ++byte)
    table[byte] = static_cast<std::uint8_t>(table[byte / 2] + byte % 2);
  return table;
}();

constexpr std::uint32_t Mask(std::uint32_t bit) { return std::uint32_t{1} << bit % 32; }

}  // namespace

std::uint32_t CountBitsSet(std::uint32_t value) noexcept {
  return std::uint32_t{kBitsOfByte[value & 0xFF]} + kBitsOfByte[value >> 8 & 0xFF] +
         kBitsOfByte[value >> 16 & 0xFF] + kBitsOfByte[value >> 24];
}

std::uint32_t LeftMostBit(std::uint32_t value) noexcept {
  return value == 0 ? kNoBit : static_cast<std::uint32_t>(std::bit_width(value) - 1);
}

std::uint32_t RightMostBit(std::uint32_t value) noexcept {
  return value == 0 ? kNoBit : static_cast<std::uint32_t>(std::countr_zero(value));
}

std::uint32_t BitSet(std::uint32_t value, std::uint32_t bit) noexcept { return value | Mask(bit); }

std::uint32_t BitClear(std::uint32_t value, std::uint32_t bit) noexcept { return value & ~Mask(bit); }

std::uint32_t BitSetTo(std::uint32_t value, std::uint32_t bit, bool set) noexcept {
  return set ? BitSet(value, bit) : BitClear(value, bit);
}

bool BitTest(std::uint32_t value, std::uint32_t bit) noexcept { return (value & Mask(bit)) != 0; }

std::uint32_t GCD(std::uint32_t a, std::uint32_t b) noexcept { return std::gcd(a, b); }

std::int32_t Min(std::int32_t a, std::int32_t b) noexcept { return std::min(a, b); }
std::uint32_t Min(std::uint32_t a, std::uint32_t b) noexcept { return std::min(a, b); }
std::int64_t Min(std::int64_t a, std::int64_t b) noexcept { return std::min(a, b); }
std::uint32_t Min(std::uint32_t a, std::uint32_t b, std::uint32_t c) noexcept { return std::min({a, b, c}); }
std::int64_t Min(std::int64_t a, std::int64_t b, std::int64_t c) noexcept { return std::min({a, b, c}); }
std::int32_t Min3(std::int32_t a, std::int32_t b, std::int32_t c) noexcept { return std::min({a, b, c}); }

std::int32_t Max(std::int32_t a, std::int32_t b) noexcept { return std::max(a, b); }
std::uint32_t Max(std::uint32_t a, std::uint32_t b) noexcept { return std::max(a, b); }
std::int64_t Max(std::int64_t a, std::int64_t b) noexcept { return std::max(a, b); }
std::uint32_t Max(std::uint32_t a, std::uint32_t b, std::uint32_t c) noexcept { return std::max({a, b, c}); }
std::int64_t Max(std::int64_t a, std::int64_t b, std::int64_t c) noexcept { return std::max({a, b, c}); }
std::int32_t Max3(std::int32_t a, std::int32_t b, std::int32_t c) noexcept { return std::max({a, b, c}); }

}  // namespace ravo::DIUtils
