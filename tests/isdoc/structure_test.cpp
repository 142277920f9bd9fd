#include <ravo/isdoc/structure.h>
#include <ravo/isdoc/values.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::isdoc {
namespace {

// A valid invoice, which the rows below change.
constexpr std::string_view kInvoice = R"(<Invoice xmlns="http://isdoc.cz/namespace/2013" version="6.0.2">
<DocumentType>1</DocumentType>
<ID>1</ID>
<UUID>3F2B8C1E-6A57-4F0D-9C44-1B7DE2A90C55</UUID>
<IssueDate>2026-11-02</IssueDate>
<VATApplicable>true</VATApplicable>
<ElectronicPossibilityAgreementReference/>
<Note languageID="cs">text</Note>
<LocalCurrencyCode>CZK</LocalCurrencyCode>
<CurrRate>1</CurrRate>
<RefCurrRate>1</RefCurrRate>
<Extensions><v:A xmlns:v="urn:v"><v:B/></v:A></Extensions>
<AccountingSupplierParty>
<Party>
<PartyIdentification><ID/></PartyIdentification>
<PartyName><Name/></PartyName>
<PostalAddress><StreetName/><BuildingNumber/><CityName/><PostalZone/><Country><IdentificationCode/><Name/></Country></PostalAddress>
</Party>
</AccountingSupplierParty>
<AnonymousCustomerParty><ID/><IDScheme>urn:x</IDScheme></AnonymousCustomerParty>
<OrderReferences><OrderReference id="o"><SalesOrderID/></OrderReference><OrderReference id="p"><SalesOrderID/></OrderReference></OrderReferences>
<ContractReferences><ContractReference><ID/><IssueDate>2026-01-01</IssueDate><LastValidDateUnbounded/></ContractReference></ContractReferences>
<InvoiceLines>
<InvoiceLine>
<ID>1</ID>
<OrderReference ref="o"/>
<LineExtensionAmount>1</LineExtensionAmount><LineExtensionAmountTaxInclusive>1</LineExtensionAmountTaxInclusive>
<LineExtensionTaxAmount>0</LineExtensionTaxAmount><UnitPrice>1</UnitPrice><UnitPriceTaxInclusive>1</UnitPriceTaxInclusive>
<ClassifiedTaxCategory><Percent>0</Percent><VATCalculationMethod>0</VATCalculationMethod></ClassifiedTaxCategory>
</InvoiceLine>
<InvoiceLine>
<ID>2</ID>
<LineExtensionAmount>1</LineExtensionAmount><LineExtensionAmountTaxInclusive>1</LineExtensionAmountTaxInclusive>
<LineExtensionTaxAmount>0</LineExtensionTaxAmount><UnitPrice>1</UnitPrice><UnitPriceTaxInclusive>1</UnitPriceTaxInclusive>
<ClassifiedTaxCategory><Percent>0</Percent><VATCalculationMethod>0</VATCalculationMethod></ClassifiedTaxCategory>
</InvoiceLine>
</InvoiceLines>
<TaxTotal>
<TaxSubTotal>
<TaxableAmount>2</TaxableAmount><TaxAmount>0</TaxAmount><TaxInclusiveAmount>2</TaxInclusiveAmount>
<AlreadyClaimedTaxableAmount>0</AlreadyClaimedTaxableAmount><AlreadyClaimedTaxAmount>0</AlreadyClaimedTaxAmount>
<AlreadyClaimedTaxInclusiveAmount>0</AlreadyClaimedTaxInclusiveAmount>
<DifferenceTaxableAmount>2</DifferenceTaxableAmount><DifferenceTaxAmount>0</DifferenceTaxAmount>
<DifferenceTaxInclusiveAmount>2</DifferenceTaxInclusiveAmount><TaxCategory><Percent>0</Percent></TaxCategory>
</TaxSubTotal>
<TaxAmount>0</TaxAmount>
</TaxTotal>
<LegalMonetaryTotal>
<TaxExclusiveAmount>2</TaxExclusiveAmount><TaxInclusiveAmount>2</TaxInclusiveAmount>
<AlreadyClaimedTaxExclusiveAmount>0</AlreadyClaimedTaxExclusiveAmount>
<AlreadyClaimedTaxInclusiveAmount>0</AlreadyClaimedTaxInclusiveAmount>
<DifferenceTaxExclusiveAmount>2</DifferenceTaxExclusiveAmount><DifferenceTaxInclusiveAmount>2</DifferenceTaxInclusiveAmount>
<PaidDepositsAmount>0</PaidDepositsAmount><PayableAmount>2</PayableAmount>
</LegalMonetaryTotal>
<PaymentMeans><Payment partialPayment="false"><PaidAmount>2</PaidAmount><PaymentMeansCode>10</PaymentMeansCode>
<Details><DocumentID/><IssueDate>2026-11-02</IssueDate></Details></Payment></PaymentMeans>
<SupplementsList><Supplement><Filename/><DigestMethod Algorithm="urn:d"/><DigestValue/></Supplement></SupplementsList>
</Invoice>)";

