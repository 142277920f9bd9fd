#include "support/scratch_folder.h"
#include <ravo/DIUtils.h>

#include <cerrno>
#include <cstring>

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

namespace ravo::DIUtils {
namespace {

// A small file system of its own in a scratch folder.
class SmallDisk {
 public:
  SmallDisk() : is_mounted_(mount("tmpfs", Folder(), "tmpfs", MS_NOSUID | MS_NODEV, "size=64k") == 0) {
    if (!is_mounted_) why_ = std::strerror(errno);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  ~SmallDisk() { Vanish(); }

  [[nodiscard]] bool IsMounted() const { return is_mounted_; }
  [[nodiscard]] const std::string& Why() const { return why_; }
  [[nodiscard]] std::u16string File(std::u16string_view name) const { return scratch_.File(name); }
  [[nodiscard]] std::u16string Path() const { return scratch_.Path().u16string(); }
  void Vanish() {
    if (is_mounted_) umount2(Folder(), MNT_DETACH);
    is_mounted_ = false;
  }

 private:
  [[nodiscard]] const char* Folder() const { return scratch_.Path().c_str(); }

  test::ScratchFolder scratch_;
  bool is_mounted_;
  std::string why_;
};

TEST(FullDisk, SavingReportsFalse) {
  SmallDisk disk;
  if (!disk.IsMounted()) GTEST_SKIP() << "this user may not mount a small disk: " << disk.Why();
  EXPECT_TRUE(SaveStrAToFileW(std::string(4096, 'x'), disk.File(u"fits")));
  const std::string large(1 << 20, 'x');
  EXPECT_FALSE(SaveStrAToFileW(large, disk.File(u"large")));
  EXPECT_FALSE(SaveBufToFileW(large.data(), large.size(), disk.File(u"large")));
  EXPECT_FALSE(SaveStrWToFileW(std::u16string(1 << 20, u'x'), disk.File(u"large")));
  // The part that fitted is there, and its size says so.
  EXPECT_LT(GetFileSizeW(disk.File(u"large")), 1 << 20);
  EXPECT_EQ(DiskFreeW(disk.Path()), 0);
  EXPECT_EQ(GetFileSizeW(disk.File(u"fits")), 4096);
  EXPECT_TRUE(DeleteFileW(disk.File(u"large")));
  EXPECT_GT(DiskFreeW(disk.Path()), 0);
}

TEST(FullDisk, ADiskThatVanishesTakesItsFilesAlong) {
  SmallDisk disk;
  if (!disk.IsMounted()) GTEST_SKIP() << "this user may not mount a small disk: " << disk.Why();
  ASSERT_TRUE(ForceDirectoriesW(disk.File(u"folder")));
  ASSERT_TRUE(SaveStrAToFileW("x", disk.File(u"folder/file")));
  disk.Vanish();
  std::string text;
  EXPECT_FALSE(FileExistsW(disk.File(u"folder/file")));
  EXPECT_FALSE(LoadStrAFromFileW(disk.File(u"folder/file"), text));
  EXPECT_FALSE(SaveStrAToFileW("x", disk.File(u"folder/file")));
}

TEST(FullDisk, TheDeviceThatIsAlwaysFullReportsFalse) {
  if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full to write to";
  EXPECT_FALSE(SaveStrAToFileW("x", u"/dev/full"));
  EXPECT_FALSE(SaveStrWToFileW(u"x", u"\\dev\\full"));
  EXPECT_TRUE(SaveStrAToFileW("", u"/dev/full"));
}

}  // namespace
}  // namespace ravo::DIUtils
