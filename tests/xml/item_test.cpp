#include "support/fake_machine.h"
#include "xml_text.h"
#include <ravo/ECXMLParser.h>
#include <ravo/platform/code_pages.h>

#include <gmock/gmock.h>

namespace {

using namespace ravo;
using namespace ravo::ECXMLParser;
using namespace ravo::test;

std::u16string Names(const TXMLItem& item) {
  std::u16string names;
  for (std::int32_t i = 0; i < item.SubItemCount(); ++i) names += item.SubItems(i)->Name();
  return names;
}

TXMLItem* Named(TXMLItem& parent, std::u16string_view name) {
  TXMLItem* item = parent.New();
  item->SetName(name);
  return item;
}

TEST(TXMLItem, BeginsEmpty) {
  const TXMLItem item;
  EXPECT_EQ(item.Name(), u"");
  EXPECT_EQ(item.Text(), u"");
  EXPECT_TRUE(item.Params().Empty());
  EXPECT_EQ(item.SubItemCount(), 0);
  EXPECT_EQ(item.Parent(), nullptr);
  EXPECT_EQ(item.Parser(), nullptr);
  EXPECT_EQ(item.Data(), nullptr);
  EXPECT_TRUE(item.CrLfInAsString());
  EXPECT_EQ(item.XMLItemName(), u"");
}

TEST(TXMLItem, KeepsWhatIsSet) {
  TXMLItem item;
  item.SetName(u" \t\x01n\u010D m\r\n");
  item.SetText(u" text \u0159 <&>\r\n\" ");
  item.SetData(&item);
  EXPECT_EQ(item.Name(), u"n\u010D m");
  EXPECT_EQ(item.Text(), u" text \u0159 <&>\r\n\" ");
  EXPECT_EQ(item.Data(), &item);
  item.SetText(u"<br/>&lt;");
  EXPECT_EQ(item.Text(), u"<br/>&lt;");
  EXPECT_EQ(item.AsString(), u"<n\u010D m>\r\n  &lt;br/&gt;&amp;lt;\r\n</n\u010D m>\r\n");
  item.SetName(u"");
  item.SetText(u"");
  EXPECT_EQ(item.AsString(), u"</>\r\n");
}

TEST(TXMLItem, KeepsTextThatTheCodePageLacks) {
  TXMLItem item;
  Named(item, u"\u03B1");
  TXMLItem* child = item.SubItems(0);
  child->SetText(u"\u4E2D\r\n&");
  child->Params().SetValue(u"\u03B2", u"\u03B3\"");
  EXPECT_EQ(child->Name(), u"\u03B1");
  EXPECT_EQ(child->Text(), u"\u4E2D\r\n&");
  EXPECT_EQ(child->XMLItemAsString(1),
            u" <\u03B1 \u03B2=\"\u03B3&quot;\">\r\n   \u4E2D<br/>&amp;\r\n </\u03B1>\r\n");
  child->SetText(u"plain");
  child->SetName(u"name");
  EXPECT_EQ(child->Text(), u"plain");
  EXPECT_EQ(child->XMLItemName(), u"name \u03B2=\"\u03B3&quot;\"");
  child->SetName(u"\u03B1");
  child->SetText(u"\u4E2D");
  child->Clear();
  EXPECT_EQ(child->AsString(), u"</>\r\n");
}

TEST(TXMLItem, SavesInTheCodePageInForce) {
  TECXMLParser parser;
  parser.Root()->SetName(u"a\u03B1");
  parser.Root()->SetText(u"\u0159");
  EXPECT_EQ(Saved(parser), "<?xml version=\"1.0\" encoding=\"\" ?>\r\n  <a?>\r\n    \xF8\r\n  </a?>\r\n");
}

TEST(TXMLItem, TextOfBlanksIsNotWritten) {
  TXMLItem item;
  item.SetName(u"a");
  item.SetText(u" \r\n\t");
  EXPECT_EQ(item.AsString(), u"<a/>\r\n");
  item.New();
  EXPECT_EQ(item.AsString(), u"<a>\r\n  </>\r\n</a>\r\n");
  item.SetText(u" x ");
  EXPECT_EQ(item.AsString(), u"<a>\r\n   x \r\n  </>\r\n</a>\r\n");
}

TEST(TXMLItem, ClearEmptiesButNotDataAndPlace) {
  TXMLItem root;
  TXMLItem* item = Named(root, u"a");
  item->SetText(u"x");
  item->Params().SetValue(u"p", u"1");
  item->SetData(&root);
  item->SetCrLfInAsString(false);
  Named(*item, u"b");
  item->Clear();
  EXPECT_EQ(item->XMLItemAsString(0), u"</>");
  EXPECT_EQ(item->Data(), &root);
  EXPECT_EQ(item->Parent(), &root);
  EXPECT_EQ(root.SubItemCount(), 1);
}

TEST(New, IsTheLastChildOfTheSameDocument) {
  TECXMLParser parser;
  Named(*parser.Root(), u"a");
  TXMLItem* item = Named(*parser.Root(), u"b");
  EXPECT_EQ(item->Parser(), &parser);
  EXPECT_EQ(item->Parent(), parser.Root());
  EXPECT_EQ(Names(*parser.Root()), u"ab");
}

TEST(Delete, FreesAChild) {
  TXMLItem item;
  for (const char16_t name : std::u16string(u"abcdef")) Named(item, std::u16string(1, name));
  item.Delete(1);
  item.Delete(4);
  item.Delete(0);
  EXPECT_EQ(Names(item), u"cde");
  EXPECT_THROW(item.Delete(3), RangeError);
  EXPECT_THROW(item.Delete(-1), RangeError);
  EXPECT_THROW(static_cast<void>(item.SubItems(3)), RangeError);
  Named(item, u"x");
  EXPECT_EQ(Names(item), u"cdex");
}

TEST(Delete, FreesAnItemListedTwiceWithItsLastListing) {
  TXMLItem root;
  TXMLItem* const item = Named(root, u"a");
  item->SetParent(&root);
  root.Delete(1);
  EXPECT_EQ(Names(root), u"a");
  root.Delete(0);
  EXPECT_EQ(root.SubItemCount(), 0);
}

TEST(Move, PutsAChildElsewhere) {
  TXMLItem item;
  for (const char16_t name : std::u16string(u"abcd")) Named(item, std::u16string(1, name));
  item.Move(item.SubItems(0), 2);
  EXPECT_EQ(Names(item), u"bcad");
  item.Move(item.SubItems(3), 0);
  EXPECT_EQ(Names(item), u"dbca");
  item.Move(item.SubItems(1), 1);
  EXPECT_EQ(Names(item), u"dbca");
  TXMLItem stranger;
  EXPECT_THROW(item.Move(&stranger, 0), RangeError);
  EXPECT_THROW(item.Move(item.SubItems(0), 4), RangeError);
  EXPECT_EQ(item.IndexOf(item.SubItems(2)), 2);
  EXPECT_EQ(item.IndexOf(&stranger), -1);
}

TEST(IndexOfName, IgnoresCase) {
  TXMLItem item;
  for (const char16_t* name : {u"a", u"\u010C\u00E1stka", u"A", u"b"}) Named(item, name);
  EXPECT_EQ(item.IndexOfName(u"A", 0), 0);
  EXPECT_EQ(item.IndexOfName(u"a", 1), 2);
  EXPECT_EQ(item.IndexOfName(u"a", 3), -1);
  EXPECT_EQ(item.IndexOfName(u"\u010D\u00C1STKA", 0), 1);
  EXPECT_EQ(item.IndexOfName(u"c", 0), -1);
  EXPECT_EQ(item.IndexOfName(u"a", 100), -1);
  EXPECT_THROW(static_cast<void>(item.IndexOfName(u"a", -1)), RangeError);
}

TEST(GetNamedItem, AddsWhatIsMissing) {
  TXMLItem item;
  TXMLItem* added = item.GetNamedItem(u"Price");
  EXPECT_EQ(item.SubItemCount(), 1);
  EXPECT_EQ(added->AsString(), u"<Price/>\r\n");
  EXPECT_EQ(item.GetNamedItem(u"pRICE"), added);
  EXPECT_EQ(item.SubItemCount(), 1);
}

TEST(SetParent, MovesAnItemBetweenParents) {
  TXMLItem one;
  TXMLItem two;
  TXMLItem* item = Named(one, u"a");
  Named(one, u"b");
  Named(two, u"c");
  Named(*item, u"below")->SetText(u"x");
  item->SetParent(&two);
  EXPECT_EQ(Names(one), u"b");
  EXPECT_EQ(Names(two), u"ca");
  EXPECT_EQ(item->Parent(), &two);
}

TEST(SetParent, OfTheSameParentListsTheItemTwice) {
  TECXMLParser parser;
  TXMLItem& root = *parser.Root();
  TXMLItem* item = Named(root, u"a");
  Named(root, u"b");
  item->SetParent(&root);
  EXPECT_EQ(Names(root), u"aba");
  root.Delete(0);
  EXPECT_EQ(Names(root), u"ba");
  item->SetParent(&root);
  item->SetParent(&root);
  EXPECT_EQ(Names(root), u"baaa");
  root.Clear();
  EXPECT_EQ(root.SubItemCount(), 0);
}

TEST(SetParent, TakesEveryListingAlong) {
  TXMLItem one;
  TXMLItem two;
  TXMLItem* item = Named(one, u"a");
  item->SetParent(&one);
  item->SetParent(&two);
  EXPECT_EQ(one.SubItemCount(), 0);
  EXPECT_EQ(Names(two), u"a");
}

TEST(SetParent, ToNoneLeavesTheItemToTheCaller) {
  TXMLItem root;
  TXMLItem* item = Named(root, u"a");
  Named(*item, u"b");
  item->SetParent(nullptr);
  EXPECT_EQ(root.SubItemCount(), 0);
  EXPECT_EQ(Names(*item), u"b");
  delete item;
}

TEST(SetParent, ToNoneOfAnItemWithoutAnyChangesNothing) {
  TXMLItem item;
  item.SetParent(nullptr);
  EXPECT_EQ(item.Parent(), nullptr);
  TXMLItem root;
  auto* const child = new TXMLItem;
  child->SetParent(&root);
  EXPECT_EQ(root.SubItems(0), child);
}

TEST(SetParent, RefusesACircle) {
  TXMLItem root;
  TXMLItem* below = root.New()->New();
  EXPECT_THROW(root.SetParent(below), Error);
  EXPECT_THROW(below->SetParent(below), Error);
  EXPECT_EQ(root.Parent(), nullptr);
}

TEST(SetParent, ItemsOutliveTheDocumentTheyCameFrom) {
  TECXMLParser keeper;
  {
    TECXMLParser parser;
    LoadRoot(parser, "<r><a x=\"1\">text<b/></a><c/></r>");
    parser.Root()->SubItems(0)->SetParent(keeper.Root());
    parser.Root()->SubItems(0)->SetText(u"\u03B1");
  }
  EXPECT_EQ(keeper.Root()->SubItems(0)->XMLItemAsString(0), u"<a x=\"1\">\r\n  text\r\n  <b/>\r\n</a>\r\n");
}

TEST(SetParent, TakesItemsOfTheCaller) {
  TECXMLParser parser;
  LoadRoot(parser, "<r><a/></r>");
  auto* mine = new TXMLItem;
  mine->SetName(u"mine");
  mine->New()->SetText(u"x");
  mine->SetParent(parser.Root()->SubItems(0));
  EXPECT_EQ(parser.Root()->SubItems(0)->SubItems(0), mine);
  parser.Root()->Clear();
}

TEST(TXMLItem, DeletedTakesItselfOutOfItsParent) {
  TXMLItem root;
  delete Named(root, u"a");
  Named(root, u"b");
  EXPECT_EQ(Names(root), u"b");
}

TEST(SetParser, ReachesEverythingBelow) {
  TECXMLParser parser;
  TXMLItem item;
  TXMLItem* below = item.New()->New();
  item.New();
  item.SetParser(&parser);
  EXPECT_EQ(below->Parser(), &parser);
  EXPECT_EQ(item.SubItems(1)->Parser(), &parser);
  item.SetParser(nullptr);
  EXPECT_EQ(below->Parser(), nullptr);
}

TEST(SetParams, CopiesTheList) {
  TXMLItem item;
  StringList list;
  list.Add(u"x=1");
  list.Add(u"no value");
  item.SetParams(list);
  list.Clear();
  EXPECT_EQ(item.Params().Count(), 2U);
  EXPECT_EQ(item.XMLItemName(), u" x=\"1\" =\"\"");
  const StringList copy = std::as_const(item).Params();
  EXPECT_EQ(copy.Value(u"X"), u"1");
}

TEST(CrLfInAsString, OfTheTopmostItemGovernsAll) {
  TECXMLParser parser;
  LoadRoot(parser, "<a>t<b><c/></b></a>");
  TXMLItem* b = parser.Root()->SubItems(0);
  parser.SetCrLfInAsString(false);
  EXPECT_FALSE(parser.CrLfInAsString());
  EXPECT_TRUE(b->CrLfInAsString());
  EXPECT_EQ(parser.Root()->XMLItemAsString(2), u"  <a>  t  <b>  <c/>  </b>  </a>");
  EXPECT_FALSE(b->CrLfInAsString());
  EXPECT_FALSE(b->SubItems(0)->CrLfInAsString());
  b->SetCrLfInAsString(true);
  EXPECT_EQ(b->XMLItemAsString(0), u"<b>\r\n  <c/>\r\n</b>\r\n");
  EXPECT_EQ(b->XMLItemAsString(-1), u"<b>\r\n <c/>\r\n</b>\r\n");
}

TEST(AsString, LoadsThroughTheCodePage) {
  TECXMLParser parser;
  parser.Root()->SetAsString(u"<a x=\"\u0159\">\u010D \u03B1</a>");
  EXPECT_EQ(parser.Root()->AsString(), u"<a x=\"\u0159\">\r\n  \u010D ?\r\n</a>\r\n");
}

TEST(TXMLItem, ReadsTheCodePageOfTheTimeItWasLoaded) {
  // Byte E8 is another character there, and bytes 80 and 81 are the same one.
  FakeMachine other;
  other.code_page = 9999;
  other.other_bytes = {{'\xE8', u'\u03B8'}, {'\x81', u'\u20AC'}};
  TECXMLParser parser;
  LoadRoot(parser, "<a x=\"\xE8\">\xE8</a>");
  const platform::ScopedMachine scope(other);
  EXPECT_EQ(parser.Root()->Text(), u"\u010D");
  EXPECT_EQ(Saved(parser), "<?xml version=\"1.0\" encoding=\"\" ?>\r\n  <a x=\"?\">\r\n    ?\r\n  </a>\r\n");
  LoadRoot(parser, "<a x=\"\xE8\x81\">\xE8\x81</a>");
  EXPECT_EQ(parser.Root()->Text(), u"\u03B8\u20AC");
  EXPECT_EQ(parser.Root()->XMLItemName(), u"a x=\"\u03B8\u20AC\"");
  EXPECT_EQ(Saved(parser),
            "<?xml version=\"1.0\" encoding=\"\" ?>\r\n  <a x=\"\xE8\x80\">\r\n    \xE8\x80\r\n  </a>\r\n");
}

// Code pages are told apart by their bytes, not by their numbers.
TEST(TXMLItem, ReadsAnotherCodePageOfTheSameNumber) {
  FakeMachine other;
  other.code_page = platform::CodePages().CodePage();
  other.other_bytes = {{'\xE8', u'\u03B8'}};
  TECXMLParser parser;
  LoadRoot(parser, "<a>\xE8</a>");
  EXPECT_EQ(parser.Root()->Text(), u"\u010D");
  const platform::ScopedMachine scope(other);
  LoadRoot(parser, "<a>\xE8</a>");
  EXPECT_EQ(parser.Root()->Text(), u"\u03B8");
}

// A short East Asian code page: a lead byte from 81 on and its trailing byte are one character.
class TwoByteMachine final : public FakeMachine {
 public:
  TwoByteMachine() { code_page = 932; }
  [[nodiscard]] std::u16string FromCodePage(std::string_view bytes) const override {
    std::u16string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      const auto byte = static_cast<unsigned char>(bytes[i]);
      if (byte <= 0x80) {
        text += char16_t{byte};
      } else if (i + 1 < bytes.size()) {
        text += static_cast<char16_t>(byte << 8 | static_cast<unsigned char>(bytes[++i]));
      } else {
        text += u'?';
      }
    }
    return text;
  }
  [[nodiscard]] std::string ToCodePage(std::u16string_view text) const override {
    std::string bytes;
    for (const char16_t unit : text) {
      if (unit <= 0x80) {
        bytes += static_cast<char>(unit);
      } else if (unit >= 0x8100) {
        bytes += {static_cast<char>(unit >> 8), static_cast<char>(unit & 0xFF)};
      } else {
        bytes += '?';
      }
    }
    return bytes;
  }
};

