#include "support/pe_builder.h"
#include "support/scoped_environment.h"
#include "support/scratch_folder.h"
#include <ravo/platform/posix/clock.h>
#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/posix_machine.h>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

TEST(NormalizedPath, ByItsTextAlone) {
  struct Row {
    std::string_view path;
    std::string_view result;
  };
  constexpr Row rows[] = {
      {"/a/b", "/a/b"},
      {"/a/./b", "/a/b"},
      {"/a//b///c", "/a/b/c"},
      {"/a/../b", "/b"},
      {"/../../a", "/a"},
      {"/a/..", "/"},
      {"/", "/"},
      {"//", "/"},
      {"/a/b/", "/a/b/"},
      {"/a/b/..", "/a"},
      {"/a/b/../", "/a/"},
      {"/a/.", "/a"},
      {"/a/...", "/a/..."},
      {"/..a/.b", "/..a/.b"},
  };
  for (const Row& row : rows) EXPECT_EQ(NormalizedPath(row.path), row.result) << row.path;
}

TEST(HostPath, TakesBothDelimitersAndDrives) {
  const Drive drives[] = {{u'C', DriveKind::Fixed, "/"}, {u'D', DriveKind::Fixed, "/media/disk"}};
  struct Row {
    std::u16string_view name;
    std::optional<std::string> path;
  };
  const Row rows[] = {
      {u"a\\b/c", "a/b/c"},
      {u"\\a", "/a"},
      {u"C:\\a\\b", "/a/b"},
      {u"c:/a", "/a"},
      {u"C:", "/"},
      {u"C:a", "/a"},
      {u"D:\\účet", "/media/disk/účet"},
      {u"d:", "/media/disk/"},
      {u"Q:\\a", "Q:/a"},
      {u"", ""},
      {std::u16string_view(u"a\0b", 3), std::nullopt},
  };
  for (const Row& row : rows) EXPECT_EQ(HostPath(row.name, drives), row.path);
}

TEST(PosixMachineFiles, FullPathExpandsAgainstTheCurrentFolder) {
  const PosixPaths machine;
  const std::u16string here = std::filesystem::current_path().u16string();
  EXPECT_EQ(machine.FullPath(u"Ravo.exe"), here + u"/Ravo.exe");
  EXPECT_EQ(machine.FullPath(u"x\\..\\.\\y"), here + u"/y");
  EXPECT_EQ(machine.FullPath(u"."), here);
  EXPECT_EQ(machine.FullPath(u"\\usr\\..\\tmp"), u"/tmp");
  EXPECT_EQ(machine.FullPath(u"C:\\usr\\lib\\"), u"/usr/lib/");
  EXPECT_EQ(machine.FullPath(u""), u"");
  EXPECT_EQ(machine.FullPath(std::u16string_view(u"a\0b", 3)), u"");
  EXPECT_EQ(machine.PathDelimiter(), u'/');
}

TEST(PosixMachineFiles, FindsFilesAndFolders) {
  const PosixPaths machine;
  const test::ScratchFolder folder;
  folder.Write("file", "12345");
  folder.Write(".hidden", "");
  const auto file = machine.FindFile(folder.File(u"file"));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->size, 5);
  EXPECT_EQ(file->attributes, 0x20u);
  EXPECT_EQ(machine.FindFile(folder.File(u".hidden"))->attributes, 0x22u);
  const auto found_folder = machine.FindFile(folder.Path().u16string());
  ASSERT_TRUE(found_folder);
  EXPECT_EQ(found_folder->attributes, 0x10u);
  EXPECT_EQ(found_folder->size, 0);
  EXPECT_EQ(machine.FindFile(u"..")->attributes & 0x12u, 0x10u);
  EXPECT_EQ(machine.FindFile(u".")->attributes & 0x12u, 0x10u);
  folder.Write(".folder/file", "");
  EXPECT_EQ(machine.FindFile(folder.File(u".folder"))->attributes, 0x12u);
  // A directory search rejects a name with a trailing delimiter; `Attributes` accepts it.
  EXPECT_FALSE(machine.FindFile(folder.File(u".folder/")));
  EXPECT_EQ(PosixFiles().Attributes(folder.File(u".folder/")), 0x12u);
  EXPECT_FALSE(machine.FindFile(folder.File(u"missing")));
  EXPECT_FALSE(machine.FindFile(u""));
  EXPECT_FALSE(machine.FindFile(folder.File(u"file") + std::u16string(u"\0x", 2)));
}

