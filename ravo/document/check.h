#pragma once

#include <ravo/document/text.h>

#include <functional>
#include <string>
#include <vector>

namespace ravo::document {

/// A place where the suite sees or saves something else than a standard parser reads.
struct DocumentFinding {
  Fault what;
  std::size_t at = 0;  ///< a byte of the text in UTF-8
};

/// Hears of a finding.
using DocumentReport = std::function<void(const DocumentFinding&)>;

/// Reports all findings, in the order of the document, and returns their number.
///
/// A document without any is loaded and saved by the suite's own code, and the results are compared with what
/// expat reads (`ScanDocument` in a build without expat). White space at the ends of texts and between
/// elements does not count there, since the suite lays documents out anew. Throws `DocumentError` if expat
/// rejects the document.
std::size_t CheckDocument(const DocumentText& text, const ScannedDocument& document,
                          const DocumentReport& report);

}  // namespace ravo::document