TEST(TXMLItem, KeepsTextOfACodePageOfTwoBytes) {
  const TwoByteMachine machine;
  const platform::ScopedMachine scope(machine);
  TECXMLParser parser;
  const std::string body = "  <\x81\x40 x=\"\x82\x41\">\r\n    \x9F\x42z\r\n  </\x81\x40>\r\n";
  LoadRoot(parser, body);
  EXPECT_EQ(parser.Root()->Name(), u"\u8140");
  EXPECT_EQ(parser.Root()->Params().Value(u"x"), u"\u8241");
  EXPECT_EQ(parser.Root()->Text(), u"\u9F42z");
  EXPECT_EQ(Saved(parser), "<?xml version=\"1.0\" encoding=\"\" ?>\r\n" + body);
  parser.Root()->SetText(u"\u8241\u8230\u0159");
  EXPECT_EQ(parser.Root()->Text(), u"\u8241\u8230\u0159");
  EXPECT_EQ(parser.Root()->XMLItemAsString(0),
            u"<\u8140 x=\"\u8241\">\r\n  \u8241\u8230\u0159\r\n</\u8140>\r\n");
}

TEST(TXMLItem, ReadsACodePageOfTwoBytesWhateverItsNumber) {
  TwoByteMachine machine;
  machine.code_page = platform::CodePages().CodePage();
  TECXMLParser parser;
  LoadRoot(parser, "<a>\xE8\x40</a>");
  EXPECT_EQ(parser.Root()->Text(), u"\u010D@");
  const platform::ScopedMachine scope(machine);
  LoadRoot(parser, "<a>\xE8\x40</a>");
  EXPECT_EQ(parser.Root()->Text(), u"\uE840");
}

