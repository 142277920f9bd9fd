#include "columns.h"
#include "isdoc_fields.h"
#include "isdoc_file.h"
#include "isdoc_work.h"
#include "json_text.h"
#include "printable.h"
#include "text.h"
#include "xml_tree_text.h"
#include "xml_work.h"
#include <ravo/isdoc/amount.h>
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

// Amounts have two decimals at least; what is no number stays as it is.
std::string Money(const std::string& text) {
  const auto amount = isdoc::Amount::Read(text);
  return amount ? amount->Text() : text;
}

// The fields of a document by paths, for the text and for JSON.
class View {
 public:
  explicit View(const Document& document) : document_(document) {}

  [[nodiscard]] const Document& Source() const { return document_; }
  [[nodiscard]] const Element* At(std::initializer_list<std::string_view> path) const {
    return ElementAt(document_, &document_.Root(), path);
  }
  [[nodiscard]] std::string Field(const Element* element,
                                  std::initializer_list<std::string_view> path) const {
    return OnOneLine(TextAt(document_, element, path));
  }
  [[nodiscard]] std::string Head(std::string_view name) const { return Field(&document_.Root(), {name}); }

 private:
  const Document& document_;
};

std::string TitleOf(const View& view) {
  const std::string type = view.Head("DocumentType");
  const bool is_known = type.size() == 1 && type[0] >= '1' && type[0] <= '7';
  return Text(kTypes[is_known ? type[0] - '0' : 0]) + " " + view.Head("ID");
}

std::string Joined(std::initializer_list<std::string> parts, std::string_view between) {
  std::string text;
  for (const std::string& part : parts) {
    if (!part.empty() && !text.empty()) text += between;
    text += part;
  }
  return text;
}

std::string AddressOf(const View& view, const Element* party) {
  const auto field = [&](std::initializer_list<std::string_view> path) { return view.Field(party, path); };
  return Joined(
      {Joined({field({"PostalAddress", "StreetName"}), field({"PostalAddress", "BuildingNumber"})}, " "),
       Joined({field({"PostalAddress", "PostalZone"}), field({"PostalAddress", "CityName"})}, " "),
       field({"PostalAddress", "Country", "IdentificationCode"})},
      ", ");
}

Json PartyJson(const View& view, const char* role) {
  const Element* const party = view.At({role, "Party"});
  if (party == nullptr) return nullptr;
  return {{"name", view.Field(party, {"PartyName", "Name"})},
          {"address", AddressOf(view, party)},
          {"ico", view.Field(party, {"PartyIdentification", "ID"})},
          {"dic", OnOneLine(TaxNumberOf(view.Source(), party))}};
}

struct Field {
  const char* name;     // in JSON
  const char* caption;  // for people
  std::string_view element;
};
constexpr Field kDates[] = {
    {"issued", ToTranslate("issued"), "IssueDate"},
    {"tax_point", ToTranslate("tax point"), "TaxPointDate"},
};
constexpr Field kTotals[] = {
    {"base", ToTranslate("without tax"), "TaxExclusiveAmount"},
    {"total", ToTranslate("with tax"), "TaxInclusiveAmount"},
    {"claimed_total", ToTranslate("taxed deposits"), "AlreadyClaimedTaxInclusiveAmount"},
    {"difference_total", ToTranslate("less the taxed deposits"), "DifferenceTaxInclusiveAmount"},
    {"rounding", ToTranslate("rounding"), "PayableRoundingAmount"},
    {"paid_deposits", ToTranslate("paid deposits"), "PaidDepositsAmount"},
    {"payable", ToTranslate("to pay"), "PayableAmount"},
};

std::vector<Json> LinesOf(const View& view) {
  std::vector<Json> lines;
  const Element* const all = view.At({"InvoiceLines"});
  if (all == nullptr) return lines;
  isdoc::ForEachChild(view.Source(), *all, "InvoiceLine", [&](const Element& line) {
    const auto field = [&](std::initializer_list<std::string_view> path) { return view.Field(&line, path); };
    const bool is_reverse =
        ElementAt(view.Source(), &line, {"ClassifiedTaxCategory", "LocalReverseCharge"}) != nullptr;
    const Element* const quantity = ElementAt(view.Source(), &line, {"InvoicedQuantity"});
    lines.push_back({{"line", field({"ID"})},
                     {"description", field({"Item", "Description"})},
                     {"quantity", field({"InvoicedQuantity"})},
                     {"unit", OnOneLine(AttributeAt(view.Source(), quantity, "unitCode"))},
                     {"unit_price", Money(field({"UnitPrice"}))},
                     {"rate", field({"ClassifiedTaxCategory", "Percent"})},
                     {"reverse_charge", is_reverse},
                     {"base", Money(field({"LineExtensionAmount"}))},
                     {"tax", Money(field({"LineExtensionTaxAmount"}))},
                     {"total", Money(field({"LineExtensionAmountTaxInclusive"}))}});
  });
  return lines;
}

