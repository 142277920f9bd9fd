#include <ravo/runtime/extended.h>

#include <limits>

#include <gtest/gtest.h>

namespace ravo {
namespace {

TEST(Extended, HasA64BitMantissaWhereTheCompilerHasSuchAType) {
#if defined(__i386__) || defined(__x86_64__)
  EXPECT_EQ(std::numeric_limits<Extended>::digits, 64);
  EXPECT_EQ(std::numeric_limits<Extended>::max_exponent10, 4932);
#else
  EXPECT_GE(std::numeric_limits<Extended>::digits, 53);
#endif
}

}  // namespace
}  // namespace ravo
