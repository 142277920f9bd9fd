#include "edit.h"

#include <ravo/document/values.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>
#include <utility>

namespace ravo::document {
namespace {

constexpr std::string_view kSectionBegin = "<![CDATA[";
constexpr std::string_view kSectionEnd = "]]>";

std::string NumericReference(char32_t c) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), c < 0x20 ? "&#%u;" : "&#x%X;", static_cast<unsigned>(c));
  return text.data();
}

// Where a value is, which decides what must be escaped: in text, in a CDATA section, or between quotes.
enum class Within : char { Text = 0, Section = ']', Double = '"', Single = '\'' };

// Escapes values for their place and encoding.
class ValueWriter {
 public:
  ValueWriter(const DocumentText& text, const ScannedDocument& document, const EditOptions& options)
      : text_(text), document_(document), options_(options) {}

  [[nodiscard]] std::string Written(const ValueChange& change, Within within, Span value) const {
    if (options_.is_raw) return Raw(change, within);
    const bool pairs = BreaksAreCrLf(value);
    std::string written;
    for (std::size_t at = 0; at < change.value.size();) {
      const auto [c, size] = FirstCharacter(std::string_view(change.value).substr(at));
      if (size == 0 || !IsXmlCharacter(c)) {
        throw PathError(Message::BadCharacter,
                        {CodePointName(size == 0 ? static_cast<unsigned char>(change.value[at]) : c)});
      }
      Append(c, within, pairs, written);
      at += size;
    }
    return written;
  }

  // Returns a name, which cannot contain references for what the encoding lacks.
  [[nodiscard]] const std::string& Name(const std::string& name) const {
    for (std::size_t at = 0; at < name.size();) {
      const auto [c, size] = FirstCharacter(std::string_view(name).substr(at));
      if (!CanEncode(c)) throw PathError(Message::UnwritableName, {CodePointName(c), text_.label});
      at += size;
    }
    return name;
  }

 private:
  [[nodiscard]] bool CanEncode(char32_t c) const {
    std::string scratch;
    return text_.codec->Encode(c, scratch);
  }

  [[nodiscard]] std::string Raw(const ValueChange& change, Within within) const {
    const bool is_attribute = within == Within::Double || within == Within::Single;
    try {
      if (is_attribute)
        ScanValue(document_, change.value, static_cast<char>(within));
      else
        ScanContent(document_, change.value);
    } catch (const DocumentError& error) {
      Fault fault(Message::BadRaw, {change.path});
      fault.reasons.push_back(error.What());
      throw PathError(std::move(fault));
    }
    for (std::size_t at = 0; at < change.value.size();) {
      const auto [c, size] = FirstCharacter(std::string_view(change.value).substr(at));
      if (!CanEncode(c)) throw PathError(Message::Unwritable, {CodePointName(c), text_.label});
      at += size;
    }
    return change.value;
  }

  // Line breaks in a value are written like those around it; a parser sees no difference.
  [[nodiscard]] bool BreaksAreCrLf(Span value) const {
    const std::string_view text = text_.utf8;
    std::size_t at = text.substr(0, value.end).rfind('\n');
    if (at == std::string_view::npos) at = text.find('\n', value.end);
    return at != std::string_view::npos && at > 0 && text[at - 1] == '\r';
  }

  void Append(char32_t c, Within within, bool pairs, std::string& to) const {
    if (!CanEncode(c)) {
      if (!options_.uses_references) throw PathError(Message::Unwritable, {CodePointName(c), text_.label});
      return AppendReference(NumericReference(c), within, to);
    }
    if (c == '\r') return AppendReference(NumericReference(c), within, to);
    if (c == '\n' && (within == Within::Text || within == Within::Section)) {
      to += pairs ? "\r\n" : "\n";
    } else if (within == Within::Section) {
      AppendToSection(c, to);
    } else if ((c == '\n' || c == '\t') && within != Within::Text) {
      to += NumericReference(c);
    } else {
      AppendEscaped(c, within, to);
    }
  }

  static void AppendReference(const std::string& reference, Within within, std::string& to) {
    const bool leaves = within == Within::Section;
    if (leaves) to += kSectionEnd;
    to += reference;
    if (leaves) to += kSectionBegin;
  }

  // A section cannot contain its own end, which is divided between two sections.
  static void AppendToSection(char32_t c, std::string& to) {
    if (c == '>' && to.ends_with("]]")) to.append(kSectionEnd).append(kSectionBegin);
    AppendUtf8(c, to);
  }

