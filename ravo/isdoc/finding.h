#pragma once

#include <ravo/czech/reason.h>
#include <ravo/isdoc/document.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::isdoc {

/// What a check found: a number for each rule. Numbers and texts never change their meaning; new ones are
/// added.
enum class Rule : std::uint16_t {
#define RAVO_RULE(number, name, text, czech, english) name = (number),
#include "rules.inc"
#undef RAVO_RULE
};

/// Returns the stable text of a rule, such as "sum.lines". Empty for a number that is no rule.
[[nodiscard]] std::string_view RuleText(Rule rule) noexcept;

/// Returns one sentence in UTF-8, without a full stop. Empty for a number that is no rule.
[[nodiscard]] std::string_view Sentence(Rule rule, czech::Language language) noexcept;

/// How grave a finding is.
enum class Severity : std::uint8_t {
  Note,   ///< lawful or within half a haléř a line; worth a look
  Error,  ///< the document breaks a rule
};

/// One finding.
struct Finding {
  Rule rule{};
  Severity severity = Severity::Error;
  Place place;
  std::string_view element;  ///< the name of the element; lives as long as the document
  std::string found;         ///< what is there, UTF-8; empty if there is nothing
  std::string expected;      ///< what should be there; empty if the rule says it all
  czech::Code reason{};      ///< why the country's rules refuse it; `Correct` if they do not
};

/// Findings in the order in which they were found.
using Findings = std::vector<Finding>;

}  // namespace ravo::isdoc
