#include "support/fake_machine.h"
#include "xml_text.h"
#include <ravo/platform/machine.h>
#include <ravo/runtime/error.h>
#include <ravo/xml/item.h>
#include <ravo/xml/item_pool.h>
#include <ravo/xml/item_store.h>
#include <ravo/xml/item_writer.h>
#include <ravo/xml/tree_builder.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace ravo::xml {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace ravo::test;

std::u16string Written(ItemStore& item) { return TextOfItem(item, {}); }

// Records each change as the name of the item and the XML of the topmost item.
class Recorder final : public TreeBuilder {
 public:
  Recorder(ItemStore& top, bool reports_changes) : TreeBuilder(top, reports_changes), top_(top) {}
  void Encoding(std::u16string_view name) override { names.push_back("encoding " + ToUtf8(name)); }
  void StyleSheet(std::u16string_view name) override { names.push_back("style sheet " + ToUtf8(name)); }

  std::vector<std::string> names;
  std::vector<std::string> changes;

 private:
  void Changed(ItemStore& item) override {
    changes.push_back(ToUtf8(item.Name()) + ": " + ToUtf8(Written(top_)));
  }

  ItemStore& top_;
};

void Load(ItemStore& top, std::string_view text) {
  SplitStream stream(text);
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  top.Clear();
  Recorder recorder(top, false);
  ReadTokens(tokenizer, recorder);
  recorder.Finish();
}

TEST(ItemStore, IsAllThatAnItemHas) {
  EXPECT_EQ(sizeof(ECXMLParser::TXMLItem), sizeof(void*) == 8 ? 64U : 40U);
  ECXMLParser::TXMLItem item;
  EXPECT_EQ(ItemObjects::ItemOf(&ItemObjects::StoreOf(item)), &item);
  EXPECT_EQ(ItemObjects::ItemOf(nullptr), nullptr);
}

TEST(ItemStore, KeepsPlainBytesOfTheSource) {
  ItemStore item;
  Load(item, "<a x=\"1\"  y=\"&lt;\">t &amp;</a>");
  EXPECT_EQ(item.TagBytes(), "a x=\"1\" y=\"&lt;\"");
  EXPECT_EQ(item.NameBytes(), "a");
  EXPECT_EQ(item.TextBytes(), "t &amp;");
  EXPECT_EQ(item.Text(), u"t &");
  EXPECT_EQ(item.WideName(), nullptr);
  EXPECT_EQ(item.AttributeList(), nullptr);
}

TEST(ItemStore, KeepsTextThatTheCodePageLacksWide) {
  ItemStore item;
  item.SetName(u"\u03B1");
  item.SetText(u"\u4E2D");
  ASSERT_NE(item.WideName(), nullptr);
  ASSERT_NE(item.WideText(), nullptr);
  EXPECT_THAT(item.TagBytes(), IsEmpty());
  EXPECT_THAT(item.TextBytes(), IsEmpty());
  EXPECT_TRUE(item.HasName());
  EXPECT_TRUE(item.HasText());
  item.SetName(u"a");
  item.SetText(u"b");
  EXPECT_EQ(item.WideName(), nullptr);
  EXPECT_EQ(item.WideText(), nullptr);
  EXPECT_EQ(item.TagBytes(), "a");
  EXPECT_EQ(item.TextBytes(), "b");
}

TEST(ItemStore, HasNoTextOfBlanksAlone) {
  ItemStore item;
  item.SetText(u" \r\n\t");
  EXPECT_FALSE(item.HasText());
  EXPECT_EQ(item.Text(), u" \r\n\t");
  item.SetText(u" \u4E2D");
  EXPECT_TRUE(item.HasText());
  item.Clear();
  EXPECT_FALSE(item.HasText());
}

TEST(ItemStore, SetsANameToAPartOfItself) {
  ItemStore item;
  Load(item, "<abc x=\"1\"></abc>");
  item.SetName(item.Name().substr(1));
  EXPECT_EQ(item.TagBytes(), "bc x=\"1\"");
}

TEST(ItemStore, EditsAttributesAsAList) {
  ItemStore item;
  Load(item, "<a x=\"1\"></a>");
  item.EditAttributes().SetValue(u"y", u"<");
  EXPECT_EQ(item.TagBytes(), "a");
  EXPECT_EQ(TextOfTag(item), u"a x=\"1\" y=\"&lt;\"");
}

