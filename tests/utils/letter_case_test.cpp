#include <ravo/utils/strings/letter_case.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

template <class Text>
Text Changed(void (*change)(Text&) noexcept, Text text) {
  change(text);
  return text;
}

TEST(StrToUpper, IsTheWideMember) { EXPECT_EQ(StrToUpper(u"účet"), u"ÚČET"); }
TEST(StrToUpperA, AsciiAlone) { EXPECT_EQ(StrToUpperA("az{`\xE8"), "AZ{`\xE8"); }
TEST(StrToUpperW, Rows) {
  EXPECT_EQ(StrToUpperW(u"žluťoučký kůň"), u"ŽLUŤOUČKÝ KŮŇ");
  EXPECT_EQ(StrToUpperW(u"straße"), u"STRAßE");
  EXPECT_EQ(StrToUpperW(u""), u"");
}
TEST(StrToUpperInPlace, IsTheWideMember) {
  EXPECT_EQ(Changed(StrToUpperInPlace, std::u16string(u"č")), u"Č");
}
TEST(StrToUpperInPlaceA, Rows) { EXPECT_EQ(Changed(StrToUpperInPlaceA, std::string("ab1")), "AB1"); }
TEST(StrToUpperInPlaceW, Rows) { EXPECT_EQ(Changed(StrToUpperInPlaceW, std::u16string(u"čb1")), u"ČB1"); }

TEST(StrToLower, IsTheWideMember) { EXPECT_EQ(StrToLower(u"ÚČET"), u"účet"); }
TEST(StrToLowerA, AsciiAlone) { EXPECT_EQ(StrToLowerA("AZ[@\xC8"), "az[@\xC8"); }
TEST(StrToLowerW, Rows) {
  EXPECT_EQ(StrToLowerW(u"ŽLUŤOUČKÝ KŮŇ"), u"žluťoučký kůň");
  EXPECT_EQ(StrToLowerW(u"\u0130"), u"i");
}
TEST(StrToLowerInPlace, IsTheWideMember) {
  EXPECT_EQ(Changed(StrToLowerInPlace, std::u16string(u"Č")), u"č");
}
TEST(StrToLowerInPlaceA, Rows) { EXPECT_EQ(Changed(StrToLowerInPlaceA, std::string("AB1")), "ab1"); }
TEST(StrToLowerInPlaceW, Rows) { EXPECT_EQ(Changed(StrToLowerInPlaceW, std::u16string(u"ČB1")), u"čb1"); }

TEST(ProperCaseA, Rows) {
  EXPECT_EQ(ProperCaseA("jan NOVAK-svoboda"), "Jan Novak-Svoboda");
  EXPECT_EQ(ProperCaseA("a_b 1st"), "A_b 1st");
  EXPECT_EQ(ProperCaseA("p\xE8"
                        "ela A"),
            "P\xE8"
            "ela A");
  EXPECT_EQ(ProperCaseA(""), "");
}
TEST(ProperCaseW, Rows) {
  EXPECT_EQ(ProperCaseW(u"ŠTĚPÁN čapek, o'neil"), u"Štěpán Čapek, O'Neil");
  EXPECT_EQ(ProperCaseW(u" "), u" ");
}
TEST(ProperCaseByRefA, Rows) { EXPECT_EQ(Changed(ProperCaseByRefA, std::string("ab cD")), "Ab Cd"); }
TEST(ProperCaseByRefW, Rows) { EXPECT_EQ(Changed(ProperCaseByRefW, std::u16string(u"čb čD")), u"Čb Čd"); }

}  // namespace
}  // namespace ravo::DIUtils