TEST(TXMLItem, KeepsHalvesOfCharactersAsTheyReadAlone) {
  const TwoByteMachine machine;
  const platform::ScopedMachine scope(machine);
  TECXMLParser parser;
  LoadRoot(parser, "<a>b\x83<c/>d&amp;amp;\x84<c/></a>");
  EXPECT_EQ(parser.Root()->Text(), u"b?\r\nd&amp;?");
}

// Tokens that close the item they are loaded into continue in its parent.
void LoadInto(TXMLItem& item, std::string_view text) {
  SplitStream stream(text);
  item.LoadFromStream(stream);
}

// The loader also meets names, texts and attributes that the code page lacks.
TEST(LoadFromStream, GoesOnInAParentWithWideNameTextOrParams) {
  TECXMLParser named;
  named.Root()->SetName(u"\u03B1");
  LoadInto(*named.Root()->New(), "</x><b>y</b>");
  EXPECT_EQ(named.Root()->XMLItemAsString(0),
            u"<\u03B1>\r\n  </>\r\n  <b>\r\n    y\r\n  </b>\r\n</\u03B1>\r\n");
  TECXMLParser with_text;
  with_text.Root()->SetText(u"\u03B1");
  LoadInto(*with_text.Root()->New(), "</x>y");
  EXPECT_EQ(with_text.Root()->Text(), u"\u03B1\r\ny");
  TECXMLParser with_params;
  with_params.Root()->Params().SetValue(u"\u03B1", u"1");
  LoadInto(*with_params.Root()->New(), "</x><b y=\"2\">");
  EXPECT_EQ(with_params.Root()->XMLItemName(), u"b y=\"2\"");
}

