#pragma once

#include <ravo/DIUnicode.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace tool {

/// How a text is converted.
struct Conversion {
  /// Null: by the byte-order mark, which is left out; without one, UTF-8.
  const ravo::DIUnicode::EncodingRow* from = nullptr;
  const ravo::DIUnicode::EncodingRow* to = nullptr;
  /// What is written for a character that cannot be; none: the conversion ends there.
  std::optional<char16_t> replacement;
};

/// Where a conversion ended before the end, and why: "3:14: U+4E00 cannot be written in Windows_1250".
using Refusal = std::optional<std::string>;

/// Converts what is left of `source` and appends it to what `writer` has, which has the encoding of `to` set.
/// Without a replacement ends at the first character that cannot be read or written. `progress` hears now and
/// then how many bytes of the source were read.
[[nodiscard]] Refusal Convert(const Conversion& conversion, ravo::ByteStream& source,
                              ravo::DIUnicode::TDIUnicodeWriter& writer,
                              const std::function<void(std::int64_t)>& progress);

}  // namespace tool
