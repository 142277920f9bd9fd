#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace tool {

/// JSON whose members keep their insertion order.
using Json = nlohmann::ordered_json;

/// Returns indented JSON with a final line end; bytes that are not UTF-8 become U+FFFD instead of an error.
[[nodiscard]] std::string JsonText(const Json& value);

/// Returns JSON on one line with a final line end; bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string JsonLine(const Json& value);

}  // namespace tool
