#include "table_findings.h"

#include "printable.h"
#include "text.h"

#include <charconv>

namespace tool {
namespace {

void AppendNumber(std::string& to, std::uint64_t number) {
  char digits[24];
  const auto [end, error] = std::to_chars(digits, digits + sizeof digits, number);
  to.append(digits, end);
}

std::string JsonString(std::string_view utf8) {
  std::string json = "\"";
  AppendJson(json, utf8);
  return json + '"';
}

std::string ColumnPart(std::string_view name, std::string_view kind, bool json) {
  if (!json) return "\t" + OnOneLine(name) + "\t";
  return ",\"column\":" + JsonString(name) + ",\"kind\":" + JsonString(kind) + ",\"value\":\"";
}

// The two texts around the form feed in `text`, which stands for a number.
std::pair<std::string, std::string> Around(const std::string& text) {
  const std::size_t place = text.find('\f');
  return {text.substr(0, place), text.substr(place + 1)};
}

Reason ReasonAt(std::size_t index) { return static_cast<Reason>(index); }

std::string JsonReasons(const std::array<std::size_t, kReasons>& counts) {
  std::string json;
  for (std::size_t i = 0; i < kReasons; ++i) {
    if (counts[i] == 0) continue;
    json += (json.empty() ? "" : ",") + JsonString(CodeOf(ReasonAt(i))) + ":" + std::to_string(counts[i]);
  }
  return "{" + json + "}";
}

std::string JsonSummary(const std::vector<CheckedColumn>& columns, const TableCounts& counts,
                        std::size_t shown) {
  std::string list;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const ColumnCounts& column = counts.columns[i];
    list += (list.empty() ? "{\"column\":" : ",{\"column\":") + JsonString(columns[i].name) +
            ",\"kind\":" + JsonString(columns[i].kind->name) + ",\"valid\":" + std::to_string(column.valid) +
            ",\"reasons\":" + JsonReasons(column.reasons) + "}";
  }
  return "{\"type\":\"summary\",\"rows\":" + std::to_string(counts.rows) +
         ",\"rejected\":" + std::to_string(counts.rejected) +
         ",\"findings\":" + std::to_string(counts.findings) + ",\"shown\":" + std::to_string(shown) +
         ",\"reasons\":" + JsonReasons(counts.rows_by_reason) + ",\"columns\":[" + list + "]}\n";
}

std::string SummaryLine(std::string_view name, std::string_view kind, std::size_t count,
                        const std::string& what) {
  return OnOneLine(name) + "\t" + std::string(kind) + "\t" + std::to_string(count) + "\t" + what + "\n";
}

std::string ReasonLines(std::string_view name, std::string_view kind,
                        const std::array<std::size_t, kReasons>& counts) {
  std::string lines;
  for (std::size_t i = 0; i < kReasons; ++i) {
    if (counts[i] != 0) lines += SummaryLine(name, kind, counts[i], Described(ReasonAt(i)));
  }
  return lines;
}

}  // namespace

void TableCounts::Add(const TableCounts& other) {
  rows += other.rows;
  rejected += other.rejected;
  findings += other.findings;
  columns.resize(other.columns.size());
  for (std::size_t i = 0; i < kReasons; ++i) rows_by_reason[i] += other.rows_by_reason[i];
  for (std::size_t i = 0; i < columns.size(); ++i) {
    columns[i].valid += other.columns[i].valid;
    for (std::size_t r = 0; r < kReasons; ++r) columns[i].reasons[r] += other.columns[i].reasons[r];
  }
}

FindingLines::FindingLines(std::string_view file, std::string_view shown_file,
                           const std::vector<CheckedColumn>& columns, const TableText& text, bool json)
    : text_(text), json_(json) {
  const std::string place =
      shown_file.empty() ? Text("line {0}", {"\f"}) : Text("{0}: line {1}", {OnOneLine(shown_file), "\f"});
  std::tie(before_line_, after_line_) = Around(place);
  if (json) before_line_ = "{\"type\":\"finding\",\"file\":" + JsonString(file) + ",\"line\":";
  if (json) after_line_.clear();
  for (const CheckedColumn& column : columns)
    columns_.push_back(ColumnPart(column.name, column.kind->name, json));
  for (std::size_t i = 0; i < kReasons; ++i) {
    reasons_[i] =
        json ? "\",\"reason\":" + JsonString(CodeOf(ReasonAt(i))) + ",\"remark\":\"" : Described(ReasonAt(i));
  }
}

void FindingLines::AppendValueText(std::string& lines, std::string_view value) const {
  if (IsPrintableAscii(value) && !json_) {
    lines += value;
  } else if (json_) {
    AppendJson(lines, text_.Utf8(value));
  } else {
    lines += OnOneLine(text_.Utf8(value));
  }
}

void FindingLines::AppendValue(std::string& lines, std::size_t line, std::size_t column,
                               std::string_view value, Reason reason, std::string_view remark) const {
  lines += before_line_;
  AppendNumber(lines, line);
  lines += after_line_;
  lines += columns_[column];
  AppendValueText(lines, value);
  const std::string& why = reasons_[static_cast<std::size_t>(reason)];
  if (json_) {
    lines += why;
    AppendJson(lines, remark);
    lines += "\"}\n";
  } else {
    lines += '\t';
    lines += remark.empty() ? std::string_view(why) : remark;
    lines += '\n';
  }
}

void FindingLines::AppendRow(std::string& lines, std::size_t line, Reason reason,
                             std::string_view what) const {
  lines += before_line_;
  AppendNumber(lines, line);
  lines += after_line_;
  if (!json_) {
    lines.append("\t\t\t").append(what).append("\n");
    return;
  }
  lines += ",\"column\":null,\"kind\":null,\"value\":\"" + reasons_[static_cast<std::size_t>(reason)];
  AppendJson(lines, what);
  lines += "\"}\n";
}

std::string Summary(const std::vector<CheckedColumn>& columns, const TableCounts& counts, std::size_t shown,
                    bool json) {
  if (json) return JsonSummary(columns, counts, shown);
  std::string lines;
  if (shown < counts.findings) {
    lines += Text("findings shown: {0}, left out: {1}",
                  {std::to_string(shown), std::to_string(counts.findings - shown)}) +
             "\n";
  }
  lines += TextOf(static_cast<std::int64_t>(counts.rows), "one row, with findings: {1}",
                  "{0} rows, with findings: {1}", {std::to_string(counts.rejected)}) +
           "\n";
  lines += ReasonLines({}, {}, counts.rows_by_reason);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const CheckedColumn& column = columns[i];
    lines += SummaryLine(column.name, column.kind->name, counts.columns[i].valid, Text("valid"));
    lines += ReasonLines(column.name, column.kind->name, counts.columns[i].reasons);
  }
  return lines;
}

}  // namespace tool
