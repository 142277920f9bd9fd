#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>
#include <ravo/platform/files.h>

#include <cstdlib>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravo::DIUtils {
namespace {

using test::ScratchFolder;
using test::SuiteName;

// A tree with links to targets outside it: a folder, an empty folder, a file, nothing, and itself.
void FillWithLinks(const ScratchFolder& scratch) {
  const auto& path = scratch.Path();
  scratch.Write("outside/folder/kept", "1");
  create_directories(path / "outside/empty");
  create_directories(path / "tree/below");
  create_directory_symlink(path / "outside/folder", path / "tree/folder");
  create_directory_symlink("../../outside/folder", path / "tree/below/folder");
  create_directory_symlink(path / "outside/empty", path / "tree/empty");
  create_symlink(path / "outside/folder/kept", path / "tree/file");
  create_symlink("nowhere", path / "tree/nothing");
  create_directory_symlink(".", path / "tree/below/itself");
}

bool OutsideIsWhole(const ScratchFolder& scratch) {
  return exists(scratch.Path() / "outside/folder/kept") && is_directory(scratch.Path() / "outside/empty");
}

TEST(DeleteDirectory, FollowsNoLinkOutOfTheFolder) {
  const ScratchFolder scratch;
  FillWithLinks(scratch);
  EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), false));
  EXPECT_TRUE(is_empty(scratch.Path() / "tree"));
  EXPECT_TRUE(OutsideIsWhole(scratch));
  remove_all(scratch.Path() / "tree");
  FillWithLinks(scratch);
  EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true));
  EXPECT_FALSE(exists(scratch.Path() / "tree"));
  EXPECT_TRUE(OutsideIsWhole(scratch));
}

TEST(DeleteDirectory, OfALinkIsTheLinkAlone) {
  const ScratchFolder scratch;
  for (const std::u16string_view end : {u"", u"\\"}) {
    FillWithLinks(scratch);
    EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree/folder") + std::u16string(end), true));
    EXPECT_FALSE(is_symlink(symlink_status(scratch.Path() / "tree/folder")));
    EXPECT_TRUE(OutsideIsWhole(scratch));
    remove_all(scratch.Path() / "tree");
  }
}

// A link as the name of a folder denotes the folder.
TEST(DeleteDirectory, ContentsOfALinkAreThoseOfItsFolder) {
  const ScratchFolder scratch;
  FillWithLinks(scratch);
  EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree/folder"), false));
  EXPECT_TRUE(is_symlink(symlink_status(scratch.Path() / "tree/folder")));
  EXPECT_TRUE(is_empty(scratch.Path() / "outside/folder"));
  EXPECT_TRUE(is_directory(scratch.Path() / "outside/empty"));
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree/nothing"), false));
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "beside"), false));
}

TEST(DeleteDirectory, GoesAsDeepAsNamesReach) {
  const ScratchFolder scratch;
  std::u16string folder = SuiteName(scratch.Path() / "tree");
  for (int i = 0; i < 200; ++i) folder += u"\\ab";
  ASSERT_TRUE(ForceDirectoriesW(folder));
  ASSERT_TRUE(SaveStrAToFileW("x", folder + u"\\file"));
  EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true));
  EXPECT_TRUE(is_empty(scratch.Path()));
}

// Drops the superuser's rights for the lifetime of this object.
class OrdinaryUser {
 public:
  OrdinaryUser() : before_(geteuid()), is_ordinary_(before_ != 0 || seteuid(kNobody) == 0) {}
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() { is_ordinary_ = seteuid(before_) == 0; }

  [[nodiscard]] bool IsOrdinary() const { return is_ordinary_; }

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t before_;
  bool is_ordinary_;
};

// Everything deletable is deleted, and the result says that something remains.
TEST(DeleteDirectory, IsFalseForWhatTheUserMayNotDelete) {
  const OrdinaryUser user;
  if (!user.IsOrdinary()) GTEST_SKIP() << "this user may delete all";
  const ScratchFolder scratch;
  scratch.Write("tree/locked/kept", "1");
  scratch.Write("tree/a", "2");
  scratch.Write("tree/z", "3");
  permissions(scratch.Path() / "tree/locked", std::filesystem::perms::owner_read);
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true));
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), false));
  EXPECT_FALSE(exists(scratch.Path() / "tree/a"));
  EXPECT_FALSE(exists(scratch.Path() / "tree/z"));
  permissions(scratch.Path() / "tree/locked", std::filesystem::perms::owner_all);
  EXPECT_TRUE(exists(scratch.Path() / "tree/locked/kept"));
}

