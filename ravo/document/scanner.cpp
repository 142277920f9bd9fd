#include "scanner.h"

#include <ravo/document/doctype.h>

#include <algorithm>
#include <array>
#include <utility>

namespace ravo::document {
namespace {

bool IsSpace(char ch) { return ch == ' ' || ch == '\t' || ch == '\r' || ch == '\n'; }

bool IsAsciiLetter(char ch) { return (ch | 0x20) >= 'a' && (ch | 0x20) <= 'z'; }

// "xml" in any case.
bool IsReservedName(std::string_view name) {
  return name.size() == 3 && (name[0] | 0x20) == 'x' && (name[1] | 0x20) == 'm' && (name[2] | 0x20) == 'l';
}

// The attributes of an XML declaration, in their order. The first one is required.
constexpr auto kDeclared = std::to_array<std::string_view>({"version", "encoding", "standalone"});

bool FitsDeclaration(std::size_t index, std::string_view value) {
  constexpr std::string_view kNameCharacters =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789._-:";
  if (index == 2) return value == "yes" || value == "no";
  if (value.empty() || value.find_first_not_of(kNameCharacters) != std::string_view::npos) return false;
  return index == 0 ? value.starts_with("1.") : IsAsciiLetter(value[0]);
}

class Scanner {
 public:
  explicit Scanner(std::string_view text) { document_.text = text; }

  // A scanner of a piece of `outer`, whose entities it knows.
  Scanner(std::string_view text, const ScannedDocument& outer) : is_piece_(true) {
    document_.text = text;
    document_.entities = outer.entities;
    document_.has_outer_declarations = outer.has_outer_declarations;
  }

  ScannedDocument Run() {
    RunContent();
    if (!has_root_) throw DocumentError(Message::EmptyDocument, Text().size());
    return std::move(document_);
  }

  void RunContent() {
    CheckCharacters();
    // Text and markup alternate; what is not used is never touched.
    document_.parts.reserve(2 * static_cast<std::size_t>(std::ranges::count(Text(), '<')) + 1);
    while (at_ < Text().size()) ScanPart();
    if (open_.empty()) return;
    const DocumentPart& part = document_.parts[open_.back()];
    throw DocumentError(Message::Unclosed, part.whole.begin, {Of(part.name)});
  }

  void RunValue(char quote) {
    CheckCharacters();
    const std::size_t end = Text().find(quote);
    if (end != std::string_view::npos) throw DocumentError(Message::QuoteInValue, end, {{&quote, 1}});
    CheckValue({0, Text().size()});
  }

 private:
  [[nodiscard]] std::string_view Text() const { return document_.text; }
  [[nodiscard]] std::string_view Of(Span span) const { return span.Of(Text()); }
  [[nodiscard]] bool IsAt(std::string_view word) const { return Text().substr(at_, word.size()) == word; }
  [[nodiscard]] bool HasAt(std::size_t at, char ch) const { return at < Text().size() && Text()[at] == ch; }
  [[nodiscard]] bool IsInElement() const { return !open_.empty() || is_piece_; }

  [[nodiscard]] Span NameAt(std::size_t at) const { return {at, EndOfXmlName(Text(), at)}; }

  [[nodiscard]] std::size_t PastSpace(std::size_t at) const {
    while (at < Text().size() && IsSpace(Text()[at])) ++at;
    return at;
  }

  // Past the next `word`; without one, the part that starts here lacks its end.
  [[nodiscard]] std::size_t Past(std::string_view word, std::size_t from, std::string_view part) const {
    const std::size_t end = Text().find(word, from);
    if (end == std::string_view::npos) throw DocumentError(Message::Unclosed, at_, {part});
    return end + word.size();
  }

  void CheckCharacters() const {
    const std::size_t bad = FindBadCharacter(Text());
    if (bad == Text().size()) return;
    const auto [c, size] = FirstCharacter(std::string_view(Text()).substr(bad));
    if (size == 0) throw DocumentError(Message::BadBytes, bad, {"UTF-8"});
    throw DocumentError(Message::BadCharacter, bad, {CodePointName(c)});
  }

  DocumentPart& Add(PartKind kind, std::size_t end) {
    DocumentPart& part = document_.parts.emplace_back();
    part.kind = kind;
    part.whole = {std::exchange(at_, end), end};
    part.partner = document_.parts.size() - 1;
    return part;
  }

  void ScanPart() {
    if (!IsAt("<")) return ScanText();
    if (IsAt("</")) return ScanCloseTag();
    if (IsAt("<!--")) return ScanComment();
    if (IsAt("<![CDATA[")) return ScanSection();
    if (IsAt("<!DOCTYPE")) return ScanDoctype();
    if (IsAt("<?")) return ScanInstruction();
    ScanTag();
  }

