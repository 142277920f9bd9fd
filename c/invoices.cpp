#include "handles.h"
#include "support.h"
#include <ravo/isdoc/check.h>
#include <ravo/isdoc/fields.h>
#include <ravo/isdoc/tax_ways.h>
#include <ravo/isdoc/version.h>

#include <algorithm>
#include <memory>
#include <memory_resource>
#include <vector>

using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::Fill;
using ravo::c::Guarded;
using ravo::c::IsKnown;
using ravo::c::ReadText;
namespace czech = ravo::czech;
namespace isdoc = ravo::isdoc;

struct ravo_invoice : ravo::c::Handle {
  std::pmr::monotonic_buffer_resource texts;
  ravo_invoice_head head{};
  std::array<ravo_invoice_party, 2> parties{};
  ravo_invoice_totals totals{};
  std::vector<ravo_invoice_line> lines;
  std::vector<ravo_invoice_rate> rates;
  std::vector<ravo_invoice_payment> payments;
  std::vector<ravo_invoice_finding> findings;
};

namespace {

static_assert(RAVO_INVOICE_VERSION_OTHER == static_cast<int>(isdoc::Version::Other));
static_assert(RAVO_INVOICE_VERSION_NONE == static_cast<int>(isdoc::Version::None));
static_assert(RAVO_INVOICE_WAY_LINES == static_cast<int>(isdoc::TaxWay::SumOfLines));
static_assert(RAVO_INVOICE_SEVERITY_ERROR == static_cast<int>(isdoc::Severity::Error));

// Fills an invoice from its document, which it does not need any more.
class InvoiceFiller {
 public:
  InvoiceFiller(const isdoc::Document& document, ravo_invoice& invoice)
      : document_(document), invoice_(invoice) {}

  void Run() {
    FillHead();
    invoice_.parties = {Party("AccountingSupplierParty"), Party("AccountingCustomerParty")};
    FillTotals();
    isdoc::ForEachRow(document_, isdoc::kLinePlace, [&](const auto& row) { AddLine(row); });
    FillRates();
    isdoc::ForEachRow(document_, isdoc::kPaymentPlace, [&](const auto& row) { AddPayment(row); });
    for (const isdoc::Finding& finding : isdoc::Check(document_)) AddFinding(finding);
  }

 private:
  const char* Kept(std::string_view text) {
    if (text.empty()) return "";
    auto* const room = static_cast<char*>(invoice_.texts.allocate(text.size() + 1, 1));
    *std::ranges::copy(text, room).out = '\0';
    return room;
  }

  void FillHead() {
    const isdoc::HeadFields head = isdoc::HeadOf(document_);
    invoice_.head = {0,
                     Kept(head.number),
                     Kept(head.type),
                     Kept(head.uuid),
                     Kept(head.issued),
                     Kept(head.tax_point),
                     Kept(head.currency),
                     Kept(head.foreign_currency),
                     Kept(head.note),
                     static_cast<ravo_invoice_version>(isdoc::VersionOf(document_))};
  }

  ravo_invoice_party Party(std::string_view role) {
    const isdoc::PartyFields party = isdoc::PartyOf(document_, role);
    return {0,
            Kept(party.ico),
            Kept(party.dic),
            Kept(party.name),
            Kept(party.street),
            Kept(party.building),
            Kept(party.post_code),
            Kept(party.city),
            Kept(party.country)};
  }

  void FillTotals() {
    const isdoc::TotalFields totals = isdoc::TotalsOf(document_);
    invoice_.totals = {0,
                       Kept(totals.all.base),
                       Kept(totals.all.tax),
                       Kept(totals.all.total),
                       Kept(totals.claimed.base),
                       Kept(totals.claimed.total),
                       Kept(totals.difference.base),
                       Kept(totals.difference.total),
                       Kept(totals.rounding),
                       Kept(totals.paid_deposits),
                       Kept(totals.payable)};
  }

  void AddLine(const isdoc::Element& element) {
    const isdoc::LineFields line = isdoc::LineOf(document_, element);
    invoice_.lines.push_back({0, Kept(line.number), Kept(line.text), Kept(line.quantity), Kept(line.unit),
                              Kept(line.unit_price), Kept(line.rate), Kept(line.base), Kept(line.tax),
                              Kept(line.total), line.reverse_charge});
  }

  void FillRates() {
    const std::vector<isdoc::RateWay> ways = isdoc::TaxWays(document_);
    isdoc::ForEachRow(document_, isdoc::kRatePlace, [&](const isdoc::Element& row) {
      const auto way = std::ranges::find(ways, &row, &isdoc::RateWay::subtotal);
      AddRate(isdoc::RateOf(document_, row), way == ways.end() ? isdoc::TaxWay::None : way->way);
    });
  }

  void AddRate(const isdoc::RateFields& row, isdoc::TaxWay way) {
    invoice_.rates.push_back({0, Kept(row.rate), Kept(row.all.base), Kept(row.all.tax), Kept(row.all.total),
                              Kept(row.claimed.base), Kept(row.claimed.tax), Kept(row.claimed.total),
                              Kept(row.difference.base), Kept(row.difference.tax), Kept(row.difference.total),
                              row.reverse_charge, static_cast<ravo_invoice_way>(way)});
  }

  void AddPayment(const isdoc::Element& element) {
    const isdoc::PaymentFields payment = isdoc::PaymentOf(document_, element);
    invoice_.payments.push_back({0, Kept(payment.amount), Kept(payment.means), Kept(payment.due),
                                 Kept(payment.account), Kept(payment.bank), Kept(payment.iban),
                                 Kept(payment.bic), Kept(payment.vs), Kept(payment.ks), Kept(payment.ss)});
  }

