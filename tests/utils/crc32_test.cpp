#include "support/guarded_buffer.h"
#include <ravo/utils/crc32.h>
#include <ravo/utils/crc32_kernels.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

std::span<const std::byte> BytesOf(std::string_view text) { return std::as_bytes(std::span(text)); }

// The definition of the CRC, bit by bit.
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

std::vector<std::byte> RandomBytes(std::size_t count) {
  std::mt19937 random(20240331);
  std::vector<std::byte> bytes(count);
  for (std::byte& byte : bytes) byte = static_cast<std::byte>(random());
  return bytes;
}

// Runs every test on every kernel, through the function that the library calls.
class Crc32OfKernel : public ::testing::TestWithParam<utils::Crc32Kernel> {
 protected:
  void SetUp() override {
    if (!GetParam().runs_here()) GTEST_SKIP() << "this processor has no such instructions";
  }

 private:
  utils::ScopedCrc32Kernel forced_{GetParam()};
};

TEST_P(Crc32OfKernel, KnownValues) {
  EXPECT_EQ(Crc32(BytesOf("")), 0u);
  EXPECT_EQ(Crc32(BytesOf("123456789")), 0xCBF43926u);
  EXPECT_EQ(Crc32(BytesOf("The quick brown fox jumps over the lazy dog")), 0x414FA339u);
  EXPECT_EQ(Crc32(BytesOf("\xFF\xFF\xFF\xFF")), 0xFFFFFFFFu);
  EXPECT_EQ(Crc32(Pattern(1000)), 0x721746A6u);
}

TEST_P(Crc32OfKernel, IsTheDefinitionAtEveryLengthAndAlignment) {
  const test::GuardedBuffer buffer(Pattern(1200));
  for (std::size_t start = 0; start <= buffer.Bytes().size(); ++start) {
    const auto bytes = buffer.Bytes().subspan(start);
    EXPECT_EQ(UpdateCrc32(kCrc32Start, bytes), PlainUpdate(kCrc32Start, bytes)) << start;
    EXPECT_EQ(UpdateCrc32(0x12345678, bytes), PlainUpdate(0x12345678, bytes)) << start;
  }
}

// Unaligned starts, with an unreadable page directly after the end.
TEST_P(Crc32OfKernel, ReadsNoByteTooMany) {
  const std::vector<std::byte> bytes = RandomBytes(300);
  for (std::size_t count = 0; count <= bytes.size(); ++count) {
    const auto front = std::span(bytes).first(count);
    const test::GuardedBuffer buffer(front);
    ASSERT_EQ(UpdateCrc32(7, buffer.Bytes()), PlainUpdate(7, front)) << count;
  }
}

// Each bit of a long text changes the result: the checksum is linear, so this covers all texts of these
// lengths.
TEST_P(Crc32OfKernel, EveryBitOfATextCounts) {
  for (const std::size_t count : {333u, 1337u}) {
    std::vector<std::byte> bytes(count);
    for (std::size_t bit = 0; bit < 8 * count; ++bit) {
      bytes[bit / 8] = static_cast<std::byte>(1u << bit % 8);
      ASSERT_EQ(UpdateCrc32(0, bytes), PlainUpdate(0, bytes)) << bit;
      bytes[bit / 8] = std::byte{0};
    }
  }
}

TEST_P(Crc32OfKernel, LongTexts) {
  const std::vector<std::byte> bytes = RandomBytes(1 << 20);
  for (const std::size_t count : {4095u, 4096u, 4097u, 32767u, 32768u, 32769u, 65535u, 1u << 20})
    EXPECT_EQ(UpdateCrc32(kCrc32Start, std::span(bytes).last(count)),
              PlainUpdate(kCrc32Start, std::span(bytes).last(count)))
        << count;
}

// Lengths around those at which a kernel switches its method or reuses a buffer.
TEST_P(Crc32OfKernel, EveryLengthAroundATurn) {
  const std::vector<std::byte> bytes = RandomBytes(40000);
  std::vector<std::uint32_t> expected = {kCrc32Start};
  for (const std::byte byte : bytes) expected.push_back(PlainUpdate(expected.back(), std::span(&byte, 1)));
  for (const std::size_t turn : {160u, 1024u, 32768u}) {
    for (std::size_t count = turn - 40; count <= turn + 40; ++count) {
      const auto front = std::span(bytes).first(count);
      const test::GuardedBuffer buffer(front);
      ASSERT_EQ(UpdateCrc32(kCrc32Start, buffer.Bytes()), expected[count]) << count;
    }
  }
}

TEST_P(Crc32OfKernel, RandomLengthsUpToSomeMegabytes) {
  const std::vector<std::byte> bytes = RandomBytes(5 << 20);
  std::mt19937 random(11);
  for (int i = 0; i < 12; ++i) {
    const auto part = std::span(bytes).subspan(random() % 64).first(random() % (5 << 20));
    const auto start = static_cast<std::uint32_t>(random());
    ASSERT_EQ(UpdateCrc32(start, part), PlainUpdate(start, part)) << part.size();
  }
}

TEST_P(Crc32OfKernel, PiecesGiveWhatTheWholeGives) {
  const std::vector<std::byte> bytes = Pattern(300);
  const std::uint32_t whole = UpdateCrc32(kCrc32Start, bytes);
  for (std::size_t at = 0; at <= bytes.size(); ++at) {
    const std::uint32_t front = UpdateCrc32(kCrc32Start, std::span(bytes).first(at));
    EXPECT_EQ(UpdateCrc32(front, std::span(bytes).subspan(at)), whole) << at;
  }
}

INSTANTIATE_TEST_SUITE_P(Kernels, Crc32OfKernel,
                         ::testing::ValuesIn(utils::Crc32Kernels().begin(), utils::Crc32Kernels().end()),
                         [](const auto& kernel) { return std::string(kernel.param.name); });

TEST(Crc32Kernels, BeginWithTheReference) {
  const auto kernels = utils::Crc32Kernels();
  ASSERT_EQ(kernels.size(), 3u);
  EXPECT_EQ(kernels[0].name, "bytewise");
  EXPECT_EQ(kernels[1].name, "braided");
  EXPECT_EQ(kernels[2].name, "carryless");
  EXPECT_TRUE(kernels[0].runs_here());
  EXPECT_TRUE(kernels[1].runs_here());
}

// A kernel that differs from every other one.
TEST(ScopedCrc32Kernel, ForcesAndReturns) {
  constexpr utils::Crc32Kernel kOdd = {"odd",
                                       [](std::uint32_t, std::span<const std::byte>) noexcept { return 42u; },
                                       []() noexcept { return true; }};
  {
    const utils::ScopedCrc32Kernel forced(kOdd);
    EXPECT_EQ(UpdateCrc32(kCrc32Start, BytesOf("123456789")), 42u);
  }
  EXPECT_EQ(~UpdateCrc32(kCrc32Start, BytesOf("123456789")), 0xCBF43926u);
}

}  // namespace
}  // namespace ravo
