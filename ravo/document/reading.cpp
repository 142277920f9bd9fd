#include "reading.h"

#include <ravo/document/values.h>
#include <ravo/runtime/text.h>

namespace ravo::document {
namespace {

using ECXMLParser::TXMLItem;

ReadElement ElementOf(const ScannedDocument& document, const DocumentPart& part, std::size_t depth) {
  ReadElement element;
  element.name = part.name.Of(document.text);
  element.depth = depth;
  element.at = part.whole.begin;
  for (std::size_t i = 0; i < part.attribute_count; ++i) {
    const AttributePart& attribute = document.attributes[part.first_attribute + i];
    element.attributes.emplace_back(attribute.name.Of(document.text),
                                    DecodedValue(document, attribute.value));
  }
  return element;
}

ReadElement ElementOf(const TXMLItem& item, std::size_t depth) {
  ReadElement element;
  element.name = ToUtf8(item.Name());
  element.depth = depth;
  element.text = ToUtf8(item.Text());
  const StringList params = item.Params();
  for (std::size_t i = 0; i < params.Count(); ++i) {
    element.attributes.emplace_back(ToUtf8(params.NameAt(i)), ToUtf8(params.ValueAt(i)));
  }
  return element;
}

}  // namespace

DocumentReading ReadByScanner(const ScannedDocument& document) {
  DocumentReading reading;
  std::vector<std::size_t> open;
  for (const DocumentPart& part : document.parts) {
    if (part.OpensElement()) {
      reading.push_back(ElementOf(document, part, open.size()));
      if (part.kind == PartKind::OpenTag) open.push_back(reading.size() - 1);
    } else if (part.kind == PartKind::CloseTag) {
      open.pop_back();
    } else if (!open.empty()) {
      AppendText(document, part, reading[open.back()].text);
    }
  }
  return reading;
}

// Without recursion: a document may be deep.
DocumentReading ReadBySuite(const TXMLItem& root) {
  DocumentReading reading = {ElementOf(root, 0)};
  std::vector<std::pair<const TXMLItem*, std::int32_t>> way = {{&root, 0}};
  while (!way.empty()) {
    auto& [item, next] = way.back();
    if (next == item->SubItemCount()) {
      way.pop_back();
      continue;
    }
    const TXMLItem* const child = item->SubItems(next++);
    reading.push_back(ElementOf(*child, way.size()));
    way.emplace_back(child, 0);
  }
  return reading;
}

}  // namespace ravo::document
