#include "structure.h"

#include "blanks.h"
#include "content_model.h"
#include "keys.h"
#include "schema.h"
#include "values.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>

namespace ravo::isdoc {
namespace schema {
namespace {

constexpr std::string_view kTypesOfSchemas = "http://www.w3.org/2001/XMLSchema";

std::string FullName(const Element& element) {
  if (element.space == kSpace) return std::string(element.name);
  return "{" + std::string(element.space) + "}" + std::string(element.name);
}

void AppendName(std::string& names, std::string_view name) {
  names.append(names.empty() ? "" : ", ").append(name);
}

std::span<const AttributeRow> AttributesOf(const Type& type) {
  return std::span(kAttributes).subspan(type.first_attribute, type.attribute_count);
}

const Root* RootOf(const Element& element) {
  const auto* const root = std::ranges::find(kRoots, element.name, &Root::name);
  return root == std::end(kRoots) || element.space != kSpace ? nullptr : root;
}

// Types of roots have no name that a document could use.
const Type* TypeNamed(std::string_view space, std::string_view name) {
  if (space != kSpace && space != kTypesOfSchemas) return nullptr;
  const std::string full = (space == kTypesOfSchemas ? "xs:" : "") + std::string(name);
  const auto* const type = std::ranges::find(kTypes, full, &Type::name);
  return type == std::end(kTypes) || std::ranges::find(kRoots, full, &Root::name) != std::end(kRoots)
             ? nullptr
             : type;
}

bool Restricts(const Type& type, const Type& base) {
  const Type* ancestor = &type;
  while (ancestor != &base && ancestor->base != kNoRow) ancestor = &kTypes[ancestor->base];
  return ancestor == &base;
}

// What an element is held to.
struct Verdict {
  enum class Kind : std::uint8_t { Typed, Any, Skipped };
  Kind kind = Kind::Skipped;
  const Type* type = nullptr;
  const Root* root = nullptr;
};

constexpr Verdict kSkipped{};
constexpr Verdict kAny{Verdict::Kind::Any, nullptr, nullptr};

Verdict Typed(const Type& type) { return {Verdict::Kind::Typed, &type, nullptr}; }

// Walks through a document with one frame for each open element.
class StructureWalk {
 public:
  StructureWalk(const Document& document, Findings& findings)
      : document_(document), findings_(findings), first_finding_(findings.size()) {}

  void Run() {
    for (const Element& element : document_.Elements()) {
      while (depth_ > 0 && Top().number != element.parent) Close();
      Open(element, depth_ == 0 ? RootVerdict(element) : ChildVerdict(element));
    }
    while (depth_ > 0) Close();
    const auto first = findings_.begin() + static_cast<std::ptrdiff_t>(first_finding_);
    std::stable_sort(first, findings_.end(), [](const Finding& a, const Finding& b) {
      return std::pair(a.place.line, a.place.column) < std::pair(b.place.line, b.place.column);
    });
  }

 private:
  struct Frame {
    std::uint32_t number = 0;
    Verdict verdict;
    ContentModel model;
  };

  Frame& Top() { return frames_[depth_ - 1]; }

  void Report(Rule rule, const Element& where, std::string found, std::string expected) {
    findings_.push_back(
        {rule, Severity::Error, where.place, where.name, std::move(found), std::move(expected)});
  }

  // References to what has an unknown name would be found dangling for that reason alone.
  void ReportUnknown(Rule rule, const Element& where, std::string found, std::string expected) {
    unknown_names_ = true;
    Report(rule, where, std::move(found), std::move(expected));
  }

  Verdict RootVerdict(const Element& element) {
    root_ = RootOf(element);
    if (root_ != nullptr) return RootTyped(element, *root_);
    std::string expected;
    for (const Root& root : kRoots)
      AppendName(expected, "{" + std::string(kSpace) + "}" + std::string(root.name));
    Report(Rule::RootUnknown, element, "{" + std::string(element.space) + "}" + std::string(element.name),
           std::move(expected));
    return kSkipped;
  }

  // No type restricts that of a root.
  Verdict RootTyped(const Element& element, const Root& root) {
    if (document_.TypeOf(element) == nullptr) return {Verdict::Kind::Typed, &kTypes[root.type], &root};
    ReportType(element, {});
    return kSkipped;
  }

  Verdict ChildVerdict(const Element& element) {
    Frame& parent = Top();
    switch (parent.verdict.kind) {
      case Verdict::Kind::Skipped:
        return kSkipped;
      case Verdict::Kind::Any:
        return AnyVerdict(element);
      case Verdict::Kind::Typed:
        break;
    }
    if (parent.verdict.type->content == Content::Elements) return ModelVerdict(parent, element);
    ReportUnknown(Rule::ElementUnexpected, element, FullName(element), {});
    return kSkipped;
  }

  // An element of extensions or of a signature: its type is the one that it declares, or that of a document
  // of its own.
  Verdict AnyVerdict(const Element& element) {
    if (root_ != nullptr && RootOf(element) == root_) return RootTyped(element, *root_);
    const DeclaredType* const declared = document_.TypeOf(element);
    if (declared == nullptr) return kAny;
    if (const Type* const type = TypeNamed(declared->space, declared->name)) return Typed(*type);
    if (declared->space == kTypesOfSchemas) return kAny;
    ReportType(element, {});
    return kSkipped;
  }

