#include "file_hash.h"

#include <vector>

#include <gtest/gtest.h>

namespace tool {
namespace {

TEST(SumLineText, WritesWhatIsRead) {
  struct Row {
    SumLine line;
    std::string text;
  };
  const std::vector<Row> rows = {{{"", 0xCBF43926, "a"}, "CBF43926  a\n"},
                                 {{"", 5, "a b  c"}, "00000005  a b  c\n"},
                                 {{"CRC32", 0, "a"}, "CRC32 (a) = 00000000\n"},
                                 {{"HASH", 1, "a (b) = c"}, "HASH (a (b) = c) = 00000001\n"},
                                 {{"", 1, "a\nb\\"}, "\\00000001  a\\nb\\\\\n"},
                                 {{"HASH", 1, "a\rb"}, "\\HASH (a\\rb) = 00000001\n"},
                                 {{"", 1, "C:\\a"}, "00000001  C:\\a\n"}};
  for (const Row& row : rows) {
    EXPECT_EQ(SumLineText(row.line), row.text);
    const auto read = ParseSumLine(row.text.substr(0, row.text.size() - 1));
    ASSERT_TRUE(read) << row.text;
    EXPECT_EQ(read->label, row.line.label);
    EXPECT_EQ(read->sum, row.line.sum);
    EXPECT_EQ(read->name, row.line.name);
  }
}

TEST(ParseSumLine, TakesStarsAndSmallDigits) {
  const auto line = ParseSumLine("cbf43926 *name");
  ASSERT_TRUE(line);
  EXPECT_EQ(line->sum, 0xCBF43926u);
  EXPECT_EQ(line->name, "name");
}

TEST(ParseSumLine, RefusesOtherText) {
  for (const char* text :
       {"", "CBF43926", "CBF43926  ", "CBF4392  a", "CBF43926 a", "CBF43926a", "CBF4392G  a", "0xCBF439  a",
        "-BF43926  a", "CRC32 () = CBF43926", "CRC32 (a) = CBF4392", "CRC32 (a) = CBF439267", "CRC32 (a)",
        "\\CBF43926  a\\", "\\CBF43926  a\\x", "\\"})
    EXPECT_FALSE(ParseSumLine(text)) << text;
}

TEST(FileSumNamed, KnowsEveryKind) {
  for (const FileSumKind& kind : kFileSums) {
    EXPECT_EQ(FileSumNamed(kind.name), &kind);
    EXPECT_EQ(FileSumLabelled(kind.label), &kind);
  }
  EXPECT_EQ(FileSumNamed("md5"), nullptr);
  EXPECT_EQ(FileSumLabelled("crc32"), nullptr);
}

}  // namespace
}  // namespace tool
