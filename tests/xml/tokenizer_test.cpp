#include "plain_tokens.h"
#include "support/czech_settings.h"
#include "support/effort.h"
#include "support/fake_machine.h"
#include "support/fake_stream.h"
#include "support/guarded_buffer.h"
#include "support/tried.h"
#include <ravo/ECXMLTokenizer.h>

#include <gmock/gmock.h>

namespace {

using namespace ravo;
using namespace ravo::ECXMLTokenizer;
using namespace ravo::test;

constexpr std::size_t kWindow = 65536;

struct Row {
  const char* title;
  std::string_view text;
  std::vector<TokenRow> tokens;
};

const std::vector<Row>& Rows() {
  using namespace std::string_view_literals;
  static const std::vector<Row> rows = {
      {"nothing", "", {{0, "", 0, 1}}},
      {"blanks alone", " \t\r\n\x01 ", {{0, "", 6, 2}}},
      {"text", "abc  def\r\nghi", {{9, "abc defghi", 0, 1}, {0, "", 13, 1}}},
      {"breaks alone", "a\nb\rc\td", {{9, "a\nb\rc\td", 0, 1}, {0, "", 7, 1}}},
      {"feed and return", "a\n\rb", {{9, "ab", 0, 1}, {0, "", 4, 1}}},
      {"blanks that meet", "a \r\n b", {{9, "a b", 0, 1}, {0, "", 6, 1}}},
      {"a pair left by a pair", "a\r\r\n\nb", {{9, "a\r\nb", 0, 1}, {0, "", 6, 1}}},
      {"CDATA", "<![CDATA[a<b>c]]>", {{9, "<![CDATA[a<b>c]]>", 0, 1}, {0, "", 17, 1}}},
      {"CDATA in small letters",
       "<![cdata[x]]>y",
       {{9, "<![cdata[x]]>", 0, 1}, {9, "y", 13, 1}, {0, "", 14, 1}}},
      {"three brackets", "<![CDATA[a]]]>", {{9, "<![CDATA[a]]]", 0, 1}, {9, ">", 13, 1}, {0, "", 14, 1}}},
      {"empty CDATA", "<![CDATA[]]>", {{9, "<![CDATA[]]>", 0, 1}, {0, "", 12, 1}}},
      {"brackets and no end",
       "<![CDATA[a]]b<c>",
       {{9, "<![CDATA[a]]b", 0, 1}, {10, "<c>", 13, 1}, {0, "", 16, 1}}},
      {"comment", "<!-- a > b -->", {{6, "<!-- a >", 0, 1}, {9, "b -->", 9, 1}, {0, "", 14, 1}}},
      {"stand-alone", "<br/>", {{12, "<br/>", 0, 1}, {0, "", 5, 1}}},
      {"close and stand-alone", "</a/>", {{12, "</a/>", 0, 1}, {0, "", 5, 1}}},
      {"close", "</a >", {{11, "</a >", 0, 1}, {0, "", 5, 1}}},
      {"shortest", "<></>", {{10, "<>", 0, 1}, {12, "</>", 2, 1}, {0, "", 5, 1}}},
      {"header", "<?XML version=\"1.0\"?>", {{8, "<?XML version=\"1.0\"?>", 0, 1}, {0, "", 21, 1}}},
      {"stylesheet",
       "<?xml-stylesheet href=\"a\"?>",
       {{8, "<?xml-stylesheet href=\"a\"?>", 0, 1}, {0, "", 27, 1}}},
      {"other instruction", "<?php x?>", {{10, "<?php x?>", 0, 1}, {0, "", 9, 1}}},
      {"document type", "<!DOCTYPE x>", {{10, "<!DOCTYPE x>", 0, 1}, {0, "", 12, 1}}},
      {"header that stands alone", "<?xml/>", {{8, "<?xml/>", 0, 1}, {0, "", 7, 1}}},
      {"position", "   <a>", {{10, "<a>", 3, 1}, {0, "", 6, 1}}},
      {"lines between",
       "\n\n<a>\r\nx\ny\n<b>",
       {{10, "<a>", 2, 3}, {9, "x\ny", 7, 4}, {10, "<b>", 11, 5}, {0, "", 14, 5}}},
      {"lines inside", "<a\n\nb>\n<c>", {{10, "<a\n\nb>", 0, 1}, {10, "<c>", 7, 2}, {0, "", 10, 2}}},
      {"a zero byte", "<a>\0<b>"sv, {{10, "<a>", 0, 1}, {0, "", 3, 1}}},
      {"a zero byte in text", "x\0y"sv, {{9, "x", 0, 1}, {0, "", 1, 1}}},
      {"a zero byte in a tag", "<a\0b>"sv, {{10, std::string("<a\0b>", 5), 0, 1}, {0, "", 5, 1}}},
      {"high bytes", "\xE8\xFF<\x9A>", {{9, "\xE8\xFF", 0, 1}, {10, "<\x9A>", 2, 1}, {0, "", 5, 1}}},
      {"a greater than", "a > b", {{9, "a > b", 0, 1}, {0, "", 5, 1}}},
  };
  return rows;
}

TEST(TXMLTokenizer, CutsEachDocument) {
  for (const Row& row : Rows()) EXPECT_EQ(TokensOf(row.text), row.tokens) << row.title;
}

TEST(TXMLTokenizer, PlainRulesCutEachDocumentAlike) {
  for (const Row& row : Rows()) EXPECT_EQ(PlainTokenizer(row.text, kWindow).All(), row.tokens) << row.title;
}

TEST(TXMLTokenizer, ReadsAlikeAtEverySplit) {
  for (const Row& row : Rows()) {
    for (std::size_t split = 1; split < row.text.size(); ++split) {
      SplitStream two(row.text, SIZE_MAX, split);
      EXPECT_EQ(TokensOf(two), row.tokens) << row.title << " split at " << split;
      SplitStream pieces(row.text, split);
      EXPECT_EQ(TokensOf(pieces), row.tokens) << row.title << " in pieces of " << split;
      Tried("splits", 2);
    }
  }
}

// A line of tags and empty lines before the document move each of its bytes to the edge of the buffer.
std::string AtEdge(std::string_view text, std::size_t before_edge, bool with_line_end) {
  std::string all(kWindow - before_edge, 'x');
  for (std::size_t i = 63; i < all.size(); i += 64) all[i] = '\n';
  all[0] = '<';
  all[1] = 'p';
  all[2] = '>';
  all.back() = with_line_end ? '\n' : '>';
  if (!with_line_end) all[all.size() - 3] = '<';
  all += text;
  all += "\n<end/>\n" + std::string(200, ' ') + "\n";
  return all;
}

TEST(TXMLTokenizer, CutsAlikeAtEveryPlaceOfTheEdge) {
  for (const Row& row : Rows()) {
    for (std::size_t before = 0; before <= row.text.size() + 8; before += test::StepUnderSanitizers(3)) {
      for (const bool line_end : {true, false}) {
        const std::string all = AtEdge(row.text, before, line_end);
        PlainTokenizer plain(all, kWindow);
        const auto wanted = plain.All();
        ASSERT_FALSE(plain.failed);
        EXPECT_EQ(TokensOf(all), wanted) << row.title << ", " << before << " before the edge";
      }
    }
  }
}

TEST(TXMLTokenizer, CutsAlikeWithBuffersOfEverySize) {
  for (const Row& row : Rows()) {
    const std::string lines = "<p>\nq\n" + std::string(row.text) + "\n<r/>\n\n";
    for (std::size_t size = 1; size <= lines.size() + 1; ++size) {
      for (const std::size_t piece : {std::size_t{1}, std::size_t{3}, SIZE_MAX}) {
        SplitStream stream(lines, piece);
        EXPECT_EQ(SmallTokens(stream, size), PlainTokens(lines, size)) << row.title << ", " << size;
      }
    }
  }
}

TEST(TXMLTokenizer, ReadsNothingBehindTheStream) {
  for (const Row& row : Rows()) {
    const GuardedBuffer guarded(BytesOf(row.text));
    SpanStream stream(guarded.Bytes());
    EXPECT_EQ(TokensOf(stream), row.tokens) << row.title;
  }
}

TEST(TXMLTokenizer, EndsACommentAtItsFirstGreaterThan) {
  const std::vector<TokenRow> rows = {{6, "<!-- <a>", 0, 1}, {9, "-->", 8, 1}, {0, "", 11, 1}};
  EXPECT_EQ(TokensOf("<!-- <a>-->"), rows);
}

TEST(TXMLTokenizer, TakesACloseTagWithASlashAtItsEndAsStandAlone) {
  EXPECT_EQ(TokensOf("</a/>").front().kind, xtStandAloneTag);
  EXPECT_EQ(TokensOf("</a />").front().kind, xtStandAloneTag);
  EXPECT_EQ(TokensOf("</a/ >").front().kind, xtCloseTag);
}

TEST(TXMLTokenizer, TakesADocumentTypeAsAnOpenTag) {
  EXPECT_EQ(TokensOf("<!DOCTYPE x>").front().kind, xtOpenTag);
  EXPECT_EQ(TokensOf("<!DOCTYPE x/>").front().kind, xtStandAloneTag);
}

TEST(TXMLTokenizer, CountsNoLinesInsideTokens) {
  const std::vector<TokenRow> rows = {
      {9, "x\ny", 0, 1}, {10, "<a\n\n>", 4, 2}, {9, "<![CDATA[\n]]>", 9, 2}, {9, "z", 23, 3}, {0, "", 24, 3}};
  EXPECT_EQ(TokensOf("x\ny\n<a\n\n><![CDATA[\n]]>\nz"), rows);
}

TEST(TXMLTokenizer, EndsTextAtTheLastLineOfTheBuffer) {
  std::string all = "<a>\n" + std::string(kWindow - 20, 'x') + "\nfirst\nsecond line\n</a>";
  const auto tokens = TokensOf(all);
  ASSERT_EQ(tokens.size(), 5U);
  EXPECT_EQ(tokens[1].text, std::string(kWindow - 20, 'x') + "\nfirst");
  EXPECT_EQ(tokens[2].text, "second line");
  EXPECT_EQ(tokens[2].line, 3);
}

template <class Tokenizer = TXMLTokenizer>
std::string ErrorOf(std::string_view text) {
  SplitStream stream(text);
  try {
    TokensOf<Tokenizer>(stream);
  } catch (const EParserError& error) {
    return error.what();
  }
  return "nothing";
}

TEST(TXMLTokenizer, RaisesWhatNeverCloses) {
  EXPECT_EQ(ErrorOf("<a>\n<b"), "'>' expected on line 2");
  EXPECT_EQ(ErrorOf("<"), "'>' expected on line 1");
  EXPECT_EQ(ErrorOf("\n\n<![CDATA[abc"), "']]>' expected on line 3");
  EXPECT_EQ(ErrorOf("<![CDATA[abc]]"), "']]>' expected on line 1");
  EXPECT_EQ(ErrorOf("<![CDATA["), "']]>' expected on line 1");
  EXPECT_EQ(ErrorOf("<![CDATA"), "'>' expected on line 1");
  EXPECT_EQ(ErrorOf("<a>\n<b\n" + std::string(3 * kWindow, 'x')), "'>' expected on line 2");
  std::string lines = "<a>\n<![CDATA[";
  for (int i = 0; i < 10000; ++i) lines += "a line of a section\n";
  EXPECT_EQ(ErrorOf(lines), "']]>' expected on line 2");
  EXPECT_EQ(TokensOf(lines + "]]>").size(), 3U);
}

TEST(TXMLTokenizer, CompletesWhatRunsOverTheBuffer) {
  for (const std::size_t size : {kWindow - 8, kWindow, kWindow + 1, 5 * kWindow}) {
    const std::string tag = "<a\nx=\"" + std::string(size, 'v') + "\">";
    const auto tokens = TokensOf("<r>\n" + tag + "text</a>");
    ASSERT_EQ(tokens.size(), 5U) << size;
    EXPECT_EQ(tokens[1].text, tag);
    EXPECT_EQ(tokens[2], (TokenRow{9, "text", static_cast<std::int32_t>(4 + tag.size()), 2}));
  }
}

TEST(TXMLTokenizer, LineMustFitTheBuffer) {
  EXPECT_EQ(ErrorOf(std::string(kWindow, 'x')), "Line too long on line 1");
  EXPECT_EQ(ErrorOf("<a>" + std::string(kWindow - 3, 'x')), "Line too long on line 1");
  EXPECT_EQ(ErrorOf(std::string(kWindow - 1, 'x')), "nothing");
  // The last byte of a full buffer does not count.
  EXPECT_EQ(ErrorOf(std::string(kWindow - 1, 'x') + "\n"), "Line too long on line 1");
  EXPECT_EQ(ErrorOf(std::string(kWindow - 2, 'x') + "\n\n"), "nothing");
}

TEST(TXMLTokenizer, PutsTheStreamBackToItsToken) {
  const std::string text = "<a> text <b>";
  SplitStream stream(text);
  {
    TXMLTokenizer tokenizer(stream);
    EXPECT_EQ(stream.Position(), 12);
    tokenizer.NextToken();
  }
  EXPECT_EQ(stream.Position(), 4);
  stream.SetPosition(0);
  EXPECT_THROW(TokensOf("<a"), EParserError);
  const std::string open = "  <a";
  SplitStream failing(open);
  EXPECT_THROW(TXMLTokenizer tokenizer(failing), EParserError);
  EXPECT_EQ(failing.Position(), 2);
}

TEST(TXMLTokenizer, CountsPositionsFromWhereItBegan) {
  SplitStream stream("xxxxx<a>");
  stream.SetPosition(5);
  TXMLTokenizer tokenizer(stream);
  EXPECT_EQ(tokenizer.SourcePos(), 0);
  EXPECT_EQ(tokenizer.TokenBytes(), "<a>");
}

class TokenizerOf {
 public:
  explicit TokenizerOf(std::string_view text) : stream_(text), tokenizer_(stream_) {}
  TXMLTokenizer* operator->() { return &tokenizer_; }

