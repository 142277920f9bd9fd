// zlib as a witness of the checksum.
#include <ravo/utils/checksums.h>
#include <ravo/utils/crc32_kernels.h>

#include <random>
#include <vector>

#include <gtest/gtest.h>
#include <zlib.h>

namespace ravo::DIUtils {
namespace {

TEST(Crc32OfBuf, IsWhatZlibGives) {
  std::mt19937 random(7);
  std::vector<unsigned char> bytes(100'000);
  for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(random());
  for (const utils::Crc32Kernel& kernel : utils::Crc32Kernels()) {
    if (!kernel.runs_here()) continue;
    const utils::ScopedCrc32Kernel forced(kernel);
    for (std::size_t count = 0; count < 2000; ++count)
      ASSERT_EQ(Crc32OfBuf(bytes.data(), count), crc32(0, bytes.data(), static_cast<uInt>(count)))
          << kernel.name;
    EXPECT_EQ(Crc32OfBuf(bytes.data(), bytes.size()),
              crc32(0, bytes.data(), static_cast<uInt>(bytes.size())));
  }
}

}  // namespace
}  // namespace ravo::DIUtils
