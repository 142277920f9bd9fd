#include "support/named_pipe.h"
#include <ravo/platform/file_stream.h>
#include <ravo/runtime/error.h>

#include <array>
#include <string>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using test::NamedPipe;

// Longer than the buffer of a pipe, with no two pieces alike.
std::string LongText() {
  std::string text;
  for (int i = 0; i < 40'000; ++i) text += std::to_string(i) + ",";
  return text;
}

std::string ReadOn(ByteStream& stream) {
  std::string text;
  std::array<char, 1000> piece{};
  while (const std::size_t count = stream.Read(std::as_writable_bytes(std::span(piece)))) {
    text.append(piece.data(), count);
  }
  return text;
}

TEST(Pipe, IsReadToItsEnd) {
  const std::string text = LongText();
  const NamedPipe pipe(text);
  FileStream stream(pipe.Name(), FileMode::Read);
  EXPECT_EQ(stream.Position(), 0);
  EXPECT_TRUE(ReadOn(stream) == text);
  EXPECT_EQ(stream.Position(), std::ssize(text));
  EXPECT_EQ(ReadOn(stream), "");
}

TEST(Pipe, IsReadFromAnyPosition) {
  const std::string text = LongText();
  const NamedPipe pipe(text);
  FileStream stream(pipe.Name(), FileMode::Read);
  EXPECT_EQ(stream.Read({}), 0U);
  for (const std::size_t position : {std::size_t{5}, std::size_t{0}, std::size_t{100'000}, text.size() + 1}) {
    stream.SetPosition(static_cast<std::int64_t>(position));
    EXPECT_EQ(stream.Position(), static_cast<std::int64_t>(position));
    EXPECT_TRUE(ReadOn(stream) == (position < text.size() ? text.substr(position) : "")) << position;
  }
  EXPECT_THROW(stream.SetPosition(-1), RangeError);
}

TEST(Pipe, HasTheSizeOfWhatIsWritten) {
  const std::string text = LongText();
  const NamedPipe pipe(text);
  FileStream stream(pipe.Name(), FileMode::Read);
  EXPECT_EQ(stream.Size(), std::ssize(text));
  EXPECT_EQ(stream.Position(), 0);
  EXPECT_TRUE(ReadOn(stream) == text);
}

TEST(Pipe, MayBeEmpty) {
  const NamedPipe pipe("");
  FileStream stream(pipe.Name(), FileMode::Read);
  EXPECT_EQ(ReadOn(stream), "");
  EXPECT_EQ(stream.Size(), 0);
}

}  // namespace
}  // namespace ravo
