#include "check.h"

#include "content.h"
#include "structure.h"

#include <algorithm>
#include <tuple>

namespace ravo::isdoc {

Findings Check(const Document& document) {
  Findings findings;
  CheckStructure(document, findings);
  CheckContent(document, findings);
  std::ranges::stable_sort(findings, {}, [](const Finding& finding) {
    return std::tuple(finding.place.line, finding.place.column);
  });
  return findings;
}

}  // namespace ravo::isdoc