  void ScanText() {
    const Span span{at_, std::min(Text().find('<', at_), Text().size())};
    if (!IsInElement()) CheckBlank(span);
    const std::size_t section_end = Of(span).find("]]>");
    if (section_end != std::string_view::npos) {
      throw DocumentError(Message::SectionEndInText, at_ + section_end);
    }
    CheckReferences(span);
    Add(PartKind::Text, span.end);
  }

  void CheckBlank(Span span) const {
    const std::size_t content = PastSpace(span.begin);
    if (content < span.end) throw DocumentError(Message::TextOutside, content);
  }

  void CheckReferences(Span span) const {
    const std::string_view text = Of(span);
    for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
      CheckReference(ReferenceAt(text, at), span.begin + at);
    }
  }

  void CheckReference(std::string_view reference, std::size_t at) const {
    if (reference.empty()) throw DocumentError(Message::BadReference, at);
    if (CharacterOfReference(reference) != 0) return;
    const std::string_view name = NameOfReference(reference);
    if (name.starts_with('#')) throw DocumentError(Message::BadCharacterReference, at, {reference});
    if (!document_.has_outer_declarations && !document_.entities.contains(name)) {
      throw DocumentError(Message::UnknownEntity, at, {name});
    }
  }

  void ScanComment() {
    const std::size_t hyphens = Past("--", at_ + 4, "<!--");
    if (hyphens == Text().size()) throw DocumentError(Message::Unclosed, at_, {"<!--"});
    if (!HasAt(hyphens, '>')) throw DocumentError(Message::BadComment, hyphens - 2);
    Add(PartKind::Comment, hyphens + 1);
  }

  void ScanSection() {
    if (!IsInElement()) throw DocumentError(Message::TextOutside, at_);
    Add(PartKind::Section, Past("]]>", at_ + 9, "<![CDATA["));
  }

  void ScanDoctype() {
    if (has_root_ || has_doctype_ || is_piece_) throw DocumentError(Message::BadDoctype, at_);
    has_doctype_ = true;
    Add(PartKind::Doctype, ReadDoctype(document_, at_));
  }

  void ScanInstruction() {
    const Span name = NameAt(at_ + 2);
    if (Of(name) == "xml" && at_ == 0 && !is_piece_) return ScanDeclaration();
    if (name.Size() == 0 || IsReservedName(Of(name))) throw DocumentError(Message::BadInstruction, at_);
    const std::size_t end = Past("?>", name.end, "<?");
    if (end - 2 != name.end && !IsSpace(Text()[name.end])) {
      throw DocumentError(Message::BadInstruction, name.end);
    }
    Add(PartKind::Instruction, end).name = name;
  }

  void ScanDeclaration() {
    const std::size_t end = Past("?>", at_, "<?xml");
    const std::size_t first = document_.attributes.size();
    std::size_t at = at_ + 5;
    for (std::size_t next = 0; PastSpace(at) < end - 2 || next == 0;) {
      if (!IsSpace(Text()[at])) throw DocumentError(Message::BadDeclaration, at_);
      next = TakeDeclared(next, at);
      if (at > end - 2) throw DocumentError(Message::BadDeclaration, at_);
    }
    TakeAttributes(Add(PartKind::Declaration, end), first);
  }

  // Takes an attribute of a declaration, which is `next` or a later one of `kDeclared`; moves `at` past it.
  std::size_t TakeDeclared(std::size_t next, std::size_t& at) {
    at = PastSpace(at);
    const AttributePart attribute = ReadAttribute(at);
    const auto index =
        static_cast<std::size_t>(std::ranges::find(kDeclared, Of(attribute.name)) - kDeclared.begin());
    const bool is_known = index < kDeclared.size() && index >= next && (index == 0 || next > 0);
    if (!is_known || !FitsDeclaration(index, Of(attribute.value))) {
      throw DocumentError(Message::BadDeclaration, attribute.name.begin);
    }
    document_.attributes.push_back(attribute);
    return index + 1;
  }

  // Reads `name = "value"` at `at` and moves `at` past it.
  AttributePart ReadAttribute(std::size_t& at) const {
    const Span name = NameAt(at);
    if (name.Size() == 0) throw DocumentError(Message::BadName, at);
    const std::size_t equals = PastSpace(name.end);
    const std::size_t quote = HasAt(equals, '=') ? PastSpace(equals + 1) : Text().size();
    if (!HasAt(quote, '"') && !HasAt(quote, '\'')) {
      throw DocumentError(Message::BadAttribute, equals, {Of(name)});
    }
    const std::size_t end = Text().find(Text()[quote], quote + 1);
    if (end == std::string_view::npos) throw DocumentError(Message::BadAttribute, quote, {Of(name)});
    at = end + 1;
    return {name, {quote + 1, end}};
  }

