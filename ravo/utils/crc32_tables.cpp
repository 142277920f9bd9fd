#include <ravo/utils/crc32_kernels.h>

#include <array>
#include <bit>
#include <cstring>

namespace ravo::utils {
namespace {

static_assert(std::endian::native == std::endian::little, "a word's first byte is its lowest");

using Word = std::size_t;
constexpr std::size_t kWordBytes = sizeof(Word);
// Independent strands: each takes every fifth word, so lookups overlap. More than five run out of registers.
constexpr std::size_t kStrands = 5;
constexpr std::size_t kRowBytes = kStrands * kWordBytes;
constexpr std::size_t kFewestRows = 4;

template <std::size_t count>
using Tables = std::array<std::array<std::uint32_t, 256>, count>;

// Table k advances a register past its lowest byte, with `first` + k more bytes after it.
// Untested: runs at compile time only.
template <std::size_t first>
constexpr Tables<kWordBytes> MakeTables() {
  constexpr std::uint32_t polynomial = 0xEDB88320;
  Tables<first + kWordBytes> tables{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t crc = byte;
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1) != 0 ? polynomial : 0);
    tables[0][byte] = crc;
  }
  for (std::size_t place = 1; place < tables.size(); ++place) {
    for (std::size_t byte = 0; byte < 256; ++byte) {
      const std::uint32_t before = tables[place - 1][byte];
      tables[place][byte] = (before >> 8) ^ tables[0][before & 0xFF];
    }
  }
  Tables<kWordBytes> wanted{};
  for (std::size_t place = 0; place < kWordBytes; ++place) wanted[place] = tables[first + place];
  return wanted;
}

// Advance a register past a word: `kOverRow` to the same strand in the next row, `kOverWord` to the next
// word.
constexpr auto kOverRow = MakeTables<kRowBytes - kWordBytes>();
constexpr auto kOverWord = MakeTables<0>();

Word Load(const std::byte* from) {
  Word word = 0;
  std::memcpy(&word, from, sizeof word);
  return word;
}

std::uint32_t Carried(Word word, const Tables<kWordBytes>& tables) {
  std::uint32_t crc = 0;
  for (std::size_t i = 0; i < kWordBytes; ++i) crc ^= tables[kWordBytes - 1 - i][(word >> (8 * i)) & 0xFF];
  return crc;
}

// Advances past `rows` rows of five words, at least one; the last row combines the strands.
std::uint32_t OverRows(std::uint32_t crc, const std::byte* from, std::size_t rows) {
  std::array<std::uint32_t, kStrands> strands{crc};
  for (; rows > 1; --rows, from += kRowBytes) {
    for (std::size_t i = 0; i < kStrands; ++i) {
      strands[i] = Carried(Load(from + i * kWordBytes) ^ strands[i], kOverRow);
    }
  }
  crc = 0;
  for (std::size_t i = 0; i < kStrands; ++i) {
    crc = Carried(Load(from + i * kWordBytes) ^ strands[i] ^ crc, kOverWord);
  }
  return crc;
}

}  // namespace

std::uint32_t UpdateCrc32Bytewise(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  for (const std::byte byte : bytes) {
    crc = (crc >> 8) ^ kOverWord[0][(crc ^ std::to_integer<std::uint32_t>(byte)) & 0xFF];
  }
  return crc;
}

std::uint32_t UpdateCrc32Braided(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  if (const std::size_t rows = bytes.size() / kRowBytes; rows >= kFewestRows) {
    crc = OverRows(crc, bytes.data(), rows);
    bytes = bytes.subspan(rows * kRowBytes);
  }
  for (; bytes.size() >= kWordBytes; bytes = bytes.subspan(kWordBytes))
    crc = Carried(Load(bytes.data()) ^ crc, kOverWord);
  return UpdateCrc32Bytewise(crc, bytes);
}

}  // namespace ravo::utils