TEST(DeleteDirectory, TakesPipesAndSocketsAwayUnopened) {
  const ScratchFolder scratch;
  create_directory(scratch.Path() / "tree");
  ASSERT_EQ(mkfifo((scratch.Path() / "tree/pipe").c_str(), 0600), 0);
  EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true));
  EXPECT_TRUE(is_empty(scratch.Path()));
}

// In a separate process, which loses its current folder.
int AskedInALostFolder() {
  {
    const ScratchFolder scratch;
    if (!SetCurrentFolderW(SuiteName(scratch.Path()))) return 1;
  }
  std::string text = "before";
  const bool asks_nothing =
      GetCurrentFolderW().empty() && GetCurrentFolderA().empty() && GetCurrentFolder().empty();
  const bool finds_nothing = !FileExistsW(u"file") && GetFileSizeW(u"*") == -1 &&
                             !LoadStrAFromFileW(u"file", text) && !SaveStrAToFileW("x", u"file") &&
                             !ForceDirectoriesW(u"folder") && !DeleteFileW(u"file") &&
                             DiskFreeW(u"folder") == -1;
  return asks_nothing && finds_nothing && ExpandFileNameW(u"file").empty() && text == "before" ? 0 : 2;
}

TEST(CurrentFolderDeathTest, ThatVanishedIsEmptyAndNothingIsInIt) {
  EXPECT_EXIT(std::exit(AskedInALostFolder()), ::testing::ExitedWithCode(0), "");
}

TEST(DeleteDirectory, RefusesTheRootUnderAnyName) {
  for (const std::u16string_view root : {u"/", u"\\.", u"C:\\.", u"//", u"/usr/.."}) {
    EXPECT_FALSE(platform::Files().DeleteFolder(root, platform::FolderPart::Whole));
  }
}

TEST(DeleteFile, OfALinkIsTheLinkAlone) {
  const ScratchFolder scratch;
  FillWithLinks(scratch);
  EXPECT_TRUE(DeleteFileW(SuiteName(scratch.Path() / "tree/file")));
  EXPECT_TRUE(DeleteFileW(SuiteName(scratch.Path() / "tree/nothing")));
  EXPECT_TRUE(OutsideIsWhole(scratch));
}

TEST(FileExists, FollowsLinks) {
  const ScratchFolder scratch;
  FillWithLinks(scratch);
  EXPECT_TRUE(FileExistsW(SuiteName(scratch.Path() / "tree/file")));
  EXPECT_TRUE(DirectoryExistsW(SuiteName(scratch.Path() / "tree/folder")));
  EXPECT_FALSE(FileExistsW(SuiteName(scratch.Path() / "tree/nothing")));
}

TEST(SaveBuf, HasTheRightsThatTheUserGives) {
  const ScratchFolder scratch;
  const mode_t before = umask(027);
  EXPECT_TRUE(SaveStrAToFileW("x", scratch.File(u"file")));
  EXPECT_TRUE(ForceDirectoriesW(SuiteName(scratch.Path() / "folder")));
  umask(before);
  struct stat facts {};
  ASSERT_EQ(stat((scratch.Path() / "file").c_str(), &facts), 0);
  EXPECT_EQ(facts.st_mode & 0777u, 0640u);
  ASSERT_EQ(stat((scratch.Path() / "folder").c_str(), &facts), 0);
  EXPECT_EQ(facts.st_mode & 0777u, 0750u);
}

TEST(LoadStr, ReadsFilesThatTellNoSize) {
  std::string text;
  ASSERT_TRUE(LoadStrAFromFileW(u"/proc/self/status", text));
  EXPECT_TRUE(text.starts_with("Name:"));
  EXPECT_TRUE(text.ends_with('\n'));
}

TEST(SysErrorMessage, HasTheWordsOfTheSystem) {
  // The message of this code in the language of this process.
  EXPECT_EQ(SysErrorMessageW(2), u"No such file or directory");
  EXPECT_EQ(SysErrorMessageW(0), u"");
}

}  // namespace
}  // namespace ravo::DIUtils
