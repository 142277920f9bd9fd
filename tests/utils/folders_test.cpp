#include "support/allocation_count.h"
#include "support/fake_machine.h"
#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>
#include <ravo/platform/code_pages.h>
#include <ravo/platform/drives.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using test::FakeMachine;
using test::ScratchFolder;
using test::SuiteName;

// A drive that this machine lacks; "B:" if it has all.
std::u16string MissingDrive() {
  const std::uint32_t drives = platform::Drives().LogicalDrives();
  char16_t letter = u'Z';
  while (letter > u'B' && (drives >> (letter - u'A') & 1) != 0) --letter;
  return {letter, u':'};
}

TEST(ForceDirectories, MakesAllThatIsMissing) {
  const ScratchFolder scratch;
  const std::u16string folder = SuiteName(scratch.Path());
  EXPECT_TRUE(ForceDirectoriesW(folder + u"\\a\\b\\č"));
  EXPECT_TRUE(DirectoryExistsW(folder + u"\\a\\b\\č"));
  EXPECT_TRUE(ForceDirectoriesW(folder + u"\\a\\b\\č"));
  EXPECT_TRUE(ForceDirectories(folder + u"\\a\\d\\"));
  EXPECT_TRUE(DirectoryExistsW(folder + u"\\a\\d"));
  const std::string narrow = platform::CodePages().ToCodePage(folder + u"\\ž\\š");
  EXPECT_TRUE(ForceDirectoriesA(narrow));
  EXPECT_TRUE(DirectoryExistsA(narrow));
  EXPECT_TRUE(DirectoryExistsW(folder + u"\\ž\\š"));
}

TEST(ForceDirectories, IsTrueForADrive) {
  EXPECT_TRUE(ForceDirectoriesW(u"C:\\"));
  EXPECT_TRUE(ForceDirectoriesW(u"C:"));
}

TEST(ForceDirectories, IsFalseOnAMissingDrive) {
  const std::u16string drive = MissingDrive();
  EXPECT_TRUE(ForceDirectoriesW(drive + u"\\"));
  EXPECT_TRUE(ForceDirectoriesW(drive));
  EXPECT_FALSE(ForceDirectoriesW(drive + u"\\a"));
  EXPECT_FALSE(ForceDirectoriesW(drive + u"\\a\\b"));
  EXPECT_FALSE(DirectoryExistsW(drive + u"\\a"));
}

// The two early results: nothing exists on this machine, and nothing can be created.
TEST(ForceDirectories, IsTrueWhereNothingWasTried) {
  const FakeMachine machine;
  const platform::ScopedMachine scope(machine);
  struct Row {
    std::u16string_view folder;
    bool result;
  };
  constexpr Row rows[] = {
      {u"", true},         {u"\\", true},     {u"a", true},
      {u"ab", true},       {u"ab\\", true},   {u"X:", true},
      {u"X:\\", true},     {u"\\\\", true},   {u"\\\\\\", true},
      {u"abc:", true},     {u"abc:\\", true}, {u"abc\\\\", true},
      {u"a\\b\\\\", true}, {u"X:\\\\", true}, {u"abc", false},
      {u"abc\\", false},   {u"X:\\a", false}, {u"X:a", false},
      {u"a\\b", false},    {u"\\\\s", false}, {u"\\\\server\\share\\a", false},
      {u"a/b", false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ForceDirectoriesW(row.folder), row.result) << std::string(row.folder.begin(), row.folder.end());
  }
}

TEST(ForceDirectories, IsFalseWhereAFileIsInTheWay) {
  const ScratchFolder scratch;
  scratch.Write("file", "");
  EXPECT_FALSE(ForceDirectoriesW(SuiteName(scratch.Path()) + u"\\file"));
  EXPECT_FALSE(ForceDirectoriesW(SuiteName(scratch.Path()) + u"\\file\\a"));
  EXPECT_FALSE(ForceDirectoriesW(SuiteName(scratch.Path()) + u"\\" + std::u16string(u"a\0b", 3)));
}

TEST(ForceDirectories, NestsAsDeepAsNamesGo) {
  // Missing levels use no stack.
  const FakeMachine machine;
  const platform::ScopedMachine scope(machine);
  std::u16string folder = u"C:";
  for (int i = 0; i < 3000; ++i) folder += u"\\a";
  EXPECT_FALSE(ForceDirectoriesW(folder));
}