  void AddFinding(const isdoc::Finding& finding) {
    invoice_.findings.push_back(
        {0, isdoc::RuleText(finding.rule).data(), Kept(finding.element), Kept(finding.found),
         Kept(finding.expected), static_cast<int32_t>(finding.rule), static_cast<int32_t>(finding.reason),
         static_cast<ravo_invoice_severity>(finding.severity), finding.place.line, finding.place.column});
  }

  const isdoc::Document& document_;
  ravo_invoice& invoice_;
};

ravo_status OpenInvoice(std::string_view text, ravo_invoice** invoice, ravo_error* error) {
  isdoc::ReadingError fault;
  const auto document = isdoc::Document::Read(text, fault);
  if (!document) return ravo::c::FailPlaced(error, fault.place, fault.position, fault.message);
  auto opened = std::make_unique<ravo_invoice>();
  InvoiceFiller(*document, *opened).Run();
  *invoice = opened.release();
  return RAVO_OK;
}

// Writes a part of an invoice, which a member of it is.
template <class Part>
ravo_status WritePart(const ravo_invoice* invoice, Part* result, Part ravo_invoice::*part,
                      ravo_error* error) {
  if (!IsOpen(invoice)) return FailArgument(error, "the invoice is null or closed");
  if (!IsKnown(result)) return FailStruct(error);
  Fill(*result, invoice->*part);
  return RAVO_OK;
}

template <class Row>
ravo_status WriteRow(const ravo_invoice* invoice, std::size_t index, Row* result,
                     std::vector<Row> ravo_invoice::*rows, ravo_error* error) {
  if (!IsOpen(invoice)) return FailArgument(error, "the invoice is null or closed");
  if (!IsKnown(result)) return FailStruct(error);
  if (index >= (invoice->*rows).size()) return FailUnknown(error, "the invoice has fewer of them");
  Fill(*result, (invoice->*rows)[index]);
  return RAVO_OK;
}

template <class Row>
std::size_t CountOf(const ravo_invoice* invoice, std::vector<Row> ravo_invoice::*rows) {
  ravo::c::RefuseClosed(invoice);
  return invoice == nullptr ? 0 : (invoice->*rows).size();
}

}  // namespace

ravo_status ravo_invoice_open(const char* text, size_t text_length, ravo_invoice** invoice,
                              ravo_error* error) {
  if (invoice == nullptr) return FailNullResult(error);
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &xml = input] { return OpenInvoice(xml, invoice, error); });
}

void ravo_invoice_close(ravo_invoice* invoice) { ravo::c::Close(invoice); }

ravo_status ravo_invoice_head_of(const ravo_invoice* invoice, ravo_invoice_head* head, ravo_error* error) {
  return WritePart(invoice, head, &ravo_invoice::head, error);
}

ravo_status ravo_invoice_party_of(const ravo_invoice* invoice, ravo_invoice_role role,
                                  ravo_invoice_party* party, ravo_error* error) {
  if (!IsOpen(invoice)) return FailArgument(error, "the invoice is null or closed");
  if (!IsKnown(party)) return FailStruct(error);
  if (role != RAVO_INVOICE_ROLE_SUPPLIER && role != RAVO_INVOICE_ROLE_CUSTOMER)
    return FailArgument(error, "the role is unknown");
  Fill(*party, invoice->parties[static_cast<std::size_t>(role)]);
  return RAVO_OK;
}

ravo_status ravo_invoice_totals_of(const ravo_invoice* invoice, ravo_invoice_totals* totals,
                                   ravo_error* error) {
  return WritePart(invoice, totals, &ravo_invoice::totals, error);
}

size_t ravo_invoice_line_count(const ravo_invoice* invoice) { return CountOf(invoice, &ravo_invoice::lines); }

ravo_status ravo_invoice_line_at(const ravo_invoice* invoice, size_t index, ravo_invoice_line* line,
                                 ravo_error* error) {
  return WriteRow(invoice, index, line, &ravo_invoice::lines, error);
}

size_t ravo_invoice_rate_count(const ravo_invoice* invoice) { return CountOf(invoice, &ravo_invoice::rates); }

ravo_status ravo_invoice_rate_at(const ravo_invoice* invoice, size_t index, ravo_invoice_rate* rate,
                                 ravo_error* error) {
  return WriteRow(invoice, index, rate, &ravo_invoice::rates, error);
}

size_t ravo_invoice_payment_count(const ravo_invoice* invoice) {
  return CountOf(invoice, &ravo_invoice::payments);
}

ravo_status ravo_invoice_payment_at(const ravo_invoice* invoice, size_t index, ravo_invoice_payment* payment,
                                    ravo_error* error) {
  return WriteRow(invoice, index, payment, &ravo_invoice::payments, error);
}

size_t ravo_invoice_finding_count(const ravo_invoice* invoice) {
  return CountOf(invoice, &ravo_invoice::findings);
}

ravo_status ravo_invoice_finding_at(const ravo_invoice* invoice, size_t index, ravo_invoice_finding* finding,
                                    ravo_error* error) {
  return WriteRow(invoice, index, finding, &ravo_invoice::findings, error);
}

const char* ravo_invoice_rule_sentence(int32_t rule, ravo_language language) {
  if (language != RAVO_LANGUAGE_CZECH && language != RAVO_LANGUAGE_ENGLISH) return nullptr;
  if (rule < 0 || rule > UINT16_MAX) return nullptr;
  const auto named = language == RAVO_LANGUAGE_CZECH ? czech::Language::Czech : czech::Language::English;
  const std::string_view sentence = isdoc::Sentence(static_cast<isdoc::Rule>(rule), named);
  return sentence.empty() ? nullptr : sentence.data();
}
