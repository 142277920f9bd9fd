// Code in this file computes like a host compiled for the x87 unit.
#if defined(__i386__) && defined(__GNUC__) && !defined(__clang__)
#pragma GCC target("fpmath=387")
#endif

#include "support/float_environment.h"
#include <ravo/utils/random.h>

#include <bit>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

constexpr int kFloatDraws = 2000;

using Draw = double (TMT19937::*)();

template <class Number>
std::vector<std::uint64_t> Bits(Number number) {
  TMT19937 generator(5489);
  std::vector<std::uint64_t> bits;
  for (int i = 0; i < kFloatDraws; ++i) bits.push_back(std::bit_cast<std::uint64_t>(number(generator)));
  return bits;
}

TEST(GenrandReal, IsTheSameInEveryFloatState) {
  test::ExpectSameInEveryFloatState([] { return Bits([](TMT19937& g) { return g.genrand_real1(); }); });
  test::ExpectSameInEveryFloatState([] { return Bits([](TMT19937& g) { return g.genrand_real2(); }); });
  test::ExpectSameInEveryFloatState([] { return Bits([](TMT19937& g) { return g.genrand_real3(); }); });
  test::ExpectSameInEveryFloatState([] { return Bits([](TMT19937& g) { return g.genrand_res53(); }); });
}

// Draw 745 of this seed, counted from 0, is above 4294967167: rounded to 24 bits it is 2^32.
TEST(GenrandReal, StaysBelowOneInEveryFloatState) {
  for (const test::FloatState& state : test::kFloatStates) {
    const auto reaches_one = test::InFloatState(state, [] {
      TMT19937 generator(10694);
      constexpr std::uint64_t kOne = 0x3FF0000000000000;
      int count = 0;
      for (int i = 0; i < 1000; ++i) {
        if (std::bit_cast<std::uint64_t>(generator.genrand_real2()) >= kOne) ++count;
      }
      return count;
    });
    EXPECT_EQ(reaches_one, 0) << state.rounding << ' ' << state.x87_bits;
  }
}

}  // namespace
}  // namespace ravo::DIUtils