// Bulk free: see ItemPool::MarkExternal.
TEST(ItemStore, AllowsBulkFreeOfWhatWasLoaded) {
  ItemStore top;
  Load(top, "<a x=\"1\"><b>t</b>u<c><d/></c>v</a>");
  EXPECT_TRUE(top.Pool().AllowsBulkFree());
  // Its own content is freed with the topmost item in any case.
  top.SetText(u"text");
  top.SetData(&top);
  EXPECT_TRUE(top.Pool().AllowsBulkFree());
  top.Clear();
  EXPECT_TRUE(top.Children().IsEmpty());
  EXPECT_EQ(top.Data(), &top);
}

TEST(ItemStore, DisablesBulkFreeForWhateverAnItemOwns) {
  ItemStore other;
  const std::vector<void (*)(ItemStore&, ItemStore&)> changes = {
      [](ItemStore& child, ItemStore&) { child.SetName(u"n"); },
      [](ItemStore& child, ItemStore&) { child.SetText(u"t"); },
      [](ItemStore& child, ItemStore&) { child.SetText(u"\u4E2D"); },
      [](ItemStore& child, ItemStore&) { child.SetData(&child); },
      [](ItemStore& child, ItemStore&) { static_cast<void>(child.EditAttributes()); },
      [](ItemStore& child, ItemStore&) { child.NewChild(); },
      [](ItemStore& child, ItemStore&) { Load(child, "<x><y/></x>"); },
      [](ItemStore& child, ItemStore&) { Load(child, "<x>text</x>"); },
      [](ItemStore& child, ItemStore& owner) { child.SetOwner(&owner); },
      [](ItemStore& child, ItemStore& owner) { owner.NewChild().SetOwner(child.Owner()); },
  };
  for (const auto change : changes) {
    ItemStore top;
    Load(top, "<a><b/><c/></a>");
    ItemPool& pool = top.Pool();
    change(*top.Children().At(0), other);
    EXPECT_FALSE(pool.AllowsBulkFree()) << "change " << &change - changes.data();
  }
  EXPECT_FALSE(other.Pool().AllowsBulkFree());
}

TEST(ItemStore, DropsItsPoolWhenItIsCleared) {
  ItemStore top;
  Load(top, "<a><b/></a>");
  top.Children().At(0)->SetText(u"t");
  top.Clear();
  EXPECT_TRUE(top.Pool().AllowsBulkFree());
}

TEST(ItemStore, OutlivesTheItemThatItWasLoadedBelow) {
  ItemStore keeper;
  {
    ItemStore top;
    Load(top, "<a><b x=\"1\">t<c/></b></a>");
    top.Children().At(0)->SetOwner(&keeper);
  }
  EXPECT_EQ(TextOfTag(*keeper.Children().At(0)), u"b x=\"1\"");
  EXPECT_EQ(keeper.Children().At(0)->Text(), u"t");
}

TEST(ItemStore, IsFreedOnceHoweverOftenItIsListed) {
  ItemStore top;
  ItemStore& child = top.NewChild();
  child.SetOwner(&top);
  child.SetOwner(&top);
  EXPECT_EQ(top.Children().Count(), 3U);
  top.Delete(1);
  EXPECT_EQ(top.Children().Count(), 2U);
  top.Clear();
  EXPECT_TRUE(top.Children().IsEmpty());
}

// Its list of children must outlive the pool of that load.
TEST(ItemStore, IsFreedAfterALoadIntoAnItemOfAPool) {
  ItemStore top;
  ItemStore& child = top.NewChild();
  Load(child, "<a><b/><c/></a>");
  child.Delete(1);
  child.Delete(0);
  EXPECT_TRUE(child.Children().IsEmpty());
  child.NewChild().SetName(u"d");
  EXPECT_EQ(Written(child), u"<a>\r\n  <d/>\r\n</a>\r\n");
}

// An item in memory of another pool keeps the bytes of its own code page.
TEST(ItemStore, LoadsBytesOfAnotherCodePageThanItsOwn) {
  ItemStore top;
  Load(top, "<a><b/><c>\xE8</c></a>");
  FakeMachine other;
  other.code_page = 9999;
  other.other_bytes = {{'\xE8', u'\u03B8'}};
  const platform::ScopedMachine scope(other);
  ItemStore& child = *top.Children().At(0);
  Load(child, "<b\xE8 x=\"\xE8\">\xE8<d/>\xE8</b>");
  EXPECT_EQ(child.Name(), u"b\u03B8");
  EXPECT_EQ(child.Attributes().Value(u"x"), u"\u03B8");
  EXPECT_EQ(child.Text(), u"\u03B8\r\n\u03B8");
  EXPECT_EQ(top.Children().At(1)->Text(), u"\u010D");
}

