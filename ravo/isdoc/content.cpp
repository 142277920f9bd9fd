#include "content.h"

#include "invoice.h"

namespace ravo::isdoc {
namespace {

constexpr void (*kChecks[])(const detail::Invoice&) = {
    detail::CheckBusinessRules,  detail::CheckCurrencies, detail::CheckItems,  detail::CheckParties,
    detail::CheckPayment,        detail::CheckDates,      detail::CheckLines,  detail::CheckRates,
    detail::CheckRecapitulation, detail::CheckDeposits,   detail::CheckTotals,
};

}  // namespace

void CheckContent(const Document& document, Findings& findings) {
  const detail::Invoice invoice(document, findings);
  for (const auto check : kChecks) check(invoice);
}

}  // namespace ravo::isdoc
