#include "documents.h"
#include "plain_tree.h"
#include "support/effort.h"
#include "support/tried.h"
#include "xml_text.h"
#include <ravo/ECXMLParser.h>
#include <ravo/platform/code_pages.h>

#include <gmock/gmock.h>

namespace {

using namespace ravo;
using namespace ravo::ECXMLParser;
using namespace ravo::test;

struct Loaded {
  std::u16string text;
  bool failed = false;
  friend bool operator==(const Loaded&, const Loaded&) = default;
};

std::ostream& operator<<(std::ostream& out, const Loaded& loaded) {
  return out << (loaded.failed ? "failed: " : "") << ToUtf8(loaded.text);
}

Loaded ByTree(const std::string& text, bool lines, bool reporting) {
  TECXMLParser parser;
  parser.SetCrLfInAsString(lines);
  Loaded loaded;
  if (reporting) parser.SetXMLItemChanged([](TECXMLParser&, TXMLItem&) {});
  try {
    SplitStream stream(text);
    ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
    parser.Root()->LoadFromTokenizer(tokenizer);
  } catch (const EParserError&) {
    loaded.failed = true;
  }
  loaded.text = parser.Root()->XMLItemAsString(2);
  EXPECT_EQ(Saved(parser),
            "<?xml version=\"1.0\" encoding=\"\" ?>\r\n" + platform::CodePages().ToCodePage(loaded.text));
  return loaded;
}

Loaded ByPlainRules(const std::string& text, bool lines) {
  plain::Item item;
  Loaded loaded;
  SplitStream stream(text);
  try {
    plain::Load(item, stream);
  } catch (const std::exception&) {
    loaded.failed = true;
  }
  loaded.text = plain::AsString(item, 2, lines);
  return loaded;
}

TEST(LoadFromTokenizer, FollowsThePlainRules) {
  for (const std::string& document : Documents()) {
    for (const bool lines : {true, false}) {
      const Loaded wanted = ByPlainRules(document, lines);
      EXPECT_EQ(ByTree(document, lines, false), wanted) << document;
      EXPECT_EQ(ByTree(document, lines, true), wanted) << document << ", reporting";
    }
  }
}

TEST(LoadFromTokenizer, ParamsAreThoseOfThePlainRules) {
  for (const std::string& document : Documents()) {
    plain::Item item;
    TECXMLParser parser;
    SplitStream first(document);
    SplitStream second(document);
    try {
      plain::Load(item, first);
    } catch (const std::exception&) {
      continue;
    }
    parser.Root()->LoadFromStream(second);
    EXPECT_EQ(parser.Root()->Params().Text(), item.params.Text()) << document;
    EXPECT_EQ(parser.Root()->Name(), item.name) << document;
    EXPECT_EQ(parser.Root()->Text(), item.text) << document;
    // Reading the list does not change the saved text.
    EXPECT_EQ(parser.Root()->XMLItemAsString(0), plain::AsString(item, 0, true)) << document;
  }
}

TEST(LoadFromTokenizer, LoadsAlikeAtEverySplit) {
  for (const std::string& document : Documents()) {
    const Loaded wanted = ByPlainRules(document, true);
    for (std::size_t split = 1; split < document.size(); ++split) {
      TECXMLParser parser;
      SplitStream stream(document, SIZE_MAX, split);
      try {
        parser.Root()->LoadFromStream(stream);
      } catch (const EParserError&) {
        EXPECT_TRUE(wanted.failed);
      }
      EXPECT_EQ(parser.Root()->XMLItemAsString(2), wanted.text) << document << " split at " << split;
      Tried("splits", 1);
    }
  }
}

TEST(LoadFromTokenizer, LoadsAlikeAtEveryPlaceOfTheEdge) {
  constexpr std::size_t kEdge = 65536;
  for (const std::string& document : Documents()) {
    for (std::size_t before = 0; before <= document.size(); before += test::StepUnderSanitizers(3)) {
      const std::string blanks(kEdge - before - 1, ' ');
      const std::string all = blanks + "\n" + document;
      EXPECT_EQ(ByTree(all, true, false), ByPlainRules(all, true)) << document << ", " << before;
      Tried("places_at_the_edge_of_a_buffer", 1);
    }
  }
}

TXMLItem* Loaded1(TECXMLParser& parser, std::string_view text) {
  LoadRoot(parser, text);
  return parser.Root();
}

TEST(LoadFromStream, TheRootIsTheFirstElement) {
  TECXMLParser parser;
  TXMLItem* root = Loaded1(parser, "<a><b>x</b><c/></a>");
  EXPECT_EQ(root->Name(), u"a");
  ASSERT_EQ(root->SubItemCount(), 2);
  EXPECT_EQ(root->SubItems(0)->Name(), u"b");
  EXPECT_EQ(root->SubItems(0)->Text(), u"x");
  EXPECT_EQ(root->SubItems(1)->Name(), u"c");
  EXPECT_EQ(root->SubItems(1)->Parent(), root);
  EXPECT_EQ(root->SubItems(1)->Parser(), &parser);
}

TEST(LoadFromStream, AnyCloseTagCloses) {
  TECXMLParser parser;
  EXPECT_EQ(Loaded1(parser, "<a><b></c><d/></e>")->XMLItemAsString(0),
            u"<a>\r\n  <b/>\r\n  <d/>\r\n</a>\r\n");
}

TEST(LoadFromStream, AStandAloneTagIsAChildEvenFirst) {
  TECXMLParser parser;
  TXMLItem* root = Loaded1(parser, "<a x=\"1\"/>");
  EXPECT_EQ(root->Name(), u"");
  ASSERT_EQ(root->SubItemCount(), 1);
  EXPECT_EQ(root->SubItems(0)->XMLItemName(), u"a x=\"1\"");
}

TEST(LoadFromStream, ReadsAttributesOfAChild) {
  TECXMLParser parser;
  TXMLItem* child = Loaded1(parser, "<r><a x=\"1 2\" y=3/></r>")->SubItems(0);
  EXPECT_EQ(child->Params().Count(), 2U);
  EXPECT_EQ(child->Params().Value(u"x"), u"1 2");
  EXPECT_EQ(child->Params().Value(u"y"), u"3");
}

TEST(LoadFromStream, AnEmptyValueKeepsItsQuotes) {
  TECXMLParser parser;
  EXPECT_EQ(Loaded1(parser, "<a x=\"\"></a>")->Params().Value(u"x"), u"\"\"");
  EXPECT_EQ(Loaded1(parser, "<a x=\"1\"></a>")->Params().Value(u"x"), u"1");
}

TEST(LoadFromStream, BlanksBetweenSingleQuotesEndAnAttribute) {
  TECXMLParser parser;
  EXPECT_EQ(Loaded1(parser, "<a x='1 2'></a>")->Params().Text(), u"x='1\r\n2'\r\n");
}

TEST(LoadFromStream, ValuesOfARepeatedAttributeLandInTheFirst) {
  TECXMLParser parser;
  EXPECT_EQ(Loaded1(parser, "<a x=\"1\" x=\"2\"></a>")->Params().Text(), u"x=2\r\nx=\"2\"\r\n");
}

TEST(LoadFromStream, OneLevelOfEntitiesIsUndone) {
  TECXMLParser parser;
  EXPECT_EQ(Loaded1(parser, "<a>a &amp;lt; b</a>")->Text(), u"a &lt; b");
}

TEST(LoadFromStream, JoinedTextIsUnescapedOnceMore) {
  TECXMLParser parser;
  EXPECT_EQ(Loaded1(parser, "<a>x<b/>y</a>")->Text(), u"x\r\ny");
  EXPECT_EQ(Loaded1(parser, "<a>&amp;lt;<b/>&amp;lt;</a>")->Text(), u"<\r\n&lt;");
}

TEST(LoadFromStream, CDataInSmallLettersKeepsItsMarkers) {
  TECXMLParser parser;
  EXPECT_EQ(Loaded1(parser, "<a><![cdata[x]]></a>")->Text(), u"<![cdata[x]]>");
  EXPECT_EQ(Loaded1(parser, "<a><![CDATA[x]]></a>")->Text(), u"x");
}

TEST(LoadFromStream, ThirdBracketOfCDataIsSkipped) {
  TECXMLParser parser;
  EXPECT_EQ(Loaded1(parser, "<a><![CDATA[x]]]></a>")->Text(), u"x\r\n>");
}

std::string ErrorOf(std::string_view text) {
  TECXMLParser parser;
  try {
    LoadRoot(parser, text);
  } catch (const EParserError& error) {
    return error.what();
  }
  return "nothing";
}

TEST(LoadFromStream, RaisesContentOutsideOfEveryElement) {
  EXPECT_EQ(ErrorOf("<a></a>\n</a>"), "Close tag without an open tag on line 2");
  // The last close tag needs no item above.
  EXPECT_EQ(ErrorOf("</a>"), "nothing");
  EXPECT_EQ(ErrorOf("</a></a>"), "Close tag without an open tag on line 1");
  EXPECT_EQ(ErrorOf("<a></a>\n\n<b/>"), "Content behind the end of the document on line 3");
  EXPECT_EQ(ErrorOf("<a></a><b>"), "Content behind the end of the document on line 1");
  EXPECT_EQ(ErrorOf("<a></a>x"), "Content behind the end of the document on line 1");
  EXPECT_EQ(ErrorOf("<a></a><!-- x --><?xml?>\r\n"), "nothing");
}

TEST(LoadFromStream, KeepsWhatWasBuiltBeforeAnError) {
  TECXMLParser parser;
  EXPECT_THROW(LoadRoot(parser, "<a><b>x</b><c y=\"1\"><d/>\n<e"), EParserError);
  EXPECT_EQ(parser.Root()->XMLItemAsString(0),
            u"<a>\r\n  <b>\r\n    x\r\n  </b>\r\n  <c y=\"1\">\r\n    <d/>\r\n  </c>\r\n</a>\r\n");
}

TEST(LoadFromStream, ATagThatLeavesAnItemGoesOnAboveIt) {
  TECXMLParser parser;
  TXMLItem* root = Loaded1(parser, "<r>t<a/><b>x</b></r>");
  SplitStream stream("<n><m/></n>u<p/></r>");
  root->SubItems(0)->LoadFromStream(stream);
  EXPECT_EQ(
      root->XMLItemAsString(0),
      u"<r>\r\n  t<br/>u\r\n  <n>\r\n    <m/>\r\n  </n>\r\n  <b>\r\n    x\r\n  </b>\r\n  <p/>\r\n</r>\r\n");
  SplitStream again("<q/>");
  root->SubItems(0)->LoadFromStream(again);
  EXPECT_EQ(root->SubItems(0)->XMLItemAsString(0), u"<>\r\n  <q/>\r\n</>\r\n");
}

TEST(LoadFromStream, AnItemOfADocumentIsLoadedOverAndOver) {
  TECXMLParser parser;
  TXMLItem* root = Loaded1(parser, "<r><a/><a/></r>");
  for (int i = 0; i < 100; ++i) {
    for (int k = 0; k < 2; ++k) root->SubItems(k)->SetAsString(u"<x y=\"1\"><z>text</z></x>");
  }
  EXPECT_EQ(root->SubItems(1)->AsString(), u"<x y=\"1\">\r\n  <z>\r\n    text\r\n  </z>\r\n</x>\r\n");
}

TEST(LoadFromStream, WantsADocument) {
  TXMLItem item;
  SplitStream stream("<a></a>");
  EXPECT_THROW(item.LoadFromStream(stream), Error);
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  item.LoadFromTokenizer(tokenizer);
  EXPECT_EQ(item.AsString(), u"<a/>\r\n");
}

TEST(LoadFromLargeStream, LoadsAsTheOtherDoes) {
  TECXMLParser parser;
  SplitStream stream("<a>\r\n<b/>\r\n</a>\r\n");
  parser.Root()->LoadFromLargeStream(stream);
  EXPECT_EQ(parser.Root()->AsString(), u"<a>\r\n  <b/>\r\n</a>\r\n");
  SplitStream one_line("<a></a>");
  EXPECT_THROW(parser.Root()->LoadFromLargeStream(one_line), EParserError);
  SplitStream empty("");
  EXPECT_THROW(parser.Root()->LoadFromLargeStream(empty), EParserError);
}

TEST(XMLItemName, EscapesValues) {
  TXMLItem item;
  item.SetName(u"a");
  item.Params().SetValue(u"x", u"1<2");
  EXPECT_EQ(item.XMLItemName(), u"a x=\"1&lt;2\"");
}

TEST(StrToXML, EscapesAndJoinsLines) {
  EXPECT_EQ(StrToXML(u"a&b<c>d\"e'f\r\ng\rh\ni&amp;"), u"a&amp;b&lt;c&gt;d&quot;e'f<br/>g\rh\ni&amp;amp;");
  EXPECT_EQ(StrToXML(u"\r\n"), u"<br/>");
}

TEST(XMLToStr, LeavesTheLineBreakMarker) {
  EXPECT_EQ(XMLToStr(u"<br/>"), u"<br/>");
  EXPECT_EQ(XMLToStr(u"&lt;&gt;&quot;&amp;&apos;&#65;&amp;lt;&LT;"), u"<>\"&&apos;&#65;&lt;&LT;");
}

TEST(StrToXML, FollowsThePlainRulesForEveryShortText) {
  const std::u16string letters = u"&<>\"\r\nlt;gamp";
  const auto walk = [&](auto self, std::u16string text, int more) -> void {
    ASSERT_EQ(StrToXML(text), plain::Escaped(text));
    ASSERT_EQ(XMLToStr(text), plain::Unescaped(text));
    if (more == 0) return;
    for (const char16_t ch : letters) self(self, text + ch, more - 1);
  };
  walk(walk, u"", 4);
  walk(walk, u"&am", 3);
  walk(walk, u"&amp;", 3);
}

std::string DeepDocument(int depth) {
  std::string text;
  for (int i = 0; i < depth; ++i) text += "<a>\n";
  for (int i = 0; i < depth; ++i) text += "</a>\n";
  return text;
}

TEST(Nesting, OfAMillionLevelsCostsNoStack) {
  constexpr int kDepth = 1'000'000;
  TECXMLParser parser;
  TECXMLParser other;
  parser.SetCrLfInAsString(false);
  const std::string text = DeepDocument(kDepth);
  LoadRoot(parser, text);
  // Without line breaks two blanks precede each tag at any depth; the innermost tag is a stand-alone one.
  EXPECT_EQ(Saved(parser).size(), 36U + (kDepth - 1) * (5U + 6U) + 6U);
  EXPECT_EQ(parser.Root()->XMLItemAsString(0).size(), (kDepth - 1) * 7U + 4U);
  parser.Root()->SetParser(&other);
  EXPECT_EQ(parser.Root()->SubItems(0)->SubItems(0)->Parser(), &other);
  parser.Root()->SetParser(&parser);
  // Items are freed one by one if one of them owns memory.
  parser.Root()->SubItems(0)->SubItems(0)->SetText(u"x");
  parser.Clear();
  EXPECT_EQ(parser.Root()->SubItemCount(), 0);
  LoadRoot(parser, text);
}

TEST(Nesting, OfAMillionNewItemsCostsNoStack) {
  constexpr int kDepth = 1'000'000;
  TECXMLParser parser;
  TXMLItem item;
  TXMLItem* at = &item;
  for (int i = 0; i < kDepth; ++i) at = at->New();
  item.SetCrLfInAsString(false);
  item.SetParser(&parser);
  EXPECT_EQ(at->Parser(), &parser);
  int levels = 0;
  for (; at != &item; at = at->Parent()) levels += at->Parent()->IndexOf(at) == 0 ? 1 : 0;
  EXPECT_EQ(levels, kDepth);
  // The innermost tag is a stand-alone one.
  EXPECT_EQ(item.XMLItemAsString(0).size(), kDepth * std::string_view("<></>").size() + 3U);
  item.Clear();
  EXPECT_EQ(item.SubItemCount(), 0);
  EXPECT_EQ(item.New()->SubItemCount(), 0);
}

TEST(Breadth, StaysLinear) {
  // Comparing each pair of this many attributes would never end.
  constexpr int kAttributes = 200'000;
  std::string tag = "<a";
  for (int i = 0; i < kAttributes; ++i) tag += "\n n" + std::to_string(i) + "=\"" + std::to_string(i) + "\"";
  TECXMLParser parser;
  LoadRoot(parser, tag + "></a>");
  // The line between a line feed and a blank is empty.
  EXPECT_EQ(parser.Root()->Params().Count(), 2U * kAttributes - 1);
  EXPECT_EQ(parser.Root()->Params().Value(u"n199999"), u"199999");
  std::string texts = "<a>\n";
  for (int i = 0; i < 200'000; ++i) texts += "&amp;x<b/>\n";
  LoadRoot(parser, texts + "</a>");
  EXPECT_EQ(parser.Root()->SubItemCount(), 200'000);
  EXPECT_EQ(parser.Root()->Text().size(), 200'000U * 4 - 2);
}

TEST(Breadth, OfTenMillionItemsStaysLinear) {
  constexpr std::int32_t kCount = sizeof(void*) == 8 ? 10'000'000 : 2'000'000;
  std::string text = "<r>\n";
  for (int i = 0; i < kCount; ++i) text += "<a/>\n";
  TECXMLParser parser;
  LoadRoot(parser, text + "</r>");
  TXMLItem* root = parser.Root();
  ASSERT_EQ(root->SubItemCount(), kCount);
  EXPECT_EQ(root->SubItems(kCount / 2)->Name(), u"a");
  for (int i = 0; i < kCount / 2; ++i) root->Delete(0);
  root->New();
  EXPECT_EQ(root->SubItemCount(), kCount / 2 + 1);
}

}  // namespace
