#include <ravo/codec/gb18030.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace ravo::codec {
namespace {

constexpr std::size_t kTrails = 190;
constexpr char16_t kTwoBytes[126 * kTrails] = {
#include <ravo/codec/generated/gb18030_two_bytes.inc>
};

// Characters increase by one up to the next run; U+FFFD marks a run of indices without characters.
struct RunOfFour {
  std::uint16_t number;
  char16_t ch;
};

constexpr RunOfFour kFourBytes[] = {
#include <ravo/codec/generated/gb18030_four_bytes.inc>
};

}  // namespace

char16_t Gb18030OfTwo(std::uint8_t lead, std::uint8_t trail) noexcept {
  const std::size_t column = trail - (trail < 0x7F ? 0x40U : 0x41U);
  return kTwoBytes[(lead - 0x81U) * kTrails + column];
}

char16_t Gb18030OfFour(std::uint32_t number) noexcept {
  const auto* const behind =
      std::upper_bound(std::begin(kFourBytes), std::end(kFourBytes), number,
                       [](std::uint32_t wanted, const RunOfFour& run) { return wanted < run.number; });
  const RunOfFour& run = *std::prev(behind);
  return run.ch == kReplacement ? kReplacement : static_cast<char16_t>(run.ch + (number - run.number));
}

}  // namespace ravo::codec
