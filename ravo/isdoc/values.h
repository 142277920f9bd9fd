#pragma once

#include <ravo/isdoc/finding.h>
#include <ravo/isdoc/schema.h>

#include <optional>
#include <string>
#include <string_view>

namespace ravo::isdoc::schema {

/// Why a text is no value of a type.
struct ValueFault {
  Rule rule{};
  std::string expected;
};

/// Returns why `text` is no value of the type; nothing if it is one.
[[nodiscard]] std::optional<ValueFault> FaultOf(const Type& type, std::string_view text);

/// Whether a text without blanks at its ends is in the lexical form of a built-in type of XML Schema 1.0.
///
/// Numbers may have any length, as the standard says. An address may have any characters but those that no
/// escaping allows.
[[nodiscard]] bool HasForm(BuiltIn type, std::string_view text) noexcept;

}  // namespace ravo::isdoc::schema
