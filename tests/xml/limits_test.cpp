#include <ravo/ECXMLParser.h>
#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/error.h>

#include <string>
#include <string_view>

#include <gtest/gtest.h>

// Sizes beyond what is common.
namespace ravo::ECXMLParser {
namespace {

TEST(Limits, AnItemDeepInATextIsIndentedByItsLevel) {
  TECXMLParser document;
  document.Root()->SetName(u"a");
  const std::u16string text = document.Root()->XMLItemAsString(1000);
  EXPECT_EQ(text.find(u"<a"), 1000U);
  EXPECT_EQ(text.find_first_not_of(u' '), 1000U);
}

TEST(Limits, ALongTextIsSavedAndLoaded) {
  TECXMLParser document;
  document.Root()->SetName(u"a");
  const std::u16string text(1'000'000, u'x');
  document.Root()->SetText(text);
  MemoryStream stream;
  document.SaveToStream(stream, false);
  stream.SetPosition(0);
  TECXMLParser loaded;
  loaded.LoadFromStream(stream);
  EXPECT_EQ(loaded.Root()->Text(), text);
}

TEST(Limits, AnItemMovesToNoNegativePlace) {
  TECXMLParser document;
  TXMLItem* const item = document.Root()->New();
  EXPECT_THROW(document.Root()->Move(item, -1), RangeError);
  EXPECT_THROW(document.Root()->Move(item, 1), RangeError);
  EXPECT_EQ(document.Root()->IndexOf(item), 0);
}

TEST(Limits, ADocumentBehindAMarkIsPassedOver) {
  for (const std::string_view mark : {"\xEF\xBB\xBF", "\xFE\xFF", "\xFF\xFE"}) {
    const std::string bytes = std::string(mark) + "<?xml version=\"1.0\"?><a>text</a>";
    MemoryStream stream(std::as_bytes(std::span(bytes)));
    TECXMLParser document;
    document.LoadFromStream(stream);
    EXPECT_EQ(document.Root()->Name(), u"") << bytes;
  }
}

}  // namespace
}  // namespace ravo::ECXMLParser
