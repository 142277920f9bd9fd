#include "support.h"
#include <ravo/czech/vat.h>

#include <vector>

using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailRefused;
using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::Fill;
using ravo::c::Guarded;
using ravo::c::IsKnown;
namespace czech = ravo::czech;

namespace {

bool IsVatKind(ravo_vat_kind kind) { return kind >= RAVO_VAT_ZERO && kind <= RAVO_VAT_SECOND_REDUCED; }

bool IsMethod(ravo_vat_method method) {
  return method >= RAVO_VAT_FROM_BASE && method <= RAVO_VAT_FROM_TOTAL;
}

ravo_status FailVatKind(ravo_error* error) { return FailArgument(error, "the kind of rate is unknown"); }
ravo_status FailMethod(ravo_error* error) { return FailArgument(error, "the method is unknown"); }

ravo_vat_row RowOf(const czech::VatAmounts& amounts, std::size_t lines, std::int32_t percent) {
  return {amounts.base.raw, amounts.tax.raw, amounts.total.raw, lines, percent, amounts.half};
}

ravo_vat_summary SummaryOf(const czech::VatRecapitulation& value, std::size_t lines) {
  ravo_vat_summary result{};
  for (std::size_t i = 0; i < value.rows.size(); ++i) {
    const czech::VatRow& row = value.rows[i];
    result.rows[i] = RowOf(row.amounts, row.lines, row.percent);
  }
  result.sum = RowOf(value.sum, lines, 0);
  return result;
}

}  // namespace

size_t ravo_vat_rate_count(void) { return czech::VatRates().size(); }

ravo_status ravo_vat_rate_at(size_t index, ravo_vat_rate* rate, ravo_error* error) {
  if (!IsKnown(rate)) return FailStruct(error);
  if (index >= czech::VatRates().size()) return FailUnknown(error, "there are fewer rates");
  const czech::VatRate& row = czech::VatRates()[index];
  Fill(*rate, {0, row.law.data(), row.first.number, row.last.number, static_cast<ravo_vat_kind>(row.kind),
               row.percent});
  return RAVO_OK;
}

ravo_status ravo_vat_percent_on(ravo_day day, ravo_vat_kind kind, int32_t* percent, ravo_error* error) {
  if (percent == nullptr) return FailNullResult(error);
  if (!IsVatKind(kind)) return FailVatKind(error);
  const auto answer = czech::VatPercentOn({day}, static_cast<czech::VatRateKind>(kind));
  if (!answer) return FailRefused(error, answer.code, 0);
  *percent = answer.value;
  return RAVO_OK;
}

ravo_status ravo_vat_kind_on(ravo_day day, int32_t percent, ravo_vat_kind* kind, ravo_error* error) {
  if (kind == nullptr) return FailNullResult(error);
  const auto found = czech::VatRateKindOn({day}, percent);
  if (!found) return FailUnknown(error, "there was no such rate on that day");
  *kind = static_cast<ravo_vat_kind>(*found);
  return RAVO_OK;
}

size_t ravo_vat_way_count(void) { return czech::VatMethods().size(); }

ravo_status ravo_vat_way_at(size_t index, ravo_vat_way* way, ravo_error* error) {
  if (!IsKnown(way)) return FailStruct(error);
  if (index >= czech::VatMethods().size()) return FailUnknown(error, "there are fewer ways");
  const czech::VatMethodRow& row = czech::VatMethods()[index];
  Fill(*way,
       {0, row.law.data(), row.first.number, row.last.number, static_cast<ravo_vat_method>(row.method)});
  return RAVO_OK;
}

int32_t ravo_vat_is_lawful(ravo_vat_method method, ravo_day day) {
  return IsMethod(method) && czech::IsLawful(static_cast<czech::VatMethod>(method), {day});
}

ravo_status ravo_vat_compute(ravo_money amount, int32_t percent, ravo_vat_method method,
                             ravo_vat_amounts* amounts, ravo_error* error) {
  if (!IsKnown(amounts)) return FailStruct(error);
  if (!IsMethod(method)) return FailMethod(error);
  const auto answer = czech::ComputeVat({amount}, percent, static_cast<czech::VatMethod>(method));
  if (!answer) return FailRefused(error, answer.code, 0);
  const czech::VatAmounts& value = answer.value;
  Fill(*amounts, {0, value.base.raw, value.tax.raw, value.total.raw, value.half});
  return RAVO_OK;
}

ravo_status ravo_vat_recapitulate(const ravo_vat_line* lines, size_t lines_length, ravo_vat_method method,
                                  ravo_vat_per per, ravo_day day, ravo_vat_summary* summary,
                                  ravo_error* error) {
  if (!IsKnown(summary)) return FailStruct(error);
  if (lines == nullptr && lines_length != 0)
    return FailArgument(error, "the lines are null, but their length is not 0");
  if (lines_length > PTRDIFF_MAX / sizeof(ravo_vat_line))
    return FailArgument(error, "there cannot be so many lines");
  if (!IsMethod(method)) return FailMethod(error);
  if (per != RAVO_VAT_PER_DOCUMENT && per != RAVO_VAT_PER_LINE)
    return FailArgument(error, "the place of the computation is unknown");
  return Guarded(error, [&] {
    std::vector<czech::VatLine> copies;
    copies.reserve(lines_length);
    for (std::size_t i = 0; i < lines_length; ++i) {
      if (!IsVatKind(lines[i].kind))
        return ravo::c::Fail(error, {RAVO_ARGUMENT, 0, i, "the kind of rate is unknown"});
      copies.push_back({{lines[i].amount}, static_cast<czech::VatRateKind>(lines[i].kind)});
    }
    const auto answer = czech::Recapitulate(copies, static_cast<czech::VatMethod>(method),
                                            static_cast<czech::VatPer>(per), {day});
    if (!answer) return FailRefused(error, answer.code, answer.position);
    Fill(*summary, SummaryOf(answer.value, lines_length));
    return static_cast<ravo_status>(RAVO_OK);
  });
}