TEST(PosixMachineFiles, WhatTheCallerMayNotWriteIsReadOnly) {
  const test::ScratchFolder folder;
  folder.Write("file", "");
  std::filesystem::permissions(folder.Path() / "file", std::filesystem::perms::owner_read);
  const auto facts = PosixPaths().FindFile(folder.File(u"file"));
  ASSERT_TRUE(facts);
  // The superuser may write anyway.
  EXPECT_EQ(facts->attributes, geteuid() == 0 ? 0x20u : 0x21u);
  EXPECT_EQ(PosixPaths().FindFile(u"/proc/version")->attributes & 1u, access("/proc/version", W_OK) != 0);
}

TEST(PosixMachineFiles, SizesAreOfSixtyFourBits) {
  const test::ScratchFolder folder;
  folder.Write("sparse", "");
  std::filesystem::resize_file(folder.Path() / "sparse", 0x100000002);
  EXPECT_EQ(PosixPaths().FindFile(folder.File(u"sparse"))->size, 0x100000002);
}

TEST(PosixMachineFiles, TheLastWriteIsInLocalTime) {
  const test::ScopedEnvironment zone("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
  const test::ScratchFolder folder;
  folder.Write("file", "");
  // 1 July 2024, 10:30:15.123 UTC.
  const timespec times[2] = {{1719829815, 123'999'999}, {1719829815, 123'999'999}};
  ASSERT_EQ(utimensat(AT_FDCWD, (folder.Path() / "file").c_str(), times, 0), 0);
  const auto facts = PosixPaths().FindFile(folder.File(u"file"));
  const DateTimeParts expected{{2024, 7, 1}, {12, 30, 15, 123}};
  EXPECT_EQ(SplitDateTime(facts->written), expected);
}

TEST(LocalDateTime, MomentsOutsideTheCalendarAreZero) {
  EXPECT_EQ(LocalDateTime({std::int64_t{1} << 40, 0}), 0);
  EXPECT_EQ(LocalDateTime({std::int64_t{1} << 62, 0}), 0);
  EXPECT_EQ(LocalDateTime({-(std::int64_t{1} << 40), 0}), 0);
}

TEST(PosixMachineClock, NowIsBetweenTwoLooksAtTheClock) {
  const auto look = [] {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return LocalDateTime(now);
  };
  const DateTime before = look();
  const DateTime now = PosixLocale().Now();
  EXPECT_LE(before, now);
  EXPECT_LE(now, look());
}

TEST(PosixMachineFiles, OpensTheVersionResourceOfAnImage) {
  const PosixPaths machine;
  const test::ScratchFolder folder;
  const auto image = test::BuildPe(test::PeKind::Pe32,
                                   test::VersionBlock(u"040504E2", {{u"FileVersion", u"7.0"}}, {0x04E20405}));
  folder.Write("x.dll", {reinterpret_cast<const char*>(image.bytes.data()), image.bytes.size()});
  folder.Write("y.dll", "no image");
  const auto resource = machine.OpenVersionResource(folder.File(u"x.dll"));
  ASSERT_TRUE(resource);
  EXPECT_EQ(resource->FirstTranslation(), 0x04E20405u);
  EXPECT_EQ(resource->String(u"040504e2", u"FileVersion"), u"7.0");
  EXPECT_FALSE(machine.OpenVersionResource(folder.File(u"y.dll")));
  EXPECT_FALSE(machine.OpenVersionResource(folder.File(u"missing.dll")));
  EXPECT_FALSE(machine.OpenVersionResource(folder.Path().u16string()));
  EXPECT_FALSE(machine.OpenVersionResource(u""));
}

TEST(PosixMachineFiles, APipeIsNotWaitedFor) {
  const test::ScratchFolder folder;
  ASSERT_EQ(mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
  EXPECT_FALSE(PosixPaths().OpenVersionResource(folder.File(u"pipe")));
}

}  // namespace
}  // namespace ravo::platform::posix
