#include "support/fake_machine.h"
#include "support/named_pipe.h"
#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>
#include <ravo/platform/code_pages.h>
#include <ravo/platform/files.h>
#include <ravo/runtime/error.h>

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using test::FakeMachine;
using test::ScratchFolder;
using test::SuiteName;
using namespace std::string_literals;
using namespace std::string_view_literals;

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(SaveStrW, WritesUnitsLowByteFirstWithoutAMark) {
  const ScratchFolder scratch;
  EXPECT_TRUE(SaveStrWToFileW(u"Ač\0\xD800"sv, scratch.File(u"file")));
  EXPECT_EQ(BytesOf(scratch.Path() / "file"), "A\0\x0D\x01\0\0\0\xD8"s);
  EXPECT_TRUE(SaveStrWToFile(u"x", scratch.File(u"file")));
  EXPECT_EQ(BytesOf(scratch.Path() / "file"), "x\0"s);
  EXPECT_TRUE(SaveStrWToFileA(u"", platform::CodePages().ToCodePage(scratch.File(u"file"))));
  EXPECT_EQ(BytesOf(scratch.Path() / "file"), "");
}

TEST(SaveStrA, WritesBytesAsTheyAre) {
  const ScratchFolder scratch;
  EXPECT_TRUE(SaveStrAToFileW("\r\n\x8A\0\x1A"sv, SuiteName(scratch.Path()) + u"\\účet"));
  EXPECT_EQ(BytesOf(scratch.Path() / u"účet"), "\r\n\x8A\0\x1A"s);
  EXPECT_TRUE(SaveStrAToFile("shorter", scratch.File(u"účet")));
  EXPECT_EQ(BytesOf(scratch.Path() / u"účet"), "shorter");
  EXPECT_TRUE(SaveStrAToFileA("x", platform::CodePages().ToCodePage(scratch.File(u"účet"))));
  EXPECT_EQ(BytesOf(scratch.Path() / u"účet"), "x");
}

TEST(SaveBuf, WritesAllOrNothingOfABuffer) {
  const ScratchFolder scratch;
  EXPECT_TRUE(SaveBufToFileW("12345", 3, scratch.File(u"file")));
  EXPECT_EQ(BytesOf(scratch.Path() / "file"), "123");
  EXPECT_TRUE(SaveBufToFile("12345", 5, scratch.File(u"file")));
  EXPECT_EQ(BytesOf(scratch.Path() / "file"), "12345");
  EXPECT_TRUE(SaveBufToFileA("1", 1, platform::CodePages().ToCodePage(scratch.File(u"file"))));
  EXPECT_EQ(BytesOf(scratch.Path() / "file"), "1");
  EXPECT_TRUE(SaveBufToFileW(nullptr, 0, scratch.File(u"file")));
  EXPECT_EQ(BytesOf(scratch.Path() / "file"), "");
}

TEST(SaveBuf, ToAnOpenFileGoesOnWhereItStands) {
  const ScratchFolder scratch;
  const platform::FileCalls& files = platform::Files();
  const FileHandle file = files.Open(scratch.File(u"file"), platform::FilePurpose::Save);
  ASSERT_NE(file, kNoFile);
  EXPECT_TRUE(SaveBufToFile("abc", 3, file));
  EXPECT_TRUE(SaveBufToFile("def", 3, file));
  EXPECT_TRUE(SaveBufToFile(nullptr, 0, file));
  EXPECT_TRUE(files.Close(file));
  EXPECT_EQ(BytesOf(scratch.Path() / "file"), "abcdef");
  EXPECT_FALSE(SaveBufToFile("abc", 3, kNoFile));
}

TEST(SaveBuf, IsFalseWhereTheFileCannotBeMade) {
  const ScratchFolder scratch;
  for (const std::u16string& name : {scratch.Path().u16string(), scratch.File(u"missing/file"),
                                     std::u16string(), scratch.File(u"file") + std::u16string(u"\0x", 2)}) {
    EXPECT_FALSE(SaveBufToFileW("x", 1, name));
    EXPECT_FALSE(SaveStrAToFileW("x", name));
    EXPECT_FALSE(SaveStrWToFileW(u"x", name));
  }
  EXPECT_TRUE(is_empty(scratch.Path()));
}