std::vector<Json> RatesOf(const View& view) {
  std::vector<Json> rates;
  for (const isdoc::RateWay& rate : isdoc::TaxWays(view.Source())) {
    const auto field = [&](std::initializer_list<std::string_view> path) {
      return view.Field(rate.subtotal, path);
    };
    rates.push_back({{"rate", field({"TaxCategory", "Percent"})},
                     {"reverse_charge", field({"TaxCategory", "LocalReverseChargeFlag"}) == "true"},
                     {"base", Money(field({"TaxableAmount"}))},
                     {"tax", Money(field({"TaxAmount"}))},
                     {"total", Money(field({"TaxInclusiveAmount"}))},
                     {"way", Named(rate.way).code}});
  }
  return rates;
}

std::vector<Json> PaymentsOf(const View& view) {
  std::vector<Json> payments;
  const Element* const all = view.At({"PaymentMeans"});
  if (all == nullptr) return payments;
  isdoc::ForEachChild(view.Source(), *all, "Payment", [&](const Element& payment) {
    const Element* const details = ElementAt(view.Source(), &payment, {"Details"});
    const auto detail = [&](std::string_view name) { return view.Field(details, {name}); };
    const std::string account = Joined({detail("ID"), detail("BankCode")}, "/");
    payments.push_back({{"amount", Money(view.Field(&payment, {"PaidAmount"}))},
                        {"means", view.Field(&payment, {"PaymentMeansCode"})},
                        {"due", detail("PaymentDueDate")},
                        {"account", account},
                        {"iban", detail("IBAN")},
                        {"bic", detail("BIC")},
                        {"vs", detail("VariableSymbol")},
                        {"ks", detail("ConstantSymbol")},
                        {"ss", detail("SpecificSymbol")}});
  });
  return payments;
}

Json FieldsOf(const View& view, const Element* element, std::span<const Field> fields, bool are_amounts) {
  Json json = Json::object();
  for (const Field& field : fields) {
    const std::string text = view.Field(element, {field.element});
    json[field.name] = are_amounts ? Money(text) : text;
  }
  return json;
}

// An invoice as JSON; the text for people is made of the same.
Json InvoiceJson(const View& view) {
  const std::string foreign = view.Head("ForeignCurrencyCode");
  const std::string local = view.Head("LocalCurrencyCode");
  return {{"type", view.Head("DocumentType")},
          {"document", view.Head("ID")},
          {"uuid", view.Head("UUID")},
          {"dates", FieldsOf(view, &view.Source().Root(), kDates, false)},
          {"currency", local},
          {"foreign_currency", foreign},
          {"note", view.Head("Note")},
          {"supplier", PartyJson(view, "AccountingSupplierParty")},
          {"customer", PartyJson(view, "AccountingCustomerParty")},
          {"lines", LinesOf(view)},
          {"recapitulation", RatesOf(view)},
          {"totals", FieldsOf(view, view.At({"LegalMonetaryTotal"}), kTotals, true)},
          {"payments", PaymentsOf(view)}};
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

std::string InvoiceText(const View& view, const Json& invoice) {
  std::string text = TitleOf(view) + "\n" + HeadText(invoice) + "\n" + LinesText(invoice.at("lines")) + "\n" +
                     RatesText(invoice.at("recapitulation")) + "\n" + TotalsText(invoice);
  for (const Json& payment : invoice.at("payments")) text += "\n" + PaymentText(payment);
  return text;
}

}  // namespace

void ShowInvoice(const IsdocOptions& options, Outcome& outcome) {
  const Document document = ReadKnownInvoice(options.file);
  const View view(document);
  const Json invoice = InvoiceJson(view);
  AddOutput(outcome, options.json ? JsonLine(invoice) : InvoiceText(view, invoice));
}

}  // namespace tool
