#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>

#include <gtest/gtest.h>
#include <windows.h>

namespace ravo::DIUtils {
namespace {

using test::ScratchFolder;
using test::SuiteName;

// An open file of the system, closed on destruction.
class SystemFile {
 public:
  SystemFile(const std::filesystem::path& path, DWORD access, DWORD share)
      : handle_(CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr)) {}
  SystemFile(const SystemFile&) = delete;
  SystemFile& operator=(const SystemFile&) = delete;
  ~SystemFile() { CloseHandle(handle_); }

  [[nodiscard]] HANDLE Handle() const { return handle_; }

 private:
  HANDLE handle_;
};

TEST(OpenFiles, AreSharedWithReadersAsTheyAreOpened) {
  const ScratchFolder scratch;
  scratch.Write("file", "text");
  const std::u16string name = scratch.File(u"file");
  std::string text;
  {
    const SystemFile reader(scratch.Path() / "file", GENERIC_READ, FILE_SHARE_READ);
    EXPECT_TRUE(LoadStrAFromFileW(name, text));
    EXPECT_FALSE(SaveStrAToFileW("new", name));
    EXPECT_FALSE(SetFileDateYmdW(name, 2024, 1, 2));
    EXPECT_FALSE(DeleteFileW(name));
    EXPECT_TRUE(FileExistsW(name));
    EXPECT_EQ(GetFileSizeW(name), 4);
  }
  {
    const SystemFile writer(scratch.Path() / "file", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_FALSE(LoadStrAFromFileW(name, text));
    EXPECT_FALSE(SaveStrAToFileW("new", name));
    EXPECT_FALSE(DeleteFileW(name));
  }
  EXPECT_TRUE(DeleteFileW(name));
}

TEST(ReadOnlyFiles, AreReadAndNotWritten) {
  const ScratchFolder scratch;
  scratch.Write("file", "text");
  const std::u16string name = scratch.File(u"file");
  ASSERT_TRUE(SetFileAttributesW((scratch.Path() / "file").c_str(), FILE_ATTRIBUTE_READONLY));
  std::string text;
  EXPECT_TRUE(LoadStrAFromFileW(name, text));
  EXPECT_EQ(text, "text");
  EXPECT_FALSE(DeleteFileW(name));
  EXPECT_EQ(GetFileSizeW(name), 4);
  // Wine asks the host system, which lets the superuser write.
  const bool is_denied = !SetFileDateYmdW(name, 2024, 1, 2);
  EXPECT_EQ(SaveStrAToFileW("new", name), !is_denied);
  EXPECT_EQ(GetFileSizeW(name), is_denied ? 4 : 3);
  SetFileAttributesW((scratch.Path() / "file").c_str(), FILE_ATTRIBUTE_NORMAL);
}

std::uint64_t Ticks(const FILETIME& time) {
  return static_cast<std::uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

TEST(SetFileDate, SetsAllThreeTimes) {
  const ScratchFolder scratch;
  scratch.Write("file", "x");
  ASSERT_TRUE(SetFileDateYmdW(scratch.File(u"file"), 1980, 1, 2));
  FILETIME created{};
  FILETIME read{};
  FILETIME written{};
  {
    const SystemFile file(scratch.Path() / "file", GENERIC_READ, FILE_SHARE_READ);
    ASSERT_TRUE(GetFileTime(file.Handle(), &created, &read, &written));
  }
  constexpr std::uint64_t day = 119'600'064'000'000'000 + 864'000'000'000;
  EXPECT_EQ(Ticks(written), day);
  EXPECT_EQ(Ticks(read), day);
  // Wine stores no creation time: it returns the last write, or the last change of the file's metadata.
  EXPECT_TRUE(Ticks(created) >= day);
}

// A device of the host system of Wine; Windows has no such device.
TEST(FullDisk, TheDeviceThatIsAlwaysFullReportsFalse) {
  const std::u16string name = u"Z:\\dev\\full";
  if (!SaveStrAToFileW("", name)) GTEST_SKIP() << "no device that is always full";
  EXPECT_FALSE(SaveStrAToFileW("x", name));
  EXPECT_FALSE(SaveStrWToFileW(u"x", name));
}

// Names that reach a folder by its network name; Wine maps its drives under "\\?\UNC" as well as "\\?\", and
// has no shares of this machine.
TEST(NetworkNames, OfAMissingServerAreNothing) {
  const std::u16string name = u"\\\\ravo-missing-server\\share\\file";
  std::string text;
  EXPECT_FALSE(FileExistsW(name));
  EXPECT_FALSE(DirectoryExistsW(u"\\\\ravo-missing-server\\share"));
  EXPECT_EQ(GetFileSizeW(name), -1);
  EXPECT_EQ(DiskFreeW(u"\\\\ravo-missing-server\\share\\"), -1);
  EXPECT_FALSE(SaveStrAToFileW("x", name));
  EXPECT_FALSE(LoadStrAFromFileW(name, text));
  EXPECT_FALSE(DeleteFileW(name));
  EXPECT_FALSE(ForceDirectoriesW(u"\\\\ravo-missing-server\\share\\folder"));
  EXPECT_EQ(ExpandFileNameW(u"\\\\ravo-missing-server\\share\\a\\..\\b"),
            u"\\\\ravo-missing-server\\share\\b");
}

// More than the 260 units of a plain name: the system accepts them after a prefix.
TEST(LongNames, BeyondTheLongestPlainName) {
  const ScratchFolder scratch;
  std::u16string folder = u"\\\\?\\" + SuiteName(scratch.Path());
  for (int i = 0; i < 5; ++i) folder += u"\\" + std::u16string(100, static_cast<char16_t>(u'a' + i));
  ASSERT_GT(folder.size(), 500u);
  EXPECT_TRUE(ForceDirectoriesW(folder));
  EXPECT_TRUE(DirectoryExistsW(folder));
  const std::u16string name = folder + u"\\file.txt";
  std::string text;
  EXPECT_TRUE(SaveStrAToFileW("text", name));
  EXPECT_TRUE(FileExistsW(name));
  EXPECT_EQ(GetFileSizeW(name), 4);
  EXPECT_EQ(GetFileSizeW(folder + u"\\*.txt"), 4);
  EXPECT_TRUE(LoadStrAFromFileW(name, text));
  EXPECT_EQ(text, "text");
  EXPECT_TRUE(SetFileDateYmdW(name, 2024, 1, 2));
  EXPECT_GT(DiskFreeW(folder), 0);
  EXPECT_TRUE(DeleteFileW(name));
  EXPECT_FALSE(FileExistsW(name));
}

}  // namespace
}  // namespace ravo::DIUtils
