#include "finding.h"

#include <algorithm>
#include <iterator>

namespace ravo::isdoc {
namespace {

struct Row {
  Rule rule;
  std::string_view text;
  std::string_view czech;
  std::string_view english;
};

constexpr Row kRows[] = {
#define RAVO_RULE(number, name, text, czech, english) {Rule::name, text, czech, english},
#include "rules.inc"
#undef RAVO_RULE
};

const Row* RowOf(Rule rule) {
  const auto* const row = std::ranges::find(kRows, rule, &Row::rule);
  return row == std::end(kRows) ? nullptr : row;
}

}  // namespace

std::string_view RuleText(Rule rule) noexcept {
  const Row* const row = RowOf(rule);
  return row == nullptr ? std::string_view() : row->text;
}

std::string_view Sentence(Rule rule, czech::Language language) noexcept {
  const Row* const row = RowOf(rule);
  if (row == nullptr) return {};
  return language == czech::Language::Czech ? row->czech : row->english;
}

}  // namespace ravo::isdoc
