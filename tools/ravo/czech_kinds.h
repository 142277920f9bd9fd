#pragma once

#include "checks.h"
#include "outcome.h"
#include "user_language.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// Returns the kinds by the country's rules, in the order of the help text.
[[nodiscard]] std::span<const CheckKind> CzechKinds();

/// Returns the Czech kind of this name, or null. "banka" is another name of "account".
[[nodiscard]] const CheckKind* FindCzechKind(std::string_view name);

/// What is asked of values beyond their form.
struct CzechCheck {
  std::string kind;
  std::vector<std::string> values;  // "-" stands for the lines of standard input
  std::string list;                 // the file of a list of banks, "built-in", or empty
  std::string list_date;            // of that file; today if empty
  std::string on;                   // the day of the question, or empty
  bool explain = false;
  bool json = false;
};

/// Checks values of a Czech kind: by form, by the list of banks and the day if they are given.
///
/// `No` if a value is refused, `WrongUsage` if the list cannot be used.
void CheckCzechValues(const CzechCheck& check, Outcome& outcome);

}  // namespace tool
