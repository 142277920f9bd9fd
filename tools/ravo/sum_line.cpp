#include "file_hash.h"

#include <algorithm>
#include <charconv>

namespace tool {
namespace {

constexpr std::size_t kSumDigits = 8;

std::string Hex(std::uint32_t value) {
  std::string text(kSumDigits, '0');
  for (std::size_t i = kSumDigits; i-- > 0; value >>= 4) text[i] = "0123456789ABCDEF"[value & 0xF];
  return text;
}

std::optional<std::uint32_t> FromHex(std::string_view text) {
  std::uint32_t value = 0;
  if (text.size() != kSumDigits) return {};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return value;
}

std::string Escaped(std::string_view name) {
  std::string text;
  for (const char ch : name) {
    if (ch == '\n') {
      text += "\\n";
    } else if (ch == '\r') {
      text += "\\r";
    } else {
      text += ch == '\\' ? std::string("\\\\") : std::string(1, ch);
    }
  }
  return text;
}

// Returns no value if a "\" precedes anything else.
std::optional<std::string> Unescaped(std::string_view text) {
  std::string name;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      name += text[i];
      continue;
    }
    if (++i == text.size()) return {};
    const std::size_t which = std::string_view("nr\\").find(text[i]);
    if (which == std::string_view::npos) return {};
    name += "\n\r\\"[which];
  }
  return name;
}

bool IsLabel(std::string_view text) {
  return text.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-") == std::string_view::npos;
}

// "LABEL (name) = 12345678": the label is the first word, the sum the last.
std::optional<SumLine> ParseLabelled(std::string_view text) {
  constexpr std::string_view kBefore = " (";
  constexpr std::string_view kBeforeSum = ") = ";
  const std::size_t label_end = text.find(kBefore);
  const std::size_t name_end = text.rfind(kBeforeSum);
  if (label_end == std::string_view::npos || name_end == std::string_view::npos) return {};
  const std::size_t name_begin = label_end + kBefore.size();
  const auto sum = FromHex(text.substr(name_end + kBeforeSum.size()));
  if (!sum || name_end <= name_begin || label_end == 0 || !IsLabel(text.substr(0, label_end))) return {};
  return SumLine{std::string(text.substr(0, label_end)), *sum,
                 std::string(text.substr(name_begin, name_end - name_begin))};
}

std::optional<SumLine> ParsePlain(std::string_view text) {
  if (text.size() <= kSumDigits + 2 || text[kSumDigits] != ' ') return {};
  if (text[kSumDigits + 1] != ' ' && text[kSumDigits + 1] != '*') return {};
  const auto sum = FromHex(text.substr(0, kSumDigits));
  if (!sum) return {};
  return SumLine{"", *sum, std::string(text.substr(kSumDigits + 2))};
}

}  // namespace

const FileSumKind* FileSumNamed(std::string_view name) {
  const auto found = std::ranges::find(kFileSums, name, &FileSumKind::name);
  return found == kFileSums.end() ? nullptr : &*found;
}

const FileSumKind* FileSumLabelled(std::string_view label) {
  const auto found = std::ranges::find(kFileSums, label, &FileSumKind::label);
  return found == kFileSums.end() ? nullptr : &*found;
}

std::string SumLineText(const SumLine& line) {
  const bool escape = line.name.find_first_of("\n\r") != std::string::npos;
  const std::string name = escape ? Escaped(line.name) : line.name;
  const std::string text =
      line.label.empty() ? Hex(line.sum) + "  " + name : line.label + " (" + name + ") = " + Hex(line.sum);
  return (escape ? "\\" : "") + text + "\n";
}

std::optional<SumLine> ParseSumLine(std::string_view text) {
  const bool escaped = text.starts_with('\\');
  if (escaped) text.remove_prefix(1);
  auto line = ParsePlain(text);
  if (!line) line = ParseLabelled(text);
  if (!line || !escaped) return line;
  const auto name = Unescaped(line->name);
  if (!name) return {};
  line->name = *name;
  return line;
}

}  // namespace tool
