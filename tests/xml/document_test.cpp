#include "support/named_pipe.h"
#include "support/scratch_folder.h"
#include "xml_text.h"
#include <ravo/ECXMLParser.h>
#include <ravo/platform/file_stream.h>

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using namespace ravo;
using namespace ravo::ECXMLParser;
using namespace ravo::test;

constexpr std::string_view kHead = "<?xml version=\"1.0\" encoding=\"windows-1250\" ?>\r\n";

void Load(IECXMLParser& parser, std::string_view text) {
  SplitStream stream(text);
  parser.LoadFromStream(stream);
}

// Records the events of a document.
class Log {
 public:
  explicit Log(TECXMLParser& parser) : parser_(parser) {
    parser.SetXMLItemChanged([this](TECXMLParser& sender, TXMLItem& item) {
      EXPECT_EQ(&sender, &parser_);
      Add("changed " + ToUtf8(item.Name()));
    });
    parser.SetOnLoaded([this](TComponent& sender) { Notify("loaded", sender); });
    parser.SetOnSaved([this](TComponent& sender) { Notify("saved", sender); });
    parser.SetOnCleared([this](TComponent& sender) { Notify("cleared", sender); });
    parser.SetBeforeLoad([this](TECXMLParser&, bool& allowed) { Ask("load?", allowed); });
    parser.SetBeforeSave([this](TECXMLParser&, bool& allowed) { Ask("save?", allowed); });
    parser.SetBeforeClear([this](TECXMLParser&, bool& allowed) { Ask("clear?", allowed); });
  }

  bool allow = true;

  std::string Take() { return std::exchange(text_, std::string()); }

 private:
  void Add(const std::string& what) { text_ += (text_.empty() ? "" : "; ") + what; }
  void Notify(const char* what, TComponent& sender) {
    EXPECT_EQ(&sender, &parser_);
    Add(what);
  }
  void Ask(const char* what, bool& allowed) {
    EXPECT_TRUE(allowed);
    allowed = allow;
    Add(what);
  }

  TECXMLParser& parser_;
  std::string text_;
};

TEST(Events, OfChanges) {
  TECXMLParser parser;
  Log log(parser);
  TXMLItem* root = parser.Root();
  root->SetName(u"r");
  EXPECT_EQ(log.Take(), "changed r");
  TXMLItem* item = root->New();
  EXPECT_EQ(log.Take(), "changed r");
  item->SetName(u"i");
  item->SetText(u"x");
  item->SetParams(StringList());
  EXPECT_EQ(log.Take(), "changed i; changed i; changed i");
  EXPECT_EQ(root->GetNamedItem(u"I"), item);
  EXPECT_EQ(log.Take(), "");
  root->GetNamedItem(u"n");
  EXPECT_EQ(log.Take(), "changed r; changed n");
  root->Delete(0);
  EXPECT_EQ(log.Take(), "changed r");
  root->DoChanged();
  EXPECT_EQ(log.Take(), "changed r");
}

TEST(Events, AreSilentForTheRest) {
  TECXMLParser parser;
  Log log(parser);
  TXMLItem* root = parser.Root();
  root->New();
  TXMLItem* last = root->New();
  log.Take();
  root->Move(last, 0);
  last->Params().Add(u"x=1");
  last->SetData(&parser);
  last->SetCrLfInAsString(false);
  last->SetParser(&parser);
  last->SetParent(root);
  static_cast<void>(root->AsString());
  root->Clear();
  EXPECT_EQ(log.Take(), "");
  root->DoChanged();
  EXPECT_EQ(log.Take(), "changed ");
  TXMLItem alone;
  alone.SetName(u"x");
  EXPECT_EQ(log.Take(), "");
}

TEST(Events, AreUnassignedAtFirst) {
  TECXMLParser parser;
  const auto assigned = [&] {
    return std::array{bool(parser.XMLItemChanged()), bool(parser.OnLoaded()),   bool(parser.OnSaved()),
                      bool(parser.OnCleared()),      bool(parser.BeforeLoad()), bool(parser.BeforeSave()),
                      bool(parser.BeforeClear())};
  };
  EXPECT_THAT(assigned(), testing::Each(false));
  const Log log(parser);
  EXPECT_THAT(assigned(), testing::Each(true));
}

