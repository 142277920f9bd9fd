// Czech days and VAT over any numbers: terms end on working days, counts of working days add up, and amounts
// add up.
#include <ravo/czech/czech.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

using namespace ravo::czech;

void Require(bool condition) {
  if (!condition) std::abort();
}

void CheckDays(Day from, std::int32_t count) {
  const auto term = TermInDays(from, count);
  if (term) Require(IsWorkingDay(term.value.due) && term.value.due >= term.value.counted);
  const auto in_months = TermInMonths(from, count);
  if (in_months) Require(IsWorkingDay(in_months.value.due));
  if (!term) return;
  const Day to = term.value.due;
  const auto whole = WorkingDaysBetween(from, to);
  const Day middle{static_cast<std::int32_t>((std::int64_t{from.number} + to.number) / 2)};
  Require(whole &&
          whole.value == WorkingDaysBetween(from, middle).value + WorkingDaysBetween(middle, to).value);
}

void CheckAmount(ravo::Currency amount, std::int32_t percent, VatMethod method) {
  const auto vat = ComputeVat(amount, percent, method);
  if (!vat) return;
  Require(vat.value.base.raw + vat.value.tax.raw == vat.value.total.raw && vat.value.tax.raw % 100 == 0);
  Require((method == VatMethod::FromBase ? vat.value.base : vat.value.total) == amount);
  const auto crowns = RoundToCrowns(amount, static_cast<CrownRounding>(percent % 3));
  if (crowns) Require(crowns.value.rounded.raw % ravo::Currency::kScale == 0);
}

void CheckRecapitulation(const std::vector<VatLine>& lines, VatMethod method, VatPer per, Day day) {
  const auto result = Recapitulate(lines, method, per, day);
  Require(result.position <= lines.size());
  if (!result) return;
  std::size_t count = 0;
  for (const VatRow& row : result.value.rows) count += row.lines;
  Require(count == lines.size());
  Require(result.value.sum.base.raw + result.value.sum.tax.raw == result.value.sum.total.raw);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::int32_t numbers[3] = {};
  if (size < sizeof(numbers)) return 0;
  std::memcpy(numbers, data, sizeof(numbers));
  CheckDays({numbers[0]}, numbers[1]);
  CheckDays({static_cast<std::int32_t>(2451545 + numbers[0] % 20000)}, numbers[1] % 1000);
  const auto method = static_cast<VatMethod>(static_cast<std::uint32_t>(numbers[2]) % 3);
  std::vector<VatLine> lines;
  for (std::size_t at = sizeof(numbers); at + 9 <= size; at += 9) {
    VatLine line;
    std::memcpy(&line.amount.raw, data + at, 8);
    line.rate = static_cast<VatRateKind>(data[at + 8] % 5);
    CheckAmount(line.amount, data[at + 8] % 110, method);
    lines.push_back(line);
  }
  const Day day{static_cast<std::int32_t>(2449000 + static_cast<std::uint32_t>(numbers[0]) % 13000)};
  CheckRecapitulation(lines, method, numbers[1] % 2 == 0 ? VatPer::Document : VatPer::Line, day);
  return 0;
}
