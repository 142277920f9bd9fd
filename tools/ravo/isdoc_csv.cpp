#include "document_file.h"
#include "isdoc_fields.h"
#include "isdoc_run.h"
#include "isdoc_work.h"
#include "json_text.h"
#include "xml_work.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tool {
namespace {

namespace isdoc = ravo::isdoc;

using CsvCells = std::vector<std::string>;

constexpr std::string_view kDocumentColumns[] = {
    "file",         "document", "type",         "issued",       "tax_point", "supplier_ico",
    "supplier_dic", "supplier", "customer_ico", "customer_dic", "customer",  "currency",
};
constexpr std::string_view kLineColumns[] = {
    "line", "description", "quantity", "unit", "unit_price", "rate", "reverse_charge", "base", "tax", "total",
};
constexpr std::string_view kRateColumns[] = {
    "rate",
    "reverse_charge",
    "base",
    "tax",
    "total",
    "claimed_base",
    "claimed_tax",
    "claimed_total",
    "difference_base",
    "difference_tax",
    "difference_total",
};

CsvCells PartyCells(const isdoc::Document& invoice, std::string_view role) {
  const isdoc::Element* const party = ElementAt(invoice, &invoice.Root(), {role, "Party"});
  return {TextAt(invoice, party, {"PartyIdentification", "ID"}), TaxNumberOf(invoice, party),
          TextAt(invoice, party, {"PartyName", "Name"})};
}

// What every row of an invoice begins with.
CsvCells DocumentCells(const std::string& name, const isdoc::Document& invoice) {
  const isdoc::Element* const root = &invoice.Root();
  CsvCells cells{name};
  for (const std::string_view field : {"ID", "DocumentType", "IssueDate", "TaxPointDate"})
    cells.push_back(TextAt(invoice, root, {field}));
  for (const std::string_view role : {"AccountingSupplierParty", "AccountingCustomerParty"}) {
    for (std::string& cell : PartyCells(invoice, role)) cells.push_back(std::move(cell));
  }
  cells.push_back(TextAt(invoice, root, {"LocalCurrencyCode"}));
  return cells;
}

CsvCells LineCells(const isdoc::Document& invoice, const isdoc::Element& line) {
  const auto text = [&](std::initializer_list<std::string_view> path) {
    return TextAt(invoice, &line, path);
  };
  const bool is_reverse =
      ElementAt(invoice, &line, {"ClassifiedTaxCategory", "LocalReverseCharge"}) != nullptr;
  return {text({"ID"}),
          text({"Item", "Description"}),
          text({"InvoicedQuantity"}),
          AttributeAt(invoice, ElementAt(invoice, &line, {"InvoicedQuantity"}), "unitCode"),
          text({"UnitPrice"}),
          text({"ClassifiedTaxCategory", "Percent"}),
          is_reverse ? "true" : "false",
          text({"LineExtensionAmount"}),
          text({"LineExtensionTaxAmount"}),
          text({"LineExtensionAmountTaxInclusive"})};
}

CsvCells RateCells(const isdoc::Document& invoice, const isdoc::Element& row) {
  const std::string reverse = TextAt(invoice, &row, {"TaxCategory", "LocalReverseChargeFlag"});
  CsvCells cells{TextAt(invoice, &row, {"TaxCategory", "Percent"}), reverse == "true" ? "true" : "false"};
  for (const std::string_view name :
       {"TaxableAmount", "TaxAmount", "TaxInclusiveAmount", "AlreadyClaimedTaxableAmount",
        "AlreadyClaimedTaxAmount", "AlreadyClaimedTaxInclusiveAmount", "DifferenceTaxableAmount",
        "DifferenceTaxAmount", "DifferenceTaxInclusiveAmount"})
    cells.push_back(TextAt(invoice, &row, {name}));
  return cells;
}

// A cell with a delimiter, a quote or a line end stands in quotes; what looks like a formula stays as it is.
std::string CsvCell(const std::string& cell) {
  if (cell.find_first_of(";\"\r\n") == std::string::npos) return cell;
  std::string quoted = "\"";
  for (const char c : cell) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

template <class Texts>
std::string CsvRow(const Texts& cells) {
  std::string row;
  for (const auto& cell : cells) row += CsvCell(std::string(cell)) + ";";
  row.back() = '\n';
  return row;
}

std::vector<std::string_view> ColumnsOf(bool recapitulation) {
  std::vector<std::string_view> columns(std::begin(kDocumentColumns), std::end(kDocumentColumns));
  const auto own = recapitulation ? std::span<const std::string_view>(kRateColumns) : std::span(kLineColumns);
  columns.insert(columns.end(), own.begin(), own.end());
  return columns;
}

std::string RowText(const IsdocOptions& options, CsvCells cells, const CsvCells& own) {
  cells.insert(cells.end(), own.begin(), own.end());
  if (!options.json) return CsvRow(cells);
  Json json;
  const auto columns = ColumnsOf(options.recapitulation);
  for (std::size_t i = 0; i < cells.size(); ++i) json[std::string(columns[i])] = cells[i];
  return JsonLine(json);
}

InvoiceResult RowsOf(const IsdocOptions& options, const std::string& name, const isdoc::Document& invoice) {
  InvoiceResult result;
  const CsvCells document = DocumentCells(name, invoice);
  const auto add = [&](const CsvCells& own) { result.out += RowText(options, document, own); };
  const char* const all = options.recapitulation ? "TaxTotal" : "InvoiceLines";
  const isdoc::Element* const rows = ElementAt(invoice, &invoice.Root(), {all});
  if (rows == nullptr) return result;
  if (options.recapitulation)
    isdoc::ForEachChild(invoice, *rows, "TaxSubTotal",
                        [&](const auto& row) { add(RateCells(invoice, row)); });
  else
    isdoc::ForEachChild(invoice, *rows, "InvoiceLine",
                        [&](const auto& row) { add(LineCells(invoice, row)); });
  return result;
}

}  // namespace

void WriteInvoicesAsTable(const IsdocOptions& options, Outcome& outcome) {
  if (!options.json) AddOutput(outcome, CsvRow(ColumnsOf(options.recapitulation)));
  static_cast<void>(
      RunOverInvoices(options.files, outcome, [&](const std::string& name, const isdoc::Document& invoice) {
        return RowsOf(options, name, invoice);
      }));
}

}  // namespace tool
