#include "program_values.h"

#include "table_shape.h"
#include "table_text.h"
#include "text.h"

#include <charconv>
#include <string_view>

namespace tool {
namespace {

constexpr std::string_view kTab = "tab";

std::string CheckDelimiter(const std::string& value) {
  const bool is_one = value.size() == 1 && kDelimiters.find(value) != std::string_view::npos;
  if (is_one || value == kTab) return {};
  return Text("'{0}' is not a delimiter; delimiters are ';', ',', '|' and tab", {value});
}

}  // namespace

CLI::Validator AtLeast(std::int64_t least) {
  const auto check = [least](const std::string& value) -> std::string {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    const bool is_number = error == std::errc() && end == value.data() + value.size();
    if (is_number && number >= least) return {};
    return Text("'{0}' is not a whole number of at least {1}", {value, std::to_string(least)});
  };
  return {check, ""};
}

CLI::Option* AddNotationOption(CLI::App& command, std::string& notation) {
  return command
      .add_option("--notation", notation,
                  Text("How to write answers: input (like the amount), plain (1234.56), cs (1 234,56) or en "
                       "(1,234.56)"))
      ->check(CLI::IsMember({"input", "plain", "cs", "en"}))
      ->capture_default_str();
}

CLI::Option* AddDelimiterOption(CLI::App& command, std::string& delimiter) {
  return command
      .add_option("--delimiter", delimiter, Text("The delimiter between fields; detected by default"))
      ->type_name(Text("CHAR"))
      ->check(CLI::Validator(CheckDelimiter, ""));
}

char DelimiterOf(const std::string& value) {
  if (value == kTab) return '\t';
  return value.empty() ? '\0' : value.front();
}

CLI::Option* AddTableEncodingOption(CLI::App& command, std::string& encoding) {
  return command.add_option("--encoding", encoding, Text("The encoding of the tables; detected by default"))
      ->type_name(Text("ENCODING"));
}

const ravo::DIUnicode::EncodingRow* TableEncodingOf(const std::string& value) {
  if (value.empty()) return nullptr;
  const ravo::DIUnicode::EncodingRow* const row = ravo::DIUnicode::FindEncoding(value);
  if (row == nullptr)
    throw CLI::ValidationError(Text("there is no encoding {0}; see ravo encodings", {value}));
  if (!TableText::CanRead(*row)) {
    throw CLI::ValidationError(
        Text("tables in {0} cannot be read; convert them first: ravo convert", {value}));
  }
  return row;
}

void RefuseFlagValues(CLI::App& command) {
  for (CLI::Option* const option : command.get_options([](const CLI::Option*) { return true; })) {
    if (option->get_expected_max() == 0) option->disable_flag_override();
  }
  for (CLI::App* const part : command.get_subcommands({})) RefuseFlagValues(*part);
}

}  // namespace tool
