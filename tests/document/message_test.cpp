#include <ravo/document/edit.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::document {
namespace {

using czech::Language;

struct Row {
  std::string_view code;
  std::string_view czech;
  std::string_view english;
};

const std::vector<Row> kRows = {
#define RAVO_DOCUMENT_MESSAGE(name, code, czech, english) {code, czech, english},
#include <ravo/document/messages.inc>
#undef RAVO_DOCUMENT_MESSAGE
};

TEST(Messages, HaveSentencesInBothLanguages) {
  const Fault fault(Message::WrongClose, {"a", "{0}"});
  EXPECT_EQ(fault.Sentence(Language::English), "the close tag 'a' does not match the open element '{0}'");
  EXPECT_EQ(fault.Sentence(Language::Czech), "koncová značka 'a' nepatří k otevřenému elementu '{0}'");
  EXPECT_EQ(CodeOf(Message::FindsDoctype), "doctype");
}

TEST(Messages, SayTheReasonOfAReason) {
  Fault fault(Message::BadRaw, {"a"});
  fault.reasons.emplace_back(Message::Unclosed, std::initializer_list<std::string_view>{"b"});
  EXPECT_EQ(fault.Sentence(Language::English), "the value of 'a' is not valid XML there: 'b' is not closed");
  EXPECT_EQ(fault.Sentence(Language::Czech),
            "hodnota pro 'a' na tom místě není platné XML: 'b' není ukončeno");
}

TEST(Messages, HaveTheSamePlacesInBothLanguages) {
  for (const Row& row : kRows) {
    for (const std::string_view place : {"{0}", "{1}", "{2}"}) {
      EXPECT_EQ(row.czech.find(place) == std::string_view::npos,
                row.english.find(place) == std::string_view::npos)
          << row.english;
    }
    EXPECT_FALSE(row.code.empty());
    EXPECT_NE(row.czech, row.english);
    EXPECT_FALSE(row.english.ends_with('.') || row.czech.ends_with('.')) << row.english;
  }
}

}  // namespace
}  // namespace ravo::document
