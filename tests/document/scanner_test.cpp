#include <ravo/document/places.h>
#include <ravo/document/values.h>

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::document {
namespace {

using Parts = std::vector<std::pair<PartKind, std::string>>;

Parts PartsOf(std::string_view text) {
  Parts parts;
  for (const DocumentPart& part : ScanDocument(text).parts) {
    parts.emplace_back(part.kind, part.whole.Of(text));
  }
  return parts;
}

TEST(ScanDocument, GivesEachPieceWithItsKind) {
  const Parts wanted = {{PartKind::Declaration, "<?xml version='1.0'?>"},
                        {PartKind::Text, "\n"},
                        {PartKind::Doctype, "<!DOCTYPE a [<!-- ]> ' --><!ENTITY e \"]>\">]>"},
                        {PartKind::Comment, "<!-- > -->"},
                        {PartKind::OpenTag, "<a b = '>' c=\"'\" >"},
                        {PartKind::Instruction, "<?p >?>"},
                        {PartKind::Section, "<![CDATA[<b>]]]>"},
                        {PartKind::EmptyTag, "<c:d/>"},
                        {PartKind::Text, "x > &e;"},
                        {PartKind::CloseTag, "</a >"}};
  std::string text;
  for (const auto& [kind, piece] : wanted) text += piece;
  EXPECT_EQ(PartsOf(text), wanted);
}

TEST(ScanDocument, GivesNamesAndValuesOfATag) {
  const std::string text = "<a b = 'x' c=\"\"/>";
  const ScannedDocument document = ScanDocument(text);
  ASSERT_EQ(document.attributes.size(), 2U);
  EXPECT_EQ(document.parts[0].name, (Span{1, 2}));
  EXPECT_EQ(document.attributes[0].name, (Span{3, 4}));
  EXPECT_EQ(document.attributes[0].value, (Span{8, 9}));
  EXPECT_EQ(document.attributes[1].value, (Span{14, 14}));
}

TEST(ScanDocument, PairsTags) {
  const ScannedDocument document = ScanDocument("<a><b></b><c/></a>");
  const std::vector<std::size_t> wanted = {4, 2, 1, 3, 0};
  for (std::size_t i = 0; i < wanted.size(); ++i) EXPECT_EQ(document.parts[i].partner, wanted[i]) << i;
}

TEST(ScanDocument, ReadsEntities) {
  const ScannedDocument document = ScanDocument(
      "<!DOCTYPE a [<!ENTITY e 'f'><!ENTITY e 'g'><!ENTITY % p 'q'><!ENTITY m '<b/>'><!ENTITY x SYSTEM "
      "'y'>]><a/>");
  ASSERT_EQ(document.entities.size(), 3U);
  EXPECT_EQ(document.entities.at("e").value, "f");
  EXPECT_FALSE(document.entities.at("e").is_opaque);
  EXPECT_TRUE(document.entities.at("m").is_opaque);
  EXPECT_TRUE(document.entities.at("x").is_opaque);
}

TEST(DecodedText, DecodesReferencesAndLineEnds) {
  const std::string text =
      "<!DOCTYPE a [<!ENTITY e 'f'><!ENTITY m '<b/>'>]><a>&lt;&#65;&#x1D11E;&e;&m;\r\n\r\t</a>";
  const ScannedDocument document = ScanDocument(text);
  const Span content = document.parts[2].whole;
  EXPECT_EQ(DecodedText(document, content), "<A\U0001D11Ef&m;\n\n\t");
  EXPECT_EQ(DecodedValue(document, content), "<A\U0001D11Ef&m;   ");
}

TEST(PlaceFinder, CountsLinesAndCharacters) {
  const std::string text = "ž\r\nč𝄞\rx\ny";
  PlaceFinder places(text);
  const auto place = [&](std::size_t at) {
    const auto [line, column] = places.Find(at);
    return std::pair(line, column);
  };
  using Place = std::pair<std::size_t, std::size_t>;
  EXPECT_EQ(place(0), Place(1, 1));
  EXPECT_EQ(place(2), Place(1, 2));
  EXPECT_EQ(place(4), Place(2, 1));
  EXPECT_EQ(place(6), Place(2, 2));
  EXPECT_EQ(place(11), Place(3, 1));
  EXPECT_EQ(place(13), Place(4, 1));
  EXPECT_EQ(place(2), Place(1, 2));  // back again
}

}  // namespace
}  // namespace ravo::document
