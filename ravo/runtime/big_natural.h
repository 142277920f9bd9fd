#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ravo {

/// A natural number of any size in binary limbs: what rounding to a floating-point format is computed in.
class BigNatural {
 public:
  explicit BigNatural(std::uint64_t value);
  /// Of decimal digits, and nothing else.
  explicit BigNatural(std::string_view digits);

  [[nodiscard]] bool IsZero() const noexcept { return limbs_.empty(); }
  /// How many bits the number has; 0 for zero.
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

/// A natural number of any size in limbs of nine decimal digits: what decimal digits are computed in.
class BigDecimalNatural {
 public:
  explicit BigDecimalNatural(std::uint64_t value);

  void MultiplyByPowerOf2(int power);
  void MultiplyByPowerOf5(int power);

  /// The decimal digits without leading zeros; none for zero.
  [[nodiscard]] std::string Digits() const;

 private:
  // The lowest first, the highest never zero.
  std::vector<std::uint32_t> limbs_;
};

}  // namespace ravo
