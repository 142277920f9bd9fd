#include "support/guarded_buffer.h"
#include "support/scratch_folder.h"
#include <ravo/platform/file_stream.h>
#include <ravo/runtime/error.h>

#include <array>
#include <string>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using test::ScratchFolder;

std::span<const std::byte> BytesOf(std::string_view text) { return std::as_bytes(std::span(text)); }

std::string ReadAll(ByteStream& stream) {
  std::string text(static_cast<std::size_t>(stream.Size()), '\0');
  stream.SetPosition(0);
  stream.ReadChecked(std::as_writable_bytes(std::span(text)));
  return text;
}

void WriteFile(const std::u16string& name, std::string_view text) {
  FileStream(name, FileMode::Create).WriteChecked(BytesOf(text));
}

TEST(FileStream, WritesAndReadsBack) {
  const ScratchFolder folder;
  FileStream stream(folder.File(u"účet.dat"), FileMode::Create);
  EXPECT_EQ(stream.Size(), 0);
  EXPECT_EQ(stream.Write(BytesOf("abcdef")), 6U);
  EXPECT_EQ(stream.Position(), 6);
  stream.SetPosition(2);
  stream.WriteChecked(BytesOf("XY"));
  EXPECT_EQ(stream.Position(), 4);
  EXPECT_EQ(stream.Size(), 6);
  EXPECT_EQ(ReadAll(stream), "abXYef");
}

TEST(FileStream, ModesOpenWhatTheySay) {
  const ScratchFolder folder;
  const std::u16string name = folder.File(u"a");
  WriteFile(name, "first");
  {
    FileStream stream(name, FileMode::ReadWrite);
    EXPECT_EQ(stream.Position(), 0);
    stream.WriteChecked(BytesOf("F"));
    EXPECT_EQ(ReadAll(stream), "First");
  }
  EXPECT_EQ(FileStream(name, FileMode::Create).Size(), 0);
}

TEST(FileStream, SeveralMayRead) {
  const ScratchFolder folder;
  const std::u16string name = folder.File(u"a");
  WriteFile(name, "text");
  FileStream first(name, FileMode::Read);
  FileStream second(name, FileMode::Read);
  EXPECT_EQ(ReadAll(first), "text");
  EXPECT_EQ(ReadAll(second), "text");
}

TEST(FileStream, BothDelimitersSeparateFolders) {
  const ScratchFolder folder;
  WriteFile(folder.File(u"a"), "text");
  const std::u16string path = folder.Path().u16string();
  EXPECT_EQ(FileStream(path + u"/a", FileMode::Read).Size(), 4);
  EXPECT_EQ(FileStream(path + u"\\a", FileMode::Read).Size(), 4);
}

TEST(FileStream, OpenErrorTellsTheNameAndTheReason) {
  const ScratchFolder folder;
  for (const FileMode mode : {FileMode::Read, FileMode::ReadWrite}) {
    const std::u16string name = folder.File(u"není");
    try {
      const FileStream stream(name, mode);
      FAIL() << "opened";
    } catch (const StreamError& error) {
      EXPECT_EQ(error.Operation(), StreamOperation::Open);
      EXPECT_NE(error.Message().find(name), std::u16string::npos);
      EXPECT_GT(error.Message().size(), name.size() + 3);
    }
  }
}

TEST(FileStream, CreateNeedsTheFolder) {
  const ScratchFolder folder;
  EXPECT_THROW(FileStream(folder.File(u"none/a"), FileMode::Create), StreamError);
  EXPECT_THROW(FileStream(folder.Path().u16string(), FileMode::Create), StreamError);
  EXPECT_THROW(FileStream(u"", FileMode::Create), StreamError);
}