TEST(Events, OfLoading) {
  TECXMLParser parser;
  Log log(parser);
  Load(parser, std::string(kHead) + "<a><b>x</b></a>");
  EXPECT_EQ(log.Take(), "load?; loaded");
  parser.Root()->SetAsString(u"<c/>");
  EXPECT_EQ(log.Take(), "load?; loaded");
  log.allow = false;
  Load(parser, std::string(kHead) + "<d><e></e></d>");
  EXPECT_EQ(log.Take(), "load?");
  EXPECT_EQ(parser.Root()->AsString(), u"<>\r\n  <c/>\r\n</>\r\n");
}

TEST(Events, OfAStreamThatIsNoDocument) {
  TECXMLParser parser;
  Log log(parser);
  parser.Root()->SetName(u"r");
  log.Take();
  Load(parser, "<a></a>");
  EXPECT_EQ(log.Take(), "");
  EXPECT_EQ(parser.Root()->Name(), u"r");
}

TEST(Events, ComeBackAfterAnError) {
  TECXMLParser parser;
  Log log(parser);
  EXPECT_THROW(Load(parser, std::string(kHead) + "<a><b"), EParserError);
  EXPECT_EQ(log.Take(), "load?");
  parser.Root()->SetText(u"x");
  EXPECT_EQ(log.Take(), "changed a");
}

TEST(Events, OfTokensLoadedByHand) {
  TECXMLParser parser;
  Log log(parser);
  SplitStream stream("<a x=\"1\">t<b/></a>");
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  parser.Root()->LoadFromTokenizer(tokenizer);
  EXPECT_EQ(log.Take(), "changed ; changed a; changed a; changed a; changed a; changed b; changed b");
}

TEST(Events, OfSavingAndClearing) {
  TECXMLParser parser;
  Log log(parser);
  parser.SetEncoding(u"windows-1250");
  parser.SetStyleSheet(u"s.xsl");
  parser.Root()->SetName(u"r");
  log.Take();
  EXPECT_THAT(Saved(parser), testing::HasSubstr("<r/>"));
  EXPECT_EQ(log.Take(), "save?; saved");
  log.allow = false;
  EXPECT_EQ(Saved(parser), "");
  parser.Clear();
  EXPECT_EQ(log.Take(), "save?; clear?");
  EXPECT_EQ(parser.Root()->Name(), u"r");
  log.allow = true;
  parser.Clear();
  EXPECT_EQ(log.Take(), "clear?; cleared");
  EXPECT_EQ(parser.Encoding(), u"");
  EXPECT_EQ(parser.StyleSheet(), u"s.xsl");
  EXPECT_EQ(parser.Root()->Name(), u"");
}

TEST(SaveToStream, OfAnEmptyDocument) {
  TECXMLParser parser;
  EXPECT_EQ(Saved(parser), "<?xml version=\"1.0\" encoding=\"\" ?>\r\n  </>\r\n");
}

TEST(SaveToStream, BlankBeforeTheEndOfTheDeclarationAlone) {
  TECXMLParser parser;
  parser.SetEncoding(u"utf-8");
  parser.SetStyleSheet(u"\u010D.xsl");
  parser.SetCrLfInAsString(false);
  EXPECT_EQ(Saved(parser),
            "<?xml version=\"1.0\" encoding=\"utf-8\" ?>\r\n"
            "<?xml-stylesheet type=\"text/xsl\" href=\"\xE8.xsl\"?>\r\n  </>");
  EXPECT_EQ(Saved(parser, true), "<?xml version=\"1.0\" encoding=\"utf-8\" ?>\r\n  </>");
  parser.SetStyleSheet(u" \t");
  EXPECT_EQ(Saved(parser), "<?xml version=\"1.0\" encoding=\"utf-8\" ?>\r\n  </>");
}

TEST(SaveToStream, WritesTheCodePageWhateverTheEncodingIsCalled) {
  TECXMLParser parser;
  Load(parser, "<?xml version=\"1.0\" encoding=\"UTF-16\"?><a>\xF8</a>");
  EXPECT_EQ(parser.Root()->Text(), u"\u0159");
  EXPECT_EQ(Saved(parser), "<?xml version=\"1.0\" encoding=\"UTF-16\" ?>\r\n  <a>\r\n    \xF8\r\n  </a>\r\n");
}

