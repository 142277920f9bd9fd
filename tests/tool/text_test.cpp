#include "text.h"

#include "columns.h"
#include "language.h"
#include "nearest.h"
#include "outcome.h"
#include "printable.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using tool::Language;

// Leaves the language of the process as it was.
class Speaking {
 public:
  explicit Speaking(Language language) : before_(tool::CurrentLanguage()) { tool::SetLanguage(language); }
  Speaking(const Speaking&) = delete;
  Speaking& operator=(const Speaking&) = delete;
  ~Speaking() { tool::SetLanguage(before_); }

 private:
  Language before_;
};

std::string LinesLeft(std::int64_t count) {
  return tool::TextOf(count, "... one line more", "... {0} lines more");
}

TEST(Text, FillsPlacesInTheLanguage) {
  EXPECT_EQ(tool::Text("there is no command '{0}'", {"x{0}"}), "there is no command 'x{0}'");
  const Speaking czech(Language::Czech);
  EXPECT_EQ(tool::Text("there is no command '{0}'", {"x"}), "příkaz 'x' neexistuje");
  EXPECT_EQ(tool::Text("a text without a translation: {0}", {"x"}), "a text without a translation: x");
  EXPECT_EQ(tool::Text("{1} {2} {a} {"), "{1} {2} {a} {");
}

TEST(Text, PluralForms) {
  EXPECT_EQ(LinesLeft(0), "... 0 lines more");
  EXPECT_EQ(LinesLeft(1), "... one line more");
  EXPECT_EQ(LinesLeft(2), "... 2 lines more");
  EXPECT_EQ(LinesLeft(21), "... 21 lines more");
  const Speaking czech(Language::Czech);
  EXPECT_EQ(LinesLeft(0), "... a ještě 0 řádků");
  EXPECT_EQ(LinesLeft(1), "... a ještě jeden řádek");
  EXPECT_EQ(LinesLeft(2), "... a ještě 2 řádky");
  EXPECT_EQ(LinesLeft(4), "... a ještě 4 řádky");
  EXPECT_EQ(LinesLeft(5), "... a ještě 5 řádků");
  EXPECT_EQ(LinesLeft(21), "... a ještě 21 řádků");
  EXPECT_EQ(LinesLeft(22), "... a ještě 22 řádků");
  EXPECT_EQ(tool::TextOf(3, "{1}: one field", "{1}: {0} fields", {"a.fdf"}), "a.fdf: 3 pole");
}

TEST(Language, Names) {
  for (const char* name : {"cs", "CS", "cs_CZ", "cs_CZ.UTF-8", "cs-CZ", "cs.ISO-8859-2", "cs@euro"})
    EXPECT_EQ(tool::LanguageNamed(name), Language::Czech) << name;
  EXPECT_EQ(tool::LanguageNamed("en_GB.UTF-8"), Language::English);
  for (const char* name : {"", "C", "POSIX", "csb_PL", "c", "english", "de_DE"})
    EXPECT_FALSE(tool::LanguageNamed(name)) << name;
}

Language LanguageIn(const std::map<std::string, std::string>& environment, std::string_view system = "") {
  return tool::UsersLanguage(
      [&](const char* name) {
        const auto found = environment.find(name);
        return found == environment.end() ? nullptr : found->second.c_str();
      },
      system);
}

TEST(Language, EnvironmentInItsOrder) {
  const std::vector<std::string> order = {"RAVO_LANG", "LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"};
  for (std::size_t first = 0; first < order.size(); ++first) {
    std::map<std::string, std::string> czech, english;
    for (std::size_t i = first; i < order.size(); ++i) {
      czech[order[i]] = i == first ? "cs_CZ.UTF-8" : "en_US.UTF-8";
      english[order[i]] = i == first ? "en_US.UTF-8" : "cs_CZ.UTF-8";
    }
    EXPECT_EQ(LanguageIn(czech, "en"), Language::Czech) << order[first];
    EXPECT_EQ(LanguageIn(english, "cs"), Language::English) << order[first];
  }
}