TEST(FileStream, AtTheEndThereIsNothingToRead) {
  const ScratchFolder folder;
  WriteFile(folder.File(u"a"), "text");
  FileStream stream(folder.File(u"a"), FileMode::Read);
  std::array<std::byte, 8> buffer;
  EXPECT_EQ(stream.Read(buffer), 4U);
  EXPECT_EQ(stream.Position(), 4);
  EXPECT_EQ(stream.Read(buffer), 0U);
  EXPECT_EQ(stream.Position(), 4);
  stream.SetPosition(2);
  EXPECT_THROW(stream.ReadChecked(buffer), StreamError);
  EXPECT_EQ(stream.Read({}), 0U);
}

// The system refuses read-only memory.
TEST(FileStream, AFailedReadIsNoEnd) {
  const ScratchFolder folder;
  WriteFile(folder.File(u"a"), "text");
  FileStream stream(folder.File(u"a"), FileMode::Read);
  const test::GuardedBuffer buffer(BytesOf("x"));
  const std::span unwritable(buffer.Bytes().data() + 1, 4);
  try {
    static_cast<void>(stream.Read(unwritable));
    FAIL() << "read";
  } catch (const StreamError& error) {
    EXPECT_EQ(error.Operation(), StreamOperation::Read);
    EXPECT_GT(error.Message().size(), std::u16string_view(u"Stream read error: ").size());
  }
  EXPECT_EQ(stream.Position(), 0);
  EXPECT_EQ(ReadAll(stream), "text");
}

TEST(FileStream, OpenedForReadingItDoesNotWrite) {
  const ScratchFolder folder;
  WriteFile(folder.File(u"a"), "text");
  FileStream stream(folder.File(u"a"), FileMode::Read);
  try {
    stream.WriteChecked(BytesOf("x"));
    FAIL() << "written";
  } catch (const StreamError& error) {
    EXPECT_EQ(error.Operation(), StreamOperation::Write);
  }
  EXPECT_EQ(ReadAll(stream), "text");
}

TEST(FileStream, PositionsMayLieBeyondTheEnd) {
  const ScratchFolder folder;
  FileStream stream(folder.File(u"a"), FileMode::Create);
  stream.SetPosition(3);
  EXPECT_EQ(stream.Size(), 0);
  EXPECT_EQ(stream.Write({}), 0U);
  EXPECT_EQ(stream.Size(), 0);
  stream.WriteChecked(BytesOf("x"));
  EXPECT_EQ(ReadAll(stream), std::string_view("\0\0\0x", 4));
  EXPECT_THROW(stream.SetPosition(-1), RangeError);
  EXPECT_EQ(stream.Position(), 4);
}

TEST(FileStream, PositionsHave64Bits) {
  constexpr std::int64_t far = (std::int64_t{5} << 30) + 7;
  const ScratchFolder folder;
  FileStream stream(folder.File(u"a"), FileMode::Create);
  stream.WriteChecked(BytesOf("near"));
  stream.SetPosition(far);
  stream.WriteChecked(BytesOf("far"));
  EXPECT_EQ(stream.Position(), far + 3);
  EXPECT_EQ(stream.Size(), far + 3);
  std::array<std::byte, 3> buffer;
  stream.SetPosition(far);
  stream.ReadChecked(buffer);
  EXPECT_EQ(buffer, (std::array{std::byte{'f'}, std::byte{'a'}, std::byte{'r'}}));
  stream.SetPosition(far & 0xFFFFFFFF);
  stream.ReadChecked(buffer);
  EXPECT_EQ(buffer, (std::array<std::byte, 3>{}));
}

TEST(FileStream, WritingBeyondTheEndFillsWithZeros) {
  const ScratchFolder folder;
  FileStream stream(folder.File(u"a"), FileMode::Create);
  stream.SetPosition(3);
  stream.WriteChecked(BytesOf("z"));
  EXPECT_EQ(ReadAll(stream), std::string("\0\0\0z", 4));
}

TEST(FileStream, NameWithAZeroIsNotCutShort) {
  const ScratchFolder folder;
  WriteFile(folder.File(u"a"), "text");
  EXPECT_THROW(FileStream(folder.File(u"a") + std::u16string(u"\0.txt", 5), FileMode::Read), StreamError);
}

}  // namespace
}  // namespace ravo
