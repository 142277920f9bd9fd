#pragma once

#include <ravo/document/codec.h>
#include <ravo/document/places.h>
#include <ravo/document/scanner.h>

#include <cstddef>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ravo::document {

/// The bytes of a document, its encoding and its text.
struct DocumentText {
  std::string bytes;
  std::string encoding;  ///< its name in `ravo encodings`
  std::string label;     ///< its name for people
  std::shared_ptr<const DocumentCodec> codec;
  std::size_t mark = 0;  ///< the size of the byte-order mark
  std::string utf8;      ///< without the mark
};

/// A defect of a document and its place.
class PlacedError : public Refusal {
 public:
  PlacedError(const Fault& fault, TextPlace place, std::size_t byte)
      : Refusal(fault), place_(place), byte_(byte) {}
  /// Returns line and column.
  [[nodiscard]] TextPlace Place() const { return place_; }
  /// Returns the place in the bytes of the document.
  [[nodiscard]] std::size_t Byte() const { return byte_; }

 private:
  TextPlace place_;
  std::size_t byte_;
};

/// Returns a defect of a text with its place.
[[nodiscard]] PlacedError PlacedIn(const DocumentText& text, const DocumentError& error);

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

/// A decoded and scanned document.
class OpenDocument {
 public:
  /// Throws `PlacedError` for bytes that are no document.
  explicit OpenDocument(std::string bytes);
  OpenDocument(const OpenDocument&) = delete;
  OpenDocument& operator=(const OpenDocument&) = delete;

  [[nodiscard]] const DocumentText& Text() const { return text_; }
  [[nodiscard]] const ScannedDocument& Document() const { return document_; }

 private:
  DocumentText text_;
  ScannedDocument document_;
};

}  // namespace ravo::document
