#include "support/fake_stream.h"
#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/error.h>

#include <array>
#include <limits>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ravo {
namespace {

using ::testing::ElementsAre;

std::span<const std::byte> BytesOf(std::string_view text) {
  return std::as_bytes(std::span(text.data(), text.size()));
}

std::string_view TextOf(std::span<const std::byte> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

StreamOperation OperationOf(const auto& action) {
  try {
    action();
  } catch (const StreamError& error) {
    return error.Operation();
  }
  ADD_FAILURE() << "nothing was raised";
  return StreamOperation::Open;
}

TEST(MemoryStream, ReadsUpToTheEnd) {
  MemoryStream stream(BytesOf("abcde"));
  std::array<std::byte, 3> buffer{};
  EXPECT_EQ(stream.Read(buffer), 3u);
  EXPECT_EQ(TextOf(buffer), "abc");
  EXPECT_EQ(stream.Read(buffer), 2u);
  EXPECT_EQ(TextOf(buffer), "dec");
  EXPECT_EQ(stream.Position(), 5);
  EXPECT_EQ(stream.Read(buffer), 0u);
  EXPECT_EQ(stream.Read({}), 0u);
}

TEST(MemoryStream, TakesOverAVector) {
  MemoryStream stream(std::vector<std::byte>{std::byte{1}, std::byte{2}});
  EXPECT_THAT(stream.Bytes(), ElementsAre(std::byte{1}, std::byte{2}));
  EXPECT_EQ(stream.Size(), 2);
  EXPECT_EQ(stream.Position(), 0);
}

TEST(MemoryStream, WritesOverAndBehindWhatIsThere) {
  MemoryStream stream(BytesOf("abc"));
  stream.SetPosition(2);
  EXPECT_EQ(stream.Write(BytesOf("XYZ")), 3u);
  EXPECT_EQ(TextOf(stream.Bytes()), "abXYZ");
  EXPECT_EQ(stream.Position(), 5);
  stream.SetPosition(0);
  EXPECT_EQ(stream.Write(BytesOf("1")), 1u);
  EXPECT_EQ(TextOf(stream.Bytes()), "1bXYZ");
}

TEST(MemoryStream, WritingBeyondTheEndFillsWithZeros) {
  MemoryStream stream(BytesOf("a"));
  stream.SetPosition(4);
  EXPECT_EQ(stream.Size(), 1);
  EXPECT_EQ(stream.Write(BytesOf("z")), 1u);
  EXPECT_EQ(TextOf(stream.Bytes()), std::string_view("a\0\0\0z", 5));
}

TEST(MemoryStream, NothingWrittenBeyondTheEndChangesNothing) {
  MemoryStream stream;
  stream.SetPosition(10);
  EXPECT_EQ(stream.Write({}), 0u);
  EXPECT_EQ(stream.Size(), 0);
}

TEST(MemoryStream, PositionsBeyondTheEndReadNothing) {
  MemoryStream stream(BytesOf("a"));
  std::array<std::byte, 1> buffer{};
  for (const std::int64_t position : {std::int64_t{1}, std::int64_t{2}, std::int64_t{0x80000000},
                                      std::int64_t{0x100000000}, std::numeric_limits<std::int64_t>::max()}) {
    stream.SetPosition(position);
    EXPECT_EQ(stream.Position(), position);
    EXPECT_EQ(stream.Read(buffer), 0u);
    EXPECT_EQ(stream.Position(), position);
  }
}

TEST(MemoryStream, NegativePositionsRaise) {
  MemoryStream stream(BytesOf("abc"));
  stream.SetPosition(1);
  EXPECT_THROW(stream.SetPosition(-1), RangeError);
  EXPECT_THROW(stream.SetPosition(std::numeric_limits<std::int64_t>::min()), RangeError);
  EXPECT_EQ(stream.Position(), 1);
}

TEST(MemoryStream, WritingPastTheLargestPositionRaises) {
  MemoryStream stream;
  stream.SetPosition(std::numeric_limits<std::int64_t>::max());
  EXPECT_THROW(static_cast<void>(stream.Write(BytesOf("a"))), OverflowError);
  EXPECT_EQ(stream.Size(), 0);
}

TEST(ByteStream, CheckedReadLoopsOverPartialReads) {
  MemoryStream memory(BytesOf("abcdef"));
  test::StingyStream stream(memory, 1);
  std::array<std::byte, 5> buffer{};
  stream.ReadChecked(buffer);
  EXPECT_EQ(TextOf(buffer), "abcde");
  EXPECT_EQ(stream.Calls(), 5u);
}

TEST(ByteStream, CheckedReadOfAShortStreamRaises) {
  for (const std::size_t most : {std::size_t{1}, std::size_t{2}, std::size_t{100}}) {
    MemoryStream memory(BytesOf("abc"));
    test::StingyStream stream(memory, most);
    std::array<std::byte, 4> buffer{};
    EXPECT_EQ(OperationOf([&] { stream.ReadChecked(buffer); }), StreamOperation::Read);
    EXPECT_EQ(TextOf(std::span(buffer).first(3)), "abc");
  }
}

TEST(ByteStream, CheckedReadOfNothingReadsNothing) {
  MemoryStream stream;
  stream.ReadChecked({});
  EXPECT_EQ(stream.Position(), 0);
}

TEST(ByteStream, CheckedWriteLoopsOverPartialWrites) {
  MemoryStream memory;
  test::StingyStream stream(memory, 2);
  stream.WriteChecked(BytesOf("abcde"));
  EXPECT_EQ(TextOf(memory.Bytes()), "abcde");
  EXPECT_EQ(stream.Calls(), 3u);
}

TEST(ByteStream, CheckedWriteToAStreamThatTakesNothingRaises) {
  MemoryStream memory;
  test::StingyStream stream(memory, 0);
  EXPECT_EQ(OperationOf([&] { stream.WriteChecked(BytesOf("a")); }), StreamOperation::Write);
  stream.WriteChecked({});
}

TEST(ByteStream, PositionsBeyondTwoAndFourGibibytes) {
  for (const std::int64_t size : {std::int64_t{0x80000001}, std::int64_t{0x100000001}}) {
    test::VastStream stream(size);
    stream.SetPosition(size - 2);
    std::array<std::byte, 2> buffer{};
    stream.ReadChecked(buffer);
    EXPECT_THAT(buffer, ElementsAre(std::byte{0xFF}, std::byte{0x00}));
    EXPECT_EQ(stream.Position(), size);
    EXPECT_EQ(OperationOf([&] { stream.ReadChecked(buffer); }), StreamOperation::Read);
    stream.WriteChecked(buffer);
    EXPECT_EQ(stream.Size(), size + 2);
  }
}

}  // namespace
}  // namespace ravo
