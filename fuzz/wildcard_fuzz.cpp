// Foreign masks: the first line is a mask, the rest the text; compared with exhaustive matching in a table.
#include <ravo/DIUtils.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

using namespace ravo::DIUtils;

void Require(bool holds) {
  if (!holds) std::abort();
}

// The prefixes of the text that the mask so far matches.
template <class Text>
bool MatchesByTable(const Text& text, const Text& mask) {
  std::vector<bool> matched(text.size() + 1);
  matched[0] = true;
  for (const auto c : mask) {
    if (c == '*') {
      std::fill(std::find(matched.begin(), matched.end(), true), matched.end(), true);
      continue;
    }
    for (std::size_t end = text.size(); end > 0; --end)
      matched[end] = matched[end - 1] && (c == '?' || c == text[end - 1]);
    matched[0] = false;
  }
  return matched[text.size()];
}

std::u16string Folded(std::u16string text) {
  for (char16_t& c : text) c = CharToCaseFoldW(c);
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), std::min<std::size_t>(size, 2000));
  const std::size_t end = std::min(bytes.find('\n'), bytes.size());
  const std::string mask = bytes.substr(0, end);
  const std::string text = bytes.substr(std::min(end + 1, bytes.size()));
  Require(StrMatchesA(text, mask) == MatchesByTable(text, mask));
  const std::u16string wide_mask = StrDecodeUtf8(mask);
  const std::u16string wide_text = StrDecodeUtf8(text);
  Require(StrMatchWildW(wide_text, wide_mask) == MatchesByTable(wide_text, wide_mask));
  Require(StrMatchWildIW(wide_text, wide_mask) == MatchesByTable(Folded(wide_text), Folded(wide_mask)));
  return 0;
}
