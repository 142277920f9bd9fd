#include "support/fake_machine.h"
#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>
#include <ravo/platform/code_pages.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using test::FakeMachine;
using test::ScratchFolder;
using test::SuiteName;

// Restores the current folder on destruction.
class ScopedCurrentFolder {
 public:
  ScopedCurrentFolder() : before_(std::filesystem::current_path()) {}
  ScopedCurrentFolder(const ScopedCurrentFolder&) = delete;
  ScopedCurrentFolder& operator=(const ScopedCurrentFolder&) = delete;
  ~ScopedCurrentFolder() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
  }

 private:
  std::filesystem::path before_;
};

TEST(CurrentFolder, IsReadAndSet) {
  const ScratchFolder scratch;
  const ScopedCurrentFolder scope;
  EXPECT_EQ(GetCurrentFolderW(), SuiteName(std::filesystem::current_path()));
  create_directory(scratch.Path() / u"účty");
  const std::u16string folder = SuiteName(scratch.Path() / u"účty");
  EXPECT_TRUE(SetCurrentFolderW(folder));
  EXPECT_EQ(GetCurrentFolderW(), folder);
  EXPECT_EQ(GetCurrentFolder(), folder);
  EXPECT_EQ(GetCurrentFolderA(), platform::CodePages().ToCodePage(folder));
  EXPECT_TRUE(SetCurrentFolder(SuiteName(scratch.Path())));
  EXPECT_EQ(GetCurrentFolderW(), SuiteName(scratch.Path()));
  EXPECT_TRUE(SetCurrentFolderA(platform::CodePages().ToCodePage(folder)));
  EXPECT_EQ(GetCurrentFolderW(), folder);
  EXPECT_FALSE(SetCurrentFolderW(SuiteName(scratch.Path() / "missing")));
  EXPECT_FALSE(SetCurrentFolderW(u""));
  EXPECT_FALSE(SetCurrentFolderW(SuiteName(scratch.Path()) + std::u16string(u"\0x", 2)));
  EXPECT_EQ(GetCurrentFolderW(), folder);
}

TEST(ExpandFileName, GoesOnFromTheCurrentFolder) {
  const std::u16string here = GetCurrentFolderW();
  EXPECT_EQ(ExpandFileNameW(u"a.txt"), here + u"\\a.txt");
  EXPECT_EQ(ExpandFileNameW(u"a\\.\\b\\..\\c"), here + u"\\a\\c");
  EXPECT_EQ(ExpandFileNameW(u"a/b"), here + u"\\a\\b");
  EXPECT_EQ(ExpandFileNameW(u"."), here);
  EXPECT_EQ(ExpandFileNameW(here), here);
  EXPECT_EQ(ExpandFileNameW(std::u16string_view(u"a\0b", 3)), here + u"\\a");
  EXPECT_EQ(ExpandFileNameA("a.txt"), platform::CodePages().ToCodePage(here + u"\\a.txt"));
  EXPECT_EQ(ExpandFileNameW(u""), u"");
  const std::u16string name(2000, u'x');
  EXPECT_EQ(ExpandFileNameW(name), here + u"\\" + name);
}

TEST(ExpandFileName, CanBeTakenApart) {
  EXPECT_EQ(ExtractFilePathW(ExpandFileNameW(u"a.txt")), GetCurrentFolderW() + u"\\");
}

TEST(GetSpecialFolder, EndsInADelimiter) {
  FakeMachine machine;
  machine.shell_folders = {{0, u"C:\\Plocha"}, {5, u"C:\\Dokumenty"}, {16, u"D:\\"}, {40, u"C:\\Jan Účetní"}};
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(GetSpecialFolderW(40), u"C:\\Jan Účetní\\");
  EXPECT_EQ(GetSpecialFolder(40), u"C:\\Jan Účetní\\");
  EXPECT_EQ(GetSpecialFolderA(40),
            "C:\\Jan \xDA\xE8"
            "etn\xED\\");
  EXPECT_EQ(GetDesktopFolderW(), u"C:\\Plocha\\");
  EXPECT_EQ(GetDesktopFolder(), u"C:\\Plocha\\");
  EXPECT_EQ(GetDesktopFolderA(), "C:\\Plocha\\");
  EXPECT_EQ(GetPersonalFolderW(), u"C:\\Dokumenty\\");
  EXPECT_EQ(GetPersonalFolderA(), "C:\\Dokumenty\\");
  EXPECT_EQ(GetDesktopDirectoryFolderW(), u"D:\\");
  EXPECT_EQ(GetDesktopDirectoryFolder(), u"D:\\");
  EXPECT_EQ(GetDesktopDirectoryFolderA(), "D:\\");
}

TEST(GetSpecialFolder, IsEmptyWhereThereIsNone) {
  EXPECT_EQ(GetSpecialFolderW(-1), u"");
  EXPECT_EQ(GetSpecialFolderW(127), u"");
  EXPECT_EQ(GetSpecialFolderA(INT32_MAX), "");
  const FakeMachine machine;
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(GetPersonalFolderW(), u"");
  EXPECT_EQ(GetDesktopFolderW(), u"");
}

TEST(GetTempFolder, IsAFolderWithADelimiterAtItsEnd) {
  const std::u16string folder = GetTempFolderW();
  EXPECT_TRUE(folder.ends_with(u'\\'));
  EXPECT_TRUE(DirectoryExistsW(folder));
  EXPECT_EQ(GetTempFolder(), folder);
  EXPECT_EQ(GetTempFolderA(), platform::CodePages().ToCodePage(folder));
}

}  // namespace
}  // namespace ravo::DIUtils
