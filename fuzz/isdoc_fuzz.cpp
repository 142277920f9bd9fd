// Invoices from any bytes: what is well-formed is checked as a whole, every finding has its rule, its
// sentences and a place of an element, and the structure's findings come in the order of the document.
#include <ravo/isdoc/isdoc.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <vector>

namespace {

using namespace ravo::isdoc;

void Require(bool condition) {
  if (!condition) std::abort();
}

bool IsBefore(const Place& a, const Place& b) {
  return a.line < b.line || (a.line == b.line && a.column < b.column);
}

void CheckFindings(const Document& document, const Findings& findings) {
  std::vector<Place> places;
  for (const Element& element : document.Elements()) places.push_back(element.place);
  std::ranges::sort(places, IsBefore);
  for (const Finding& finding : findings) {
    Require(!RuleText(finding.rule).empty());
    Require(!Sentence(finding.rule, ravo::czech::Language::Czech).empty());
    Require(!Sentence(finding.rule, ravo::czech::Language::English).empty());
    Require(std::ranges::binary_search(places, finding.place, IsBefore));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ReadingError error;
  const auto document = Document::Read({reinterpret_cast<const char*>(data), size}, error);
  if (!document) {
    Require(!error.message.empty());
    return 0;
  }
  Findings findings;
  CheckStructure(*document, findings);
  CheckFindings(*document, findings);
  Require(std::ranges::is_sorted(findings, IsBefore, &Finding::place));
  CheckContent(*document, findings);
  return 0;
}