TEST(SaveToStream, WithoutLineBreaksKeepsTwoBlanksBeforeEachTag) {
  TECXMLParser parser;
  parser.SetCrLfInAsString(false);
  Load(parser, std::string(kHead) + "<a>t<b><c/></b></a>");
  EXPECT_EQ(Saved(parser), std::string(kHead) + "  <a>  t  <b>  <c/>  </b>  </a>");
}

TEST(SaveToStream, LetsErrorsOfTheStreamPass) {
  class FullStream final : public ByteStream {
   public:
    [[nodiscard]] std::size_t Read(std::span<std::byte>) override { return 0; }
    [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
    [[nodiscard]] std::int64_t Position() const override { return 0; }
    void SetPosition(std::int64_t) override {}
    [[nodiscard]] std::int64_t Size() const override { return 0; }
  };
  TECXMLParser parser;
  FullStream stream;
  EXPECT_THROW(parser.SaveToStream(stream, false), StreamError);
}

std::u16string RootAfter(std::string_view text) {
  TECXMLParser parser;
  Load(parser, text);
  return parser.Root()->Name();
}

TEST(LoadFromStream, TakesWhatLooksLikeADocument) {
  EXPECT_EQ(RootAfter("<?xml version=\"1.0\"?><a></a>"), u"a");
  EXPECT_EQ(RootAfter("<rss></rss>"), u"rss");
  EXPECT_EQ(RootAfter("<a></a><!-- <rss -->"), u"a");
  EXPECT_EQ(RootAfter("<?xml version=\"1.1\"?><a></a>"), u"");
  EXPECT_EQ(RootAfter("<?XML version=\"1.0\"?><a></a>"), u"");
  EXPECT_EQ(RootAfter("<?xml  version=\"1.0\"?><a></a>"), u"");
  EXPECT_EQ(RootAfter("<a></a>"), u"");
  EXPECT_EQ(RootAfter(""), u"");
  EXPECT_EQ(RootAfter("<?xml encoding='x'?>" + std::string(976, ' ') + "<rss></rss>"), u"rss");
  EXPECT_EQ(RootAfter("<?xml encoding='x'?>" + std::string(977, ' ') + "<rss></rss>"), u"");
}

TEST(LoadFromStream, PassesOverSingleQuotesInSilence) {
  EXPECT_EQ(RootAfter("<?xml version='1.0'?><a></a>"), u"");
  EXPECT_EQ(RootAfter("<?xml version='1.0'?><rss></rss>"), u"rss");
}

TEST(LoadFromStream, PassesOverAMarkOfByteOrderInSilence) {
  using namespace std::string_view_literals;
  EXPECT_EQ(RootAfter("\xEF\xBB\xBF<?xml version=\"1.0\"?><a></a>"), u"");
  EXPECT_EQ(RootAfter("\xFF\xFE<\0?\0x\0m\0l\0 \0v\0e\0r\0s\0i\0o\0n\0=\0\"\0001\0.\0000\0\"\0"sv), u"");
  EXPECT_EQ(RootAfter("\xFE\xFF<?xml version=\"1.0\"?><a></a>"), u"");
  EXPECT_EQ(RootAfter("\xEF\xBB<?xml version=\"1.0\"?><a></a>"), u"a");
  TECXMLParser parser;
  Load(parser, "\xEF\xBB\xBF<?xml version=\"1.0\"?><rss></rss>");
  EXPECT_EQ(parser.Root()->Name(), u"rss");
  EXPECT_EQ(parser.Root()->Text(), u"\u010F\u00BB\u017C");
}

TEST(LoadFromStream, GoesBackToTheBeginning) {
  TECXMLParser parser;
  const std::string text = "<x><rss></rss></x>";
  SplitStream stream(text);
  stream.SetPosition(3);
  parser.LoadFromStream(stream);
  EXPECT_EQ(parser.Root()->Name(), u"x");
  stream.SetPosition(4);
  parser.Clear();
  parser.LoadFromStream(stream);
  EXPECT_EQ(parser.Root()->Name(), u"");
  EXPECT_EQ(stream.Position(), 0);
}

struct HeaderRow {
  const char* header;
  const char16_t* encoding;
  const char16_t* style_sheet;
};

TEST(LoadFromStream, ReadsTheHeader) {
  const HeaderRow rows[] = {
      {"<?xml version=\"1.0\"?>", u"old", u"old.xsl"},
      {"<?xml version=\"1.0\" Encoding=\"Windows-1250\"?>", u"Windows-1250", u"old.xsl"},
      {"<?xml version=\"1.0\" encoding='utf-8'?>", u"utf-8", u"old.xsl"},
      {"<?xml encoding='single' encoding=\"double\"?>", u"single", u"old.xsl"},
      {"<?xml-stylesheet type=\"text/xsl\" HREF=\"a b.xsl\"?>", u"old", u"a b.xsl"},
      {"<?XML-StyleSheet href=\"x.xsl\" encoding=\"e\"?>", u"e", u"x.xsl"},
      {"<?xml-stylesheet href='x.xsl'?>", u"old", u"old.xsl"},
      {"<?xml encoding=\"open?>", u"", u"old.xsl"},
      {"<?xml href=\"x.xsl\"?>", u"old", u"old.xsl"},
  };
  for (const HeaderRow& row : rows) {
    TECXMLParser parser;
    parser.SetEncoding(u"old");
    parser.SetStyleSheet(u"old.xsl");
    LoadRoot(parser, row.header);
    EXPECT_EQ(parser.Encoding(), row.encoding) << row.header;
    EXPECT_EQ(parser.StyleSheet(), row.style_sheet) << row.header;
  }
}

std::string FileText(const ScratchFolder& folder, std::u16string_view name) {
  FileStream stream(folder.File(name), FileMode::Read);
  std::string text(static_cast<std::size_t>(stream.Size()), '\0');
  stream.ReadChecked(std::as_writable_bytes(std::span(text)));
  return text;
}

TEST(Files, AreLoadedAndSaved) {
  const ScratchFolder folder;
  folder.Write("in.xml", std::string(kHead) + "<a>\r\n  <b x=\"\xF8\"/>\r\n</a>\r\n");
  TECXMLParser parser;
  parser.LoadFromFile(folder.File(u"in.xml"));
  parser.SetStyleSheet(u"s.xsl");
  parser.SaveToFile(folder.File(u"out.xml"));
  const std::string body = "  <a>\r\n    <b x=\"\xF8\"/>\r\n  </a>\r\n";
  const std::string reference = "<?xml-stylesheet type=\"text/xsl\" href=\"s.xsl\"?>\r\n";
  EXPECT_EQ(FileText(folder, u"out.xml"), std::string(kHead) + reference + body);
  for (const char16_t* name : {u"out.xsl", u"out.XSL", u"out.xml.Xsl"}) {
    parser.SaveToFile(folder.File(name));
    EXPECT_EQ(FileText(folder, name), std::string(kHead) + body);
  }
  parser.SaveToFile(folder.File(u"xsl"));
  EXPECT_EQ(FileText(folder, u"xsl"), std::string(kHead) + reference + body);
}

// More than the tokenizer's buffer, which is refilled several times.
TEST(Files, MayBePipes) {
  std::string text = std::string(kHead) + "<a>\n";
  for (int i = 0; i < 20'000; ++i) text += "<b/>\n";
  const NamedPipe pipe(text + "</a>");
  TECXMLParser parser;
  parser.LoadFromFile(pipe.Name());
  EXPECT_EQ(parser.Root()->Name(), u"a");
  EXPECT_EQ(parser.Root()->SubItemCount(), 20'000);
  EXPECT_EQ(parser.Encoding(), u"windows-1250");
}

TEST(Files, MayBePipesForTheLargeTokenizer) {
  const NamedPipe pipe(std::string(kHead) + "<a>\n<b/>\n</a>\n");
  FileStream stream(pipe.Name(), FileMode::Read);
  TECXMLParser parser;
  parser.Root()->LoadFromLargeStream(stream);
  EXPECT_EQ(parser.Root()->Name(), u"a");
  EXPECT_EQ(parser.Root()->SubItemCount(), 1);
}

// The first page of the memory of a process cannot be read.
TEST(Files, ThatCannotBeReadAreNoEmptyDocuments) {
  constexpr std::u16string_view unreadable = u"/proc/self/mem";
  if (!std::filesystem::exists(unreadable))
    GTEST_SKIP() << "this system has no file that fails when it is read";
  TECXMLParser parser;
  try {
    parser.LoadFromFile(unreadable);
    FAIL() << "loaded";
  } catch (const StreamError& error) {
    EXPECT_EQ(error.Operation(), StreamOperation::Read);
  }
}

// A name without folder and extension is a file in the current folder, and not a style sheet.
TEST(Files, MayHaveTheBarestNames) {
  const ScratchFolder folder;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  TECXMLParser parser;
  parser.SetStyleSheet(u"s.xsl");
  parser.SaveToFile(u"xsl");
  std::filesystem::current_path(before);
  EXPECT_NE(FileText(folder, u"xsl").find("href=\"s.xsl\""), std::string::npos);
}

TEST(Files, AreEmptiedEvenWhereSavingIsNotAllowed) {
  const ScratchFolder folder;
  folder.Write("a.xml", "old");
  TECXMLParser parser;
  parser.SetBeforeSave([](TECXMLParser&, bool& allow) { allow = false; });
  parser.SaveToFile(folder.File(u"a.xml"));
  EXPECT_EQ(FileText(folder, u"a.xml"), "");
}

TEST(Files, LetErrorsPass) {
  const ScratchFolder folder;
  TECXMLParser parser;
  EXPECT_THROW(parser.LoadFromFile(folder.File(u"missing.xml")), StreamError);
  EXPECT_THROW(parser.SaveToFile(folder.File(u"missing/a.xml")), StreamError);
}

TEST(TXMLGhost, DoesEverythingWithItsDocument) {
  const ScratchFolder folder;
  TECXMLParser parser;
  TXMLGhost ghost;
  EXPECT_EQ(ghost.PrimaryDocument(), nullptr);
  EXPECT_THROW(ghost.Clear(), Error);
  EXPECT_THROW(static_cast<void>(ghost.GetRoot()), Error);
  ghost.SetPrimaryDocument(&parser);
  EXPECT_EQ(ghost.PrimaryDocument(), &parser);
  Load(ghost, std::string(kHead) + "<a></a>");
  EXPECT_EQ(ghost.Root(), parser.Root());
  EXPECT_EQ(ghost.GetRoot(), parser.GetRoot());
  EXPECT_EQ(parser.Root()->Name(), u"a");
  ghost.SaveToFile(folder.File(u"a.xml"));
  ghost.Clear();
  EXPECT_EQ(parser.Root()->Name(), u"");
  ghost.LoadFromFile(folder.File(u"a.xml"));
  MemoryStream stream;
  ghost.SaveToStream(stream, false);
  EXPECT_EQ(stream.Size(), static_cast<std::int64_t>(Saved(parser).size()));
}

class CountedComponent final : public TComponent {
 public:
  CountedComponent(TComponent* owner, int& freed) : TComponent(owner), freed_(freed) {}
  ~CountedComponent() override { ++freed_; }

 private:
  int& freed_;
};

TEST(TComponent, IsFreedByItsOwner) {
  int freed = 0;
  {
    TECXMLParser owner;
    delete new CountedComponent(&owner, freed);
    EXPECT_EQ(freed, 1);
    new CountedComponent(&owner, freed);
    auto* middle = new CountedComponent(&owner, freed);
    new CountedComponent(middle, freed);
    EXPECT_EQ(middle->Owner(), &owner);
    const CountedComponent on_stack(&owner, freed);
  }
  EXPECT_EQ(freed, 5);
}

TEST(Register, OffersTwoClasses) {
  EXPECT_TRUE(RegisteredComponents().empty());
  Register();
  Register();
  const auto offered = RegisteredComponents();
  ASSERT_EQ(offered.size(), 2U);
  EXPECT_EQ(offered[0].page, u"EC Test");
  EXPECT_EQ(offered[0].class_name, u"TECXMLParser");
  EXPECT_EQ(offered[1].page, u"EC Test");
  EXPECT_EQ(offered[1].class_name, u"TXMLGhost");
}

TEST(Published, PropertiesStandInTheirOrder) {
  std::string names;
  for (const std::string_view name : TECXMLParser::kPublished) names.append(name).append(" ");
  EXPECT_EQ(names,
            "StyleSheet Encoding XMLItemChanged OnLoaded OnCleared OnSaved BeforeLoad BeforeSave BeforeClear "
            "CrLfInAsString ");
  ASSERT_EQ(TXMLGhost::kPublished.size(), 1U);
  EXPECT_EQ(TXMLGhost::kPublished[0], "PrimaryDocument");
  EXPECT_EQ(IID_IECXMLParser.ToText(), u"{6388C6AB-6393-4AD2-A4AF-22E2BC3F97BF}");
  EXPECT_EQ(xitText, 0);
  EXPECT_EQ(xitComment, 5);
}

}  // namespace
