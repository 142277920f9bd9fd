#pragma once

#include <ravo/document/path.h>
#include <ravo/document/text.h>

#include <span>
#include <string>
#include <vector>

namespace ravo::document {

/// A value to set at a path.
struct ValueChange {
  std::string path;
  std::string value;
};

struct EditOptions {
  bool is_raw = false;           ///< values are XML, to be written as they are
  bool uses_references = false;  ///< for characters that the encoding lacks
  bool adds = false;             ///< a missing attribute, or a missing next element of a name
};

/// Returns the edits that set values, in their order in the document. Throws `PathError` if a path leads
/// nowhere or a value does not fit there.
[[nodiscard]] std::vector<DocumentEdit> EditsFor(const DocumentText& text, const ScannedDocument& document,
                                                 std::span<const ValueChange> changes,
                                                 const EditOptions& options);

/// Returns whether a document has the values that were set. Throws `PathError` if it lacks a path.
[[nodiscard]] bool HasValues(const ScannedDocument& document, std::span<const ValueChange> changes,
                             bool is_raw);

/// Returns the decoded value at a place; if `is_raw`, its source.
[[nodiscard]] std::string ValueAt(const ScannedDocument& document, const DocumentPlace& place, bool is_raw);

/// Returns the position of an attribute value, or of the tag of an element.
[[nodiscard]] std::size_t PositionAt(const ScannedDocument& document, const DocumentPlace& place);

}  // namespace ravo::document
