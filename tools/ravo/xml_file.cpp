#include "xml_file.h"

#include <span>

namespace tool {
namespace {

ravo::MemoryStream StreamOf(std::string_view bytes) {
  return ravo::MemoryStream(std::as_bytes(std::span(bytes)));
}

}  // namespace

void LoadAsSuite(std::string_view bytes, ravo::ECXMLParser::TECXMLParser& parser) {
  ravo::MemoryStream stream = StreamOf(bytes);
  parser.LoadFromStream(stream);
}

void ReadSuiteTokens(std::string_view bytes,
                     const std::function<void(const ravo::ECXMLTokenizer::TXMLTokenizer&)>& take) {
  ravo::MemoryStream stream = StreamOf(bytes);
  ravo::ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  for (; tokenizer.Token() != ravo::ECXMLTokenizer::xtEndOfInput; tokenizer.NextToken()) take(tokenizer);
}

std::string SavedBySuite(ravo::ECXMLParser::TECXMLParser& parser) {
  ravo::MemoryStream stream;
  parser.SaveToStream(stream, false);
  const auto bytes = stream.Bytes();
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace tool
