#include "support/scratch_folder.h"
#include <ravo/platform/file_stream.h>
#include <ravo/platform/files.h>
#include <ravo/platform/locale.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/resources.h>

#include <cmath>

#include <gtest/gtest.h>

namespace ravo::platform {
namespace {

using test::ScratchFolder;

constexpr DateTime kMinute = 1.0 / 1440;

TEST(FullPath, ExpandsAgainstTheCurrentFolder) {
  const std::u16string here = std::filesystem::current_path().u16string();
  EXPECT_EQ(Paths().FullPath(u"Ravo.exe"), here + Paths().PathDelimiter() + u"Ravo.exe");
  EXPECT_EQ(Paths().FullPath(u"a/../b"), here + Paths().PathDelimiter() + u"b");
  EXPECT_EQ(Paths().FullPath(u"a\\b"),
            here + Paths().PathDelimiter() + u"a" + Paths().PathDelimiter() + u"b");
  EXPECT_EQ(Paths().FullPath(here), here);
  EXPECT_EQ(Paths().FullPath(u""), u"");
}

TEST(FullPath, HasNoLongestName) {
  const std::u16string name(2000, u'x');
  const std::u16string here = std::filesystem::current_path().u16string();
  EXPECT_EQ(Paths().FullPath(name), here + Paths().PathDelimiter() + name);
}

TEST(FindFile, TellsSizeTimeAndAttributes) {
  const ScratchFolder folder;
  const std::u16string name = folder.File(u"účet.dat");
  FileStream(name, FileMode::Create).WriteChecked(std::as_bytes(std::span("12345")));
  const auto facts = Paths().FindFile(name);
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->size, 6);
  EXPECT_LT(std::abs(Locale().Now() - facts->written), kMinute);
  EXPECT_EQ(facts->attributes & kFolderAttribute, 0U);
}

TEST(FindFile, SizesHave64Bits) {
  constexpr std::int64_t size = (std::int64_t{5} << 30) + 7;
  const ScratchFolder folder;
  FileStream stream(folder.File(u"a"), FileMode::Create);
  stream.SetPosition(size - 1);
  stream.WriteChecked(std::as_bytes(std::span("", 1)));
  const auto facts = Paths().FindFile(folder.File(u"a"));
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->size, size);
}

TEST(FindFile, FindsFoldersToo) {
  const ScratchFolder folder;
  const auto facts = Paths().FindFile(folder.Path().u16string());
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->attributes & kFolderAttribute, kFolderAttribute);
}

TEST(FindFile, NoneWhereThereIsNothing) {
  const ScratchFolder folder;
  EXPECT_FALSE(Paths().FindFile(folder.File(u"none")));
  EXPECT_FALSE(Paths().FindFile(folder.File(u"none/none")));
  EXPECT_FALSE(Paths().FindFile(u""));
}

TEST(OpenVersionResource, NullWithoutOne) {
  const ScratchFolder folder;
  FileStream(folder.File(u"a.dll"), FileMode::Create)
      .WriteChecked(std::as_bytes(std::span("MZ is not all that it takes")));
  EXPECT_FALSE(Paths().OpenVersionResource(folder.File(u"a.dll")));
  EXPECT_FALSE(Paths().OpenVersionResource(folder.File(u"none.dll")));
  EXPECT_FALSE(Paths().OpenVersionResource(u""));
}

TEST(LoadResources, NullWhereThatFails) {
  const ScratchFolder folder;
  EXPECT_EQ(Resources().LoadResources(folder.File(u"none.dll")), nullptr);
  Resources().UnloadResources(nullptr);
}

}  // namespace
}  // namespace ravo::platform
