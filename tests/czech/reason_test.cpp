#include <ravo/czech/reason.h>
#include <ravo/runtime/text.h>

#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace ravo::czech {
namespace {

// Every code that there is, by walking through all numbers.
std::set<Code> AllCodes() {
  std::set<Code> codes;
  for (int number = 0; number <= 0xFFFF; ++number) {
    const auto code = static_cast<Code>(number);
    if (!CodeText(code).empty()) codes.insert(code);
  }
  return codes;
}

TEST(Reason, EachCodeHasItsTextAndBothSentences) {
  std::set<std::string_view> texts;
  for (const Code code : AllCodes()) {
    EXPECT_TRUE(texts.insert(CodeText(code)).second) << CodeText(code);
    EXPECT_EQ(CodeOf(CodeText(code)), code);
    if (code == Code::Correct) continue;
    EXPECT_TRUE(Sentence(code, Language::English).starts_with("wrong: ")) << CodeText(code);
    EXPECT_TRUE(Sentence(code, Language::Czech).starts_with("chybně: ")) << CodeText(code);
    EXPECT_EQ(ToUtf8(FromUtf8(Sentence(code, Language::Czech))), Sentence(code, Language::Czech));
  }
  EXPECT_GT(texts.size(), 60U);
}

TEST(Reason, NumbersAndTextsStay) {
  EXPECT_EQ(static_cast<int>(Code::IcoChecksum), 104);
  EXPECT_EQ(CodeText(Code::IcoChecksum), "ico.checksum");
  EXPECT_EQ(CodeText(Code::Correct), "correct");
  EXPECT_EQ(Sentence(Code::Correct, Language::English), "correct in form");
  EXPECT_EQ(Sentence(Code::IcoLength, Language::Czech), "chybně: IČO má osm číslic i s nulami na začátku");
}

TEST(Reason, NumbersThatAreNoCodeHaveNothing) {
  EXPECT_TRUE(CodeText(static_cast<Code>(99)).empty());
  EXPECT_TRUE(Sentence(static_cast<Code>(65535), Language::Czech).empty());
  EXPECT_FALSE(CodeOf("ico.colour"));
}

}  // namespace
}  // namespace ravo::czech
