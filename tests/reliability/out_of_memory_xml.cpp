#include "out_of_memory.h"
#include <ravo/ECXMLParser.h>
#include <ravo/runtime/byte_stream.h>

#include <string>
#include <string_view>

// Memory that runs out in documents.
namespace ravo {
namespace {

using ECXMLParser::TECXMLParser;
using ECXMLParser::TXMLItem;
using test::ExpectSurvivesScarceMemory;

constexpr std::string_view kDocument =
    "<?xml version=\"1.0\" encoding=\"windows-1250\"?>\r\n"
    "<order number=\"OB0012\" note=\"a note that is longer than a short text\">\r\n"
    "  <item><name>A text that is longer than a short text, too</name><price>12</price></item>\r\n"
    "  <item/><![CDATA[raw text that is longer than a short text]]>\r\n</order>\r\n";

void Load(TECXMLParser& document) {
  MemoryStream stream(std::as_bytes(std::span(kDocument)));
  document.LoadFromStream(stream);
}

std::string Saved(TECXMLParser& document) {
  MemoryStream stream;
  document.SaveToStream(stream, false);
  const auto bytes = stream.Bytes();
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

TEST(OutOfMemory, DocumentsAreLoaded) {
  ExpectSurvivesScarceMemory([] {
    TECXMLParser document;
    Load(document);
  });
}

TEST(OutOfMemory, DocumentsAreSaved) {
  TECXMLParser document;
  Load(document);
  const std::string whole = Saved(document);
  ExpectSurvivesScarceMemory([&document] { static_cast<void>(Saved(document)); });
  EXPECT_EQ(Saved(document), whole);
}

TEST(OutOfMemory, ItemsAreMadeAndChanged) {
  ExpectSurvivesScarceMemory([] {
    TECXMLParser document;
    TXMLItem* const item = document.Root()->New();
    item->SetName(u"a name that is longer than a short text");
    item->SetText(std::u16string(100, u'ž'));
    item->Params().SetValue(u"a", u"a value that is longer than a short text");
    static_cast<void>(document.Root()->GetNamedItem(u"another name that is longer than a short text"));
    static_cast<void>(document.Root()->AsString());
  });
}

// A document whose loading failed can be saved, emptied and loaded again.
TEST(OutOfMemory, ADocumentStaysUsable) {
  TECXMLParser document;
  Load(document);
  const std::string whole = Saved(document);
  for (std::int64_t requests = 0; requests < 60; ++requests) {
    {
      const test::FailingMemory memory(requests);
      try {
        Load(document);
      } catch (const std::bad_alloc&) {
        static_cast<void>(memory.HasFailed());
      }
    }
    static_cast<void>(Saved(document));
    document.Clear();
    Load(document);
    ASSERT_EQ(Saved(document), whole) << requests;
  }
}

// An item whose text or attributes could not be changed has the old ones.
TEST(OutOfMemory, AnItemStaysWhole) {
  TECXMLParser document;
  TXMLItem* const item = document.Root()->New();
  item->SetName(u"name");
  item->SetText(std::u16string(100, u'a'));
  for (std::int64_t requests = 0; requests < 5; ++requests) {
    const std::u16string before = item->Text();
    bool raised = false;
    {
      const test::FailingMemory memory(requests);
      try {
        item->SetText(std::u16string(200, u'b'));
      } catch (const std::bad_alloc&) {
        raised = true;
      }
    }
    EXPECT_EQ(item->Text(), raised ? before : std::u16string(200, u'b'));
    EXPECT_EQ(document.Root()->SubItemCount(), 1);
    EXPECT_EQ(item->Name(), u"name");
  }
}

}  // namespace
}  // namespace ravo