std::string Changed(std::string_view from, std::string_view to) {
  std::string text(kInvoice);
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return text.replace(at, from.size(), to);
}

// Each finding as "LINE:COLUMN RULE ELEMENT found > expected".
std::vector<std::string> FindingsOf(std::string_view text) {
  ReadingError error;
  const std::optional<Document> document = Document::Read(text, error);
  if (!document) return {error.message};
  Findings findings;
  CheckStructure(*document, findings);
  std::vector<std::string> lines;
  for (const Finding& finding : findings) {
    EXPECT_EQ(finding.severity, Severity::Error);
    lines.push_back(std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column) + " " +
                    std::string(RuleText(finding.rule)) + " " + std::string(finding.element) + " " +
                    finding.found + " > " + finding.expected);
  }
  return lines;
}

// What is found where a piece of the text first stands.
struct Expected {
  std::string_view at;
  std::string finding;
};

struct Row {
  std::string from;
  std::string to;
  std::vector<Expected> findings;
};

std::string PlaceOf(std::string_view text, std::string_view piece) {
  const std::string_view before = text.substr(0, text.find(piece));
  const std::string_view line = before.substr(before.rfind('\n') + 1);
  return std::to_string(std::ranges::count(before, '\n') + 1) + ":" + std::to_string(line.size() + 1);
}

void ExpectRows(const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    const std::string text = Changed(row.from, row.to);
    std::vector<std::string> expected;
    for (const Expected& finding : row.findings) {
      expected.push_back(PlaceOf(text, finding.at) + " " + finding.finding);
    }
    EXPECT_EQ(FindingsOf(text), expected) << row.from << " -> " << row.to;
  }
}

using Strings = std::vector<std::string>;

TEST(Structure, HasNothingAgainstAValidDocument) { EXPECT_EQ(FindingsOf(kInvoice), Strings{}); }

TEST(Structure, AppendsToWhatIsThere) {
  ReadingError error;
  const std::optional<Document> document = Document::Read("<a/>", error);
  Findings findings(1);
  CheckStructure(*document, findings);
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[1].rule, Rule::RootUnknown);
}

TEST(Structure, KnowsTheRoots) {
  const std::string expected =
      " > {http://isdoc.cz/namespace/2013}Invoice, {http://isdoc.cz/namespace/2013}CommonDocument";
  EXPECT_EQ(FindingsOf("<a><b/></a>"), (Strings{"1:1 structure.root a {}a" + expected}));
  EXPECT_EQ(FindingsOf("<Invoice xmlns='http://isdoc.cz/namespace/invoice' version='5.2'/>"),
            (Strings{"1:1 structure.root Invoice {http://isdoc.cz/namespace/invoice}Invoice" + expected}));
  EXPECT_EQ(
      FindingsOf("<d:CommonDocument xmlns:d='http://isdoc.cz/namespace/2013' version='6.0'/>"),
      (Strings{"1:1 structure.missing CommonDocument  > SubDocumentType",
               "1:1 structure.missing CommonDocument  > SubDocumentTypeOrigin",
               "1:1 structure.missing CommonDocument  > ID", "1:1 structure.missing CommonDocument  > UUID",
               "1:1 structure.missing CommonDocument  > IssueDate",
               "1:1 structure.missing CommonDocument  > AccountingSupplierParty",
               "1:1 structure.missing CommonDocument  > AccountingCustomerParty"}));
}

