#include <ravo/ECXMLParser.h>
#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/error.h>

#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

// Uncommon sizes.
namespace ravo::ECXMLParser {
namespace {

TEST(Limits, AnItemDeepInATextIsIndentedByItsLevel) {
  TECXMLParser document;
  document.Root()->SetName(u"a");
  const std::u16string text = document.Root()->XMLItemAsString(1000);
  EXPECT_EQ(text.find(u"<a"), 1000U);
  EXPECT_EQ(text.find_first_not_of(u' '), 1000U);
}

// A long text is saved whole, as a line that is too long to load.
TEST(Limits, ALongTextIsSaved) {
  TECXMLParser document;
  document.Root()->SetName(u"a");
  document.Root()->SetText(std::u16string(1'000'000, u'x'));
  MemoryStream stream;
  document.SaveToStream(stream, false);
  const auto bytes = stream.Bytes();
  EXPECT_EQ(std::ranges::count(bytes, std::byte{'x'}), 1'000'001);  // one in the header
  stream.SetPosition(0);
  TECXMLParser loaded;
  EXPECT_THROW(loaded.LoadFromStream(stream), Error);
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
