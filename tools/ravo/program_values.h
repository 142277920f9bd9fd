#pragma once

#include <ravo/DIUnicode.h>

#include <cstdint>
#include <string>

#include <CLI/CLI.hpp>

/// Values that several commands take, with their rules and the messages for wrong ones.
namespace tool {

/// Returns the rule that a value is a whole number of at least `least`.
[[nodiscard]] CLI::Validator AtLeast(std::int64_t least);

/// Adds the option --notation for amounts in answers; `NotationAsked` knows its values.
CLI::Option* AddNotationOption(CLI::App& command, std::string& notation);

/// Adds the option --delimiter for the fields of a table.
CLI::Option* AddDelimiterOption(CLI::App& command, std::string& delimiter);

/// Returns the delimiter that a value of that option names; 0, for one that is detected, if it is empty.
[[nodiscard]] char DelimiterOf(const std::string& value);

/// Adds the option --encoding for tables.
CLI::Option* AddTableEncodingOption(CLI::App& command, std::string& encoding);

/// Returns the encoding that a value of that option names; null, for one that is found out, if it is empty.
/// Throws `CLI::ValidationError` for an encoding that no table can have.
[[nodiscard]] const ravo::DIUnicode::EncodingRow* TableEncodingOf(const std::string& value);

/// Makes "--json=x" wrong usage for every flag of the command and of its parts.
void RefuseFlagValues(CLI::App& command);

}  // namespace tool
