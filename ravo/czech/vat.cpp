#include <ravo/czech/vat.h>

#include <limits>

namespace ravo::czech {
namespace {

// Ten-thousandths in a haléř and in a crown.
constexpr std::int64_t kHeller = Currency::kScale / 100;
constexpr std::int64_t kCrown = Currency::kScale;

struct Quotient {
  std::int64_t value = 0;
  bool half = false;
};

// value * part / whole, rounded to nearest, halves away from zero. Precondition: 0 <= part <= whole, and
// their product fits: the product of `value` is taken apart so that nothing is lost.
constexpr Quotient Share(std::int64_t value, std::int64_t part, std::int64_t whole) noexcept {
  const std::int64_t product = value % whole * part;
  const std::int64_t rest = product % whole;
  const std::int64_t away = rest < 0 ? -1 : 1;
  const bool up = rest * away * 2 >= whole;
  return {value / whole * part + product / whole + (up ? away : 0), rest * away * 2 == whole};
}

// left + right into `sum`, or false.
bool Add(Currency left, Currency right, Currency& sum) noexcept {
  return !__builtin_add_overflow(left.raw, right.raw, &sum.raw);
}

bool Subtract(Currency left, Currency right, Currency& difference) noexcept {
  return !__builtin_sub_overflow(left.raw, right.raw, &difference.raw);
}

Quotient TaxInHeller(std::int64_t raw, std::int32_t percent, VatMethod method) noexcept {
  switch (method) {
    case VatMethod::FromBase:
      return Share(raw, percent, 100 * kHeller);
    case VatMethod::FromTotalByCoefficient:
      return Share(raw, VatCoefficient(percent), 10000 * kHeller);
    case VatMethod::FromTotal:
      break;
  }
  return Share(raw, percent, (100 + percent) * kHeller);
}

bool AddAmounts(VatAmounts& sum, const VatAmounts& amounts) noexcept {
  sum.half |= amounts.half;
  return Add(sum.base, amounts.base, sum.base) && Add(sum.tax, amounts.tax, sum.tax) &&
         Add(sum.total, amounts.total, sum.total);
}

// The amount of a line alone, base or total as the method says.
Currency& AmountOf(VatAmounts& amounts, VatMethod method) noexcept {
  return method == VatMethod::FromBase ? amounts.base : amounts.total;
}

// Adds a line to its row: its amounts, or its amount alone.
Code AddLine(VatRow& row, const VatLine& line, VatMethod method, VatPer per, Day day) noexcept {
  const auto percent = VatPercentOn(day, line.rate);
  if (!percent) return percent.code;
  row.percent = percent.value;
  ++row.lines;
  if (per == VatPer::Document) {
    Currency& sum = AmountOf(row.amounts, method);
    return Add(sum, line.amount, sum) ? Code::Correct : Code::MoneyRange;
  }
  const auto amounts = ComputeVat(line.amount, row.percent, method);
  if (!amounts) return amounts.code;
  return AddAmounts(row.amounts, amounts.value) ? Code::Correct : Code::MoneyRange;
}

// Computes the tax of a row's sum, and adds the row to the sum of all.
Code CloseRow(VatRow& row, VatAmounts& sum, VatMethod method, VatPer per) noexcept {
  if (per == VatPer::Document) {
    const auto amounts = ComputeVat(AmountOf(row.amounts, method), row.percent, method);
    if (!amounts) return amounts.code;
    row.amounts = amounts.value;
  }
  return AddAmounts(sum, row.amounts) ? Code::Correct : Code::MoneyRange;
}

}  // namespace

Parsed<VatAmounts> ComputeVat(Currency amount, std::int32_t percent, VatMethod method) noexcept {
  if (percent < 0 || percent > 100) return {{}, Code::VatRateUnknown};
  const Quotient tax = TaxInHeller(amount.raw, percent, method);
  VatAmounts amounts{amount, {}, amount, tax.half};
  if (__builtin_mul_overflow(tax.value, kHeller, &amounts.tax.raw)) return {{}, Code::MoneyRange};
  const bool fits = method == VatMethod::FromBase ? Add(amount, amounts.tax, amounts.total)
                                                  : Subtract(amount, amounts.tax, amounts.base);
  if (!fits) return {{}, Code::MoneyRange};
  return {amounts};
}

Parsed<RoundedTotal> RoundToCrowns(Currency total, CrownRounding rounding) noexcept {
  const std::int64_t rest = total.raw % kCrown;
  const std::int64_t away = rest < 0 ? -1 : 1;
  const bool up = rounding == CrownRounding::Nearest ? rest * away * 2 >= kCrown
                                                     : rounding == CrownRounding::AwayFromZero && rest != 0;
  RoundedTotal result;
  result.difference.raw = (up ? away * kCrown : 0) - rest;
  if (!Add(total, result.difference, result.rounded)) return {{}, Code::MoneyRange};
  return {result};
}

Parsed<VatRecapitulation> Recapitulate(std::span<const VatLine> lines, VatMethod method, VatPer per,
                                       Day day) noexcept {
  if (!IsLawful(method, day)) return {{}, Code::VatMethod};
  VatRecapitulation result;
  for (std::size_t i = 0; i < result.rows.size(); ++i) result.rows[i].rate = static_cast<VatRateKind>(i);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    VatRow& row = result.rows[static_cast<std::size_t>(lines[i].rate) % result.rows.size()];
    const Code code = AddLine(row, lines[i], method, per, day);
    if (code != Code::Correct) return {{}, code, i};
  }
  for (VatRow& row : result.rows) {
    const Code code = CloseRow(row, result.sum, method, per);
    if (code != Code::Correct) return {{}, code, lines.size()};
  }
  return {result};
}

}  // namespace ravo::czech
