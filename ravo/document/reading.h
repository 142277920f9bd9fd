#pragma once

#include <ravo/document/scanner.h>
#include <ravo/xml/document.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ravo::document {

/// An element as a reader sees it. Texts are UTF-8.
struct ReadElement {
  std::string name;
  std::vector<std::pair<std::string, std::string>> attributes;
  std::string text;       ///< directly inside, its pieces joined
  std::size_t depth = 0;  ///< 0 for the root
  std::size_t at = 0;     ///< the position of its tag in the text; 0 for the suite, which does not know it
};

/// The elements of a document in the order in which they open.
using DocumentReading = std::vector<ReadElement>;

/// Returns what the program's own scanner reads.
[[nodiscard]] DocumentReading ReadByScanner(const ScannedDocument& document);

/// Returns what the suite reads. It reads the bytes of every document in its 8-bit code page.
[[nodiscard]] DocumentReading ReadBySuite(const ECXMLParser::TXMLItem& root);

/// Returns what expat reads in a text in UTF-8, whatever encoding it declares; in a build without expat, what
/// the program's own scanner reads. Throws `DocumentError`.
[[nodiscard]] DocumentReading ReadByOther(std::string_view utf8);

}  // namespace ravo::document
