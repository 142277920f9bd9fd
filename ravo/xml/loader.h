#pragma once

#include <ravo/xml/tokenizer.h>

#include <string_view>

namespace ravo::xml {

/// Receives the content of a document in its order. The members that return a bool return false, and do
/// nothing, if no element is open.
class TokenListener {
 public:
  TokenListener() = default;
  TokenListener(const TokenListener&) = delete;
  TokenListener& operator=(const TokenListener&) = delete;

  /// The names in the header.
  virtual void Encoding(std::u16string_view name) = 0;
  virtual void StyleSheet(std::u16string_view name) = 0;
  /// A tag as it is in the source, "<" and ">" included. `kReadAhead` bytes after it are readable.
  [[nodiscard]] virtual bool OpenTag(std::string_view tag) = 0;
  [[nodiscard]] virtual bool StandAloneTag(std::string_view tag) = 0;
  [[nodiscard]] virtual bool CloseTag() = 0;
  /// Text that is escaped just as in a saved document and more than blanks.
  [[nodiscard]] virtual bool SavedText(std::string_view text) = 0;
  /// Any other text: normalised, without the markers of CDATA, with its entities.
  [[nodiscard]] virtual bool OtherText(std::string_view text) = 0;

 protected:
  ~TokenListener() = default;
};

/// Reads `tokenizer` to the end of its document and tells `listener` of each token.
///
/// Comments are skipped. Throws `EParserError` for content outside of every element; errors of the tokenizer
/// and the listener pass through.
void ReadTokens(ECXMLTokenizer::TXMLTokenizer& tokenizer, TokenListener& listener);

}  // namespace ravo::xml
