#include "support/tried.h"
#include "xml_text.h"
#include <ravo/ECXMLParser.h>
#include <ravo/platform/code_pages.h>
#include <ravo/platform/file_stream.h>

#include <gmock/gmock.h>

/// Documents of other programs: their content is there after loading and after saving.
namespace {

using namespace ravo;
using namespace ravo::ECXMLParser;
using namespace ravo::test;

// The elements were counted by a strict parser.
struct Sample {
  const char16_t* file;
  const char16_t* encoding;
  std::int32_t elements;
};

const Sample kSamples[] = {
    {u"invoice-ubl.xml", u"UTF-8", 55},
    {u"invoice.isdoc", u"utf-8", 63},
    {u"feed.xml", u"UTF-8", 29},
    {u"vat-return.xml", u"windows-1250", 9},
};

std::u16string PathOf(std::u16string_view file) { return FromUtf8(RAVO_XML_SAMPLES) + std::u16string(file); }

std::int32_t CountBelow(const TXMLItem& item) {
  std::int32_t count = 1;
  for (std::int32_t i = 0; i < item.SubItemCount(); ++i) count += CountBelow(*item.SubItems(i));
  return count;
}

// The item at a path of names, the first of each name.
TXMLItem* At(TXMLItem* item, std::initializer_list<std::u16string_view> path) {
  for (const std::u16string_view name : path) {
    const std::int32_t index = item->IndexOfName(name, 0);
    if (index < 0) {
      ADD_FAILURE() << "no " << ToUtf8(name) << " in " << ToUtf8(item->Name());
      return item;
    }
    item = item->SubItems(index);
  }
  return item;
}

// A text of the tree as the bytes that the document had.
std::string Bytes(std::u16string_view text) { return platform::CodePages().ToCodePage(text); }

TEST(Samples, AreLoadedWhole) {
  for (const Sample& sample : kSamples) {
    TECXMLParser parser;
    parser.LoadFromFile(PathOf(sample.file));
    EXPECT_EQ(CountBelow(*parser.Root()), sample.elements) << ToUtf8(sample.file);
    EXPECT_EQ(parser.Encoding(), sample.encoding);
  }
}

TEST(Samples, OnceSavedStayAsTheyAre) {
  for (const Sample& sample : kSamples) {
    for (const bool lines : {true, false}) {
      TECXMLParser parser;
      parser.SetCrLfInAsString(lines);
      parser.LoadFromFile(PathOf(sample.file));
      const std::string saved = Saved(parser);
      const std::u16string tree = parser.Root()->AsString();
      SplitStream stream(saved);
      parser.LoadFromStream(stream);
      EXPECT_EQ(parser.Root()->AsString(), tree) << ToUtf8(sample.file);
      EXPECT_EQ(Saved(parser), saved) << ToUtf8(sample.file);
    }
  }
}

TEST(Samples, LoadAlikeAtEverySplit) {
  for (const Sample& sample : kSamples) {
    FileStream file(PathOf(sample.file), FileMode::Read);
    std::string bytes(static_cast<std::size_t>(file.Size()), '\0');
    file.ReadChecked(std::as_writable_bytes(std::span(bytes)));
    TECXMLParser parser;
    parser.LoadFromFile(PathOf(sample.file));
    const std::string wanted = Saved(parser);
    for (std::size_t split = 1; split < bytes.size(); split += 7) {
      SplitStream stream(bytes, SIZE_MAX, split);
      parser.LoadFromStream(stream);
      ASSERT_EQ(Saved(parser), wanted) << ToUtf8(sample.file) << " split at " << split;
      Tried("splits", 1);
    }
  }
}

TEST(Samples, OfAnInvoiceInUbl) {
  TECXMLParser parser;
  parser.LoadFromFile(PathOf(u"invoice-ubl.xml"));
  TXMLItem* root = parser.Root();
  EXPECT_EQ(root->Params().Value(u"xmlns:cbc"),
            u"urn:oasis:names:specification:ubl:schema:xsd:CommonBasicComponents-2");
  EXPECT_EQ(Bytes(At(root, {u"cbc:Note"})->Text()), "Dodávka dle objednávky č. 77/2025 & dodatku <A>");
  const TXMLItem* name =
      At(root, {u"cac:AccountingCustomerParty", u"cac:Party", u"cac:PartyName", u"cbc:Name"});
  EXPECT_EQ(Bytes(name->Text()), "Đakovo d.o.o. / Größe & Söhne");
  EXPECT_EQ(At(root, {u"cac:InvoiceLine", u"cbc:InvoicedQuantity"})->XMLItemName(),
            u"cbc:InvoicedQuantity unitCode=\"C62\"");
}

TEST(Samples, OfAnInvoiceInIsdoc) {
  TECXMLParser parser;
  parser.LoadFromFile(PathOf(u"invoice.isdoc"));
  TXMLItem* root = parser.Root();
  EXPECT_EQ(root->XMLItemName(), u"Invoice xmlns=\"http://isdoc.cz/namespace/2013\" version=\"6.0.1\"");
  const TXMLItem* empty =
      At(root, {u"AccountingSupplierParty", u"Party", u"PartyIdentification", u"CatalogFirmIdentification"});
  EXPECT_EQ(empty->SubItemCount(), 0);
  EXPECT_EQ(At(root, {u"PaymentMeans", u"Payment", u"Details", u"IBAN"})->Text(),
            u"CZ6508000000192000145399");
}

TEST(Samples, OfAFeed) {
  TECXMLParser parser;
  parser.LoadFromFile(PathOf(u"feed.xml"));
  EXPECT_EQ(parser.StyleSheet(), u"https://www.example.cz/feed.xsl?lang=cs");
  TXMLItem* item = At(parser.Root(), {u"channel", u"item"});
  EXPECT_EQ(Bytes(At(item, {u"title"})->Text()), "Změny v DPH od ledna: co říká § 101a?");
  EXPECT_EQ(At(item, {u"link"})->Text(), u"https://www.example.cz/clanek?id=1021&utm_source=rss");
  EXPECT_EQ(At(item, {u"enclosure"})->Params().Value(u"length"), u"48213");
  EXPECT_THAT(Bytes(At(item, {u"description"})->Text()),
              testing::HasSubstr("<a href=\"https://www.example.cz/?p=1021\">"));
}

TEST(Samples, OfATaxReturn) {
  TECXMLParser parser;
  parser.LoadFromFile(PathOf(u"vat-return.xml"));
  const TXMLItem* payer = At(parser.Root(), {u"DPHDP3", u"VetaP"});
  EXPECT_EQ(payer->Params().Count(), 15U);
  EXPECT_EQ(payer->Params().Value(u"zkrobchjm"), u"Je\u010Dmen & syn \"\u017D\u010E\u00C1R\", s.r.o.");
  EXPECT_EQ(payer->Params().Value(u"opr_postaveni"), u"jednatelka <50 %>");
}

}  // namespace
