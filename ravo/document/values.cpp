#include "values.h"

#include <algorithm>

namespace ravo::document {
namespace {

// Texts without "&": the line ends of all kinds as "\n".
void AppendPlain(std::string_view raw, std::string& to) {
  for (std::size_t at = 0; at < raw.size();) {
    const std::size_t end = std::min(raw.find('\r', at), raw.size());
    to += raw.substr(at, end - at);
    if (end < raw.size()) to += '\n';
    at = end + (raw.substr(end).starts_with("\r\n") ? 2 : 1);
  }
}

void AppendValue(std::string_view raw, std::string& to) {
  const std::size_t begin = to.size();
  AppendPlain(raw, to);
  std::replace_if(
      to.begin() + static_cast<std::ptrdiff_t>(begin), to.end(),
      [](char ch) { return ch == '\n' || ch == '\t'; }, ' ');
}

using Append = void (*)(std::string_view raw, std::string& to);

void AppendReference(const ScannedDocument& document, std::string_view reference, Append append,
                     std::string& to) {
  if (const char32_t c = CharacterOfReference(reference); c != 0) return AppendUtf8(c, to);
  const auto entity = document.entities.find(NameOfReference(reference));
  const bool is_known = entity != document.entities.end() && !entity->second.is_opaque;
  append(is_known ? std::string_view(entity->second.value) : reference, to);
}

std::string Decoded(const ScannedDocument& document, std::string_view raw, Append append) {
  std::string decoded;
  for (std::size_t at = 0; at < raw.size();) {
    const std::size_t end = std::min(raw.find('&', at), raw.size());
    append(raw.substr(at, end - at), decoded);
    if (end == raw.size()) break;
    const std::string_view reference = ReferenceAt(raw, end);
    AppendReference(document, reference, append, decoded);
    at = end + reference.size();
  }
  return decoded;
}

}  // namespace

std::string DecodedText(const ScannedDocument& document, Span span) {
  return Decoded(document, span.Of(document.text), AppendPlain);
}

std::string DecodedValue(const ScannedDocument& document, Span span) {
  return Decoded(document, span.Of(document.text), AppendValue);
}

void AppendText(const ScannedDocument& document, const DocumentPart& part, std::string& to) {
  if (part.kind == PartKind::Text) to += DecodedText(document, part.whole);
  if (part.kind == PartKind::Section) AppendPlain(InsideOf(part).Of(document.text), to);
}

std::string OwnText(const ScannedDocument& document, std::size_t element) {
  std::string text;
  for (std::size_t i = element + 1; i < document.parts[element].partner; ++i) {
    if (document.parts[i].OpensElement()) i = document.parts[i].partner;
    AppendText(document, document.parts[i], text);
  }
  return text;
}

}  // namespace ravo::document
