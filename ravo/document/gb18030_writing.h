#pragma once

#include <ravo/codec/encoding.h>

#include <string>

namespace ravo::document {

/// Appends the bytes of a character in GB 18030, which the library reads and does not write; returns false if
/// `row`, its encoding, lacks it.
[[nodiscard]] bool AppendGb18030(const codec::Encoding& row, char32_t c, std::string& to);

}  // namespace ravo::document
