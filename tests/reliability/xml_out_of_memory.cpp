#include "out_of_memory.h"
#include "xml/xml_text.h"
#include <ravo/ECXMLParser.h>
#include <ravo/ECXMLTokenizer.h>

#include <string>

// Documents with memory that runs out at each allocation in turn.
namespace ravo {
namespace {

using namespace ECXMLParser;
using test::ExpectSurvivesScarceMemory;

constexpr std::string_view kDocument =
    "<?xml version=\"1.0\" encoding=\"a name of some length\"?>\r\n<?xml-stylesheet href=\"a style "
    "sheet.xsl\"?>\r\n"
    "<root one=\"1\" two='a b' three=\"\" one=\"2\" checked>text of some length\r\n"
    "<a x=\"a value that takes memory of its own\"><b/>more text<b><c><d/></c></b>&amp;lt; text</a>\r\n"
    "and <![CDATA[a section <of> some length]]><e/>text that is joined and joined again</root>\r\n";

const std::u16string kWide(60, u'\u4E2D');

void Load(TECXMLParser& parser) {
  test::SplitStream stream(kDocument, 40);
  parser.Root()->LoadFromStream(stream);
}

TEST(XmlOutOfMemory, Tokens) {
  ExpectSurvivesScarceMemory([] {
    test::SplitStream stream(kDocument, 7);
    static_cast<void>(test::TokensOf(stream));
  });
}

TEST(XmlOutOfMemory, LoadingAndSaving) {
  ExpectSurvivesScarceMemory([] {
    TECXMLParser parser;
    Load(parser);
    static_cast<void>(test::Saved(parser));
    static_cast<void>(parser.Root()->AsString());
    Load(parser);
  });
}

// The remains of a failed load can be saved, cleared and loaded again.
TEST(XmlOutOfMemory, ADocumentStaysUsable) {
  TECXMLParser parser;
  Load(parser);
  const std::string whole = test::Saved(parser);
  for (std::int64_t requests = 0; requests < 60; ++requests) {
    {
      const test::FailingMemory memory(requests);
      try {
        Load(parser);
      } catch (const std::bad_alloc&) {
        static_cast<void>(memory.HasFailed());
      }
    }
    static_cast<void>(test::Saved(parser));
    parser.Clear();
    Load(parser);
    ASSERT_EQ(test::Saved(parser), whole) << requests;
  }
}

TEST(XmlOutOfMemory, LoadingStepByStep) {
  ExpectSurvivesScarceMemory([] {
    TECXMLParser parser;
    parser.SetXMLItemChanged([](TECXMLParser&, TXMLItem&) {});
    test::SplitStream stream(kDocument);
    ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
    parser.Root()->LoadFromTokenizer(tokenizer);
  });
}

TEST(XmlOutOfMemory, LoadingAnItemOfADocument) {
  ExpectSurvivesScarceMemory([] {
    TECXMLParser parser;
    Load(parser);
    parser.Root()->SubItems(0)->SetAsString(u"<n><m>text</m></n>text<p/></r>");
  });
}

TEST(XmlOutOfMemory, Editing) {
  ExpectSurvivesScarceMemory([] {
    TECXMLParser parser;
    Load(parser);
    TXMLItem* const root = parser.Root();
    for (int i = 0; i < 5; ++i) root->New()->SetName(u"a name that takes memory of its own");
    root->GetNamedItem(kWide)->SetText(kWide);
    root->SubItems(0)->SetText(u"<another text of some length>");
    root->SubItems(0)->Params().SetValue(kWide, kWide);
    root->SubItems(1)->SetParams(root->SubItems(0)->Params());
    root->SubItems(1)->SetData(root);
    static_cast<void>(root->SubItems(1)->Name());
    static_cast<void>(test::Saved(parser));
    root->Delete(0);
    root->Clear();
  });
}

TEST(XmlOutOfMemory, MovingBetweenParents) {
  ExpectSurvivesScarceMemory([] {
    TECXMLParser keeper;
    TECXMLParser parser;
    Load(parser);
    TXMLItem* const item = parser.Root()->SubItems(0);
    item->SetParent(parser.Root());
    item->SetParent(keeper.Root());
    item->SetParser(&keeper);
    auto mine = std::make_unique<TXMLItem>();
    mine->New()->SetText(kWide);
    mine->SetParent(keeper.Root());
    static_cast<void>(mine.release());
  });
}

// An existing document is unchanged, or completely changed.
TEST(XmlOutOfMemory, ATextStaysWhole) {
  TECXMLParser parser;
  Load(parser);
  TXMLItem* const item = parser.Root()->SubItems(0);
  const std::u16string old = item->Text();
  for (std::int64_t requests = 0; requests < 10; ++requests) {
    bool raised = false;
    {
      const test::FailingMemory memory(requests);
      try {
        item->SetText(kWide);
      } catch (const std::bad_alloc&) {
        raised = true;
      }
    }
    EXPECT_EQ(item->Text(), raised ? old : kWide) << requests;
    item->SetText(old);
  }
}

TEST(XmlOutOfMemory, ANewItemIsThereOrNot) {
  TECXMLParser parser;
  for (std::int64_t requests = 0; requests < 10; ++requests) {
    const std::int32_t before = parser.Root()->SubItemCount();
    bool raised = false;
    {
      const test::FailingMemory memory(requests);
      try {
        parser.Root()->New();
      } catch (const std::bad_alloc&) {
        raised = true;
      }
    }
    EXPECT_EQ(parser.Root()->SubItemCount(), raised ? before : before + 1);
  }
}

}  // namespace
}  // namespace ravo