TEST(Structure, TellsWhatIsMissing) {
  ExpectRows({
      {"<ID>1</ID>\n<UUID>", "<UUID>", {{"<Invoice", "structure.missing Invoice  > ID"}}},
      {"<PartyName><Name/></PartyName>", "", {{"<Party", "structure.missing Party  > PartyName"}}},
      {"<Country><IdentificationCode/><Name/></Country>",
       "<Country/>",
       {{"<Country", "structure.missing Country  > IdentificationCode"},
        {"<Country", "structure.missing Country  > Name"}}},
      {"<PayableAmount>2</PayableAmount>",
       "",
       {{"<LegalMonetaryTotal", "structure.missing LegalMonetaryTotal  > PayableAmount"}}},
      {"<v:A xmlns:v=\"urn:v\"><v:B/></v:A>",
       "",
       {{"<Extensions", "structure.missing Extensions  > {##other}*"}}},
      // One of two.
      {"<AnonymousCustomerParty><ID/><IDScheme>urn:x</IDScheme></AnonymousCustomerParty>",
       "",
       {{"<Invoice", "structure.missing Invoice  > AccountingCustomerParty, AnonymousCustomerParty"}}},
      {"<DocumentID/><IssueDate>2026-11-02</IssueDate>",
       "",
       {{"<Details", "structure.missing Details  > DocumentID, PaymentDueDate"}}},
      // What follows tells which of two it was.
      {"<DocumentID/>", "", {{"<Details", "structure.missing Details  > DocumentID"}}},
      {"<DocumentID/><IssueDate>2026-11-02</IssueDate>",
       "<BIC/>",
       {{"<Details", "structure.missing Details  > PaymentDueDate"},
        {"<Details", "structure.missing Details  > ID"},
        {"<Details", "structure.missing Details  > BankCode"},
        {"<Details", "structure.missing Details  > Name"},
        {"<Details", "structure.missing Details  > IBAN"}}},
      // An optional pair of which one is there.
      {"<DocumentType>1</DocumentType>",
       "<DocumentType>1</DocumentType><SubDocumentTypeOrigin/>",
       {{"<Invoice", "structure.missing Invoice  > SubDocumentType"}}},
      {"<DocumentType>1</DocumentType>",
       "<DocumentType>1</DocumentType><SubDocumentType/>",
       {{"<Invoice", "structure.missing Invoice  > SubDocumentTypeOrigin"}}},
  });
}

TEST(Structure, TellsWhatDoesNotBelong) {
  ExpectRows({
      {"<ID>1</ID>\n<UUID>",
       "<Id>1</Id>\n<UUID>",
       {{"<Id",
         "structure.element Id Id > SubDocumentType, TargetConsolidator, ClientOnTargetConsolidator, "
         "ClientBankAccount, ID"}}},
      {"<LineExtensionAmount>1",
       "<x xmlns='u'><y/></x><LineExtensionAmount>1",
       {{"<x",
         "structure.element x {u}x > DeliveryNoteReference, OriginalDocumentReference, "
         "ContractReference, EgovClassifier, "
         "InvoicedQuantity, LineExtensionAmountCurr, LineExtensionAmount"}}},
      {"</LegalMonetaryTotal>",
       "<X/></LegalMonetaryTotal>",
       {{"<X", "structure.element X X > PayableAmountCurr"}}},
      {"<CurrRate>1", "<CurrRate><b/>1", {{"<b", "structure.element b b > "}}},
      {"<LastValidDateUnbounded/>",
       "<LastValidDateUnbounded><b/></LastValidDateUnbounded>",
       {{"<b", "structure.element b b > "}}},
      // An element between that replaces none.
      {"<ID>1</ID>\n<UUID>",
       "<X/><X/>\n<UUID>",
       {{"<X",
         "structure.element X X > SubDocumentType, TargetConsolidator, ClientOnTargetConsolidator, "
         "ClientBankAccount, ID"},
        {"<X/>\n",
         "structure.element X X > SubDocumentType, TargetConsolidator, ClientOnTargetConsolidator, "
         "ClientBankAccount, ID"}}},
      {"</Invoice>",
       "<Signature/></Invoice>",
       {{"<Signature", "structure.element Signature Signature > {http://www.w3.org/2000/09/xmldsig#}*"}}},
      {"<v:A xmlns:v=\"urn:v\">",
       "<A/><v:A xmlns:v=\"urn:v\">",
       {{"<A", "structure.element A A > {##other}*"}}},
      {"<v:A xmlns:v=\"urn:v\">",
       "<A xmlns=''/><v:A xmlns:v=\"urn:v\">",
       {{"<A", "structure.element A {}A > {##other}*"}}},
  });
}

