#pragma once

#include <array>
#include <cfenv>
#include <cstdint>

#include <gtest/gtest.h>

/// The states in which a host may have left the floating-point units.
namespace ravo::test {

/// Sets a rounding mode of <cfenv> for the lifetime of this object.
class ScopedRounding {
 public:
  explicit ScopedRounding(int mode) : before_(std::fegetround()) { std::fesetround(mode); }
  ScopedRounding(const ScopedRounding&) = delete;
  ScopedRounding& operator=(const ScopedRounding&) = delete;
  ~ScopedRounding() { std::fesetround(before_); }

 private:
  int before_;
};

/// Sets the precision of the x87 unit, 24, 53 or 64 bits of mantissa, for the lifetime of this object. Does
/// nothing without such a unit.
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

/// Returns the result of `compute` while the processor is in `state`. Calls of the library stay inside that
/// state; plain arithmetic in the test stays inside only with volatile variables, because compilers move it.
template <class Compute>
auto InFloatState(const FloatState& state, const Compute& compute) {
  const ScopedRounding rounding(state.rounding);
  const ScopedX87Precision precision(state.x87_bits);
  return compute();
}

/// Expects the same result of `compute` in every state as in the initial one. Results must be comparable
/// without arithmetic: texts, integers, bits.
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
