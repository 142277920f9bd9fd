#pragma once

#include <ravo/ECXMLParser.h>

#include <functional>
#include <string>
#include <string_view>

namespace tool {

/// The encoding in which a document is shown and edited.
///
/// The library reads every document in the suite's 8-bit code page and saves the same bytes. At the prompt a
/// document in UTF-8 is shown and edited as such.
class XmlWords {
 public:
  explicit XmlWords(bool utf8) : utf8_(utf8) {}
  /// Returns a text of the document in UTF-8.
  [[nodiscard]] std::string Shown(std::u16string_view text) const;
  /// Returns a text in UTF-8 as the document keeps it. Throws `std::runtime_error` if the document's encoding
  /// lacks a character.
  [[nodiscard]] std::u16string Kept(const std::string& utf8) const;

 private:
  bool utf8_;
};

/// Loads an XML file with a progress bar, whatever its first bytes are; `name` is UTF-8.
///
/// Throws `std::runtime_error` with the file's name, and with the line if it cannot be read as XML.
XmlWords LoadXmlFile(const std::string& name, ravo::ECXMLParser::TECXMLParser& parser);

/// Calls `take` with a tokenizer at each token of a file. Throws as `LoadXmlFile` does.
void ReadXmlTokens(const std::string& name,
                   const std::function<void(const ravo::ECXMLTokenizer::TXMLTokenizer&)>& take);

/// Returns the bytes of the saved document.
[[nodiscard]] std::string SavedXml(ravo::ECXMLParser::TECXMLParser& parser);

}  // namespace tool
