#pragma once

#include <ravo/ECXMLParser.h>

#include <functional>
#include <string>
#include <string_view>

namespace tool {

/// How the words of a document are meant. The library takes every document for text of the suite's 8-bit code
/// page and gives its bytes back as they were; at the prompt those of a document in UTF-8 read as such.
class XmlWords {
 public:
  explicit XmlWords(bool utf8) : utf8_(utf8) {}
  /// A text of the document in UTF-8.
  [[nodiscard]] std::string Shown(std::u16string_view text) const;
  /// A text in UTF-8 as the document keeps it. Raises `std::runtime_error` for what it cannot be written
  /// with.
  [[nodiscard]] std::u16string Kept(const std::string& utf8) const;

 private:
  bool utf8_;
};

/// Loads an XML file whatever it begins with, with a progress bar; `name` is UTF-8. Raises
/// `std::runtime_error` with the file's name, and with the line where it cannot be read as XML.
XmlWords LoadXmlFile(const std::string& name, ravo::ECXMLParser::TECXMLParser& parser);

/// Hands every token of a file to `take`, with the same errors.
void ReadXmlTokens(const std::string& name,
                   const std::function<void(const ravo::ECXMLTokenizer::TXMLTokenizer&)>& take);

/// What a document is saved as.
[[nodiscard]] std::string SavedXml(ravo::ECXMLParser::TECXMLParser& parser);

}  // namespace tool
