#include "check.h"

#include <ravo/document/reading.h>
#include <ravo/document/suite.h>
#include <ravo/runtime/text.h>
#include <ravo/unicode/code_pages.h>

#include <algorithm>
#include <deque>
#include <map>
#include <optional>

namespace ravo::document {
namespace {

std::string_view TrimmedText(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kXmlSpace);
  return begin == std::string_view::npos ? std::string_view()
                                         : text.substr(begin, text.find_last_not_of(kXmlSpace) + 1 - begin);
}

// Finds the starts of lines, counted by line feeds, that are asked for in ascending order.
class LineFinder {
 public:
  explicit LineFinder(std::string_view text) : text_(text) {}
  [[nodiscard]] std::size_t Find(std::size_t line) {
    for (; line_ < line && at_ < text_.size(); ++line_) {
      at_ = std::min(text_.find('\n', at_), text_.size() - 1) + 1;
    }
    return at_;
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

// The rules of the suite's parser, with a method for each kind of part.
class Rules {
 public:
  Rules(const DocumentText& text, const ScannedDocument& document, const DocumentReport& report)
      : text_(text), document_(document), report_(report) {}

  // Returns the number of findings.
  std::size_t Run() {
    if (IsWide())
      Add(Message::FindsWide, 0, {text_.label});
    else
      CheckParts();
    ReportBefore(std::string_view::npos);
    return count_;
  }

 private:
  // The content of an open element so far.
  struct Content {
    bool has_text = false;
    bool has_elements = false;
  };

  [[nodiscard]] std::string_view Text() const { return document_.text; }
  [[nodiscard]] std::string_view Of(Span span) const { return span.Of(Text()); }

  // The findings of a part lie in it, so those before the next part are complete.
  void CheckParts() {
    CheckStart();
    FindLongLines();
    for (std::size_t i = 0; i < document_.parts.size(); ++i) {
      ReportBefore(document_.parts[i].whole.begin);
      CheckPart(i);
    }
  }

  // Reports what was found before `end`, in order; of one place, long lines come last.
  void ReportBefore(std::size_t end) {
    for (; !long_lines_.empty() && long_lines_.front() < end; long_lines_.pop_front())
      Add(Message::FindsLongLine, long_lines_.front());
    if (findings_.empty()) return;
    std::ranges::stable_sort(findings_, {}, &DocumentFinding::at);
    const auto rest = std::ranges::lower_bound(findings_, end, {}, &DocumentFinding::at);
    for (auto finding = findings_.begin(); finding != rest; ++finding, ++count_) report_(*finding);
    findings_.erase(findings_.begin(), rest);
  }

  void Add(Message message, std::size_t at, std::initializer_list<std::string_view> values = {}) {
    findings_.push_back({Fault(message, values), at});
  }

  [[nodiscard]] bool IsWide() const {
    return text_.encoding.starts_with("UTF_16") || text_.encoding.starts_with("UTF_32") ||
           text_.encoding.starts_with("UCS_");
  }

  [[nodiscard]] bool Loads() const {
    constexpr std::size_t kLookedAt = 1000;
    const std::string_view start = std::string_view(text_.bytes).substr(0, kLookedAt);
    return start.find("<?xml version=\"1.0\"") != std::string_view::npos ||
           start.find("<rss") != std::string_view::npos;
  }

  void CheckStart() {
    if (text_.mark > 0) Add(Message::FindsMark, 0);
    if (!Loads()) Add(Message::FindsDeclaration, 0);
    const bool is_declared = !document_.parts.empty() && document_.parts[0].kind == PartKind::Declaration;
    if (!is_declared && Loads()) Add(Message::FindsNoEncoding, 0);
    const DocumentPart& root = document_.parts[document_.root];
    if (root.kind == PartKind::EmptyTag) Add(Message::FindsEmptyRoot, root.whole.begin);
  }

  void CheckPart(std::size_t index) {
    const DocumentPart& part = document_.parts[index];
    switch (part.kind) {
      case PartKind::Declaration:
        return CheckDeclaration(part);
      case PartKind::Doctype:
        return Add(Message::FindsDoctype, part.whole.begin);
      case PartKind::Comment:
        return CheckComment(part);
      case PartKind::Instruction:
        return CheckInstruction(part);
      case PartKind::Text:
        return CheckText(index);
      case PartKind::Section:
        return CheckSection(part);
      case PartKind::CloseTag:
        return open_.pop_back();
      default:
        CheckTag(part);
        if (!open_.empty()) open_.back().has_elements = true;
        if (part.kind == PartKind::OpenTag) open_.emplace_back();
    }
  }

  void CheckDeclaration(const DocumentPart& part) {
    std::string text(Of(part.whole));
    std::ranges::transform(text, text.begin(),
                           [](char ch) { return ch >= 'A' && ch <= 'Z' ? char(ch | 0x20) : ch; });
    const bool has_encoding =
        text.find("encoding=\"") != std::string::npos || text.find("encoding='") != std::string::npos;
    if (!has_encoding) Add(Message::FindsNoEncoding, part.whole.begin);
    for (std::size_t i = 0; i < part.attribute_count; ++i) {
      const Span name = document_.attributes[part.first_attribute + i].name;
      if (Of(name) == "standalone") Add(Message::FindsStandalone, name.begin);
    }
  }

  void CheckComment(const DocumentPart& part) {
    const bool ends_early = Of(part.whole).find('>') + 1 != part.whole.Size();
    Add(ends_early ? Message::FindsCommentEnd : Message::FindsComment, part.whole.begin);
  }

  // Whether the suite saves an instruction as it is. It does so for the address of an XSL style sheet.
  [[nodiscard]] bool IsKeptStylesheet(const DocumentPart& part) const {
    constexpr std::string_view kBegin = "<?xml-stylesheet type=\"text/xsl\" href=\"";
    const std::string_view text = Of(part.whole);
    if (!text.starts_with(kBegin) || !text.ends_with("\"?>") || text.size() < kBegin.size() + 3) return false;
    const std::string_view address = text.substr(kBegin.size(), text.size() - kBegin.size() - 3);
    return !TrimmedText(address).empty() && address.find_first_of("\"> &\r\n\t") == std::string_view::npos &&
           part.whole.begin < document_.parts[document_.root].whole.begin;
  }

  void CheckInstruction(const DocumentPart& part) {
    if (!Of(part.name).starts_with("xml-stylesheet")) {
      return Add(Message::FindsInstruction, part.whole.begin);
    }
    if (has_stylesheet_ || !IsKeptStylesheet(part)) Add(Message::FindsStylesheet, part.whole.begin);
    has_stylesheet_ = true;
    CheckCharacters(part.whole);
  }

  void CheckText(std::size_t index) {
    if (open_.empty()) return;
    const Span span = document_.parts[index].whole;
    const std::string_view text = Of(span);
    const std::string_view trimmed = TrimmedText(text);
    if (trimmed.empty()) return CheckBlanks(index);
    const std::size_t begin = span.begin + static_cast<std::size_t>(trimmed.data() - text.data());
    const Span content{begin, begin + trimmed.size()};
    TakeText(content.begin);
    if (content != span) Add(Message::FindsEnds, begin == span.begin ? content.end : span.begin);
    CheckRuns(content);
    CheckReferences(content);
    CheckCharacters(content);
  }

  // White space between elements does not count, but it does if it is all that an element has.
  void CheckBlanks(std::size_t index) {
    const bool is_all = document_.parts[index - 1].kind == PartKind::OpenTag &&
                        document_.parts[index - 1].partner == index + 1;
    if (is_all) Add(Message::FindsEnds, document_.parts[index].whole.begin);
  }

  void TakeText(std::size_t at) {
    Content& content = open_.back();
    if (content.has_text || content.has_elements) Add(Message::FindsMixed, at);
    content.has_text = true;
  }

  void CheckRuns(Span span) {
    const std::string_view text = Of(span);
    const std::size_t at = std::min(text.find("  "), text.find('\r'));
    if (at != std::string_view::npos) Add(Message::FindsBlanks, span.begin + at);
  }

  void CheckReferences(Span span) {
    const std::string_view text = Of(span);
    for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
      const std::string_view reference = ReferenceAt(text, at);
      const bool is_known =
          reference == "&lt;" || reference == "&gt;" || reference == "&quot;" || reference == "&amp;";
      if (!is_known) Add(Message::FindsReference, span.begin + at, {reference});
    }
  }

  void CheckSection(const DocumentPart& part) {
    const Span inside = InsideOf(part);
    const std::string_view text = Of(inside);
    if (text.empty()) return;
    if (TrimmedText(text).empty()) return Add(Message::FindsEnds, inside.begin);
    TakeText(part.whole.begin);
    const std::size_t end = Text().find("]]", inside.begin);
    if (end < inside.end) Add(Message::FindsSectionEnd, end);
    for (const std::string_view reference : {"&lt;", "&gt;", "&quot;", "&amp;"}) {
      const std::size_t at = text.find(reference);
      if (at != std::string_view::npos) Add(Message::FindsSection, inside.begin + at);
    }
    if (TrimmedText(text).size() != text.size()) Add(Message::FindsEnds, inside.begin);
    CheckRuns(inside);
    CheckCharacters(inside);
  }

  void CheckTag(const DocumentPart& part) {
    CheckCharacters(part.name);
    const std::size_t breaks = Of(part.whole).find_first_of("\t\r\n");
    if (breaks != std::string_view::npos) Add(Message::FindsTagLines, part.whole.begin + breaks);
    for (std::size_t i = 0; i < part.attribute_count; ++i) {
      CheckAttribute(document_.attributes[part.first_attribute + i]);
    }
    CheckNames(part);
  }

  void CheckAttribute(const AttributePart& attribute) {
    const std::string_view name = Of(attribute.name);
    const std::string_view value = Of(attribute.value);
    const auto add = [&](Message message) { Add(message, attribute.name.begin, {name}); };
    if (value.empty()) add(Message::FindsEmptyAttribute);
    if (value.find('>') != std::string_view::npos) add(Message::FindsGreater);
    const bool is_single = Text()[attribute.value.begin - 1] == '\'';
    if (is_single && value.find_first_of(" \"") != std::string_view::npos) add(Message::FindsSingleQuotes);
    if (attribute.name.end + 2 != attribute.value.begin) add(Message::FindsEquals);
    if (value.find("  ") != std::string_view::npos) Add(Message::FindsBlanks, attribute.value.begin);
    CheckReferences(attribute.value);
    CheckCharacters(attribute.name);
    CheckCharacters(attribute.value);
  }

  // The suite compares the names of attributes without regard to case.
  void CheckNames(const DocumentPart& part) {
    std::map<std::u16string, Span> seen;
    for (std::size_t i = 0; part.attribute_count > 1 && i < part.attribute_count; ++i) {
      const Span name = document_.attributes[part.first_attribute + i].name;
      std::u16string folded = FromUtf8(Of(name));
      for (char16_t& unit : folded) {
        if (unit >= u'A' && unit <= u'Z') unit |= 0x20;
      }
      const auto [other, is_new] = seen.emplace(folded, name);
      if (!is_new) Add(Message::FindsSameName, name.begin, {Of(other->second), Of(name)});
    }
  }

  // The suite reads each byte as a character of its code page.
  void CheckCharacters(Span span) {
    for (std::size_t at = span.begin; at < span.end;) {
      const auto [c, size] = FirstCharacter(std::string_view(Text()).substr(at));
      if (c >= 0x80 && !IsSame(c)) return Add(Message::FindsEncoding, at, {text_.label});
      at += size;
    }
  }

  [[nodiscard]] bool IsSame(char32_t c) {
    const auto [known, is_new] = same_.emplace(c, false);
    if (is_new) {
      std::string bytes;
      static_cast<void>(text_.codec->Encode(c, bytes));
      std::string utf8;
      AppendUtf8(c, utf8);
      known->second = ToUtf8(FromCodePage(bytes)) == utf8;
    }
    return known->second;
  }

  void FindLongLines() {
    constexpr std::size_t kLongest = 65535;
    const std::string_view bytes = text_.bytes;
    LineFinder lines(Text());
    std::size_t line = 1;
    for (std::size_t at = 0; at < bytes.size(); ++line) {
      const std::size_t end = std::min(bytes.find('\n', at), bytes.size() - 1) + 1;
      if (end - at > kLongest) long_lines_.push_back(lines.Find(line));
      at = end;
    }
  }

  const DocumentText& text_;
  const ScannedDocument& document_;
  const DocumentReport& report_;
  std::size_t count_ = 0;
  std::vector<DocumentFinding> findings_;  // not yet reported
  std::deque<std::size_t> long_lines_;     // where they begin; not yet reported
  std::vector<Content> open_;
  std::map<char32_t, bool> same_;
  bool has_stylesheet_ = false;
};

// Returns the place of the first difference of two readings, apart from white space at the ends of texts.
std::optional<std::size_t> FirstDifference(const DocumentReading& left, const DocumentReading& right) {
  for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i) {
    const ReadElement& a = left[i];
    const ReadElement& b = right[i];
    const bool same = a.name == b.name && a.depth == b.depth && a.attributes == b.attributes &&
                      TrimmedText(a.text) == TrimmedText(b.text);
    if (!same) return a.at;
  }
  if (left.size() == right.size()) return std::nullopt;
  return left.empty() ? 0 : left[std::min(left.size() - 1, right.size())].at;
}

// Compares a document with what the suite loads and saves.
std::optional<DocumentFinding> Tried(const DocumentText& text, const DocumentReading& wanted) {
  ECXMLParser::TECXMLParser parser;
  try {
    LoadAsSuite(text.bytes, parser);
  } catch (const ravo::Error& error) {
    return DocumentFinding{Fault(Message::FindsLoad, {error.what()}), 0};
  }
  if (const auto at = FirstDifference(wanted, ReadBySuite(*parser.Root()))) {
    return DocumentFinding{Fault(Message::FindsSeen, {}), *at};
  }
  try {
    const DocumentText saved = DecodeDocument(SavedBySuite(parser));
    const auto at = FirstDifference(wanted, ReadByOther(saved.utf8));
    return at ? std::optional(DocumentFinding{Fault(Message::FindsSaved, {}), *at}) : std::nullopt;
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    return DocumentFinding{Fault(Message::FindsSaved, {}), 0};
  }
}

}  // namespace

std::size_t CheckDocument(const DocumentText& text, const ScannedDocument& document,
                          const DocumentReport& report) {
  const DocumentReading wanted = ReadByOther(text.utf8);
  if (const std::size_t count = Rules(text, document, report).Run(); count > 0) return count;
  const std::optional<DocumentFinding> finding = Tried(text, wanted);
  if (finding) report(*finding);
  return finding ? 1 : 0;
}

}  // namespace ravo::document