TEST(SaveBuf, IsFalseWhereItsFolderVanished) {
  const ScratchFolder scratch;
  create_directory(scratch.Path() / "folder");
  const std::u16string name = scratch.File(u"folder/file");
  EXPECT_TRUE(SaveStrAToFileW("x", name));
  remove_all(scratch.Path() / "folder");
  EXPECT_FALSE(SaveStrAToFileW("x", name));
  std::string text = "as it was";
  EXPECT_FALSE(LoadStrAFromFileW(name, text));
  EXPECT_EQ(text, "as it was");
}

TEST(SaveBuf, GoesOnAfterEachPortion) {
  FakeMachine machine;
  machine.file_system.portion = 3;
  const platform::ScopedMachine scope(machine);
  EXPECT_TRUE(SaveStrAToFileW("0123456789", u"C:\\file"));
  EXPECT_EQ(machine.file_system.written, "0123456789");
  EXPECT_EQ(machine.file_system.closed, 1);
}

TEST(SaveBuf, IsFalseForWhatWasWrittenInPart) {
  FakeMachine machine;
  machine.file_system.portion = 3;
  machine.file_system.room = 5;
  const platform::ScopedMachine scope(machine);
  EXPECT_FALSE(SaveStrAToFileW("0123456789", u"C:\\file"));
  EXPECT_EQ(machine.file_system.written, "01234");
  EXPECT_EQ(machine.file_system.closed, 1);
}

TEST(SaveBuf, IsFalseForAFileThatTakesNothing) {
  FakeMachine machine;
  machine.file_system.portion = 0;
  const platform::ScopedMachine scope(machine);
  EXPECT_FALSE(SaveStrAToFileW("x", u"C:\\file"));
  EXPECT_EQ(machine.file_system.closed, 1);
}

TEST(SaveBuf, IsFalseWhereClosingFails) {
  FakeMachine machine;
  machine.file_system.closes = false;
  const platform::ScopedMachine scope(machine);
  EXPECT_FALSE(SaveStrAToFileW("x", u"C:\\file"));
  EXPECT_EQ(machine.file_system.written, "x");
  EXPECT_EQ(machine.file_system.closed, 1);
}

TEST(SaveStrW, RaisesForImpossibleLengths) {
  if constexpr (sizeof(std::size_t) > 4) {
    const FakeMachine machine;
    const platform::ScopedMachine scope(machine);
    // These texts are never read.
    const char16_t unit = u'x';
    const std::size_t limit = std::size_t{1} << 30;
    EXPECT_THROW((void)SaveStrWToFileW(std::u16string_view(&unit, limit), u"C:\\file"), OverflowError);
    EXPECT_THROW((void)SaveStrWToFileW(std::u16string_view(&unit, 2 * limit), u"C:\\file"), RangeError);
    EXPECT_TRUE(machine.file_system.opened.empty());
  }
}

TEST(LoadStrA, GivesAllBytesAsTheyAre) {
  const ScratchFolder scratch;
  const std::string content = "\xEF\xBB\xBF\r\n\0\x1A\xFF"s;
  scratch.Write(u"účet", content);
  std::string text;
  EXPECT_TRUE(LoadStrAFromFileW(SuiteName(scratch.Path()) + u"\\účet", text));
  EXPECT_EQ(text, content);
  text = "x";
  EXPECT_TRUE(LoadStrAFromFile(scratch.File(u"účet"), text));
  EXPECT_EQ(text, content);
  text.clear();
  EXPECT_TRUE(LoadStrAFromFileA(platform::CodePages().ToCodePage(scratch.File(u"účet")), text));
  EXPECT_EQ(text, content);
}

TEST(LoadStrW, GivesUnitsAsTheyAre) {
  const ScratchFolder scratch;
  scratch.Write("file",
                "\xFF\xFE"
                "A\0\x0D\x01\0\xD8"s);
  std::u16string text;
  EXPECT_TRUE(LoadStrWFromFileW(scratch.File(u"file"), text));
  EXPECT_EQ(text,
            u"\xFEFF"
            u"Ač\xD800");
  text.clear();
  EXPECT_TRUE(LoadStrWFromFileA(platform::CodePages().ToCodePage(scratch.File(u"file")), text));
  EXPECT_EQ(text,
            u"\xFEFF"
            u"Ač\xD800");
}

TEST(LoadStrW, LeavesOutHalfAUnit) {
  const ScratchFolder scratch;
  scratch.Write("one", "A");
  scratch.Write("three", "A\0B"s);
  std::u16string text = u"x";
  EXPECT_TRUE(LoadStrWFromFileW(scratch.File(u"three"), text));
  EXPECT_EQ(text, u"A");
  EXPECT_TRUE(LoadStrWFromFileW(scratch.File(u"one"), text));
  EXPECT_EQ(text, u"");
}