TEST(Structure, TellsTheNamespaceOnce) {
  const std::string expected = " > http://isdoc.cz/namespace/2013";
  ExpectRows({
      {"<PostalAddress>",
       "<PostalAddress xmlns='urn:a'>",
       {{"<PostalAddress", "structure.namespace PostalAddress urn:a" + expected}}},
      {"<ID>1</ID>\n<UUID>", "<ID xmlns=''>1</ID>\n<UUID>", {{"<ID", "structure.namespace ID " + expected}}},
      // In the wrong place as well.
      {"<CurrRate>1</CurrRate>",
       "<TaxTotal xmlns='urn:a'/>",
       {{"<TaxTotal", "structure.namespace TaxTotal urn:a" + expected}}},
      // References to an unknown table are not told.
      {"<OrderReferences>",
       "<OrderReferences xmlns='urn:a'>",
       {{"<OrderReferences", "structure.namespace OrderReferences urn:a" + expected}}},
  });
}

TEST(Structure, TellsTheOrderOnce) {
  ExpectRows({
      // Two that changed places.
      {"<CurrRate>1</CurrRate>\n<RefCurrRate>1</RefCurrRate>",
       "<RefCurrRate>1</RefCurrRate>\n<CurrRate>1</CurrRate>",
       {{"<RefCurrRate", "structure.order RefCurrRate RefCurrRate > ForeignCurrencyCode, CurrRate"}}},
      // One that came early.
      {"<ID>1</ID>\n<UUID>",
       "<CurrRate>1</CurrRate><ID>1</ID>\n<UUID>",
       {{"<CurrRate",
         "structure.order CurrRate CurrRate > SubDocumentType, TargetConsolidator, "
         "ClientOnTargetConsolidator, "
         "ClientBankAccount, ID"}}},
      // One that came late, and optional ones of which nothing is missing.
      {"<IdentificationCode/><Name/></Country></PostalAddress>",
       "<Name/><IdentificationCode/></Country></PostalAddress><Contact/"
       "><RegisterIdentification><Preformatted/></RegisterIdentification>",
       {{"<Name/><Ident", "structure.order Name Name > IdentificationCode"},
        {"<RegisterIdentification", "structure.order RegisterIdentification RegisterIdentification > "}}},
      {"<StreetName/><BuildingNumber/><CityName/><PostalZone/>",
       "<BuildingNumber/><CityName/><PostalZone/><StreetName/>",
       {{"<BuildingNumber", "structure.order BuildingNumber BuildingNumber > StreetName"}}},
      {"<StreetName/><BuildingNumber/><CityName/><PostalZone/>",
       "<PostalZone/><StreetName/><BuildingNumber/><CityName/>",
       {{"<PostalZone", "structure.order PostalZone PostalZone > StreetName"}}},
      // Its content is looked into all the same.
      {"<CurrRate>1</CurrRate>\n<RefCurrRate>1</RefCurrRate>",
       "<RefCurrRate>x</RefCurrRate>\n<CurrRate>1</CurrRate>",
       {{"<RefCurrRate", "structure.order RefCurrRate RefCurrRate > ForeignCurrencyCode, CurrRate"},
        {"<RefCurrRate", "structure.number RefCurrRate x > "}}},
  });
}