  static void AppendEscaped(char32_t c, Within within, std::string& to) {
    if (c == '&')
      to += "&amp;";
    else if (c == '<')
      to += "&lt;";
    else if (c == '>')
      to += "&gt;";
    else if (c == '"' && within == Within::Double)
      to += "&quot;";
    else if (c == '\'' && within == Within::Single)
      to += "&apos;";
    else
      AppendUtf8(c, to);
  }

  const DocumentText& text_;
  const ScannedDocument& document_;
  const EditOptions& options_;
};

class Editor {
 public:
  Editor(const DocumentText& text, const ScannedDocument& document, const EditOptions& options)
      : document_(document), options_(options), writer_(text, document, options), paths_(document) {}

  void Take(const ValueChange& change) {
    const DocumentPath path = ParsePath(change.path);
    const DocumentPlace place = paths_.Find(path);
    if (!IsWhole(place, path)) return Add(change, path, place);
    if (place.attribute) return SetAttribute(change, *place.attribute);
    SetElement(change, place.element);
  }

  std::vector<DocumentEdit> Finish() {
    std::ranges::stable_sort(edits_, {}, [](const DocumentEdit& edit) { return edit.span.begin; });
    return std::move(edits_);
  }

 private:
  void Edit(const ValueChange& change, Span span, std::string utf8) {
    // The content of one element may contain another that is set too.
    const bool overlaps = std::ranges::any_of(edits_, [&](const DocumentEdit& edit) {
      return edit.span == span ? span.Size() > 0 : edit.span.begin < span.end && span.begin < edit.span.end;
    });
    if (overlaps) throw PathError(Message::SetTwice, {change.path});
    edits_.push_back({span, std::move(utf8)});
  }

  void Once(const ValueChange& change, std::size_t at, const std::string& name) {
    if (!taken_.emplace(at, name).second) throw PathError(Message::SetTwice, {change.path});
  }

  [[nodiscard]] std::string_view Text() const { return document_.text; }

  void SetAttribute(const ValueChange& change, std::size_t index) {
    const Span value = document_.attributes[index].value;
    Once(change, value.begin, "");
    const auto within = static_cast<Within>(Text()[value.begin - 1]);
    Edit(change, value, writer_.Written(change, within, value));
  }

  void SetElement(const ValueChange& change, std::size_t element) {
    const DocumentPart& part = document_.parts[element];
    Once(change, part.whole.end, "");
    if (part.kind == PartKind::EmptyTag) {
      if (change.value.empty()) return;
      return Fill(change, part, writer_.Written(change, Within::Text, part.whole));
    }
    const auto [span, within] =
        options_.is_raw ? std::pair(ContentOf(document_, element), Within::Text) : OwnTextOf(change, element);
    Edit(change, span, writer_.Written(change, within, span));
  }

  // Replaces the "/>" of an empty tag.
  void Fill(const ValueChange& change, const DocumentPart& empty, const std::string& content) {
    Edit(change, {empty.whole.end - 2, empty.whole.end},
         ">" + content + "</" + std::string(empty.name.Of(Text())) + ">");
  }

  // Returns the text of an element that contains no other. If it is one CDATA section, that stays.
  std::pair<Span, Within> OwnTextOf(const ValueChange& change, std::size_t element) const {
    const std::size_t end = document_.parts[element].partner;
    for (std::size_t i = element + 1; i < end; ++i) {
      const PartKind kind = document_.parts[i].kind;
      if (kind == PartKind::Text || kind == PartKind::Section) continue;
      const bool is_other = kind == PartKind::Comment || kind == PartKind::Instruction;
      throw PathError(is_other ? Message::HasOthers : Message::HasElements, {change.path});
    }
    const bool is_section = end == element + 2 && document_.parts[element + 1].kind == PartKind::Section;
    if (!is_section) return {ContentOf(document_, element), Within::Text};
    return {InsideOf(document_.parts[element + 1]), Within::Section};
  }

  void Add(const ValueChange& change, const DocumentPath& path, const DocumentPlace& place) {
    if (!options_.adds) throw PathError(Message::NothingThereAdd, {change.path});
    if (place.steps == path.steps.size()) return AddAttribute(change, path, place.element);
    const bool is_next = place.steps > 0 && path.steps[place.steps].number == place.found + 1 &&
                         std::all_of(path.steps.begin() + static_cast<std::ptrdiff_t>(place.steps) + 1,
                                     path.steps.end(), [](const auto& step) { return step.number == 1; });
    if (!is_next) throw PathError(Message::NotNext, {change.path});
    AddElement(change, path, place);
  }

  void AddAttribute(const ValueChange& change, const DocumentPath& path, std::size_t element) {
    const DocumentPart& part = document_.parts[element];
    Once(change, part.name.begin, path.attribute);
    const std::size_t count = part.attribute_count;
    const std::size_t at =
        count == 0 ? part.name.end : document_.attributes[part.first_attribute + count - 1].value.end + 1;
    Edit(change, {at, at}, AttributeText(change, path));
  }

