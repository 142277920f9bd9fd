#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Compressed data as of RFC 1950 (zlib) and RFC 1951 (deflate).
namespace tool {

/// Returns whether this build can compress and decompress.
[[nodiscard]] bool HasCompression();

/// What frames the compressed data: a header and a checksum, or nothing as in a ZIP archive.
enum class DeflateFrame { Zlib, None };

/// Why data cannot be decompressed.
enum class InflateFault { Damaged, TooLarge };

/// What was decompressed, or why nothing was.
struct Inflated {
  std::string bytes;
  std::optional<InflateFault> fault;
};

/// Returns the bytes compressed with a zlib header. Precondition: `HasCompression()`.
[[nodiscard]] std::string Deflate(std::string_view bytes);

/// Returns the bytes of compressed data, which may be followed by others.
///
/// `TooLarge` as soon as there are more than `limit` bytes; no more than that is ever held. `Damaged` for
/// data that ends too soon, and in a build without compression.
[[nodiscard]] Inflated Inflate(std::string_view data, DeflateFrame frame, std::size_t limit);

}  // namespace tool
