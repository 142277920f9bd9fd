// XML in any form: the tree, loaded at once or step by step, equals that of the plain rules.
#include <ravo/xml/document.h>

#include <cstdint>
#include <cstdlib>

#include <tests/xml/plain_tree.h>
#include <tests/xml/xml_text.h>

namespace {

using namespace ravo;
using ECXMLParser::TECXMLParser;

void Require(bool condition) {
  if (!condition) std::abort();
}

std::u16string ByTree(std::string_view text, bool reporting, bool& failed) {
  TECXMLParser parser;
  parser.SetCrLfInAsString(false);
  if (reporting) parser.SetXMLItemChanged([](TECXMLParser&, ECXMLParser::TXMLItem&) {});
  test::SplitStream stream(text);
  try {
    ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
    parser.Root()->LoadFromTokenizer(tokenizer);
  } catch (const EParserError&) {
    failed = true;
  }
  return parser.Root()->AsString();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  test::plain::Item item;
  bool failed = false;
  test::SplitStream stream(text);
  try {
    test::plain::Load(item, stream);
  } catch (const std::exception&) {
    failed = true;
  }
  const std::u16string wanted = test::plain::AsString(item, 0, false);
  bool at_once = false;
  bool by_steps = false;
  Require(ByTree(text, false, at_once) == wanted && at_once == failed);
  Require(ByTree(text, true, by_steps) == wanted && by_steps == failed);
  return 0;
}
