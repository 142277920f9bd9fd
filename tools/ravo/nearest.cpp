#include "nearest.h"

#include "text.h"

#include <algorithm>

namespace tool {
namespace {

// The distance of Damerau and Levenshtein, each pair of letters swapped at most once.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::vector<std::size_t>> d(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
  for (std::size_t i = 0; i <= a.size(); ++i) d[i][0] = i;
  for (std::size_t j = 0; j <= b.size(); ++j) d[0][j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t changed = d[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1, changed});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
    }
  }
  return d[a.size()][b.size()];
}

bool Begins(std::string_view word, std::string_view candidate) {
  return word.size() >= 3 && candidate.starts_with(word);
}

}  // namespace

std::string Nearest(std::string_view word, const std::vector<std::string>& candidates) {
  constexpr std::size_t kLongest = 64;
  std::string nearest;
  if (word.size() > kLongest) return nearest;
  std::size_t least = std::max<std::size_t>(1, word.size() / 3) + 1;
  for (const std::string& candidate : candidates) {
    const std::size_t distance = Begins(word, candidate) ? 1 : Distance(word, candidate);
    // Where every letter differs, nothing is near.
    if (distance >= least || distance >= std::max(word.size(), candidate.size())) continue;
    least = distance;
    nearest = candidate;
  }
  return nearest;
}

std::string DidYouMean(std::string_view word, const std::vector<std::string>& candidates) {
  const std::string nearest = Nearest(word, candidates);
  return nearest.empty() ? std::string() : Text("Did you mean {0}?", {nearest});
}

}  // namespace tool
