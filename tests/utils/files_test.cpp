#include "support/fake_machine.h"
#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>
#include <ravo/platform/code_pages.h>
#include <ravo/platform/file_stream.h>
#include <ravo/platform/files.h>

#include <chrono>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using test::FakeMachine;
using test::ScratchFolder;
using test::SuiteName;

const std::u16string_view kCutShort(u"\0x", 2);

TEST(FileExists, IsForFilesAndDirectoryExistsForFolders) {
  const ScratchFolder scratch;
  scratch.Write("file", "x");
  const std::u16string folder = SuiteName(scratch.Path());
  EXPECT_TRUE(FileExistsW(folder + u"\\file"));
  EXPECT_TRUE(FileExists(folder + u"\\file"));
  EXPECT_FALSE(DirectoryExistsW(folder + u"\\file"));
  EXPECT_FALSE(FileExistsW(folder));
  EXPECT_TRUE(DirectoryExistsW(folder));
  EXPECT_TRUE(DirectoryExistsW(folder + u"\\"));
  EXPECT_FALSE(FileExistsW(folder + u"\\missing"));
  EXPECT_FALSE(DirectoryExistsW(folder + u"\\missing"));
  EXPECT_FALSE(FileExistsW(u""));
  EXPECT_FALSE(DirectoryExistsW(u""));
  EXPECT_FALSE(FileExistsA(""));
  EXPECT_FALSE(DirectoryExistsA(""));
}

TEST(FileExists, HonoursNoWildcards) {
  const ScratchFolder scratch;
  scratch.Write("file", "x");
  EXPECT_FALSE(FileExistsW(SuiteName(scratch.Path()) + u"\\fil?"));
  EXPECT_FALSE(FileExistsW(SuiteName(scratch.Path()) + u"\\*"));
}

TEST(FileExists, ANameWithAZeroInItNamesNothing) {
  const ScratchFolder scratch;
  scratch.Write("file", "x");
  const std::u16string name = SuiteName(scratch.Path()) + u"\\file" + std::u16string(kCutShort);
  EXPECT_FALSE(FileExistsW(name));
  EXPECT_EQ(GetFileSizeW(name), -1);
  EXPECT_FALSE(SetFileDateYmdW(name, 2024, 1, 2));
  EXPECT_FALSE(DeleteFileW(name));
  EXPECT_TRUE(FileExistsW(SuiteName(scratch.Path()) + u"\\file"));
}

TEST(FileExists, NarrowNamesAreOfTheCodePage) {
  const ScratchFolder scratch;
  scratch.Write(u"účet.txt", "12");
  const std::string name = platform::CodePages().ToCodePage(SuiteName(scratch.Path()) + u"\\účet.txt");
  EXPECT_TRUE(FileExistsA(name));
  EXPECT_EQ(GetFileSizeA(name), 2);
  EXPECT_TRUE(DirectoryExistsA(ExtractFilePathA(name)));
  EXPECT_TRUE(SetFileDateYmdA(name, 2024, 2, 29));
  EXPECT_TRUE(SetFileDateA(name, YmdToJulianDate(2024, 2, 29)));
  EXPECT_TRUE(DeleteFileA(name));
  EXPECT_FALSE(FileExistsA(name));
}

TEST(GetFileSize, IsMinusOneForNothingAndZeroForNoBytes) {
  const ScratchFolder scratch;
  scratch.Write("empty", "");
  scratch.Write("five", "12345");
  const std::u16string folder = SuiteName(scratch.Path());
  EXPECT_EQ(GetFileSizeW(folder + u"\\missing"), -1);
  EXPECT_EQ(GetFileSizeW(folder + u"\\empty"), 0);
  EXPECT_EQ(GetFileSizeW(folder + u"\\five"), 5);
  EXPECT_EQ(GetFileSize(folder + u"\\five"), 5);
  EXPECT_EQ(GetFileSizeW(folder), 0);
  EXPECT_EQ(GetFileSizeW(folder + u"\\"), -1);
  EXPECT_EQ(GetFileSizeW(u""), -1);
  EXPECT_EQ(GetFileSizeW(folder + u"\\missing\\missing"), -1);
}

TEST(GetFileSize, HonoursWildcardsInTheName) {
  const ScratchFolder scratch;
  scratch.Write("a.dat", "1");
  scratch.Write("b.dat", "22");
  scratch.Write("c.txt", "333");
  const std::u16string folder = SuiteName(scratch.Path());
  EXPECT_EQ(GetFileSizeW(folder + u"\\*.dat"), 1);
  EXPECT_EQ(GetFileSizeW(folder + u"\\b.*"), 2);
  EXPECT_EQ(GetFileSizeW(folder + u"\\?.txt"), 3);
  EXPECT_EQ(GetFileSizeW(folder + u"\\c*.t?t"), 3);
  EXPECT_EQ(GetFileSizeW(folder + u"\\*.none"), -1);
  EXPECT_EQ(GetFileSizeW(folder + u"\\??.dat"), -1);
  EXPECT_EQ(GetFileSizeW(folder + u"*\\a.dat"), -1);
  EXPECT_EQ(GetFileSizeW(folder + u"\\missing\\*"), -1);
  // The folder itself comes first.
  EXPECT_EQ(GetFileSizeW(folder + u"\\*"), 0);
  EXPECT_EQ(GetFileSizeW(folder + u"\\*.*"), 0);
}

TEST(GetFileSize, Has64Bits) {
  constexpr std::int64_t size = (std::int64_t{5} << 30) + 7;
  const ScratchFolder scratch;
  FileStream stream(scratch.File(u"large"), FileMode::Create);
  stream.SetPosition(size - 1);
  stream.WriteChecked(std::as_bytes(std::span("", 1)));
  EXPECT_EQ(GetFileSizeW(scratch.File(u"large")), size);
}