// Copying each missing level would need memory quadratic in the length of the name: 1.8 GB here.
TEST(ForceDirectories, ALongNameCostsLittleMemory) {
  if (!test::kAllocationsCounted) GTEST_SKIP() << "a sanitizer allocates";
  const FakeMachine machine;
  const platform::ScopedMachine scope(machine);
  std::u16string folder = u"C:";
  for (int i = 0; i < 30'000; ++i) folder += u"\\a";
  const std::size_t before = test::AllocationCount();
  EXPECT_FALSE(ForceDirectoriesW(folder));
  EXPECT_LT(test::AllocationCount() - before, 100U);
}

void Fill(const ScratchFolder& scratch) {
  scratch.Write("tree/file", "1");
  scratch.Write("tree/a/b/file", "2");
  scratch.Write("tree/a/č/.hidden", "3");
  scratch.Write("beside", "4");
}

TEST(DeleteDirectory, DeletesTheFolderToo) {
  const ScratchFolder scratch;
  for (const std::u16string_view end : {u"", u"\\"}) {
    Fill(scratch);
    EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree") + std::u16string(end), true));
    EXPECT_FALSE(exists(scratch.Path() / "tree"));
    EXPECT_TRUE(exists(scratch.Path() / "beside"));
  }
  Fill(scratch);
  EXPECT_TRUE(DeleteDirectory(SuiteName(scratch.Path() / "tree"), true));
  Fill(scratch);
  EXPECT_TRUE(DeleteDirectoryA(platform::CodePages().ToCodePage(SuiteName(scratch.Path() / "tree")), true));
  EXPECT_FALSE(exists(scratch.Path() / "tree"));
}

TEST(DeleteDirectory, LeavesTheFolderInPlaceAndEmpty) {
  const ScratchFolder scratch;
  for (const std::u16string_view end : {u"", u"\\"}) {
    Fill(scratch);
    EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree") + std::u16string(end), false));
    EXPECT_TRUE(is_directory(scratch.Path() / "tree"));
    EXPECT_TRUE(is_empty(scratch.Path() / "tree"));
    EXPECT_TRUE(exists(scratch.Path() / "beside"));
  }
}

TEST(DeleteDirectory, AnEmptyFolderNeedsNothingDone) {
  const ScratchFolder scratch;
  EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path()), false));
  EXPECT_TRUE(is_directory(scratch.Path()));
}

TEST(DeleteDirectory, IsFalseForNothingAndForDrives) {
  const ScratchFolder scratch;
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "missing"), true));
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "missing" / "deeper"), false));
  EXPECT_FALSE(DeleteDirectoryW(u"", true));
  EXPECT_FALSE(DeleteDirectoryW(u"", false));
  EXPECT_FALSE(DeleteDirectoryW(u"\\", true));
  EXPECT_FALSE(DeleteDirectoryW(MissingDrive(), true));
  EXPECT_FALSE(DeleteDirectoryW(MissingDrive() + u"\\", true));
  scratch.Write("file", "");
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path()) + std::u16string(u"\0x", 2), true));
  EXPECT_TRUE(exists(scratch.Path() / "file"));
}

TEST(DeleteDirectory, HonoursNoWildcards) {
  const ScratchFolder scratch;
  Fill(scratch);
  for (const std::u16string_view name : {u"\\tre?", u"\\*", u"\\t*", u"\\*.*", u"\\tree\\*"}) {
    for (const bool with_folder : {true, false}) {
      EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path()) + std::u16string(name), with_folder));
    }
  }
  EXPECT_TRUE(exists(scratch.Path() / "tree/a/b/file"));
  EXPECT_TRUE(exists(scratch.Path() / "beside"));
}

TEST(DiskFree, IsWhatTheCallerMayStillUse) {
  const ScratchFolder scratch;
  const std::int64_t free = DiskFreeW(SuiteName(scratch.Path()));
  const auto expected = static_cast<std::int64_t>(std::filesystem::space(scratch.Path()).available);
  EXPECT_GT(free, 0);
  // Others write too.
  EXPECT_NEAR(static_cast<double>(free), static_cast<double>(expected), 4e9);
  EXPECT_GT(DiskFreeA(platform::CodePages().ToCodePage(SuiteName(scratch.Path()))), 0);
  EXPECT_GT(DiskFreeW(u"C:\\"), 0);
  EXPECT_EQ(DiskFreeW(SuiteName(scratch.Path() / "missing")), -1);
  EXPECT_EQ(DiskFreeA("missing"), -1);
  EXPECT_EQ(DiskFreeW(u""), -1);
  EXPECT_EQ(DiskFreeW(MissingDrive() + u"\\"), -1);
}

TEST(DiskFree, Has64Bits) {
  FakeMachine machine;
  machine.drives[u"C:"].space = platform::DiskSpace{INT64_MAX, INT64_MAX - 1};
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(DiskFreeW(u"C:"), INT64_MAX - 1);
}

TEST(DiskFree, ItsHelpersTellTheOtherNumbersOfTheDisk) {
  FakeMachine machine;
  machine.drives[u"C:"].space = platform::DiskSpace{INT64_MAX, 5, INT64_MAX - 1};
  {
    const platform::ScopedMachine scope(machine);
    EXPECT_EQ(DiskFreeA("C:"), 5);
    EXPECT_EQ(DiskSizeA("C:"), INT64_MAX);
    EXPECT_EQ(DiskTotalFreeA("C:"), INT64_MAX - 1);
    EXPECT_EQ(DiskSizeA("D:"), -1);
    EXPECT_EQ(DiskTotalFreeA("D:"), -1);
  }
  const ScratchFolder scratch;
  const std::string folder = platform::CodePages().ToCodePage(SuiteName(scratch.Path()));
  const auto space = std::filesystem::space(scratch.Path());
  EXPECT_EQ(DiskSizeA(folder), static_cast<std::int64_t>(space.capacity));
  // Others write too.
  EXPECT_NEAR(static_cast<double>(DiskTotalFreeA(folder)), static_cast<double>(space.free), 4e9);
  EXPECT_EQ(DiskSizeA("missing"), -1);
  EXPECT_EQ(DiskTotalFreeA(""), -1);
}

}  // namespace
}  // namespace ravo::DIUtils