TEST(LoadStr, ReadsAPipeToItsEnd) {
  const std::string content(200'000, 'x');
  const test::NamedPipe pipe(content);
  std::string text;
  EXPECT_TRUE(LoadStrAFromFileW(pipe.Name(), text));
  EXPECT_TRUE(text == content);
}

// The memory of a process has nothing readable at its start.
TEST(LoadStr, IsFalseForWhatFailsWhenItIsRead) {
  constexpr std::u16string_view unreadable = u"/proc/self/mem";
  if (!std::filesystem::exists(unreadable))
    GTEST_SKIP() << "this system has no file that fails when it is read";
  std::string text = "before";
  EXPECT_FALSE(LoadStrAFromFileW(unreadable, text));
  EXPECT_EQ(text, "before");
}

TEST(LoadStr, EveryLengthAroundABufferComesBack) {
  const ScratchFolder scratch;
  for (const std::size_t length : {0u, 1u, 2u, 4095u, 4096u, 4097u, 8191u, 8192u, 8193u, 100'000u}) {
    std::string content(length, '\0');
    for (std::size_t i = 0; i < length; ++i) content[i] = static_cast<char>(i * 7 % 251);
    scratch.Write("file", content);
    std::string bytes = "x";
    EXPECT_TRUE(LoadStrAFromFileW(scratch.File(u"file"), bytes));
    EXPECT_EQ(bytes, content) << length;
    std::u16string units = u"x";
    EXPECT_TRUE(LoadStrWFromFileW(scratch.File(u"file"), units));
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(units.data()), 2 * units.size()),
              content.substr(0, length / 2 * 2))
        << length;
  }
}

TEST(LoadStr, WhateverAFileSaysOfItsSize) {
  for (const std::int64_t size : {0, 1, 9'999, 10'000, 10'001, 50'000}) {
    FakeMachine machine;
    machine.file_system.size = size;
    machine.file_system.portion = 777;
    machine.file_system.content = std::string(10'000, 'y');
    const platform::ScopedMachine scope(machine);
    std::string text;
    EXPECT_TRUE(LoadStrAFromFileW(u"C:\\file", text));
    EXPECT_EQ(text, machine.file_system.content);
  }
}

TEST(LoadStr, IsFalseAndLeavesTheTextWhereReadingFails) {
  FakeMachine machine;
  machine.file_system.size = 10;
  machine.file_system.content = "0123456789";
  machine.file_system.room = 5;
  const platform::ScopedMachine scope(machine);
  std::string bytes = "before";
  std::u16string units = u"before";
  EXPECT_FALSE(LoadStrAFromFileW(u"C:\\file", bytes));
  EXPECT_FALSE(LoadStrWFromFileW(u"C:\\file", units));
  EXPECT_EQ(bytes, "before");
  EXPECT_EQ(units, u"before");
  EXPECT_EQ(machine.file_system.closed, 2);
  machine.file_system.size.reset();
  EXPECT_FALSE(LoadStrAFromFileW(u"C:\\file", bytes));
  machine.file_system.opens = false;
  EXPECT_FALSE(LoadStrAFromFileW(u"C:\\file", bytes));
  EXPECT_EQ(machine.file_system.closed, 3);
}

TEST(LoadStr, IsFalseForFoldersAndForNothing) {
  const ScratchFolder scratch;
  std::string text = "before";
  for (const std::u16string& name :
       {scratch.Path().u16string(), scratch.File(u"missing"), std::u16string()}) {
    EXPECT_FALSE(LoadStrAFromFileW(name, text));
  }
  EXPECT_FALSE(LoadStrAFromFileA("", text));
  EXPECT_EQ(text, "before");
}

TEST(LoadStr, RaisesForFilesOf2GiB) {
  FakeMachine machine;
  machine.file_system.size = std::int64_t{1} << 31;
  const platform::ScopedMachine scope(machine);
  std::string text = "before";
  EXPECT_THROW((void)LoadStrAFromFileW(u"C:\\file", text), RangeError);
  EXPECT_EQ(text, "before");
  EXPECT_EQ(machine.file_system.closed, 1);
}

}  // namespace
}  // namespace ravo::DIUtils
