#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace tool {

/// JSON whose members keep the order in which they were added.
using Json = nlohmann::ordered_json;

/// Indented text with a line end; what is no UTF-8 becomes U+FFFD rather than an error.
[[nodiscard]] std::string JsonText(const Json& value);

}  // namespace tool