  Verdict ModelVerdict(Frame& parent, const Element& element) {
    const Element& open = document_.Elements()[parent.number];
    const ContentModel::Answer answer = parent.model.Take(document_, open, element);
    for (const std::string& missing : answer.missing) Report(Rule::ElementMissing, open, {}, missing);
    if (answer.fault) ReportFault(*answer.fault, element, answer.expected);
    if (answer.element == nullptr) return kSkipped;
    return answer.element->type == kNoRow ? AnyVerdict(element)
                                          : DeclaredVerdict(element, kTypes[answer.element->type]);
  }

  void ReportFault(Rule rule, const Element& element, const std::string& expected) {
    const bool unknown = rule == Rule::ElementUnexpected || rule == Rule::NamespaceWrong;
    unknown_names_ = unknown_names_ || unknown;
    Report(rule, element, rule == Rule::NamespaceWrong ? std::string(element.space) : FullName(element),
           expected);
  }

  // An element may declare a type that restricts the one of its place.
  Verdict DeclaredVerdict(const Element& element, const Type& type) {
    const DeclaredType* const declared = document_.TypeOf(element);
    if (declared == nullptr) return Typed(type);
    const Type* const own = TypeNamed(declared->space, declared->name);
    if (own != nullptr && Restricts(*own, type)) return Typed(*own);
    ReportType(element, std::string(type.name));
    return kSkipped;
  }

  void ReportType(const Element& element, std::string expected) {
    const auto attributes = document_.Attributes(element);
    const auto type = std::ranges::find_if(attributes, [](const Attribute& attribute) {
      return attribute.space == kInstanceSpace && attribute.name == "type";
    });
    Report(Rule::TypeWrong, element, std::string(type->value), std::move(expected));
  }

  void Open(const Element& element, const Verdict& verdict) {
    if (frames_.size() == depth_) frames_.emplace_back();
    Frame& frame = frames_[depth_++];
    frame.number = document_.NumberOf(element);
    frame.verdict = verdict;
    if (verdict.kind != Verdict::Kind::Typed) return;
    CheckAttributes(element, *verdict.type);
    CheckText(element, *verdict.type);
    if (verdict.type->content == Content::Elements) frame.model.Begin(*verdict.type);
  }

  void Close() {
    Frame& frame = Top();
    const Element& element = document_.Elements()[frame.number];
    if (frame.verdict.kind == Verdict::Kind::Typed && frame.verdict.type->content == Content::Elements) {
      for (std::string& missing : frame.model.End())
        Report(Rule::ElementMissing, element, {}, std::move(missing));
    }
    if (frame.verdict.root != nullptr)
      CheckKeys(document_, element, *frame.verdict.root, !unknown_names_, findings_);
    --depth_;
  }

  void CheckText(const Element& element, const Type& type) {
    switch (type.content) {
      case Content::Empty:
        if (!element.text.empty()) Report(Rule::NotEmpty, element, std::string(element.text), {});
        break;
      case Content::Elements: {
        const std::string_view text = Trimmed(element.text);
        if (!text.empty()) Report(Rule::TextUnexpected, element, std::string(text), {});
        break;
      }
      case Content::Text:
        if (element.first_child == kNone) CheckValue(element, type);
        break;
    }
  }

  void CheckValue(const Element& element, const Type& type) {
    if (auto fault = FaultOf(type, element.text)) {
      Report(fault->rule, element, std::string(element.text), std::move(fault->expected));
    }
  }

  void CheckAttributes(const Element& element, const Type& type) {
    const auto rows = AttributesOf(type);
    std::size_t unknown = 0;
    std::uint64_t present = 0;
    for (const Attribute& attribute : document_.Attributes(element)) {
      const auto row =
          attribute.space.empty() ? std::ranges::find(rows, attribute.name, &AttributeRow::name) : rows.end();
      if (row != rows.end()) {
        present |= std::uint64_t{1} << (row - rows.begin());
        CheckAttribute(element, attribute, kTypes[row->type]);
      } else if (!TellsOfSchemas(attribute)) {
        ReportAttribute(element, attribute, rows);
        ++unknown;
      }
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (!rows[i].required || ((present >> i) & 1U) != 0) continue;
      // An unknown attribute was told with the names that it could have.
      if (unknown > 0) {
        --unknown;
      } else {
        Report(Rule::AttributeMissing, element, {}, std::string(rows[i].name));
      }
    }
  }

  static bool TellsOfSchemas(const Attribute& attribute) {
    return attribute.space == kInstanceSpace &&
           (attribute.name == "schemaLocation" || attribute.name == "type" ||
            attribute.name == "noNamespaceSchemaLocation");
  }

  void CheckAttribute(const Element& element, const Attribute& attribute, const Type& type) {
    auto fault = FaultOf(type, attribute.value);
    if (!fault) return;
    Report(fault->rule, element, std::string(attribute.name) + "=\"" + std::string(attribute.value) + "\"",
           std::move(fault->expected));
  }

  void ReportAttribute(const Element& element, const Attribute& attribute,
                       std::span<const AttributeRow> rows) {
    std::string expected;
    for (const AttributeRow& row : rows) AppendName(expected, row.name);
    const std::string space = attribute.space.empty() ? "" : "{" + std::string(attribute.space) + "}";
    ReportUnknown(Rule::AttributeUnexpected, element, space + std::string(attribute.name),
                  std::move(expected));
  }

  const Document& document_;
  Findings& findings_;
  std::size_t first_finding_;
  std::vector<Frame> frames_;
  std::size_t depth_ = 0;
  const Root* root_ = nullptr;
  bool unknown_names_ = false;
};

}  // namespace
}  // namespace schema

void CheckStructure(const Document& document, Findings& findings) {
  schema::StructureWalk(document, findings).Run();
}

}  // namespace ravo::isdoc
