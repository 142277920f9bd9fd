#include <ravo/catalogue/captions.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace ravo {
namespace {

// The rows in file order: a group title has no name, a caption has no group yet.
constexpr auto kLines = std::to_array<CaptionRow>({
#define RAVO_CAPTION_GROUP(prefix, title) {title, #prefix, {}, {}},
#define RAVO_STRING(name, id, text) {{}, {}, #name, RavoInterfaceResources::name},
#include <ravo/catalogue/captions.inc>
#undef RAVO_STRING
});

// Untested: runs at compile time only.
constexpr bool IsCaption(const CaptionRow& line) { return !line.name.empty(); }

consteval auto MakeCaptionRows() {
  std::array<CaptionRow, std::ranges::count_if(kLines, IsCaption)> rows{};
  auto row = rows.begin();
  CaptionRow group;
  for (const CaptionRow& line : kLines) {
    if (IsCaption(line)) {
      *row++ = {group.group, group.prefix, line.name, line.text};
    } else {
      group = line;
    }
  }
  return rows;
}

constexpr auto kCaptionRows = MakeCaptionRows();

}  // namespace

std::span<const CaptionRow> CaptionRows() noexcept { return kCaptionRows; }

}  // namespace ravo
