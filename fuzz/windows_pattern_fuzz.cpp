#include <ravo/platform/windows_pattern.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace {

constexpr std::u16string_view kWords[] = {u"AMPM", u"A/P", u"d", u"m", u"y", u"h", u"n", u"s"};

bool IsLetter(char16_t ch) { return (ch >= u'a' && ch <= u'z') || (ch >= u'A' && ch <= u'Z'); }

// Removes a quoted text, a pattern word or a literal unit; returns false for anything else.
bool TakePiece(std::u16string_view& rest) {
  std::size_t size = 1;
  if (rest.front() == u'\'' || rest.front() == u'"') {
    size = rest.find(rest.front(), 1);
    if (size++ == rest.npos) return false;
  } else if (IsLetter(rest.front())) {
    const auto* word = std::ranges::find_if(kWords, [&](auto text) { return rest.starts_with(text); });
    if (word == std::end(kWords)) return false;
    size = word->size();
  }
  rest.remove_prefix(size);
  return true;
}

}  // namespace

// For any locale the result is a pattern of our own words, with every quote closed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::u16string text(size / 2, u'\0');
  if (!text.empty()) std::memcpy(text.data(), data, 2 * text.size());
  const std::u16string pattern = ravo::platform::FromWindowsPattern(text);
  std::u16string_view rest = pattern;
  while (!rest.empty()) {
    if (!TakePiece(rest)) std::abort();
  }
  return 0;
}
