#include "suite.h"

#include <span>

namespace ravo::document {
namespace {

MemoryStream StreamOf(std::string_view bytes) { return MemoryStream(std::as_bytes(std::span(bytes))); }

}  // namespace

void LoadAsSuite(std::string_view bytes, ECXMLParser::TECXMLParser& parser) {
  MemoryStream stream = StreamOf(bytes);
  parser.LoadFromStream(stream);
}

void ReadSuiteTokens(std::string_view bytes,
                     const std::function<void(const ECXMLTokenizer::TXMLTokenizer&)>& take) {
  MemoryStream stream = StreamOf(bytes);
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  for (; tokenizer.Token() != ECXMLTokenizer::xtEndOfInput; tokenizer.NextToken()) take(tokenizer);
}

std::string SavedBySuite(ECXMLParser::TECXMLParser& parser) {
  MemoryStream stream;
  parser.SaveToStream(stream, false);
  const auto bytes = stream.Bytes();
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace ravo::document
