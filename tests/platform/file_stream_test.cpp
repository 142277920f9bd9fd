#include "support/temporary_folder.h"
#include <ravo/platform/file_stream.h>
#include <ravo/runtime/error.h>

#include <array>

#include <gtest/gtest.h>

namespace ravo {
namespace {

std::span<const std::byte> BytesOf(std::string_view text) {
  return std::as_bytes(std::span(text.data(), text.size()));
}

std::string ReadAll(ByteStream& stream) {
  stream.SetPosition(0);
  std::string text(static_cast<std::size_t>(stream.Size()), '\0');
  stream.ReadChecked(std::as_writable_bytes(std::span(text)));
  return text;
}

TEST(FileStream, CreatesWritesAndReads) {
  const test::TemporaryFolder folder;
  const std::u16string name = folder.Name(u"účet.dat");
  {
    FileStream stream(name, FileMode::Create);
    EXPECT_EQ(stream.Size(), 0);
    stream.WriteChecked(BytesOf("abcdef"));
    EXPECT_EQ(stream.Position(), 6);
    EXPECT_EQ(ReadAll(stream), "abcdef");
  }
  FileStream stream(name, FileMode::Read);
  std::array<std::byte, 10> buffer{};
  EXPECT_EQ(stream.Size(), 6);
  EXPECT_EQ(stream.Read(buffer), 6u);
  EXPECT_EQ(stream.Read(buffer), 0u);
  EXPECT_THROW(stream.ReadChecked(buffer), StreamError);
}

TEST(FileStream, CreateEmptiesAndReadWriteKeeps) {
  const test::TemporaryFolder folder;
  folder.Write("file", "abcdef");
  {
    FileStream stream(folder.Name(u"file"), FileMode::ReadWrite);
    stream.SetPosition(2);
    stream.WriteChecked(BytesOf("XY"));
    EXPECT_EQ(ReadAll(stream), "abXYef");
  }
  FileStream stream(folder.Name(u"file"), FileMode::Create);
  EXPECT_EQ(stream.Size(), 0);
}

TEST(FileStream, ReadOnlyTakesNoWrite) {
  const test::TemporaryFolder folder;
  folder.Write("file", "abc");
  FileStream stream(folder.Name(u"file"), FileMode::Read);
  EXPECT_EQ(stream.Write(BytesOf("x")), 0u);
  EXPECT_THROW(stream.WriteChecked(BytesOf("x")), StreamError);
  EXPECT_EQ(ReadAll(stream), "abc");
}

TEST(FileStream, BothDelimitersSeparateFolders) {
  const test::TemporaryFolder folder;
  folder.Write(std::filesystem::path("sub") / "file", "abc");
  for (const std::u16string_view delimiter : {u"/", u"\\"}) {
    FileStream stream(folder.Name(u"sub") + std::u16string(delimiter) + u"file", FileMode::Read);
    EXPECT_EQ(ReadAll(stream), "abc");
  }
}

TEST(FileStream, WritingBeyondTheEndFillsWithZeros) {
  const test::TemporaryFolder folder;
  FileStream stream(folder.Name(u"file"), FileMode::Create);
  stream.SetPosition(3);
  std::array<std::byte, 1> buffer{};
  EXPECT_EQ(stream.Read(buffer), 0u);
  stream.WriteChecked(BytesOf("z"));
  EXPECT_EQ(ReadAll(stream), std::string("\0\0\0z", 4));
}

TEST(FileStream, NegativePositionsRaise) {
  const test::TemporaryFolder folder;
  FileStream stream(folder.Name(u"file"), FileMode::Create);
  EXPECT_THROW(stream.SetPosition(-1), RangeError);
  EXPECT_EQ(stream.Position(), 0);
}

TEST(FileStream, PositionsBeyondTwoAndFourGibibytes) {
  const test::TemporaryFolder folder;
  FileStream stream(folder.Name(u"sparse"), FileMode::Create);
  for (const std::int64_t position : {std::int64_t{0x80000000}, std::int64_t{0x100000001}}) {
    stream.SetPosition(position);
    stream.WriteChecked(BytesOf("end"));
    EXPECT_EQ(stream.Position(), position + 3);
    EXPECT_EQ(stream.Size(), position + 3);
    std::array<std::byte, 4> buffer{};
    stream.SetPosition(position - 1);
    stream.ReadChecked(buffer);
    EXPECT_EQ(std::string_view(reinterpret_cast<const char*>(buffer.data()), 4),
              std::string_view("\0end", 4));
  }
}

void ExpectOpenError(std::u16string_view name, FileMode mode) {
  try {
    FileStream stream(name, mode);
    ADD_FAILURE() << "opened";
  } catch (const StreamError& error) {
    EXPECT_EQ(error.Operation(), StreamOperation::Open);
    EXPECT_NE(error.Message().find(name), std::u16string::npos);
    EXPECT_GT(error.Message().size(), name.size() + 5);
  }
}

TEST(FileStream, WhatCannotBeOpenedRaisesWithItsName) {
  const test::TemporaryFolder folder;
  ExpectOpenError(folder.Name(u"missing"), FileMode::Read);
  ExpectOpenError(folder.Name(u"missing"), FileMode::ReadWrite);
  ExpectOpenError((folder.Path() / "missing" / "file").u16string(), FileMode::Create);
  ExpectOpenError(folder.Path().u16string(), FileMode::Read);
  ExpectOpenError(u"", FileMode::Read);
}

TEST(FileStream, ANameWithAZeroIsNotCutShort) {
  const test::TemporaryFolder folder;
  folder.Write("file", "abc");
  ExpectOpenError(folder.Name(u"file") + std::u16string(u"\0.txt", 5), FileMode::Read);
}

}  // namespace
}  // namespace ravo
