#pragma once

#include "document_codec.h"
#include "document_scanner.h"

#include <cstddef>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tool {

/// The bytes of a document, its encoding and its text.
struct DocumentText {
  std::string bytes;
  std::string encoding;  ///< its name in `ravo encodings`
  std::string label;     ///< its name for people
  std::shared_ptr<const DocumentCodec> codec;
  std::size_t mark = 0;  ///< the size of the byte-order mark
  std::string utf8;      ///< without the mark
};

/// An error with its place, such as "3:14: 'a' is not closed".
class PlacedError : public std::runtime_error {
 public:
  PlacedError(std::string_view utf8, const DocumentError& error);
};

/// Decodes a document as XML requires: by its byte-order mark, else from the encoding that it declares, else
/// from UTF-8. Throws `PlacedError` for bytes that are malformed in the encoding, and for an encoding that is
/// unknown or has no codec.
[[nodiscard]] DocumentText DecodeDocument(std::string bytes);

/// A replacement of a piece of a text.
struct DocumentEdit {
  Span span;         ///< of the text in UTF-8
  std::string utf8;  ///< its new content
};

/// Returns the bytes of a document after `edits`, which are in ascending order, do not overlap and can be
/// written in its encoding. All other bytes stay the same.
[[nodiscard]] std::string EditedBytes(const DocumentText& text, std::span<const DocumentEdit> edits);

}  // namespace tool
