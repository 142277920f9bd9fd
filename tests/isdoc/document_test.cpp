#include <ravo/isdoc/document.h>

#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace ravo::isdoc {
namespace {

Document Read(std::string_view text) {
  ReadingError error;
  std::optional<Document> document = Document::Read(text, error);
  EXPECT_TRUE(document) << error.message;
  return std::move(*document);
}

ReadingError Refusal(std::string_view text) {
  ReadingError error;
  EXPECT_FALSE(Document::Read(text, error));
  return error;
}

TEST(Document, IsATreeOfElementsInTheOrderInWhichTheyOpen) {
  const Document document = Read("<a><b><c/></b><b>2</b></a>");
  ASSERT_EQ(document.Elements().size(), 4U);
  const Element& root = document.Root();
  EXPECT_EQ(root.name, "a");
  EXPECT_EQ(root.parent, kNone);
  const Element& first = *document.FirstChild(root);
  const Element& second = *document.Next(first);
  EXPECT_EQ(document.FirstChild(first)->name, "c");
  EXPECT_EQ(second.text, "2");
  EXPECT_EQ(document.Next(second), nullptr);
  EXPECT_EQ(document.Parent(second), &root);
  EXPECT_EQ(document.NumberOf(second), 3U);
}

TEST(Document, TellsPlacesInCharacters) {
  const Document document = Read("<a>\n <b x='č'/><c/>\n</a>");
  EXPECT_EQ(document.Elements()[1].place, (Place{2, 2}));
  EXPECT_EQ(document.Elements()[2].place, (Place{2, 12}));
}

TEST(Document, JoinsThePiecesOfAText) {
  const Document document = Read("<a>1<!-- no -->2<b>x</b><![CDATA[<3>]]>&amp;</a>");
  EXPECT_EQ(document.Root().text, "12<3>&");
}

TEST(Document, KnowsNamespacesNotPrefixes) {
  const Document document = Read("<p:a xmlns:p='urn:p' xmlns='urn:q' p:k='1' l='2'><b/></p:a>");
  EXPECT_EQ(document.Root().space, "urn:p");
  EXPECT_EQ(document.Root().name, "a");
  EXPECT_EQ(document.Elements()[1].space, "urn:q");
  const auto attributes = document.Attributes(document.Root());
  ASSERT_EQ(attributes.size(), 2U);
  EXPECT_EQ(attributes[0].space, "urn:p");
  EXPECT_EQ(attributes[0].name, "k");
  EXPECT_EQ(attributes[1].space, "");
  EXPECT_EQ(attributes[1].value, "2");
}

TEST(Document, FindsTheFirstChildOfAName) {
  const Document document = Read("<a><b>1</b><c/><b>2</b></a>");
  EXPECT_EQ(document.Child(document.Root(), "b")->text, "1");
  EXPECT_EQ(document.Child(document.Root(), "d"), nullptr);
  std::string texts;
  ForEachChild(document, document.Root(), "b", [&](const Element& child) { texts += child.text; });
  EXPECT_EQ(texts, "12");
}

TEST(Document, ThatIsNotWellFormedIsRefusedWithItsPlace) {
  EXPECT_EQ(Refusal("<a>\n</b>").place.line, 2U);
  EXPECT_EQ(Refusal("").message, "no element found");
  EXPECT_EQ(Refusal("<a/><b/>").place, (Place{1, 5}));
}

TEST(Document, IgnoresTheEncodingThatItDeclares) {
  EXPECT_EQ(Read("<?xml version='1.0' encoding='windows-1250'?><a>č</a>").Root().text, "č");
}

}  // namespace
}  // namespace ravo::isdoc
