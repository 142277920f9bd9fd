// Documents of any bytes, taken apart with their positions: the parts are the document, attributes stand
// where they say, tags pair up, and plain documents are refused exactly where expat refuses them.
#include <ravo/document/places.h>
#include <ravo/document/values.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include <expat.h>

namespace document = ravo::document;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

std::optional<document::ScannedDocument> Scanned(std::string_view text) {
  try {
    return document::ScanDocument(text);
  } catch (const document::DocumentError& error) {
    Require(error.At() <= text.size());
    return std::nullopt;
  }
}

void CheckParts(const document::ScannedDocument& document) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < document.parts.size(); ++i) {
    const document::DocumentPart& part = document.parts[i];
    Require(part.whole.begin == at && part.whole.end > at);
    at = part.whole.end;
    const bool is_tag = part.kind >= document::PartKind::OpenTag;
    if (!is_tag) continue;
    Require(document.parts[part.partner].partner == i && document::IsXmlName(part.name.Of(document.text)));
    Require(document.parts[part.partner].name.Of(document.text) == part.name.Of(document.text));
    for (std::size_t a = 0; a < part.attribute_count; ++a) {
      const document::AttributePart& attribute = document.attributes[part.first_attribute + a];
      Require(attribute.name.begin > part.whole.begin && attribute.value.end < part.whole.end);
      Require(document.text[attribute.value.begin - 1] == document.text[attribute.value.end]);
      static_cast<void>(document::DecodedValue(document, attribute.value));
    }
  }
  Require(at == document.text.size());
}

// The content of the root element is content by itself.
void CheckFragment(const document::ScannedDocument& document) {
  const document::DocumentPart& root = document.parts[document.root];
  const std::size_t end = document.parts[root.partner].whole.begin;
  if (root.kind == document::PartKind::OpenTag) {
    document::ScanContent(document, document.text.substr(root.whole.end, end - root.whole.end));
  }
}

bool ExpatTakes(std::string_view text) {
  const XML_Parser parser = XML_ParserCreate("UTF-8");
  const auto status = XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1);
  XML_ParserFree(parser);
  return status == XML_STATUS_OK;
}

// Names past ASCII have another edition there; of declarations little is read here.
bool IsPlain(std::string_view text) {
  return text.find("<!DOCTYPE") == std::string_view::npos && !text.starts_with("<?xml") &&
         std::ranges::all_of(text, [](char ch) { return static_cast<unsigned char>(ch) < 0x80; });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const auto document = Scanned(text);
  if (document) {
    CheckParts(*document);
    CheckFragment(*document);
  }
  if (IsPlain(text)) Require(document.has_value() == ExpatTakes(text));
  document::PlaceFinder places(text);
  for (std::size_t at = 0; at <= size; at += 1 + size / 16) static_cast<void>(places.Find(at));
  return 0;
}