// Midnight UTC of a day on the file system's clock.
std::filesystem::file_time_type Midnight(int year, unsigned month, unsigned day) {
  using namespace std::chrono;
  const sys_days date = std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
  return file_clock::from_sys(sys_seconds(date));
}

TEST(SetFileDate, DatesFilesAtMidnightUtc) {
  const ScratchFolder scratch;
  scratch.Write("file", "x");
  const auto path = scratch.Path() / "file";
  const std::u16string name = SuiteName(path);
  EXPECT_TRUE(SetFileDateYmdW(name, 2024, 2, 29));
  EXPECT_EQ(last_write_time(path), Midnight(2024, 2, 29));
  EXPECT_TRUE(SetFileDateYmd(name, 1999, 12, 31));
  EXPECT_EQ(last_write_time(path), Midnight(1999, 12, 31));
  EXPECT_TRUE(SetFileDateW(name, 2451545));
  EXPECT_EQ(last_write_time(path), Midnight(2000, 1, 1));
  EXPECT_TRUE(SetFileDate(name, 2451544));
  EXPECT_EQ(last_write_time(path), Midnight(1999, 12, 31));
}

TEST(SetFileDate, DatesFoldersToo) {
  const ScratchFolder scratch;
  EXPECT_TRUE(SetFileDateYmdW(SuiteName(scratch.Path()), 2001, 2, 3));
  EXPECT_EQ(last_write_time(scratch.Path()), Midnight(2001, 2, 3));
}

TEST(SetFileDate, IsFalseForDaysThatTheCalendarLacks) {
  const ScratchFolder scratch;
  scratch.Write("file", "x");
  const std::u16string name = scratch.File(u"file");
  const auto before = last_write_time(scratch.Path() / "file");
  struct Row {
    std::int32_t year;
    std::uint16_t month;
    std::uint16_t day;
  };
  constexpr Row rows[] = {{2023, 2, 29},        {2024, 13, 1},  {2024, 0, 1},  {2024, 1, 0},
                          {2024, 4, 31},        {1600, 12, 31}, {0, 1, 1},     {-1, 1, 1},
                          {65536 + 2024, 1, 1}, {30828, 1, 1},  {65535, 1, 1}, {INT32_MIN, 1, 1},
                          {2024, 65535, 65535}};
  for (const Row& row : rows) {
    EXPECT_FALSE(SetFileDateYmdW(name, row.year, row.month, row.day)) << row.year << "-" << row.month;
  }
  for (const TJulianDate date : {INT32_MIN, -1, 0, 1721059, 2305813, INT32_MAX}) {
    EXPECT_FALSE(SetFileDateW(name, date)) << date;
  }
  EXPECT_EQ(last_write_time(scratch.Path() / "file"), before);
}

TEST(SetFileDate, IsFalseForWhatCannotBeOpened) {
  const ScratchFolder scratch;
  EXPECT_FALSE(SetFileDateYmdW(scratch.File(u"missing"), 2024, 1, 2));
  EXPECT_FALSE(SetFileDateW(scratch.File(u"missing"), 2451545));
  EXPECT_FALSE(SetFileDateYmdW(u"", 2024, 1, 2));
  EXPECT_FALSE(SetFileDate(kNoFile, 2024, 1, 2));
}

TEST(SetFileDate, OfAnOpenFileLeavesItOpen) {
  const ScratchFolder scratch;
  scratch.Write("file", "x");
  const platform::FileCalls& files = platform::Files();
  const FileHandle file = files.Open(scratch.File(u"file"), platform::FilePurpose::Date);
  ASSERT_NE(file, kNoFile);
  EXPECT_TRUE(SetFileDate(file, 2010, 11, 12));
  EXPECT_TRUE(SetFileDate(file, 2011, 12, 13));
  EXPECT_TRUE(files.Close(file));
  EXPECT_EQ(last_write_time(scratch.Path() / "file"), Midnight(2011, 12, 13));
}

TEST(SetFileDate, ClosesTheFileWhereDatingFails) {
  FakeMachine machine;
  machine.file_system.dates = false;
  const platform::ScopedMachine scope(machine);
  EXPECT_FALSE(SetFileDateYmdW(u"C:\\a", 2024, 1, 2));
  EXPECT_EQ(machine.file_system.closed, 1);
  EXPECT_FALSE(SetFileDateW(u"C:\\a", 2451545));
  EXPECT_EQ(machine.file_system.closed, 2);
  EXPECT_EQ(machine.file_system.days, (std::vector<std::uint32_t>{20240102, 20000101}));
}

TEST(SetFileDate, ClosesNothingThatWasNotOpened) {
  FakeMachine machine;
  machine.file_system.opens = false;
  const platform::ScopedMachine scope(machine);
  EXPECT_FALSE(SetFileDateYmdW(u"C:\\a", 2024, 1, 2));
  EXPECT_EQ(machine.file_system.closed, 0);
}

TEST(DeleteFile, DeletesOneFileAndNoFolder) {
  const ScratchFolder scratch;
  scratch.Write("one", "");
  scratch.Write("two", "");
  EXPECT_TRUE(DeleteFileW(scratch.File(u"one")));
  EXPECT_FALSE(DeleteFileW(scratch.File(u"one")));
  EXPECT_TRUE(DeleteFile(scratch.File(u"two")));
  EXPECT_FALSE(DeleteFileW(scratch.Path().u16string()));
  EXPECT_FALSE(DeleteFileW(scratch.File(u"*")));
  EXPECT_FALSE(DeleteFileW(u""));
  EXPECT_TRUE(is_empty(scratch.Path()));
}

}  // namespace
}  // namespace ravo::DIUtils
