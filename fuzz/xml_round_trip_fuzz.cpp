// A document that is loaded, edited and saved: the saved text equals the tree's own text, and loads by the
// plain rules.
#include <ravo/platform/code_pages.h>
#include <ravo/xml/document.h>

#include <cstdint>
#include <cstdlib>

#include <tests/xml/plain_tree.h>
#include <tests/xml/xml_text.h>

namespace {

using namespace ravo;
using ECXMLParser::TECXMLParser;
using ECXMLParser::TXMLItem;

void Require(bool condition) {
  if (!condition) std::abort();
}

void Load(TECXMLParser& parser, std::string_view text) {
  test::SplitStream stream(text);
  try {
    parser.Root()->LoadFromStream(stream);
  } catch (const EParserError&) {
    return;
  }
}

// Items below an item that is listed twice are written twice as often: a few are enough.
constexpr int kMostListedTwice = 6;

// One step of editing: `item` is the start, the result is the item for the next step.
TXMLItem* Edit(TXMLItem* item, unsigned char step, TECXMLParser& parser, TECXMLParser& other,
               int& listed_twice) {
  const std::int32_t count = item->SubItemCount();
  const std::int32_t index = count > 0 ? step / 16 % count : 0;
  switch (step % 16) {
    case 0:
      return count > 0 ? item->SubItems(index) : item;
    case 1:
      return item->Parent() != nullptr ? item->Parent() : item;
    case 2:
      return item->New();
    case 3:
      if (count > 0) item->Delete(index);
      return item;
    case 4:
      if (count > 0) item->Move(item->SubItems(index), count - 1);
      return item;
    case 5:
      item->SetName(u" n\u010D\u03B1\" ");
      return item;
    case 6:
      item->SetName(u"plain");
      return item;
    case 7:
      item->SetText(u"<\u4E2D>\r\n&amp;");
      return item;
    case 8:
      item->SetText(u"\u0159 \"&\r\n ");
      return item;
    case 9:
      item->Params().SetValue(u"k", u"v & \u0159");
      return item;
    case 10:
      return item->GetNamedItem(u"pLAIN");
    case 11:
      item->Clear();
      return item;
    case 12:
      if (count > 0 && ++listed_twice <= kMostListedTwice) item->SubItems(index)->SetParent(item);
      return item;
    case 13:
      if (count > 0) item->SubItems(index)->SetParent(other.Root());
      return item;
    case 14:
      if (count > 0) item->SubItems(index)->SetAsString(u"<s a=\"1\">t<u/></s>");
      return item;
    default:
      item->SetData(&parser);
      return item;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  const std::size_t steps = std::min<std::size_t>(size, size > 0 ? data[0] % 64 : 0);
  TECXMLParser other;
  TECXMLParser parser;
  parser.SetCrLfInAsString(false);
  Load(parser, all.substr(steps));
  TXMLItem* item = parser.Root();
  int listed_twice = 0;
  for (const char step : all.substr(0, steps)) {
    item = Edit(item, static_cast<unsigned char>(step), parser, other, listed_twice);
  }
  const std::string head =
      "<?xml version=\"1.0\" encoding=\"" + platform::CodePages().ToCodePage(parser.Encoding()) + "\" ?>\r\n";
  const std::string saved = test::Saved(parser, true);
  Require(saved == head + platform::CodePages().ToCodePage(parser.Root()->XMLItemAsString(2)));
  TECXMLParser again;
  again.SetCrLfInAsString(false);
  Load(again, saved);
  test::plain::Item plain;
  test::SplitStream stream(saved);
  try {
    test::plain::Load(plain, stream);
  } catch (const std::exception&) {
    // The tree was compared up to here.
  }
  Require(again.Root()->AsString() == test::plain::AsString(plain, 0, false));
  return 0;
}
