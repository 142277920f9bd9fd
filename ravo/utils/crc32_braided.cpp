#include <ravo/utils/crc32_kernels.h>
#include <ravo/utils/crc32_slices.h>

#include <array>
#include <bit>
#include <cstring>

namespace ravo::utils {
namespace {

static_assert(std::endian::native == std::endian::little, "a word's first byte is its lowest");

// Strands of words, every fifth word of a text to each: none waits for the look-ups of another. More than
// five have no registers left.
using Word = std::size_t;
constexpr std::size_t kWordBytes = sizeof(Word);
constexpr std::size_t kStrands = 5;
constexpr std::size_t kRowBytes = kStrands * kWordBytes;

using Tables = Crc32Slices<kWordBytes>;

// Over a word that the words of all strands, its own included, separate from where its register goes on; and
// over a word alone.
constexpr Tables kOverRow = MakeCrc32Slices<kRowBytes - kWordBytes, kWordBytes>();
constexpr Tables kOverWord = MakeCrc32Slices<0, kWordBytes>();

Word Load(const std::byte* from) {
  Word word = 0;
  std::memcpy(&word, from, sizeof word);
  return word;
}

std::uint32_t Carried(Word word, const Tables& tables) {
  std::uint32_t crc = 0;
  for (std::size_t i = 0; i < kWordBytes; ++i) crc ^= tables[kWordBytes - 1 - i][(word >> (8 * i)) & 0xFF];
  return crc;
}

// `rows` rows of five words, at least one: the registers of the strands meet in the last one.
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

std::uint32_t UpdateCrc32Braided(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  constexpr std::size_t fewest_rows = 4;
  const std::size_t rows = bytes.size() / kRowBytes;
  if (rows < fewest_rows) return UpdateCrc32Sliced(crc, bytes);
  crc = OverRows(crc, bytes.data(), rows);
  return UpdateCrc32Sliced(crc, bytes.subspan(rows * kRowBytes));
}

}  // namespace ravo::utils
