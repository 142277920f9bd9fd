#include "support/scratch_folder.h"
#include <ravo/platform/files.h>
#include <ravo/runtime/text.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/fsuid.h>
#include <unistd.h>

namespace ravo::platform {
namespace {

namespace fs = std::filesystem;

// Gives up the superuser's rights for the lifetime of this object: the superuser may delete everything.
class WithoutPowers {
 public:
  WithoutPowers() {
    if (geteuid() == 0) setfsuid(kNobody);
  }
  WithoutPowers(const WithoutPowers&) = delete;
  WithoutPowers& operator=(const WithoutPowers&) = delete;
  ~WithoutPowers() { setfsuid(geteuid()); }

 private:
  static constexpr uid_t kNobody = 65534;
};

std::u16string Name(const fs::path& path) { return FromUtf8(path.string()); }

// Folders that can be deleted and folders that hold on to their file, in turn; a test of any account may
// delete the former.
void Fill(const test::ScratchFolder& scratch) {
  fs::permissions(scratch.Path(), fs::perms::all);
  fs::create_directory(scratch.Path() / "tree");
  for (int i = 0; i < 16; ++i) {
    const fs::path folder = fs::path("tree") / std::to_string(i);
    scratch.Write(folder / "file", "");
    fs::permissions(scratch.Path() / folder, i % 2 == 0 ? fs::perms::all : fs::perms(0555));
  }
  fs::permissions(scratch.Path() / "tree", fs::perms::all);
}

void Release(const test::ScratchFolder& scratch) {
  for (const auto& folder : fs::directory_iterator(scratch.Path() / "tree"))
    fs::permissions(folder.path(), fs::perms::all);
}

TEST(DeleteFolder, LeavesWhatTheSystemRefusesAndDeletesTheRest) {
  for (const FolderPart part : {FolderPart::Contents, FolderPart::Whole}) {
    const test::ScratchFolder scratch;
    Fill(scratch);
    {
      const WithoutPowers powers;
      EXPECT_FALSE(Files().DeleteFolder(Name(scratch.Path() / "tree"), part));
    }
    EXPECT_TRUE(fs::exists(scratch.Path() / "tree/1/file"));
    if (part == FolderPart::Contents) {
      EXPECT_FALSE(fs::exists(scratch.Path() / "tree/0"));
      EXPECT_EQ(std::distance(fs::directory_iterator(scratch.Path() / "tree"), {}), 8);
    }
    Release(scratch);
  }
}

TEST(DeleteFolder, TakesDelimitersAtTheEnd) {
  const test::ScratchFolder scratch;
  for (const std::u16string_view end : {u"", u"/", u"\\", u"//\\"}) {
    scratch.Write("tree/below/file", "");
    EXPECT_TRUE(Files().DeleteFolder(Name(scratch.Path() / "tree") + std::u16string(end), FolderPart::Whole));
    EXPECT_FALSE(fs::exists(scratch.Path() / "tree"));
  }
}

// A failing query does not mean that the file is missing.
TEST(DeleteFolder, IsFalseForWhatCannotBeLookedAt) {
  const test::ScratchFolder scratch;
  scratch.Write("closed/tree/file", "");
  fs::permissions(scratch.Path(), fs::perms(0755));
  fs::permissions(scratch.Path() / "closed", fs::perms(0700));
  if (geteuid() != 0) fs::permissions(scratch.Path() / "closed", fs::perms::none);
  {
    const WithoutPowers powers;
    EXPECT_FALSE(Files().DeleteFolder(Name(scratch.Path() / "closed/tree"), FolderPart::Whole));
  }
  fs::permissions(scratch.Path() / "closed", fs::perms(0700));
  EXPECT_TRUE(fs::exists(scratch.Path() / "closed/tree/file"));
}

}  // namespace
}  // namespace ravo::platform