// A handler that adds a child before the first token.
TEST(TreeBuilder, FreesChildrenThatWereThereBefore) {
  ItemStore top;
  top.NewChild().SetName(u"before");
  SplitStream stream("<a><b/></a>");
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  Recorder recorder(top, false);
  ReadTokens(tokenizer, recorder);
  recorder.Finish();
  EXPECT_FALSE(top.Pool().AllowsBulkFree());
  EXPECT_EQ(Written(top), u"<a>\r\n  <before/>\r\n  <b/>\r\n</a>\r\n");
}

TEST(TreeBuilder, ReportsEachStepOfATreeThatIsUpToDate) {
  ItemStore top;
  top.SetOnOneLine(true);
  SplitStream stream("<a x=\"1\"><b>t</b>u<c/>v</a>");
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  Recorder recorder(top, true);
  ReadTokens(tokenizer, recorder);
  EXPECT_THAT(
      recorder.changes,
      ElementsAre("a: <a/>", "a: <a x=\"1\"/>", "a: <a x=\"1\"></></a>", "b: <a x=\"1\"><b/></a>",
                  "b: <a x=\"1\"><b/></a>", "b: <a x=\"1\"><b>t</b></a>", "a: <a x=\"1\">u<b>t</b></a>",
                  "a: <a x=\"1\">u<b>t</b></></a>", "c: <a x=\"1\">u<b>t</b><c/></a>",
                  "c: <a x=\"1\">u<b>t</b><c/></a>", "a: <a x=\"1\">u<br/>v<b>t</b><c/></a>"));
}

TEST(TreeBuilder, ReportsNothingUnlessAsked) {
  ItemStore top;
  SplitStream stream("<?xml version=\"1.0\" encoding=\"x\"?><a><b>t</b>");
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  Recorder recorder(top, false);
  ReadTokens(tokenizer, recorder);
  EXPECT_TRUE(top.Children().IsEmpty());
  recorder.Finish();
  EXPECT_EQ(Written(top), u"<a>\r\n  <b>\r\n    t\r\n  </b>\r\n</a>\r\n");
  EXPECT_THAT(recorder.changes, IsEmpty());
  EXPECT_THAT(recorder.names, ElementsAre("encoding x"));
}

TEST(TreeBuilder, StoresWhatWasBuiltWhenItIsDestroyed) {
  ItemStore top;
  {
    SplitStream stream("<a>t<b><c/>u<d/>v");
    ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
    Recorder recorder(top, false);
    ReadTokens(tokenizer, recorder);
  }
  EXPECT_EQ(Written(top),
            u"<a>\r\n  t\r\n  <b>\r\n    u<br/>v\r\n    <c/>\r\n    <d/>\r\n  </b>\r\n</a>\r\n");
}

TEST(KeptBytes, CopiesAPartOfItself) {
  Arena arena;
  KeptBytes bytes;
  for (Arena* const home : {static_cast<Arena*>(nullptr), &arena}) {
    bytes.Assign("abcdef", home);
    EXPECT_EQ(bytes.OwnsMemory(), home == nullptr);
    bytes.Assign(bytes.View().substr(2, 3), nullptr);
    EXPECT_EQ(bytes.View(), "cde");
    EXPECT_TRUE(bytes.OwnsMemory());
  }
  bytes.Truncate(1);
  EXPECT_EQ(bytes.View(), "c");
  bytes.Assign("", &arena);
  EXPECT_THAT(bytes.View(), IsEmpty());
  EXPECT_FALSE(bytes.OwnsMemory());
}

TEST(Arena, ReusesCellsAndAlignsThem) {
  Arena arena;
  void* const first = arena.AllocateCell(24);
  EXPECT_EQ(std::string_view(arena.Copy("abc"), 3), "abc");
  void* const second = arena.AllocateCell(24);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(second) % alignof(void*), 0U);
  EXPECT_NE(first, second);
  arena.FreeCell(first);
  arena.FreeCell(second);
  EXPECT_EQ(arena.AllocateCell(24), second);
  EXPECT_EQ(arena.AllocateCell(24), first);
  // More than any block.
  const std::string large(1'000'000, 'x');
  EXPECT_EQ(std::string_view(arena.Copy(large), large.size()), large);
}

}  // namespace
}  // namespace ravo::xml
