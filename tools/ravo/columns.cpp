#include "columns.h"

#include "console.h"
#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>

#include <algorithm>

namespace tool {
namespace {

constexpr std::size_t kGap = 2;

bool TakesRoom(char16_t unit) {
  const bool second_half = unit >= 0xDC00 && unit <= 0xDFFF;
  return !second_half && !ravo::DIUnicode::CharIsMarkNon_SpacingW(unit);
}

std::string AlignedLine(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths) {
  std::string line;
  for (std::size_t i = 0; i + 1 < cells.size(); ++i) line += Padded(cells[i], widths[i] + kGap);
  if (!cells.empty()) line += cells.back();
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n";
}

std::string TabbedLine(const std::vector<std::string>& cells) {
  std::string line;
  for (const std::string& cell : cells) line.append(cell).append("\t");
  if (!line.empty()) line.pop_back();
  return line + "\n";
}

}  // namespace

std::size_t Width(std::string_view utf8) {
  return static_cast<std::size_t>(std::ranges::count_if(ravo::FromUtf8(utf8), TakesRoom));
}

std::string Padded(std::string_view utf8, std::size_t width) {
  const std::size_t own = Width(utf8);
  return std::string(utf8) + std::string(width > own ? width - own : 0, ' ');
}

std::vector<std::size_t> Columns::Widths() const {
  std::vector<std::size_t> widths;
  for (const auto& cells : rows_) {
    widths.resize(std::max(widths.size(), cells.size()));
    // The last cell of a row has nothing after it to align.
    for (std::size_t i = 0; i + 1 < cells.size(); ++i) widths[i] = std::max(widths[i], Width(cells[i]));
  }
  return widths;
}

std::string Columns::Text() const { return Text(IsTerminal(Channel::Out)); }

std::string Columns::Text(bool aligned) const {
  const std::vector<std::size_t> widths = aligned ? Widths() : std::vector<std::size_t>();
  std::string text;
  for (const auto& cells : rows_) text += aligned ? AlignedLine(cells, widths) : TabbedLine(cells);
  return text;
}

}  // namespace tool
