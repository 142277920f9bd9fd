#include "columns.h"
#include "isdoc_file.h"
#include "isdoc_work.h"
#include "json_text.h"
#include "printable.h"
#include "text.h"
#include "xml_tree_text.h"
#include "xml_work.h"
#include <ravo/isdoc/amount.h>
#include <ravo/isdoc/fields.h>
#include <ravo/isdoc/tax_ways.h>

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tool {
namespace {

namespace isdoc = ravo::isdoc;

using Document = isdoc::Document;
using Element = isdoc::Element;

constexpr const char* kTypes[] = {
    ToTranslate("Document"),
    ToTranslate("Invoice"),
    ToTranslate("Credit note"),
    ToTranslate("Debit note"),
    ToTranslate("Advance invoice (not a tax document)"),
    ToTranslate("Tax document for a received payment"),
    ToTranslate("Credit note for a received payment"),
    ToTranslate("Simplified tax document"),
};

struct NamedCode {
  std::string_view code;
  const char* name;
};
constexpr NamedCode kPaymentMeans[] = {
    {"10", ToTranslate("in cash")},
    {"20", ToTranslate("by cheque")},
    {"31", ToTranslate("by credit transfer")},
    {"42", ToTranslate("by bank transfer")},
    {"48", ToTranslate("by card")},
    {"49", ToTranslate("by direct debit")},
    {"50", ToTranslate("cash on delivery")},
    {"97", ToTranslate("by mutual settlement")},
};

struct NamedWay {
  isdoc::TaxWay way;
  std::string_view code;
  const char* name;
};
constexpr NamedWay kWays[] = {
    {isdoc::TaxWay::None, "none", ToTranslate("no lawful way gives the tax")},
    {isdoc::TaxWay::Untaxed, "untaxed", ToTranslate("without tax")},
    {isdoc::TaxWay::FromBase, "base", ToTranslate("tax from the base")},
    {isdoc::TaxWay::FromTotal, "total", ToTranslate("tax from the amount with tax")},
    {isdoc::TaxWay::ByCoefficient, "coefficient", ToTranslate("tax by coefficient")},
    {isdoc::TaxWay::SumOfLines, "lines", ToTranslate("taxes of the lines added")},
};

const NamedWay& Named(isdoc::TaxWay way) { return kWays[static_cast<std::size_t>(way)]; }

std::string Shown(std::string_view text) { return OnOneLine(std::string(text)); }

// Amounts have two decimals at least; what is no number stays as it is.
std::string Money(std::string_view text) {
  const auto amount = isdoc::Amount::Read(text);
  return amount ? amount->Text() : Shown(text);
}

std::string TitleOf(const isdoc::HeadFields& head) {
  const bool is_known = head.type.size() == 1 && head.type[0] >= '1' && head.type[0] <= '7';
  return Text(kTypes[is_known ? head.type[0] - '0' : 0]) + " " + Shown(head.number);
}

std::string Joined(std::initializer_list<std::string> parts, std::string_view between) {
  std::string text;
  for (const std::string& part : parts) {
    if (!part.empty() && !text.empty()) text += between;
    text += part;
  }
  return text;
}

std::string AddressOf(const isdoc::PartyFields& party) {
  return Joined({Joined({Shown(party.street), Shown(party.building)}, " "),
                 Joined({Shown(party.post_code), Shown(party.city)}, " "), Shown(party.country)},
                ", ");
}

Json PartyJson(const Document& document, std::string_view role) {
  if (isdoc::ElementAt(document, &document.Root(), {role, "Party"}) == nullptr) return nullptr;
  const isdoc::PartyFields party = isdoc::PartyOf(document, role);
  return {{"name", Shown(party.name)},
          {"address", AddressOf(party)},
          {"ico", Shown(party.ico)},
          {"dic", Shown(party.dic)}};
}

struct Field {
  const char* name;     // in JSON
  const char* caption;  // for people
};
constexpr Field kDates[] = {
    {"issued", ToTranslate("issued")},
    {"tax_point", ToTranslate("tax point")},
};
constexpr Field kTotals[] = {
    {"base", ToTranslate("without tax")},
    {"total", ToTranslate("with tax")},
    {"claimed_total", ToTranslate("taxed deposits")},
    {"difference_total", ToTranslate("less the taxed deposits")},
    {"rounding", ToTranslate("rounding")},
    {"paid_deposits", ToTranslate("paid deposits")},
    {"payable", ToTranslate("to pay")},
};

std::vector<Json> LinesOf(const Document& document) {
  std::vector<Json> lines;
  isdoc::ForEachRow(document, isdoc::kLinePlace, [&](const Element& element) {
    const isdoc::LineFields line = isdoc::LineOf(document, element);
    lines.push_back({{"line", Shown(line.number)},
                     {"description", Shown(line.text)},
                     {"quantity", Shown(line.quantity)},
                     {"unit", Shown(line.unit)},
                     {"unit_price", Money(line.unit_price)},
                     {"rate", Shown(line.rate)},
                     {"reverse_charge", line.reverse_charge},
                     {"base", Money(line.base)},
                     {"tax", Money(line.tax)},
                     {"total", Money(line.total)}});
  });
  return lines;
}

std::vector<Json> RatesOf(const Document& document) {
  std::vector<Json> rates;
  for (const isdoc::RateWay& way : isdoc::TaxWays(document)) {
    const isdoc::RateFields row = isdoc::RateOf(document, *way.subtotal);
    rates.push_back({{"rate", Shown(row.rate)},
                     {"reverse_charge", row.reverse_charge},
                     {"base", Money(row.all.base)},
                     {"tax", Money(row.all.tax)},
                     {"total", Money(row.all.total)},
                     {"way", Named(way.way).code}});
  }
  return rates;
}

std::vector<Json> PaymentsOf(const Document& document) {
  std::vector<Json> payments;
  isdoc::ForEachRow(document, isdoc::kPaymentPlace, [&](const Element& element) {
    const isdoc::PaymentFields payment = isdoc::PaymentOf(document, element);
    payments.push_back({{"amount", Money(payment.amount)},
                        {"means", Shown(payment.means)},
                        {"due", Shown(payment.due)},
                        {"account", Joined({Shown(payment.account), Shown(payment.bank)}, "/")},
                        {"iban", Shown(payment.iban)},
                        {"bic", Shown(payment.bic)},
                        {"vs", Shown(payment.vs)},
                        {"ks", Shown(payment.ks)},
                        {"ss", Shown(payment.ss)}});
  });
  return payments;
}

Json TotalsJson(const isdoc::TotalFields& totals) {
  return {{"base", Money(totals.all.base)},
          {"total", Money(totals.all.total)},
          {"claimed_total", Money(totals.claimed.total)},
          {"difference_total", Money(totals.difference.total)},
          {"rounding", Money(totals.rounding)},
          {"paid_deposits", Money(totals.paid_deposits)},
          {"payable", Money(totals.payable)}};
}

// An invoice as JSON; the text for people is made of the same.
Json InvoiceJson(const Document& document) {
  const isdoc::HeadFields head = isdoc::HeadOf(document);
  return {{"type", Shown(head.type)},
          {"document", Shown(head.number)},
          {"uuid", Shown(head.uuid)},
          {"dates", {{"issued", Shown(head.issued)}, {"tax_point", Shown(head.tax_point)}}},
          {"currency", Shown(head.currency)},
          {"foreign_currency", Shown(head.foreign_currency)},
          {"note", Shown(head.note)},
          {"supplier", PartyJson(document, "AccountingSupplierParty")},
          {"customer", PartyJson(document, "AccountingCustomerParty")},
          {"lines", LinesOf(document)},
          {"recapitulation", RatesOf(document)},
          {"totals", TotalsJson(isdoc::TotalsOf(document))},
          {"payments", PaymentsOf(document)}};
}

std::string Str(const Json& json, const char* name) { return json.at(name).get<std::string>(); }

void AddCaption(Columns& rows, const std::string& caption, const std::string& text) {
  if (!text.empty()) rows.Add({caption, text});
}

void AddParty(Columns& rows, const std::string& role, const Json& party) {
  if (party.is_null()) return;
  rows.Add({role, Joined({Str(party, "name"), Str(party, "address")}, ", ")});
  AddCaption(rows, Text("company number"), Str(party, "ico"));
  AddCaption(rows, Text("tax number"), Str(party, "dic"));
}

std::string HeadText(const Json& invoice) {
  Columns rows;
  AddParty(rows, Text("supplier"), invoice.at("supplier"));
  AddParty(rows, Text("customer"), invoice.at("customer"));
  for (const Field& field : kDates)
    AddCaption(rows, Text(field.caption), Str(invoice.at("dates"), field.name));
  AddCaption(rows, Text("remark"), Str(invoice, "note"));
  return rows.Text();
}

std::string RateText(const Json& row) {
  return Str(row, "rate") + " %" +
         (row.at("reverse_charge").get<bool>() ? ", " + Text("reverse charge") : "");
}

std::string LinesText(const Json& lines) {
  Columns rows;
  rows.Add({Text("line"), Text("description"), Text("quantity"), Text("unit price"), Text("rate"),
            Text("without tax"), Text("with tax")});
  for (const Json& line : lines) {
    rows.Add({Str(line, "line"), Str(line, "description"),
              Joined({Str(line, "quantity"), Str(line, "unit")}, " "), Str(line, "unit_price"),
              RateText(line), Str(line, "base"), Str(line, "total")});
  }
  return rows.Text();
}

std::string WayText(const Json& row) {
  for (const NamedWay& way : kWays) {
    if (way.code == Str(row, "way")) return Text(way.name);
  }
  // Untested: every row has one of the ways.
  return {};
}

std::string RatesText(const Json& rates) {
  Columns rows;
  rows.Add({Text("rate"), Text("base"), Text("tax"), Text("with tax"), Text("computed as")});
  for (const Json& row : rates)
    rows.Add({RateText(row), Str(row, "base"), Str(row, "tax"), Str(row, "total"), WayText(row)});
  return rows.Text();
}

std::string TotalsText(const Json& invoice) {
  Columns rows;
  const Json& totals = invoice.at("totals");
  const bool has_deposits = Str(totals, "claimed_total") != "0.00";
  for (const Field& field : kTotals) {
    const std::string amount = Str(totals, field.name);
    const std::string_view name = field.name;
    const bool says_something = amount != "0.00" && (name != "difference_total" || has_deposits);
    if (!amount.empty() && (says_something || name == "payable"))
      rows.Add({Text(field.caption), amount + " " + Str(invoice, "currency")});
  }
  return rows.Text();
}

std::string MeansText(const std::string& code) {
  for (const NamedCode& means : kPaymentMeans) {
    if (means.code == code) return Text(means.name);
  }
  return code;
}

std::string PaymentText(const Json& payment) {
  Columns rows;
  rows.Add({Text("payment"), Str(payment, "amount") + " " + MeansText(Str(payment, "means"))});
  AddCaption(rows, Text("due"), Str(payment, "due"));
  AddCaption(rows, Text("account"), Str(payment, "account"));
  for (const auto& [name, caption] : {std::pair("iban", "IBAN"), {"bic", "BIC"}})
    AddCaption(rows, caption, Str(payment, name));
  AddCaption(rows, Text("variable symbol"), Str(payment, "vs"));
  AddCaption(rows, Text("constant symbol"), Str(payment, "ks"));
  AddCaption(rows, Text("specific symbol"), Str(payment, "ss"));
  return rows.Text();
}

std::string InvoiceText(const Document& document, const Json& invoice) {
  std::string text = TitleOf(isdoc::HeadOf(document)) + "\n" + HeadText(invoice) + "\n" +
                     LinesText(invoice.at("lines")) + "\n" + RatesText(invoice.at("recapitulation")) + "\n" +
                     TotalsText(invoice);
  for (const Json& payment : invoice.at("payments")) text += "\n" + PaymentText(payment);
  return text;
}

}  // namespace

void ShowInvoice(const IsdocOptions& options, Outcome& outcome) {
  const Document document = ReadKnownInvoice(options.file);
  const Json invoice = InvoiceJson(document);
  AddOutput(outcome, options.json ? JsonLine(invoice) : InvoiceText(document, invoice));
}

}  // namespace tool