  std::string AttributeText(const ValueChange& change, const DocumentPath& path) const {
    return " " + writer_.Name(path.attribute) + "=\"" + writer_.Written(change, Within::Double, {}) + "\"";
  }

  // Returns nested elements for the steps of a path from `first` on, with the value in the last one.
  std::string ElementText(const ValueChange& change, const DocumentPath& path, std::size_t first,
                          Span near) const {
    std::string open;
    std::string close;
    for (std::size_t i = first; i < path.steps.size(); ++i) {
      const std::string& name = writer_.Name(path.steps[i].name);
      const bool is_last = i + 1 == path.steps.size();
      open.append("<").append(name);
      if (is_last && !path.attribute.empty()) {
        return open.append(AttributeText(change, path)).append("/>").append(close);
      }
      open += ">";
      close.insert(0, "</" + name + ">");
    }
    return open.append(writer_.Written(change, Within::Text, near)).append(close);
  }

  void AddElement(const ValueChange& change, const DocumentPath& path, const DocumentPlace& place) {
    const DocumentPart& parent = document_.parts[place.element];
    Once(change, parent.name.begin, "<" + path.steps[place.steps].name);
    const std::string element = ElementText(change, path, place.steps, parent.whole);
    if (parent.kind == PartKind::EmptyTag) return Fill(change, parent, element);
    const auto children = ChildrenOf(document_, place.element);
    if (children.empty()) {
      const std::size_t at = document_.parts[parent.partner].whole.begin;
      return Edit(change, {at, at}, element);
    }
    const DocumentPart& last = document_.parts[document_.parts[children.back()].partner];
    Edit(change, {last.whole.end, last.whole.end}, BlanksBefore(children.back()) + element);
  }

  // Returns the white space before an element, for the next one to start with.
  std::string BlanksBefore(std::size_t element) const {
    const DocumentPart& before = document_.parts[element - 1];
    if (before.kind != PartKind::Text) return {};
    const std::string_view text = before.whole.Of(Text());
    const std::size_t content = text.find_last_not_of(" \t\r\n");
    return std::string(content == std::string_view::npos ? text : text.substr(content + 1));
  }

  const ScannedDocument& document_;
  const EditOptions& options_;
  ValueWriter writer_;
  PathFinder paths_;
  std::vector<DocumentEdit> edits_;
  std::set<std::pair<std::size_t, std::string>> taken_;
};

// An entity that may contain elements makes it uncertain which element a path denotes.
void CheckEntity(const ScannedDocument& document, std::string_view reference) {
  if (CharacterOfReference(reference) != 0) return;
  const std::string_view name = NameOfReference(reference);
  const auto entity = document.entities.find(name);
  if (entity != document.entities.end() && !entity->second.is_opaque) return;
  throw PathError(Message::HasEntities, {name});
}

void CheckEntities(const ScannedDocument& document) {
  if (document.entities.empty() && !document.has_outer_declarations) return;
  for (const DocumentPart& part : document.parts) {
    if (part.kind != PartKind::Text) continue;
    const std::string_view text = part.whole.Of(document.text);
    for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
      CheckEntity(document, ReferenceAt(text, at));
    }
  }
}

}  // namespace

std::vector<DocumentEdit> EditsFor(const DocumentText& text, const ScannedDocument& document,
                                   std::span<const ValueChange> changes, const EditOptions& options) {
  CheckEntities(document);
  Editor editor(text, document, options);
  for (std::size_t i = 0; i < changes.size(); ++i) {
    try {
      editor.Take(changes[i]);
    } catch (const PathError& error) {
      throw PathError(error.What(), i);
    }
  }
  return editor.Finish();
}

bool HasValues(const ScannedDocument& document, std::span<const ValueChange> changes, bool is_raw) {
  PathFinder paths(document);
  return std::ranges::all_of(changes, [&](const ValueChange& change) {
    return ValueAt(document, paths.FindWhole(ParsePath(change.path)), is_raw) == change.value;
  });
}

std::string ValueAt(const ScannedDocument& document, const DocumentPlace& place, bool is_raw) {
  const Span span =
      place.attribute ? document.attributes[*place.attribute].value : ContentOf(document, place.element);
  if (is_raw) return std::string(span.Of(document.text));
  return place.attribute ? DecodedValue(document, span) : OwnText(document, place.element);
}

std::size_t PositionAt(const ScannedDocument& document, const DocumentPlace& place) {
  if (place.attribute) return document.attributes[*place.attribute].value.begin;
  return document.parts[place.element].whole.begin;
}

}  // namespace ravo::document