TEST(Structure, TellsWhatIsRepeated) {
  ExpectRows({
      {"<CurrRate>1</CurrRate>",
       "<CurrRate>1</CurrRate><CurrRate>1</CurrRate>",
       {{"<CurrRate>1</CurrRate>\n", "structure.repeated CurrRate CurrRate > RefCurrRate"}}},
      {"<TaxAmount>0</TaxAmount>\n</TaxTotal>",
       "<TaxAmount>0</TaxAmount>\n<TaxAmount>0</TaxAmount></TaxTotal>",
       {{"<TaxAmount>0</TaxAmount></TaxTotal", "structure.repeated TaxAmount TaxAmount > "}}},
  });
}

TEST(Structure, TellsTextBetweenElements) {
  ExpectRows({
      {"<TaxTotal>", "<TaxTotal> x<!-- --> ", {{"<TaxTotal", "structure.text TaxTotal x > "}}},
      {"<TaxTotal>", "<TaxTotal>&#9;&#160;", {{"<TaxTotal", "structure.text TaxTotal \xC2\xA0 > "}}},
      {"<TaxTotal>", "<TaxTotal>&#9;&#13;&#10;&#32;", {}},
      {"<LastValidDateUnbounded/>",
       "<LastValidDateUnbounded> </LastValidDateUnbounded>",
       {{"<LastValidDateUnbounded", "structure.empty LastValidDateUnbounded   > "}}},
      {"<LastValidDateUnbounded/>", "<LastValidDateUnbounded><!-- x --><?y z?></LastValidDateUnbounded>", {}},
  });
}

TEST(Structure, TellsAttributes) {
  const std::string instance = "xmlns:i='http://www.w3.org/2001/XMLSchema-instance'";
  ExpectRows({
      {" version=\"6.0.2\"", "", {{"<Invoice", "structure.attribute_missing Invoice  > version"}}},
      {" version=\"6.0.2\"",
       " Version=\"6.0.2\"",
       {{"<Invoice", "structure.attribute Invoice Version > version"}}},
      {" ref=\"o\"", "", {{"<OrderReference/>", "structure.attribute_missing OrderReference  > ref"}}},
      {"<TaxTotal>", "<TaxTotal id='1'>", {{"<TaxTotal", "structure.attribute TaxTotal id > "}}},
      {"<TaxTotal>",
       "<TaxTotal xml:lang='cs'>",
       {{"<TaxTotal", "structure.attribute TaxTotal {http://www.w3.org/XML/1998/namespace}lang > "}}},
      {"<Note languageID",
       "<Note x:languageID='cs' xmlns:x='urn:x' languageID",
       {{"<Note", "structure.attribute Note {urn:x}languageID > languageID"}}},
      {"<TaxTotal>",
       "<TaxTotal " + instance + " i:nil='false'>",
       {{"<TaxTotal", "structure.attribute TaxTotal {http://www.w3.org/2001/XMLSchema-instance}nil > "}}},
      {"<TaxTotal>",
       "<TaxTotal " + instance + " i:schemaLocation='a b' i:noNamespaceSchemaLocation='c'>",
       {}},
  });
}

TEST(Structure, TellsDeclaredTypes) {
  const std::string instance = "xmlns:i='http://www.w3.org/2001/XMLSchema-instance'";
  ExpectRows({
      {"<TaxTotal>", "<TaxTotal " + instance + " i:type=' TaxTotalType '>", {}},
      {"<SalesOrderID/>", "<SalesOrderID " + instance + " i:type='SalesOrderIDType'/>", {}},
      {"<ID>1</ID>\n<UUID>",
       "<ID " + instance + " i:type='ID36Type'>1234567890123456789012345678901234567</ID>\n<UUID>",
       {{"<ID", "structure.too_long ID 1234567890123456789012345678901234567 > 36"}}},
      {"<SalesOrderID/>",
       "<SalesOrderID " + instance + " i:type='IDType'/>",
       {{"<SalesOrderID", "structure.type SalesOrderID IDType > SalesOrderIDType"}}},
      {"<TaxTotal>",
       "<TaxTotal " + instance + " i:type='x:TaxTotalType'>",
       {{"<TaxTotal", "structure.type TaxTotal x:TaxTotalType > TaxTotalType"}}},
      {"<TaxTotal>",
       "<TaxTotal " + instance + " i:type=''>",
       {{"<TaxTotal", "structure.type TaxTotal  > TaxTotalType"}}},
      {"<TaxTotal>",
       "<TaxTotal " + instance + " i:type='Invoice'>",
       {{"<TaxTotal", "structure.type TaxTotal Invoice > TaxTotalType"}}},
      {" version=",
       " " + instance + " i:type='ID36Type' version=",
       {{"<Invoice", "structure.type Invoice ID36Type > "}}},
      // The innermost declaration of a prefix counts, and ends with its element.
      {"<TaxTotal>",
       "<TaxTotal " + instance + " xmlns:q='http://isdoc.cz/namespace/2013' i:type='q:TaxTotalType'>",
       {}},
      {"<v:B/>",
       "<v:C xmlns:v='http://isdoc.cz/namespace/2013'/><v:B " + instance + " i:type='v:AmountType'/>",
       {{"<v:B ", "structure.type B v:AmountType > "}}},
  });
}

