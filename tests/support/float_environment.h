#pragma once

#include <array>
#include <cfenv>
#include <cstdint>

#include <gtest/gtest.h>

/// The states in which a host may have left the processor's floating-point units.
namespace ravo::test {

/// A rounding mode of <cfenv>, put back at the end of the scope.
class ScopedRounding {
 public:
  explicit ScopedRounding(int mode) : before_(std::fegetround()) { std::fesetround(mode); }
  ScopedRounding(const ScopedRounding&) = delete;
  ScopedRounding& operator=(const ScopedRounding&) = delete;
  ~ScopedRounding() { std::fesetround(before_); }

 private:
  int before_;
};

/// How many bits of the mantissa the x87 unit computes: 24, 53 or 64. Put back at the end of the scope.
/// Without such a unit it does nothing.
class ScopedX87Precision {
 public:
  explicit ScopedX87Precision(int bits) : before_(ControlWord()) {
    const unsigned precision = bits == 24 ? 0U : bits == 53 ? 2U : 3U;
    SetControlWord(static_cast<std::uint16_t>((before_ & ~0x300U) | (precision << 8)));
  }
  ScopedX87Precision(const ScopedX87Precision&) = delete;
  ScopedX87Precision& operator=(const ScopedX87Precision&) = delete;
  ~ScopedX87Precision() { SetControlWord(before_); }

#if defined(__i386__) || defined(__x86_64__)
  static std::uint16_t ControlWord() {
    std::uint16_t word = 0;
    __asm__ volatile("fnstcw %0" : "=m"(word));
    return word;
  }

 private:
  static void SetControlWord(std::uint16_t word) { __asm__ volatile("fldcw %0" : : "m"(word)); }
#else
  static std::uint16_t ControlWord() { return 0; }

 private:
  static void SetControlWord(std::uint16_t) {}
#endif

  std::uint16_t before_;
};

struct FloatState {
  int rounding;
  int x87_bits;
};

constexpr std::array kFloatStates{
    FloatState{FE_TONEAREST, 24}, FloatState{FE_TONEAREST, 53},  FloatState{FE_TONEAREST, 64},
    FloatState{FE_UPWARD, 24},    FloatState{FE_UPWARD, 64},     FloatState{FE_DOWNWARD, 53},
    FloatState{FE_DOWNWARD, 64},  FloatState{FE_TOWARDZERO, 24}, FloatState{FE_TOWARDZERO, 64},
};

/// What `compute` answers while the processor is in `state`. Calls of the library stay inside; plain
/// arithmetic of the test itself does so only by way of volatile variables, since compilers move it past a
/// change of state.
template <class Compute>
auto InFloatState(const FloatState& state, const Compute& compute) {
  const ScopedRounding rounding(state.rounding);
  const ScopedX87Precision precision(state.x87_bits);
  return compute();
}

/// Expects that `compute` answers the same in every state as in the one that the test program runs in. What
/// it answers must be comparable without arithmetic: texts, integers, bits.
template <class Compute>
void ExpectSameInEveryFloatState(const Compute& compute) {
  const auto expected = compute();
  for (const FloatState& state : kFloatStates) {
    SCOPED_TRACE(testing::Message() << "rounding " << state.rounding << ", x87 bits " << state.x87_bits);
    const auto actual = InFloatState(state, compute);
    EXPECT_EQ(actual, expected);
  }
}

}  // namespace ravo::test
