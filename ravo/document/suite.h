#pragma once

#include <ravo/xml/document.h>

#include <functional>
#include <string>
#include <string_view>

namespace ravo::document {

/// Loads a document as the suite does, which ignores in silence what it does not recognise as XML. Throws the
/// library's errors, with the line.
void LoadAsSuite(std::string_view bytes, ECXMLParser::TECXMLParser& parser);

/// Calls `take` with the suite's tokenizer at each token of a document. Throws as `LoadAsSuite` does.
void ReadSuiteTokens(std::string_view bytes,
                     const std::function<void(const ECXMLTokenizer::TXMLTokenizer&)>& take);

/// Returns the bytes that the suite saves.
[[nodiscard]] std::string SavedBySuite(ECXMLParser::TECXMLParser& parser);

}  // namespace ravo::document