TEST(Structure, LooksForKnownThingsInExtensions) {
  const std::string instance =
      "xmlns:i='http://www.w3.org/2001/XMLSchema-instance' xmlns:q='http://isdoc.cz/namespace/2013' "
      "xmlns:x='http://www.w3.org/2001/XMLSchema'";
  ExpectRows({
      {"<v:B/>", "text<v:B a='1' v:b='2'><ID><Foo/></ID></v:B>", {}},
      {"<v:B/>",
       "<Invoice/>",
       {{"<Invoice/>", "structure.attribute_missing Invoice  > version"},
        {"<Invoice/>", "structure.missing Invoice  > DocumentType"},
        {"<Invoice/>", "structure.missing Invoice  > ID"},
        {"<Invoice/>", "structure.missing Invoice  > UUID"},
        {"<Invoice/>", "structure.missing Invoice  > IssueDate"},
        {"<Invoice/>", "structure.missing Invoice  > VATApplicable"},
        {"<Invoice/>", "structure.missing Invoice  > ElectronicPossibilityAgreementReference"},
        {"<Invoice/>", "structure.missing Invoice  > LocalCurrencyCode"},
        {"<Invoice/>", "structure.missing Invoice  > CurrRate"},
        {"<Invoice/>", "structure.missing Invoice  > RefCurrRate"},
        {"<Invoice/>", "structure.missing Invoice  > AccountingSupplierParty"},
        {"<Invoice/>", "structure.missing Invoice  > AccountingCustomerParty, AnonymousCustomerParty"}}},
      {"<v:B/>", "<CommonDocument/>", {}},
      {"<v:B/>",
       "<v:B " + instance + " i:type='q:AmountType'>x</v:B>",
       {{"<v:B ", "structure.number B x > "}}},
      {"<v:B/>",
       "<v:B " + instance + " i:type='x:integer'>1.0</v:B>",
       {{"<v:B ", "structure.integer B 1.0 > "}}},
      {"<v:B/>",
       "<v:B " + instance + " i:type='x:boolean'>no</v:B>",
       {{"<v:B ", "structure.boolean B no > true, false"}}},
      {"<v:B/>",
       "<v:B " + instance + " i:type='x:time'>25:00:00</v:B>",
       {{"<v:B ", "structure.time B 25:00:00 > "}}},
      {"<v:B/>", "<v:B " + instance + " i:type='q:Unknown'/>", {{"<v:B ", "structure.type B q:Unknown > "}}},
      {"<v:B/>", "<v:B " + instance + " i:nil='true' i:other='1'/>", {}},
      {"</Invoice>",
       "<Signature xmlns='http://www.w3.org/2000/09/xmldsig#'><Foo/></Signature></Invoice>",
       {}},
  });
}

