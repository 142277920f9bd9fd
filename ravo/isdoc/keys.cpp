#include "keys.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ravo::isdoc::schema {
namespace {

struct KeyField {
  std::string_view value;
  const Element* element;
};

// The field of an element, if it has it.
void AppendField(const Document& document, const Element& element, const Key& key,
                 std::vector<KeyField>& fields) {
  if (!key.attribute) {
    const Element* const child = document.Child(element, key.field);
    if (child != nullptr && child->space == kSpace) fields.push_back({child->text, child});
    return;
  }
  for (const Attribute& attribute : document.Attributes(element)) {
    if (attribute.space.empty() && attribute.name == key.field) fields.push_back({attribute.value, &element});
  }
}

// The fields of the elements that the steps lead to, in the order of the document.
void AppendFields(const Document& document, const Element& element, const Key& key, std::size_t step,
                  std::vector<KeyField>& fields) {
  if (step == std::size(key.steps) || key.steps[step].empty()) {
    AppendField(document, element, key, fields);
    return;
  }
  ForEachChild(document, element, key.steps[step], [&](const Element& child) {
    if (child.space == kSpace) AppendFields(document, child, key, step + 1, fields);
  });
}

// The fields of a key. A field that occurs twice may be one that a reference misses.
struct Table {
  std::vector<KeyField> sorted;
  bool certain;
};

void ReportKey(Rule rule, const KeyField& field, Findings& findings) {
  findings.push_back(
      {rule, Severity::Error, field.element->place, field.element->name, std::string(field.value), {}});
}

// Returns whether there were any.
bool ReportRepeated(std::span<const KeyField> sorted, Findings& findings) {
  bool any = false;
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    if (sorted[i - 1].value != sorted[i].value) continue;
    ReportKey(Rule::KeyRepeated, sorted[i], findings);
    any = true;
  }
  return any;
}

void ReportDangling(std::span<const KeyField> fields, std::span<const KeyField> sorted, Findings& findings) {
  for (const KeyField& field : fields) {
    if (!std::ranges::binary_search(sorted, field.value, {}, &KeyField::value)) {
      ReportKey(Rule::ReferenceDangling, field, findings);
    }
  }
}

std::vector<KeyField> FieldsOf(const Document& document, const Element& scope, const Key& key) {
  std::vector<KeyField> fields;
  AppendFields(document, scope, key, 0, fields);
  return fields;
}

}  // namespace

void CheckKeys(const Document& document, const Element& scope, const Root& root, bool references,
               Findings& findings) {
  std::vector<Table> tables;
  for (const Key& key : std::span(kKeys).subspan(root.first_key, root.key_count)) {
    std::vector<KeyField> fields = FieldsOf(document, scope, key);
    if (key.refers == kNoRow) {
      std::ranges::stable_sort(fields, {}, &KeyField::value);
      const bool repeated = ReportRepeated(fields, findings);
      tables.push_back({std::move(fields), !repeated});
      continue;
    }
    const Table& table = tables[static_cast<std::size_t>(key.refers - root.first_key)];
    if (references && table.certain) ReportDangling(fields, table.sorted, findings);
  }
}

}  // namespace ravo::isdoc::schema
