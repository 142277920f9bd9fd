#include <ravo/DIUtils.h>
#include <ravo/runtime/text.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

// The parts of a name; the 8-bit form of each function must agree.
struct NameParts {
  std::u16string_view name;
  std::u16string_view path;
  std::u16string_view file;
  std::u16string_view extension;
  std::u16string_view drive;
};

constexpr NameParts kNames[] = {
    {u"C:\\a\\b.txt", u"C:\\a\\", u"b.txt", u".txt", u"C:"},
    {u"C:b.txt", u"C:", u"b.txt", u".txt", u"C:"},
    {u"b.txt", u"", u"b.txt", u".txt", u""},
    {u"a/b.txt", u"", u"a/b.txt", u".txt", u""},
    {u"a.b/c", u"", u"a.b/c", u".b/c", u""},
    {u"", u"", u"", u"", u""},
    {u"\\", u"\\", u"", u"", u""},
    {u":", u":", u"", u"", u""},
    {u"C:", u"C:", u"", u"", u"C:"},
    {u"C:\\", u"C:\\", u"", u"", u"C:"},
    {u"a\\", u"a\\", u"", u"", u""},
    {u"a\\b:c", u"a\\b:", u"c", u"", u""},
    {u"a.b\\c", u"a.b\\", u"c", u"", u""},
    {u"C:a.b:c", u"C:a.b:", u"c", u"", u"C:"},
    {u"1:x", u"1:", u"x", u"", u"1:"},
    {u"::x", u"::", u"x", u"", u"::"},
    {u"a", u"", u"a", u"", u""},
    {u".", u"", u".", u".", u""},
    {u"..", u"", u"..", u".", u""},
    {u".profile", u"", u".profile", u".profile", u""},
    {u"a.", u"", u"a.", u".", u""},
    {u"a.tar.gz", u"", u"a.tar.gz", u".gz", u""},
    {u"C:\\x\\.", u"C:\\x\\", u".", u".", u"C:"},
    {u"\\\\server\\share\\a.b", u"\\\\server\\share\\", u"a.b", u".b", u"\\\\server\\share"},
    {u"\\\\server\\share", u"\\\\server\\", u"share", u"", u"\\\\server\\share"},
    {u"\\\\server\\share\\", u"\\\\server\\share\\", u"", u"", u"\\\\server\\share"},
    {u"\\\\server\\share.x", u"\\\\server\\", u"share.x", u".x", u"\\\\server\\share.x"},
    {u"\\\\server\\", u"\\\\server\\", u"", u"", u"\\\\server"},
    {u"\\\\server", u"\\\\", u"server", u"", u"\\\\server"},
    {u"\\\\", u"\\\\", u"", u"", u"\\\\"},
    {u"\\\\\\", u"\\\\\\", u"", u"", u"\\\\"},
    {u"\\\\\\\\", u"\\\\\\\\", u"", u"", u"\\\\"},
    {u"\\\\?\\C:\\a", u"\\\\?\\C:\\", u"a", u"", u"\\\\?\\C:"},
    {u"//server/share", u"", u"//server/share", u"", u""},
    {u"\\a\\b", u"\\a\\", u"b", u"", u""},
};

std::string Bytes(std::u16string_view text) { return ToUtf8(text); }

TEST(ExtractFilePath, IsAllUpToTheLastDelimiter) {
  for (const NameParts& row : kNames) {
    EXPECT_EQ(ExtractFilePathW(row.name), row.path) << Bytes(row.name);
    EXPECT_EQ(ExtractFilePath(row.name), row.path) << Bytes(row.name);
    EXPECT_EQ(ExtractFilePathA(Bytes(row.name)), Bytes(row.path));
  }
}

TEST(ExtractFileName, IsTheRest) {
  for (const NameParts& row : kNames) {
    EXPECT_EQ(ExtractFileNameW(row.name), row.file) << Bytes(row.name);
    EXPECT_EQ(ExtractFileName(row.name), row.file) << Bytes(row.name);
    EXPECT_EQ(ExtractFileNameA(Bytes(row.name)), Bytes(row.file));
  }
}

TEST(ExtractFileExt, BeginsAtTheLastPointOfTheName) {
  for (const NameParts& row : kNames) {
    EXPECT_EQ(ExtractFileExtW(row.name), row.extension) << Bytes(row.name);
    EXPECT_EQ(ExtractFileExt(row.name), row.extension) << Bytes(row.name);
    EXPECT_EQ(ExtractFileExtA(Bytes(row.name)), Bytes(row.extension));
  }
}

