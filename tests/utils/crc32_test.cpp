#include "support/guarded_buffer.h"
#include <ravo/utils/crc32.h>

#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

std::span<const std::byte> BytesOf(std::string_view text) { return std::as_bytes(std::span(text)); }

// The definition itself, bit by bit.
std::uint32_t PlainUpdate(std::uint32_t crc, std::span<const std::byte> bytes) {
  for (const std::byte byte : bytes) {
    crc ^= std::to_integer<std::uint32_t>(byte);
    for (int bit = 0; bit < 8; ++bit) crc = (crc & 1) != 0 ? (crc >> 1) ^ 0xEDB88320u : crc >> 1;
  }
  return crc;
}

std::vector<std::byte> Pattern(std::size_t count) {
  std::vector<std::byte> bytes;
  for (std::size_t i = 0; i < count; ++i) bytes.push_back(static_cast<std::byte>(i % 251));
  return bytes;
}

TEST(Crc32, KnownValues) {
  EXPECT_EQ(Crc32(BytesOf("")), 0u);
  EXPECT_EQ(Crc32(BytesOf("123456789")), 0xCBF43926u);
  EXPECT_EQ(Crc32(BytesOf("The quick brown fox jumps over the lazy dog")), 0x414FA339u);
  EXPECT_EQ(Crc32(BytesOf("\xFF\xFF\xFF\xFF")), 0xFFFFFFFFu);
  EXPECT_EQ(Crc32(Pattern(1000)), 0x721746A6u);
}

TEST(Crc32, IsTheDefinitionAtEveryLengthAndAlignment) {
  const test::GuardedBuffer buffer(Pattern(300));
  for (std::size_t start = 0; start <= buffer.Bytes().size(); ++start) {
    const auto bytes = buffer.Bytes().subspan(start);
    EXPECT_EQ(UpdateCrc32(kCrc32Start, bytes), PlainUpdate(kCrc32Start, bytes)) << start;
    EXPECT_EQ(UpdateCrc32(0x12345678, bytes), PlainUpdate(0x12345678, bytes)) << start;
  }
}

TEST(Crc32, PiecesGiveWhatTheWholeGives) {
  const std::vector<std::byte> bytes = Pattern(64);
  const std::uint32_t whole = UpdateCrc32(kCrc32Start, bytes);
  for (std::size_t at = 0; at <= bytes.size(); ++at) {
    const std::uint32_t front = UpdateCrc32(kCrc32Start, std::span(bytes).first(at));
    EXPECT_EQ(UpdateCrc32(front, std::span(bytes).subspan(at)), whole) << at;
  }
}

}  // namespace
}  // namespace ravo