TEST(Structure, TellsValues) {
  ExpectRows({
      {"<DocumentType>1",
       "<DocumentType>8",
       {{"<DocumentType", "structure.value DocumentType 8 > 1, 2, 3, 4, 5, 6, 7"}}},
      {"<DocumentType>1", "<DocumentType>1.0", {{"<DocumentType", "structure.integer DocumentType 1.0 > "}}},
      {"<DocumentType>1", "<DocumentType>\n +0001 ", {}},
      {"<VATCalculationMethod>0", "<VATCalculationMethod>-0", {}},
      {"<VATApplicable>true", "<VATApplicable> false\t", {}},
      {"<VATApplicable>true",
       "<VATApplicable>1",
       {{"<VATApplicable", "structure.pattern VATApplicable 1 > true|false"}}},
      {"<VATApplicable>true",
       "<VATApplicable>ano",
       {{"<VATApplicable", "structure.boolean VATApplicable ano > true, false"}}},
      {"\"6.0.2\"",
       "\"6\"",
       {{"<Invoice", "structure.pattern Invoice version=\"6\" > [0-9]+\\.[0-9]+(\\.[0-9]+)?"}}},
      {"\"6.0.2\"", "\"10.25\"", {}},
      {"\"6.0.2\"",
       "\" 6.0.2\"",
       {{"<Invoice", "structure.pattern Invoice version=\" 6.0.2\" > [0-9]+\\.[0-9]+(\\.[0-9]+)?"}}},
      {"\"6.0.2\"",
       "\"6.0.2.1\"",
       {{"<Invoice", "structure.pattern Invoice version=\"6.0.2.1\" > [0-9]+\\.[0-9]+(\\.[0-9]+)?"}}},
      {"3F2B8C1E-", "3f2b8c1e-", {}},
      {"3F2B8C1E-",
       "3F2B8C1G-",
       {{"<UUID",
         "structure.pattern UUID 3F2B8C1G-6A57-4F0D-9C44-1B7DE2A90C55 > "
         "[0-9A-Fa-f]{8}-[0-9A-Fa-f]{4}-[0-9A-Fa-f]{4}-[0-9A-Fa-f]{4}-[0-9A-Fa-f]{12}"}}},
      {"CZK", "ČŘŽ", {}},
      {"CZK", "CZ", {{"<LocalCurrencyCode", "structure.length LocalCurrencyCode CZ > 3"}}},
      {"CZK", " CZK", {{"<LocalCurrencyCode", "structure.length LocalCurrencyCode  CZK > 3"}}},
      {"<ID>2</ID>", "<ID>žžžžžžžžžžžžžžžžžžžžžžžžžžžžžžžžžžžž</ID>", {}},
      {"<ID>2</ID>",
       "<ID>1234567890123456789012345678901234567</ID>",
       {{"<ID>12", "structure.too_long ID 1234567890123456789012345678901234567 > 36"}}},
      {"<CurrRate>1", "<CurrRate>1,5", {{"<CurrRate", "structure.number CurrRate 1,5 > "}}},
      {"2026-11-02", "2.11.2026", {{"<IssueDate", "structure.date IssueDate 2.11.2026 > "}}},
      {"\"cs\"", "\"cs_CZ\"", {{"<Note", "structure.language Note languageID=\"cs_CZ\" > "}}},
      {"<IDScheme>urn:x", "<IDScheme>::", {{"<IDScheme", "structure.uri IDScheme :: > "}}},
      {"\"urn:d\"", "\"%\"", {{"<DigestMethod", "structure.uri DigestMethod Algorithm=\"%\" > "}}},
      {"partialPayment=\"false\"",
       "partialPayment=\"0\"",
       {{"<Payment ", "structure.pattern Payment partialPayment=\"0\" > true|false"}}},
  });
}

TEST(Structure, TellsKeys) {
  ExpectRows({
      {"<ID>2</ID>", "<ID>1</ID>", {{"<ID>1</ID>\n<LineExt", "structure.key ID 1 > "}}},
      {"<ID>2</ID>", "<ID>1 </ID>", {}},
      {"ref=\"o\"", "ref=\"O\"", {{"<OrderReference ref", "structure.reference OrderReference O > "}}},
      {"ref=\"o\"", "ref=\"p\"", {}},
      {"id=\"p\"", "", {}},
      {"id=\"o\"", "", {{"<OrderReference ref", "structure.reference OrderReference o > "}}},
      {"id=\"o\"",
       "id=\"p\"",
       {{"<OrderReference id=\"p\"><SalesOrderID/></OrderReference></",
         "structure.key OrderReference p > "}}},
      {"<OrderReference ref=\"o\"/>",
       "<DeliveryNoteReference ref=\"o\"/><OriginalDocumentReference ref='o'/><ContractReference ref=''/>",
       {{"<DeliveryNoteReference", "structure.reference DeliveryNoteReference o > "},
        {"<OriginalDocumentReference", "structure.reference OriginalDocumentReference o > "},
        {"<ContractReference ref", "structure.reference ContractReference  > "}}},
  });
}

