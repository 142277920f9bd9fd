#include <ravo/common/qualified_names.h>

#include <vector>

namespace ravo::RavoInterfaceCommon {
namespace {

// Tracks the longest prefix of the pattern that ends the text read so far (the Knuth-Morris-Pratt algorithm).
class PrefixMatcher {
 public:
  explicit PrefixMatcher(std::u16string_view pattern) : pattern_(pattern), shorter_(pattern.size(), 0) {
    for (std::size_t i = 1; i < pattern.size(); ++i) shorter_[i] = After(shorter_[i - 1], pattern[i]);
  }

  // Returns the matched length after one more `unit`. `matched` must be shorter than the pattern.
  [[nodiscard]] std::size_t After(std::size_t matched, char16_t unit) const {
    while (matched > 0 && pattern_[matched] != unit) matched = shorter_[matched - 1];
    return pattern_[matched] == unit ? matched + 1 : 0;
  }

 private:
  std::u16string_view pattern_;
  // For each prefix of the pattern, the length of its longest proper prefix that is also its suffix.
  std::vector<std::size_t> shorter_;
};

}  // namespace

std::u16string ExtractTableFromProperty(std::u16string_view name) {
  return std::u16string(name.substr(0, name.find(u'.')));
}

// One pass that drops the prefix whenever the result ends in it. All occurrences have the same length, so the
// first one is the one that ends first. This deletes the same occurrences in the same order as a new search
// from the start each time.
std::u16string RemoveTableFromProperties(std::u16string_view table, std::u16string_view properties) {
  const std::u16string prefix = std::u16string(table) + u'.';
  const PrefixMatcher matcher(prefix);
  std::u16string result;
  std::vector<std::size_t> matched{0};
  for (const char16_t unit : properties) {
    result.push_back(unit);
    matched.push_back(matcher.After(matched.back(), unit));
    if (matched.back() < prefix.size()) continue;
    result.resize(result.size() - prefix.size());
    matched.resize(matched.size() - prefix.size());
  }
  return result;
}

}  // namespace ravo::RavoInterfaceCommon