 private:
  SplitStream stream_;
  TXMLTokenizer tokenizer_;
};

template <class Call>
std::string Raised(Call call) {
  try {
    call();
  } catch (const EParserError& error) {
    return error.what();
  }
  return "nothing";
}

TEST(CheckToken, RaisesForAnotherKind) {
  TokenizerOf tokenizer("\n<a>");
  EXPECT_EQ(Raised([&] { tokenizer->CheckToken(xtOpenTag); }), "nothing");
  EXPECT_EQ(Raised([&] { tokenizer->CheckToken(xtSymbol); }), "Identifier expected on line 2");
  EXPECT_EQ(Raised([&] { tokenizer->CheckToken(xtInteger); }), "Number expected on line 2");
  EXPECT_EQ(Raised([&] { tokenizer->CheckToken(xtFloat); }), "Number expected on line 2");
  EXPECT_EQ(Raised([&] { tokenizer->CheckToken('['); }), "'[' expected on line 2");
}

TEST(CheckToken, NamesAStringByItsNumber) {
  TokenizerOf tokenizer("<a>");
  EXPECT_EQ(Raised([&] { tokenizer->CheckToken(xtString); }), "'\x02' expected on line 1");
}

TEST(TXMLTokenizer, NeverFindsASymbol) {
  for (const std::string_view text : {"abc", "<abc>", "12", "", "\"x\""}) {
    TokenizerOf tokenizer(text);
    EXPECT_FALSE(tokenizer->TokenSymbolIs(text));
    EXPECT_EQ(Raised([&] { tokenizer->CheckTokenSymbol("abc"); }), "abc expected on line 1");
    EXPECT_EQ(Raised([&] { tokenizer->TokenComponentIdent(); }), "Identifier expected on line 1");
  }
}

TEST(TXMLTokenizer, ReadsNumbers) {
  EXPECT_EQ(TokenizerOf("<a>")->SourceLine(), 1);
  EXPECT_EQ(TokenizerOf(" -12 ")->TokenInt(), -12);
  EXPECT_EQ(TokenizerOf("$1F")->TokenInt(), 31);
  EXPECT_THROW(static_cast<void>(TokenizerOf("12x")->TokenInt()), ConvertError);
  FakeMachine machine;
  machine.locale.decimal_separator = u',';
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(TokenizerOf("1,5")->TokenFloat(), Extended{1.5});
  EXPECT_THROW(static_cast<void>(TokenizerOf("1.5")->TokenFloat()), ConvertError);
}

TEST(HexToBinary, SkipsAndDecodesNothing) {
  TokenizerOf tokenizer("<a> 4142 <b>");
  MemoryStream out;
  tokenizer->HexToBinary(out);
  EXPECT_EQ(out.Size(), 0);
  EXPECT_EQ(tokenizer->TokenString(), "4142");
}

TEST(TXMLTokenizer, RaisesWhatItIsTold) {
  TokenizerOf tokenizer("<a>");
  const std::array<MessageArgument, 2> arguments = {std::u16string(u"\u017elut\u00fd"), std::int64_t{-7}};
  EXPECT_EQ(Raised([&] { tokenizer->Error(u"Bad"); }), "Bad on line 1");
  EXPECT_EQ(Raised([&] { tokenizer->ErrorStr(u"50 %d"); }), "50 %d on line 1");
  EXPECT_EQ(Raised([&] { tokenizer->ErrorFmt(u"%s: %d %%", arguments); }), "\u017elut\u00fd: -7 % on line 1");
  EXPECT_THROW(tokenizer->ErrorFmt(u"%s %s %s", arguments), ConvertError);
  EXPECT_THROW(tokenizer->ErrorFmt(u"%x", arguments), ConvertError);
  EXPECT_THROW(tokenizer->ErrorFmt(u"%", arguments), ConvertError);
}

TEST(TXMLTokenizer, FormatsMessagesByTheLocale) {
  FakeMachine machine;
  machine.locale = test::CzechSettings();
  const platform::ScopedMachine scope(machine);
  TokenizerOf tokenizer("<a>");
  const std::array<MessageArgument, 4> arguments = {std::u16string(u"Sum"), Currency{12345600},
                                                    std::int64_t{254}, Extended{0.5}};
  EXPECT_EQ(Raised([&] { tokenizer->ErrorFmt(u"%-5s|%9.2n|%.4x|%g", arguments); }),
            "Sum  | 1\u00A0234,56|00FE|0,5 on line 1");
}

TEST(TXMLLargeTokenizer, WantsALineFeed) {
  EXPECT_EQ(ErrorOf<TXMLLargeTokenizer>("<a></a>"), "Line too long on line 1");
  EXPECT_EQ(ErrorOf<TXMLLargeTokenizer>(""), "The stream is empty on line 1");
  EXPECT_EQ(ErrorOf<TXMLLargeTokenizer>("<a>\n</a>"), "nothing");
}

TEST(TXMLLargeTokenizer, KeepsLongTextsWhole) {
  std::string text = "<a>\n";
  for (int i = 0; i < 9000; ++i) text += "another line\r\n";
  text += "</a>\n";
  SplitStream stream(text);
  const auto tokens = TokensOf<TXMLLargeTokenizer>(stream);
  ASSERT_EQ(tokens.size(), 4U);
  EXPECT_EQ(tokens[1].text.size(), 9000U * 12);
  EXPECT_EQ(TokensOf(text).size(), 5U);
}

TEST(TXMLLargeTokenizer, ReadsAlikeAtEverySplit) {
  const std::string text = "<a>\ntext\n<![CDATA[x\ny]]>\n<b\nc=\"1\"/></a>";
  SplitStream whole(text);
  const auto wanted = TokensOf<TXMLLargeTokenizer>(whole);
  EXPECT_EQ(wanted, PlainTokenizer(text, text.size()).All());
  for (std::size_t split = 1; split < text.size(); ++split) {
    SplitStream stream(text, SIZE_MAX, split);
    EXPECT_EQ(TokensOf<TXMLLargeTokenizer>(stream), wanted);
    Tried("splits", 1);
  }
}

// A stream that fails in its middle.
class FailingStream final : public ByteStream {
 public:
  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
    if (++reads_ > 2) throw StreamError(StreamOperation::Read, u"broken");
    std::ranges::fill(to.first(4), std::byte{'x'});
    return 4;
  }
  [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
  [[nodiscard]] std::int64_t Position() const override {
    throw StreamError(StreamOperation::Read, u"broken");
  }
  void SetPosition(std::int64_t) override {}
  [[nodiscard]] std::int64_t Size() const override { return 100; }

 private:
  int reads_ = 0;
};

TEST(TXMLTokenizer, LetsErrorsOfTheStreamPass) {
  FailingStream stream;
  EXPECT_THROW(TXMLTokenizer tokenizer(stream), StreamError);
}

TEST(EParserError, IsAnErrorOfTheLibrary) { EXPECT_THROW(TokensOf("<"), ravo::Error); }

}  // namespace
