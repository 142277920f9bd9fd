#include "isdoc_extract.h"

#include "compression.h"
#include "isdoc_extract_pdf_value.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace tool {
namespace {

// A value as one line: kinds and texts, references as their numbers.
std::string Shown(const PdfValue& value) {
  std::string text;
  switch (value.kind) {
    case PdfValue::Kind::Null:
      return "null";
    case PdfValue::Kind::Number:
      return std::to_string(value.number);
    case PdfValue::Kind::Name:
      return "/" + value.text;
    case PdfValue::Kind::String:
      return "(" + value.text + ")";
    case PdfValue::Kind::Reference:
      return "->" + std::to_string(value.number);
    case PdfValue::Kind::Array:
      for (const PdfValue& item : value.items) text += " " + Shown(item);
      return "[" + text + " ]";
    case PdfValue::Kind::Dictionary:
      for (std::size_t i = 0; i < value.items.size(); ++i)
        text += " " + value.keys[i] + "=" + Shown(value.items[i]);
      return "<" + text + " >";
  }
  return text;
}

std::string ReadPdf(std::string_view text) {
  PdfReader reader(text, 0);
  const auto value = reader.Next();
  return value ? Shown(*value) : "nothing";
}

struct PdfRow {
  std::string_view text;
  std::string_view shown;
};

TEST(PdfReader, ReadsValues) {
  const PdfRow rows[] = {
      {"12", "12"},
      {"  % a comment\n 7 ", "7"},
      {"-1.5", "null"},
      {"true", "null"},
      {"/Na#6De", "/Name"},
      {"/A#zz", "/A#zz"},
      {"/", "/"},
      {"(a\\(b\\)\\n\\101\\\\)", "(a(b)\nA\\)"},
      {"(a(b)c)", "(a(b)c)"},
      {"(a\\\r\nb)", "(ab)"},
      {"<41 4>", "(A@)"},
      {"[1 2 3]", "[ 1 2 3 ]"},
      {"[1 2 R 3]", "[ ->1 3 ]"},
      {"[1 2 Rx]", "nothing"},
      {"<</A/B/C<</D[4 0 R]>>>>", "< A=/B C=< D=[ ->4 ] > >"},
      {"<</A 1/A 2>>", "< A=1 A=2 >"},
      {"<</A>>", "nothing"},
      {"<<1 2>>", "nothing"},
      {"(open", "nothing"},
      {"<41", "nothing"},
      {"<4x>", "nothing"},
      {"[1", "nothing"},
      {"endobj", "nothing"},
      {"", "nothing"},
      {"1234567890123", "null"},
  };
  for (const PdfRow& row : rows) EXPECT_EQ(ReadPdf(row.text), row.shown) << row.text;
}

TEST(PdfReader, RefusesWhatIsNestedTooDeep) {
  EXPECT_NE(ReadPdf(std::string(60, '[') + std::string(60, ']')), "nothing");
  EXPECT_EQ(ReadPdf(std::string(80, '[') + std::string(80, ']')), "nothing");
}

TEST(PdfReader, TextsAreInUtf16OrUtf8ByTheirMarks) {
  EXPECT_EQ(PdfText(std::string_view("\xFE\xFF\x01\x0D", 4)), "č");
  EXPECT_EQ(PdfText(std::string_view("\xFE\xFF\x01", 3)), "");
  EXPECT_EQ(PdfText("\xEF\xBB\xBF\xC4\x8D"), "č");
  EXPECT_EQ(PdfText("\xE9"), "é");
}

TEST(Inflate, StopsAtTheLimitAndAtDamage) {
  if (!HasCompression()) GTEST_SKIP() << "built without zlib";
  const std::string text(100'000, 'a');
  const std::string data = Deflate(text);
  EXPECT_LT(data.size(), 1000U);
  EXPECT_EQ(Inflate(data, DeflateFrame::Zlib, text.size()).bytes, text);
  EXPECT_EQ(Inflate(data, DeflateFrame::Zlib, text.size() - 1).fault, InflateFault::TooLarge);
  EXPECT_EQ(Inflate(data.substr(0, data.size() - 1), DeflateFrame::Zlib, text.size()).fault,
            InflateFault::Damaged);
  EXPECT_EQ(Inflate(data, DeflateFrame::None, text.size()).fault, InflateFault::Damaged);
  EXPECT_EQ(Inflate("", DeflateFrame::None, 1).fault, InflateFault::Damaged);
  // Without the header of two bytes and the sum of four.
  EXPECT_EQ(Inflate(std::string_view(data).substr(2), DeflateFrame::None, text.size()).bytes, text);
}

TEST(UnpackBudget, IsSpent) {
  UnpackBudget budget(10);
  EXPECT_EQ(budget.Copy("123456"), "123456");
  EXPECT_THROW(static_cast<void>(budget.Copy("12345")), ContainerError);
  EXPECT_EQ(budget.Copy("1234"), "1234");
}

TEST(SafeNames, StayDifferentHoweverManyAreEqual) {
  const std::vector<ContainerPart> parts(3, {std::string(300, 'x') + ".pdf", ""});
  const auto names = SafeNames(parts);
  ASSERT_EQ(names.size(), 3U);
  EXPECT_EQ(names[0], std::string(116, 'x') + ".pdf");
  EXPECT_EQ(names[1], std::string(114, 'x') + "-2.pdf");
  EXPECT_EQ(names[2], std::string(114, 'x') + "-3.pdf");
}

// A cut leaves no blank or dot at the end, which Windows would drop.
TEST(SafeNames, AreCutBetweenCharacters) {
  const auto name_of = [](const std::string& name) { return SafeNames({{name, ""}})[0]; };
  EXPECT_EQ(name_of(std::string(118, 'x') + " .y" + std::string(50, 'z')), std::string(118, 'x'));
  EXPECT_EQ(name_of(std::string(119, 'x') + "\U0001F600z"), std::string(119, 'x'));
}

}  // namespace
}  // namespace tool
