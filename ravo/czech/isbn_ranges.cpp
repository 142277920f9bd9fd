#include <ravo/czech/isbn_ranges.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace ravo::czech::detail {
namespace {

// Ranges of what follows the prefix, as nine digits: the first one in it, and how long its parts are. A range
// ends before the next; a group of no digits is a gap.
struct IsbnRange {
  std::uint32_t first;  // 978 counts as 0, 979 as 1, before the nine digits
  std::uint8_t group;
  std::uint8_t publisher;
};
constexpr IsbnRange kIsbnRanges[] = {
#define RAVO_ISBN_RANGE(first, group, publisher) {first, group, publisher},
#include "generated/isbn_ranges.inc"
#undef RAVO_ISBN_RANGE
};
static_assert(std::ranges::is_sorted(kIsbnRanges, {}, &IsbnRange::first));

}  // namespace

IsbnParts IsbnPartsOf(std::string_view isbn) noexcept {
  std::uint32_t number = isbn[2] == '9' ? 1 : 0;
  for (const char digit : isbn.substr(3, 9)) number = number * 10 + static_cast<std::uint32_t>(digit - '0');
  const auto* const after = std::ranges::upper_bound(kIsbnRanges, number, {}, &IsbnRange::first);
  if (after == std::begin(kIsbnRanges)) return {};
  const IsbnRange& range = *std::prev(after);
  return {range.group, range.publisher};
}

}  // namespace ravo::czech::detail