// Children that the caller added stay before those that are loaded, whatever the capacity of their list.
TEST(LoadFromStream, GoesOnInAParentWithChildren) {
  for (std::size_t added = 1; added <= 9; ++added) {
    TECXMLParser parser;
    LoadRoot(parser, "<r><a/></r>");
    TXMLItem* const parent = parser.Root()->SubItems(0);
    for (std::size_t i = 0; i < added; ++i) Named(*parent, u"n");
    LoadInto(*parent->SubItems(0), "<k/></m><x/><y/>");
    EXPECT_EQ(Names(*parent), std::u16string(added - 1, u'n') + u"xy");
    EXPECT_EQ(Names(*parent->SubItems(0)), u"k");
    EXPECT_EQ(parent->SubItems(parent->SubItemCount() - 1)->Parent(), parent);
  }
}

TEST(LoadFromTokenizer, WithoutADocumentPassesOverItsHeader) {
  TXMLItem item;
  SplitStream stream("<?xml version=\"1.0\" encoding=\"x\" ?><a>b</a>");
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  item.LoadFromTokenizer(tokenizer);
  EXPECT_EQ(item.XMLItemAsString(0), u"<a>\r\n  b\r\n</a>\r\n");
}

TEST(TXMLItem, WithDataIsLoadedAgain) {
  TECXMLParser parser;
  TXMLItem* const root = parser.Root();
  root->SetData(&parser);
  LoadRoot(parser, "<a>x</a>");
  LoadRoot(parser, "<b y='1 2'/>");
  EXPECT_EQ(root->Data(), &parser);
  root->Clear();
  EXPECT_EQ(root->Data(), &parser);
  root->SetData(nullptr);
  root->Clear();
  EXPECT_EQ(root->AsString(), u"</>\r\n");
}

}  // namespace