  void CheckValue(Span value) const {
    const std::size_t less = Of(value).find('<');
    if (less != std::string_view::npos) {
      throw DocumentError(Message::LessInAttribute, value.begin + less);
    }
    CheckReferences(value);
  }

  void ScanTag() {
    const Span name = NameAt(at_ + 1);
    if (name.Size() == 0) throw DocumentError(Message::BadMarkup, at_);
    if (has_root_ && !IsInElement()) throw DocumentError(Message::SecondRoot, at_, {Of(name)});
    const std::size_t first = document_.attributes.size();
    const std::size_t end = ScanAttributes(name);
    const bool is_empty = HasAt(end, '/');
    if (!HasAt(end + (is_empty ? 1 : 0), '>')) FailTag(name, end);
    AddTag(is_empty, end + (is_empty ? 2 : 1), name, first);
  }

  [[noreturn]] void FailTag(Span name, std::size_t at) const {
    if (at == Text().size()) throw DocumentError(Message::Unclosed, at_, {Of(name)});
    throw DocumentError(Message::BadTag, at, {Of(name)});
  }

  // Takes the attributes of a tag; returns the end of the last one, with the white space after it.
  std::size_t ScanAttributes(Span name) {
    const std::size_t first = document_.attributes.size();
    std::size_t at = name.end;
    for (;;) {
      const std::size_t next = PastSpace(at);
      if (next == Text().size() || Text()[next] == '>' || Text()[next] == '/') {
        CheckNames(first);
        return next;
      }
      if (next == at) FailTag(name, at);
      at = next;
      document_.attributes.push_back(ReadAttribute(at));
      CheckValue(document_.attributes.back().value);
    }
  }

  // Sorted, since a tag may have a million attributes.
  void CheckNames(std::size_t first) {
    if (document_.attributes.size() - first < 2) return;
    names_.clear();
    for (std::size_t i = first; i < document_.attributes.size(); ++i) {
      names_.push_back(document_.attributes[i].name);
    }
    std::ranges::sort(names_, {}, [&](Span name) { return std::pair(Of(name), name.begin); });
    const auto twice = std::ranges::adjacent_find(names_, {}, [&](Span name) { return Of(name); });
    if (twice == names_.end()) return;
    throw DocumentError(Message::RepeatedAttribute, twice[1].begin, {Of(*twice)});
  }

  void AddTag(bool is_empty, std::size_t end, Span name, std::size_t first_attribute) {
    if (!std::exchange(has_root_, true)) document_.root = document_.parts.size();
    if (!is_empty) open_.push_back(document_.parts.size());
    DocumentPart& part = Add(is_empty ? PartKind::EmptyTag : PartKind::OpenTag, end);
    part.name = name;
    TakeAttributes(part, first_attribute);
  }

  // All from `first` on.
  void TakeAttributes(DocumentPart& part, std::size_t first) const {
    part.first_attribute = first;
    part.attribute_count = document_.attributes.size() - first;
  }

  void ScanCloseTag() {
    const Span name = NameAt(at_ + 2);
    if (name.Size() == 0) throw DocumentError(Message::BadName, at_ + 2);
    const std::size_t end = PastSpace(name.end);
    if (!HasAt(end, '>')) FailTag(name, end);
    if (open_.empty()) throw DocumentError(Message::StrayClose, at_, {Of(name)});
    const std::size_t opened = open_.back();
    const std::string_view wanted = Of(document_.parts[opened].name);
    if (Of(name) != wanted) throw DocumentError(Message::WrongClose, at_, {Of(name), wanted});
    open_.pop_back();
    document_.parts[opened].partner = document_.parts.size();
    DocumentPart& part = Add(PartKind::CloseTag, end + 1);
    part.name = name;
    part.partner = opened;
  }

  ScannedDocument document_;
  std::size_t at_ = 0;
  std::vector<std::size_t> open_;
  std::vector<Span> names_;
  bool has_root_ = false;
  bool has_doctype_ = false;
  bool is_piece_ = false;
};

}  // namespace

ScannedDocument ScanDocument(std::string_view utf8) { return Scanner(utf8).Run(); }

void ScanContent(const ScannedDocument& document, std::string_view raw) {
  Scanner(raw, document).RunContent();
}

void ScanValue(const ScannedDocument& document, std::string_view raw, char quote) {
  Scanner(raw, document).RunValue(quote);
}

Span ContentOf(const ScannedDocument& document, std::size_t element) {
  const DocumentPart& open = document.parts[element];
  if (open.kind == PartKind::EmptyTag) return {open.whole.end, open.whole.end};
  return {open.whole.end, document.parts[open.partner].whole.begin};
}

}  // namespace ravo::document
