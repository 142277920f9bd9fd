#include <ravo/utils/crc32_kernels.h>
#include <ravo/utils/generated/crc32_windows.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace ravo::utils {
namespace {

static_assert(std::endian::native == std::endian::little, "a word's first byte is its lowest");

// Both compilers know it on every processor, as one register where there are such.
using Block = std::uint64_t __attribute__((vector_size(16)));
constexpr std::size_t kBlock = sizeof(Block);
constexpr std::size_t kLine = 64;  // of the cache: the less that is loaded across two, the better

// Untested: runs at compile time only.
constexpr std::size_t RoundedUp(std::size_t count) { return (count + kBlock - 1) / kBlock * kBlock; }

// What a window leaves of a text has at least so many bytes, and fewer than a block more.
template <const auto& window>
constexpr std::size_t kReach = RoundedUp(window.back());

template <const auto& window>
using Rest = std::array<std::byte, kReach<window> + kBlock>;

Block Load(const std::byte* from) {
  Block block;
  std::memcpy(&block, from, sizeof block);
  return block;
}

void Store(std::byte* to, Block block) { std::memcpy(to, &block, sizeof block); }

// The block of the text at `from`, with all that is carried to it; `carried` is its own place behind the
// blocks that were taken out.
template <const auto& window>
void CarryBlock(std::byte* to, const std::byte* from, const std::byte* carried) {
  Block block = Load(from);
  for (const std::size_t distance : window) block ^= Load(carried - distance);
  Store(to, block);
}

// Takes the blocks from `from` on out of the text, to the places from `to` to `end`.
template <const auto& window>
void TakeOut(std::byte* to, const std::byte* end, const std::byte* from) {
  constexpr std::size_t row = 4 * kBlock;
  for (; to + row <= end; to += row, from += row) {
    for (std::size_t i = 0; i < row; i += kBlock) CarryBlock<window>(to + i, from + i, to + i);
  }
  for (; to != end; to += kBlock, from += kBlock) CarryBlock<window>(to, from, to);
}

// A text that changes a register of 0 to what `bytes` change `crc` to, written into `rest`: as long as the
// window reaches. The places of blocks that were taken out are used again after `room` bytes.
template <const auto& window, std::size_t room>
std::span<std::byte> CarryAll(std::uint32_t crc, std::span<const std::byte> bytes, Rest<window>& rest) {
  constexpr std::size_t reach = kReach<window>;
  constexpr std::size_t behind = reach - window.front() + kBlock;
  static_assert(window.front() >= kBlock && room % kBlock == 0 && room >= reach);
  // Nothing is carried from before the text, and nothing from what is left of it.
  alignas(kLine) std::byte places[reach + room + behind];
  std::byte* place = places + reach;
  std::memset(places, 0, reach);
  const std::byte* from = bytes.data();
  std::size_t count = (bytes.size() - reach) / kBlock * kBlock;
  const std::size_t left = bytes.size() - count;

  // To the first blocks nothing is carried.
  constexpr std::size_t first = window.front() / kBlock * kBlock;
  std::memcpy(place, from, first);
  Store(place, Load(from) ^ Block{crc, 0});
  for (std::size_t done = first;; done = 0) {
    const std::size_t now = std::min(count, room);
    TakeOut<window>(place + done, place + now, from + done);
    from += now;
    count -= now;
    if (count == 0) {
      place += now;
      break;
    }
    std::memcpy(places, place + room - reach, reach);
  }

  std::memset(place, 0, behind);
  for (std::size_t i = 0; i < reach; i += kBlock) CarryBlock<window>(&rest[i], from + i, place + i);
  const std::size_t last = left - kBlock;
  CarryBlock<window>(&rest[last], from + last, place + last);
  return std::span(rest).first(left);
}

std::uint32_t OverShort(std::uint32_t crc, std::span<const std::byte> bytes) {
  Rest<kCrc32ShortWindow> rest;
  return UpdateCrc32Sliced(0, CarryAll<kCrc32ShortWindow, 1024>(crc, bytes, rest));
}

std::uint32_t OverMiddle(std::uint32_t crc, std::span<const std::byte> bytes) {
  Rest<kCrc32MiddleWindow> rest;
  return OverShort(0, CarryAll<kCrc32MiddleWindow, 4096>(crc, bytes, rest));
}

std::uint32_t OverLong(std::uint32_t crc, std::span<const std::byte> bytes) {
  Rest<kCrc32LongWindow> rest;
  return OverMiddle(0, CarryAll<kCrc32LongWindow, 8192>(crc, bytes, rest));
}

}  // namespace

std::uint32_t UpdateCrc32Carried(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  constexpr std::size_t fewest = 1024;
  constexpr std::size_t long_from = 32768;
  if (bytes.size() < fewest) return UpdateCrc32Braided(crc, bytes);
  return bytes.size() < long_from ? OverMiddle(crc, bytes) : OverLong(crc, bytes);
}

}  // namespace ravo::utils
