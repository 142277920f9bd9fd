// Documents of any bytes, edited by path: the first byte chooses an element, and whether its text or its
// first attribute is set. The result must be XML again, have the value at the path, and be the same
// elsewhere.
#include <ravo/document/edit.h>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace document = ravo::document;

namespace {

using document::DocumentPart;
using document::PartKind;
using document::ScannedDocument;

void Require(bool holds) {
  if (!holds) std::abort();
}

// Forms the paths of all elements.
std::vector<std::string> PathsOf(const ScannedDocument& document) {
  std::vector<std::string> paths;
  std::vector<std::string> open = {""};
  std::vector<std::map<std::string_view, int>> counts(1);
  for (const DocumentPart& part : document.parts) {
    if (part.kind == PartKind::CloseTag) {
      open.pop_back();
      counts.pop_back();
    }
    if (!part.OpensElement()) continue;
    const std::string_view name = part.name.Of(document.text);
    const int number = ++counts.back()[name];
    std::string path = open.back() + "/" + std::string(name) + "[" + std::to_string(number) + "]";
    if (part.attribute_count > 0) {
      const auto& attribute = document.attributes[part.first_attribute];
      paths.push_back(path + "/@" + std::string(attribute.name.Of(document.text)));
    }
    paths.push_back(path);
    if (part.kind != PartKind::OpenTag) continue;
    open.push_back(std::move(path));
    counts.emplace_back();
  }
  return paths;
}

// An exception here is a failure.
void CheckResult(const document::DocumentText& text, const document::DocumentEdit& edit,
                 const document::ValueChange& change) noexcept {
  const document::DocumentText edited = document::DecodeDocument(document::EditedBytes(text, {&edit, 1}));
  const ScannedDocument result = document::ScanDocument(edited.utf8);
  const auto place = document::PathFinder(result).FindWhole(document::ParsePath(change.path));
  Require(document::ValueAt(result, place, false) == change.value);
  const document::Span changed{edit.span.begin, edit.span.begin + edit.utf8.size()};
  const document::DocumentEdit back{changed, std::string(edit.span.Of(text.utf8))};
  Require(document::EditedBytes(edited, {&back, 1}) == text.bytes);
}

void CheckEdit(const document::DocumentText& text, const ScannedDocument& document, const std::string& path) {
  const document::ValueChange change{path, "<&>\"']]>\r\n\tx"};
  const auto edits = document::EditsFor(text, document, {&change, 1}, {});
  Require(edits.size() == 1);
  CheckResult(text, edits[0], change);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  try {
    const document::DocumentText text =
        document::DecodeDocument({reinterpret_cast<const char*>(data) + 1, size - 1});
    const ScannedDocument scanned = document::ScanDocument(text.utf8);
    const auto paths = PathsOf(scanned);
    CheckEdit(text, scanned, paths[data[0] % paths.size()]);
  } catch (const document::PlacedError&) {
    // No document in a known encoding.
  } catch (const document::DocumentError&) {
    // Not XML.
  } catch (const document::PathError&) {
    // An element with others inside.
  }
  return 0;
}
