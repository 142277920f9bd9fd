#include "document_file.h"
#include "isdoc_run.h"
#include "isdoc_work.h"
#include "json_text.h"
#include "xml_work.h"
#include <ravo/isdoc/fields.h>

#include <initializer_list>
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

void AddCells(CsvCells& cells, std::initializer_list<std::string_view> texts) {
  cells.insert(cells.end(), texts.begin(), texts.end());
}

void AddCells(CsvCells& cells, const isdoc::AmountFields& amounts) {
  AddCells(cells, {amounts.base, amounts.tax, amounts.total});
}

std::string_view YesOrNo(bool answer) { return answer ? "true" : "false"; }

// What every row of an invoice begins with.
CsvCells DocumentCells(const std::string& name, const isdoc::Document& invoice) {
  const isdoc::HeadFields head = isdoc::HeadOf(invoice);
  CsvCells cells{name};
  AddCells(cells, {head.number, head.type, head.issued, head.tax_point});
  for (const std::string_view role : {"AccountingSupplierParty", "AccountingCustomerParty"}) {
    const isdoc::PartyFields party = isdoc::PartyOf(invoice, role);
    AddCells(cells, {party.ico, party.dic, party.name});
  }
  AddCells(cells, {head.currency});
  return cells;
}

CsvCells LineCells(const isdoc::LineFields& line) {
  CsvCells cells;
  AddCells(cells, {line.number, line.text, line.quantity, line.unit, line.unit_price, line.rate,
                   YesOrNo(line.reverse_charge), line.base, line.tax, line.total});
  return cells;
}

CsvCells RateCells(const isdoc::RateFields& row) {
  CsvCells cells;
  AddCells(cells, {row.rate, YesOrNo(row.reverse_charge)});
  for (const isdoc::AmountFields& amounts : {row.all, row.claimed, row.difference}) AddCells(cells, amounts);
  return cells;
}

// A cell with a delimiter, a quote or a line end gets quotes; what looks like a formula stays as it is.
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
  if (options.recapitulation)
    isdoc::ForEachRow(invoice, isdoc::kRatePlace,
                      [&](const auto& row) { add(RateCells(isdoc::RateOf(invoice, row))); });
  else
    isdoc::ForEachRow(invoice, isdoc::kLinePlace,
                      [&](const auto& row) { add(LineCells(isdoc::LineOf(invoice, row))); });
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
