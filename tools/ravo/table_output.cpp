#include "table_output.h"

#include "console.h"
#include "printable.h"
#include "text.h"

#include <algorithm>
#include <cstdint>

namespace tool {
namespace {

// So many lines decide how wide columns are; later ones only widen them.
constexpr std::size_t kWaiting = 500;

void WriteOut(std::string_view text) {
  if (!tool::Write(Channel::Out, text)) throw OutputError();
}

// Returns the number of characters; a combining mark of U+0300 to U+036F takes no place of its own.
std::size_t WidthOf(std::string_view utf8) {
  std::size_t width = 0;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    const bool continues = (byte & 0xC0) == 0x80;
    const bool combines = byte == 0xCC || (byte == 0xCD && i + 1 < utf8.size() &&
                                           static_cast<unsigned char>(utf8[i + 1]) < 0xB0);
    width += continues || combines ? 0 : 1;
  }
  return width;
}

std::vector<std::string_view> FieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  for (;;) {
    const std::size_t tab = line.find('\t');
    fields.push_back(line.substr(0, tab));
    if (tab == std::string_view::npos) return fields;
    line.remove_prefix(tab + 1);
  }
}

// The last field of a line is as long as it is.
void Widen(std::vector<std::size_t>& widths, const std::vector<std::string_view>& fields) {
  if (widths.size() + 1 < fields.size()) widths.resize(fields.size() - 1);
  for (std::size_t i = 0; i + 1 < fields.size(); ++i) widths[i] = std::max(widths[i], WidthOf(fields[i]));
}

std::string LineOf(const std::vector<std::string_view>& fields, const std::vector<std::size_t>& widths) {
  std::string line;
  for (std::size_t i = 0; i + 1 < fields.size(); ++i) {
    line.append(fields[i]).append(widths[i] - WidthOf(fields[i]) + 2, ' ');
  }
  return line.append(fields.back()).append("\n");
}

// Returns the part of `text` with its first `count` lines.
std::string_view FirstLines(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; count > 0; --count) end = text.find('\n', end) + 1;
  return text.substr(0, end);
}

}  // namespace

void Complain(const std::string& file, const std::string& what) {
  static_cast<void>(
      tool::Write(Channel::Err, "ravo check: " + (file.empty() ? "" : OnOneLine(file) + ": ") + what + "\n"));
}

OutputError::OutputError() : std::runtime_error(Text("the output cannot be written")) {}

std::string Aligned(const std::vector<std::string>& lines, std::vector<std::size_t>& widths) {
  for (const std::string& line : lines) Widen(widths, FieldsOf(line));
  std::string text;
  for (const std::string& line : lines) text += LineOf(FieldsOf(line), widths);
  return text;
}

TableOutput::TableOutput(std::size_t limit) : limit_(limit), is_terminal_(tool::IsTerminal(Channel::Out)) {}

void TableOutput::WriteLimited(std::string_view lines, std::size_t count) {
  const std::size_t left = limit_ - written_;
  if (left == 0 || count == 0) return;
  written_ += std::min(count, left);
  Write(count > left ? FirstLines(lines, left) : lines);
}

void TableOutput::Write(std::string_view lines) {
  if (!is_terminal_) return WriteOut(lines);
  while (!lines.empty()) {
    const std::size_t end = lines.find('\n');
    waiting_.emplace_back(lines.substr(0, end));
    lines.remove_prefix(end + 1);
    if (waiting_.size() == kWaiting) ShowWaiting();
  }
}

void TableOutput::ShowWaiting() {
  WriteOut(Aligned(waiting_, widths_));
  waiting_.clear();
}

void TableOutput::WriteLast(std::string_view lines) {
  if (is_terminal_) {
    ShowWaiting();
    widths_.clear();
  }
  Write(lines);
  if (is_terminal_) ShowWaiting();
}

}  // namespace tool