TEST(Structure, GoesThroughAnyDepth) {
  std::string text = "<x xmlns='urn:x'>";
  for (int i = 0; i < 100'000; ++i) text += "<x>";
  for (int i = 0; i < 100'000; ++i) text += "</x>";
  text += "</x>";
  EXPECT_EQ(FindingsOf(text).size(), 1U);
  EXPECT_EQ(FindingsOf(Changed("<v:B/>", text)), Strings{});
}

struct FormRow {
  schema::BuiltIn type;
  std::vector<std::string_view> right;
  std::vector<std::string_view> wrong;
};

TEST(Structure, KnowsTheFormsOfBuiltInTypes) {
  using schema::BuiltIn;
  const FormRow rows[] = {
      {BuiltIn::String, {"", " x "}, {}},
      {BuiltIn::Decimal,
       {"0", "-1", "+1", "1.", ".5", "-.5", "007", "11111111111111111111111111111111.5"},
       {"", ".", "-", "+-1", "1e3", "1,5", "1.2.3", "0x1", "INF", "1 0", "\xD9\xA3"}},
      {BuiltIn::Integer, {"0", "-0", "+12"}, {"", "1.", "1.0", "-", "1a"}},
      {BuiltIn::Boolean, {"true", "false", "0", "1"}, {"", "TRUE", "yes", "01"}},
      {BuiltIn::Date,
       {"2026-11-02", "2028-02-29", "2000-02-29", "-0004-02-29", "12026-01-01", "2026-11-06Z",
        "2026-11-06+14:00", "2026-11-06-13:59", "99999999999999999999-12-31"},
       {"",
        "2026-2-9",
        "2026-02-29",
        "1900-02-29",
        "2026-04-31",
        "2026-13-01",
        "2026-00-01",
        "2026-01-00",
        "2026-01-32",
        "0000-01-01",
        "00000-01-01",
        "02026-01-01",
        "026-01-01",
        "+2026-01-01",
        "2026-11-06+14:01",
        "2026-11-06+1:00",
        "2026-11-06+13:60",
        "2026-11-06 ",
        "2026-11-06z",
        "2026-11-06ZZ",
        "2026-11-06T00:00:00",
        "20261106"}},
      {BuiltIn::Time,
       {"13:45:00", "00:00:00.001", "24:00:00", "24:00:00.0", "23:59:59Z", "12:00:00-14:00"},
       {"", "1:00:00", "24:00:01", "24:01:00", "24:00:00.1", "25:00:00", "23:60:00", "23:59:60", "12:00",
        "12:00:00.", "12:00:00+14:01"}},
      {BuiltIn::Uri,
       {"", "a b", "\xC4\x8D", "%41", "urn:x", "http://h:80/a?b#c", "http://[::1]/", "//", "?a?b", "./a:b",
        "a/b:c", "http:", "mailto:a@b", "http://u@h/", "{|}^`\"<>\\"},
       {"%", "%4", "%zz", ":", "::", "1:2", "-a:b", "#a#b", "[", "a[b]", "http://[::1", "http://[::1]x/",
        "http://h:x/", "http://a@b@c/", "http://[u@h/", "http://x/[1]", "x#[", "x?]"}},
      {BuiltIn::Language,
       {"cs", "CS", "cs-CZ", "abcdefgh", "x-klingon", "cs-1", "i-12345678"},
       {"", "cs-", "-cs", "cs_CZ", "abcdefghi", "cs-123456789", "1", "cs1", "en--us", "\xC4\x8D"}},
  };
  for (const FormRow& row : rows) {
    for (const std::string_view text : row.right) EXPECT_TRUE(HasForm(row.type, text)) << text;
    for (const std::string_view text : row.wrong) EXPECT_FALSE(HasForm(row.type, text)) << text;
  }
}

}  // namespace
}  // namespace ravo::isdoc
