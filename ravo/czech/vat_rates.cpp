#include <ravo/czech/vat_rates.h>

#include <algorithm>
#include <iterator>

namespace ravo::czech {
namespace {

constexpr VatRate kVatRates[] = {
#define RAVO_VAT_RATE(year, month, day, last_year, last_month, last_day, kind, percent, law) \
  {DayOf({year, month, day}), DayOf({last_year, last_month, last_day}), VatRateKind::kind, percent, law},
#include "vat_rates.inc"
#undef RAVO_VAT_RATE
};
static_assert(std::ranges::is_sorted(kVatRates, {}, &VatRate::first));

constexpr VatMethodRow kVatMethods[] = {
#define RAVO_VAT_METHOD(method, year, month, day, last_year, last_month, last_day, law) \
  {VatMethod::method, DayOf({year, month, day}), DayOf({last_year, last_month, last_day}), law},
#include "vat_methods.inc"
#undef RAVO_VAT_METHOD
};

template <class Row>
constexpr bool InForce(const Row& row, Day day) noexcept {
  return day >= row.first && day <= row.last;
}

}  // namespace

std::span<const VatRate> VatRates() noexcept { return kVatRates; }

Parsed<std::int32_t> VatPercentOn(Day day, VatRateKind kind) noexcept {
  if (kind == VatRateKind::Zero) return {0};
  for (const VatRate& rate : kVatRates) {
    if (rate.kind == kind && InForce(rate, day)) return {rate.percent};
  }
  return {0, Code::VatRateUnknown};
}

std::optional<VatRateKind> VatRateKindOn(Day day, std::int32_t percent) noexcept {
  if (percent == 0) return VatRateKind::Zero;
  for (const VatRate& rate : kVatRates) {
    if (rate.percent == percent && InForce(rate, day)) return rate.kind;
  }
  return std::nullopt;
}

std::span<const VatMethodRow> VatMethods() noexcept { return kVatMethods; }

bool IsLawful(VatMethod method, Day day) noexcept {
  return std::ranges::any_of(
      kVatMethods, [=](const VatMethodRow& row) { return row.method == method && InForce(row, day); });
}

}  // namespace ravo::czech
