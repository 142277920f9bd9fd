#include "content.h"

#include "invoice.h"

#include <algorithm>

namespace ravo::isdoc {
namespace {

constexpr void (*kChecks[])(const detail::Invoice&) = {
    detail::CheckBusinessRules,  detail::CheckCurrencies, detail::CheckItems,  detail::CheckParties,
    detail::CheckPayment,        detail::CheckDates,      detail::CheckLines,  detail::CheckRates,
    detail::CheckRecapitulation, detail::CheckDeposits,   detail::CheckTotals,
};

bool IsBefore(const Finding& left, const Finding& right) {
  if (left.place.line != right.place.line) return left.place.line < right.place.line;
  return left.place.column < right.place.column;
}

}  // namespace

void CheckContent(const Document& document, Findings& findings) {
  const auto before = static_cast<std::ptrdiff_t>(findings.size());
  const detail::Invoice invoice(document, findings);
  for (const auto check : kChecks) check(invoice);
  std::stable_sort(findings.begin() + before, findings.end(), IsBefore);
}

}  // namespace ravo::isdoc
