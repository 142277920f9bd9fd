#include <ravo/unicode/unicode_reader.h>

#include <algorithm>

namespace ravo::DIUnicode {
namespace {

struct Mark {
  TDIBOM bom;
  std::string_view bytes;
};

using namespace std::string_view_literals;

constexpr std::size_t kLongestMark = 4;

// FF FE 00 00 before its beginning FF FE.
constexpr Mark kMarks[] = {{TDIBOM::bomutf32be, "\x00\x00\xFE\xFF"sv},
                           {TDIBOM::bomutf32le, "\xFF\xFE\x00\x00"sv},
                           {TDIBOM::bomUtf8, "\xEF\xBB\xBF"sv},
                           {TDIBOM::bomutf16be, "\xFE\xFF"sv},
                           {TDIBOM::bomutf16le, "\xFF\xFE"sv}};

bool BeginsWith(std::span<const std::uint8_t> bytes, std::string_view mark) {
  return bytes.size() >= mark.size() &&
         std::ranges::equal(bytes.first(mark.size()), mark, {}, {},
                            [](char c) { return static_cast<std::uint8_t>(c); });
}

}  // namespace

TDIBOM TDIUnicodeReader::ReadBOM() {
  // Only a source that has no byte left may be left for the one below it.
  if (UnreadBytes().empty()) FillSourceBuffer(true);
  while (UnreadBytes().size() < kLongestMark && FillFromStream(true) != 0) {
  }
  for (const Mark& mark : kMarks) {
    if (!BeginsWith(UnreadBytes(), mark.bytes)) continue;
    FSourceBufferPosition += static_cast<std::uint32_t>(mark.bytes.size());
    return mark.bom;
  }
  return TDIBOM::bomUnknown;
}

}  // namespace ravo::DIUnicode
