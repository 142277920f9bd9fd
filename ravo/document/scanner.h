#pragma once

#include <ravo/document/characters.h>
#include <ravo/document/message.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// A scanner of XML that keeps positions: where each tag, text and value begins and ends, so that an edit can
/// change a value and nothing else. It checks that the document is well-formed; of a document type
/// declaration it reads only the names and values of entities.
namespace ravo::document {

/// The bytes from `begin` to before `end` of the scanned text.
struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool operator==(const Span&) const = default;
  [[nodiscard]] std::size_t Size() const { return end - begin; }
  [[nodiscard]] std::string_view Of(std::string_view text) const { return text.substr(begin, end - begin); }
};

/// A defect of a document and the byte of its UTF-8 text where it is.
class DocumentError : public Refusal {
 public:
  DocumentError(Message message, std::size_t at, std::initializer_list<std::string_view> values = {})
      : Refusal(Fault(message, values)), at_(at) {}
  [[nodiscard]] std::size_t At() const { return at_; }

 private:
  std::size_t at_;
};

enum class PartKind : std::uint8_t {
  Declaration,
  Doctype,
  Comment,
  Instruction,
  Text,
  Section,
  OpenTag,
  EmptyTag,
  CloseTag
};

struct AttributePart {
  Span name;
  Span value;  ///< between the quotes
};

/// A piece of a document. The pieces cover the document without gaps; `Text` is everything but markup.
struct DocumentPart {
  PartKind kind = PartKind::Text;
  Span whole;
  Span name;  ///< of a tag or an instruction
  std::size_t first_attribute = 0;
  std::size_t attribute_count = 0;
  std::size_t partner = 0;  ///< the close tag of an open tag and the reverse; an empty tag is its own

  [[nodiscard]] bool OpensElement() const { return kind == PartKind::OpenTag || kind == PartKind::EmptyTag; }
};

/// An entity of the document type declaration.
struct DocumentEntity {
  std::string value;       ///< as written
  bool is_opaque = false;  ///< may contain markup: it is external, or has "<", "&" or "%" in its value
};

using DocumentEntities = std::map<std::string, DocumentEntity, std::less<>>;

struct ScannedDocument {
  std::string_view text;
  std::vector<DocumentPart> parts;
  std::vector<AttributePart> attributes;
  DocumentEntities entities;
  bool has_outer_declarations = false;  ///< entities may be declared outside of the document
  std::size_t root = 0;                 ///< the part that opens the root element
};

/// Returns the content of a CDATA section.
[[nodiscard]] inline Span InsideOf(const DocumentPart& section) {
  constexpr std::size_t kBegin = 9;  // "<![CDATA["
  constexpr std::size_t kEnd = 3;    // "]]>"
  return {section.whole.begin + kBegin, section.whole.end - kEnd};
}

/// Returns the parts of a document. `utf8` has no byte-order mark and must outlive the result. Throws
/// `DocumentError` if it is not XML.
[[nodiscard]] ScannedDocument ScanDocument(std::string_view utf8);

/// Checks that `raw` can be the content of an element of `document`. Throws `DocumentError` with a byte of
/// `raw` if not.
void ScanContent(const ScannedDocument& document, std::string_view raw);

/// Checks that `raw` can be an attribute value between quotes `quote`. Throws as `ScanContent` does.
void ScanValue(const ScannedDocument& document, std::string_view raw, char quote);

/// Returns the content between the tags of an element; empty and at its end for an empty tag.
[[nodiscard]] Span ContentOf(const ScannedDocument& document, std::size_t element);

}  // namespace ravo::document