TEST(Language, EnvironmentByRules) {
  EXPECT_EQ(LanguageIn({}), Language::English);
  EXPECT_EQ(LanguageIn({}, "cs"), Language::Czech);
  EXPECT_EQ(LanguageIn({{"LC_ALL", ""}, {"LANG", "cs_CZ"}}), Language::Czech);
  EXPECT_EQ(LanguageIn({{"LANG", "de_DE"}}, "cs"), Language::English);
  EXPECT_EQ(LanguageIn({{"LC_ALL", "C"}, {"LANG", "cs_CZ"}}, "cs"), Language::English);
  EXPECT_EQ(LanguageIn({{"LANGUAGE", "cs"}}), Language::Czech);
  EXPECT_EQ(LanguageIn({{"LANGUAGE", "de:cs:en"}, {"LANG", "en_US"}}), Language::Czech);
  EXPECT_EQ(LanguageIn({{"LANGUAGE", "de"}, {"LANG", "cs_CZ"}}), Language::English);
  EXPECT_EQ(LanguageIn({{"LANGUAGE", "cs"}, {"LC_ALL", "C"}}), Language::English);
  EXPECT_EQ(LanguageIn({{"RAVO_LANG", "cs"}, {"LC_ALL", "C"}}), Language::Czech);
  EXPECT_EQ(LanguageIn({{"RAVO_LANG", "?"}, {"LANG", "cs_CZ"}}), Language::Czech);
}

TEST(Printable, ControlCharacters) {
  EXPECT_EQ(tool::Printable("a\tb\nc\r\nd"), "a\tb\nc\r\nd");
  EXPECT_EQ(tool::Printable("\x1b[2J\x07\x7f"), "␛[2J␇␡");
  EXPECT_EQ(tool::OnOneLine("a\tb\r\nc\x1b\n"), "a␉b␍␊c␛␊");
  EXPECT_EQ(tool::OnOneLine("\xC2\x85č\xE2\x80\xAE"), "<U+0085>č<U+202E>");
  EXPECT_EQ(tool::Printable("a\rb"), "a␍b");
  EXPECT_EQ(tool::Printable(std::string_view("\0", 1)), "␀");
  EXPECT_EQ(tool::Printable("\xC2\x9B"
                            "2J"),
            "<U+009B>2J");
  EXPECT_EQ(tool::Printable("\xE2\x80\xAE"
                            "fdp.exe\xE2\x81\xA6"),
            "<U+202E>fdp.exe<U+2066>");
  EXPECT_EQ(tool::Printable("Žluťoučký kůň – €\xC2\xA0😀"), "Žluťoučký kůň – €\xC2\xA0😀");
  // Cut inside a character.
  EXPECT_EQ(tool::Printable("\xE2\x80"), "\xE2\x80");
  EXPECT_EQ(tool::Printable("\xC2"), "\xC2");
}

TEST(Nearest, WordsThatAreMeant) {
  const std::vector<std::string> words = {"table", "captions", "check", "char", "convert", "xml"};
  const std::pair<const char*, const char*> rows[] = {{"tabel", "table"},
                                                      {"chek", "check"},
                                                      {"captoins", "captions"},
                                                      {"conv", "convert"},
                                                      {"xnl", "xml"},
                                                      {"nonsense", ""},
                                                      {"", ""},
                                                      {"zzz", ""}};
  for (const auto& [word, wanted] : rows) EXPECT_EQ(tool::Nearest(word, words), wanted) << word;
  EXPECT_EQ(tool::DidYouMean("tabel", words), "Did you mean table?");
  EXPECT_EQ(tool::DidYouMean("nonsense", words), "");
  EXPECT_EQ(tool::Nearest("c", {"a", "b"}), "");
  EXPECT_EQ(tool::Nearest("VZ", {"VS", "KS"}), "VS");
  EXPECT_EQ(tool::Nearest(std::string(100'000, 'a'), words), "");
}

TEST(Columns, AlignedOrTabbed) {
  tool::Columns rows;
  rows.Add({"1", "kůň", "x"});
  rows.Add({"100", "a\u0308", ""});
  rows.Add({"a line alone"});
  EXPECT_EQ(rows.Text(false), "1\tkůň\tx\n100\ta\u0308\t\na line alone\n");
  EXPECT_EQ(rows.Text(true), "1    kůň  x\n100  a\u0308\na line alone\n");
  EXPECT_EQ(tool::Columns().Text(true), "");
}

TEST(Columns, Width) {
  EXPECT_EQ(tool::Width("kůň"), 3U);
  EXPECT_EQ(tool::Width("a\u0308😀"), 2U);
  EXPECT_EQ(tool::Padded("kůň", 5), "kůň  ");
  EXPECT_EQ(tool::Padded("kůň", 2), "kůň");
}

TEST(Complain, NamesTheCommandAndGetsNoBetter) {
  tool::Outcome outcome;
  outcome.command = "xml show";
  Complain(outcome, "a", tool::Answer::WrongUsage);
  Complain(outcome, "b", tool::Answer::No);
  EXPECT_EQ(outcome.err, "ravo xml show: a\nravo xml show: b\n");
  EXPECT_EQ(outcome.answer, tool::Answer::WrongUsage);
}

}  // namespace
