#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ravo {

/// An arbitrary-precision natural number in binary limbs, for rounding to a floating-point format.
class BigNatural {
 public:
  explicit BigNatural(std::uint64_t value);
  /// `digits` must be decimal digits only.
  explicit BigNatural(std::string_view digits);

  [[nodiscard]] bool IsZero() const noexcept { return limbs_.empty(); }
  /// Returns the number of bits; 0 for zero.
  [[nodiscard]] int BitLength() const noexcept;

  void MultiplyByPowerOf5(int power);
  void ShiftLeft(int bits);
  void Add(const BigNatural& other);
  /// `other` must not be greater.
  void Subtract(const BigNatural& other);

  friend bool operator==(const BigNatural&, const BigNatural&) = default;
  friend std::strong_ordering operator<=>(const BigNatural& left, const BigNatural& right) noexcept;

 private:
  void DropLeadingZeros() noexcept;

  // The lowest first, the highest never zero.
  std::vector<std::uint32_t> limbs_;
};

/// An arbitrary-precision natural number in limbs of nine decimal digits, for exact decimal output.
class BigDecimalNatural {
 public:
  explicit BigDecimalNatural(std::uint64_t value);

  void MultiplyByPowerOf2(int power);
  void MultiplyByPowerOf5(int power);

  /// Returns the decimal digits without leading zeros; empty for zero.
  [[nodiscard]] std::string Digits() const;

 private:
  // The lowest first, the highest never zero.
  std::vector<std::uint32_t> limbs_;
};

}  // namespace ravo