TEST(ExtractFileDrive, IsALetterOrAServerWithItsShare) {
  for (const NameParts& row : kNames) {
    EXPECT_EQ(ExtractFileDriveW(row.name), row.drive) << Bytes(row.name);
    EXPECT_EQ(ExtractFileDriveA(Bytes(row.name)), Bytes(row.drive));
  }
}

TEST(ExtractFileName, TakesBytesOfTheCodePageAsTheyAre) {
  EXPECT_EQ(ExtractFileNameA("C:\\\xFA\xE8ty\\\x8A.d\xEDl"), "\x8A.d\xEDl");
  EXPECT_EQ(ExtractFileExtA("\x8A.d\xEDl"), ".d\xEDl");
}

TEST(ChangeFileExt, ReplacesTheExtensionOrAppendsOne) {
  struct Row {
    std::u16string_view name;
    std::u16string_view extension;
    std::u16string_view result;
  };
  constexpr Row rows[] = {
      {u"C:\\a\\b.txt", u".bak", u"C:\\a\\b.bak"},
      {u"b.txt", u"", u"b"},
      {u"b.txt", u"bak", u"bbak"},
      {u"b", u".bak", u"b.bak"},
      {u"b.", u".bak", u"b.bak"},
      {u"a.b\\c", u".bak", u"a.b\\c.bak"},
      {u"a.b:c", u".bak", u"a.b:c.bak"},
      {u"a.tar.gz", u".xz", u"a.tar.xz"},
      {u"a\\", u".bak", u"a\\.bak"},
      {u".profile", u".bak", u".bak"},
      {u"", u".bak", u".bak"},
      {u"", u"", u""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ChangeFileExtW(row.name, row.extension), row.result) << Bytes(row.name);
    EXPECT_EQ(ChangeFileExt(row.name, row.extension), row.result) << Bytes(row.name);
    EXPECT_EQ(ChangeFileExtA(Bytes(row.name), Bytes(row.extension)), Bytes(row.result));
  }
}

TEST(IsPathDelimiter, CountsFromOneAndNeedsAPlaceInTheText) {
  constexpr std::u16string_view text = u"\\a/:\\";
  constexpr bool expected[] = {false, true, false, false, false, true, false, false};
  for (std::size_t index = 0; index < std::size(expected); ++index) {
    EXPECT_EQ(IsPathDelimiterW(text, index), expected[index]) << index;
    EXPECT_EQ(IsPathDelimiter(text, index), expected[index]) << index;
    EXPECT_EQ(IsPathDelimiterA("\\a/:\\", index), expected[index]) << index;
  }
  EXPECT_FALSE(IsPathDelimiterW(u"\\", std::size_t(-1)));
  EXPECT_FALSE(IsPathDelimiterW(u"", 0));
  EXPECT_FALSE(IsPathDelimiterW(u"", 1));
}

TEST(IncludeTrailingPathDelimiter, AddsOneWhereThereIsNone) {
  struct Row {
    std::u16string_view name;
    std::u16string_view result;
  };
  constexpr Row rows[] = {{u"C:", u"C:\\"}, {u"C:\\", u"C:\\"},   {u"a", u"a\\"}, {u"", u"\\"},
                          {u"a/", u"a/\\"}, {u"a\\\\", u"a\\\\"}, {u"\\", u"\\"}};
  for (const Row& row : rows) {
    std::u16string wide(row.name);
    std::u16string unmarked(row.name);
    std::string narrow = Bytes(row.name);
    IncludeTrailingPathDelimiterByRefW(wide);
    IncludeTrailingPathDelimiterByRef(unmarked);
    IncludeTrailingPathDelimiterByRefA(narrow);
    EXPECT_EQ(wide, row.result);
    EXPECT_EQ(unmarked, row.result);
    EXPECT_EQ(narrow, Bytes(row.result));
  }
}

TEST(ExcludeTrailingPathDelimiter, TakesOneAway) {
  struct Row {
    std::u16string_view name;
    std::u16string_view result;
  };
  constexpr Row rows[] = {{u"C:\\", u"C:"}, {u"a", u"a"},       {u"", u""},
                          {u"a/", u"a/"},   {u"a\\\\", u"a\\"}, {u"\\", u""}};
  for (const Row& row : rows) {
    EXPECT_EQ(ExcludeTrailingPathDelimiterW(row.name), row.result);
    EXPECT_EQ(ExcludeTrailingPathDelimiter(row.name), row.result);
    EXPECT_EQ(ExcludeTrailingPathDelimiterA(Bytes(row.name)), Bytes(row.result));
  }
}

}  // namespace
}  // namespace ravo::DIUtils
