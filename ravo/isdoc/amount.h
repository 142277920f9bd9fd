#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ravo::isdoc {

/// An exact decimal number of a document: an amount, a quantity, a rate.
///
/// The standard gives amounts no limit of decimals, and unit prices have many. What is read has at most 18
/// digits on either side of the point, so that a sum of a hundred thousand products of two of them is exact.
/// Nothing allocates but `Text`.
class Amount {
 public:
  /// The most digits before the point and after it.
  static constexpr int kMostDigits = 18;

  constexpr Amount() noexcept = default;
  /// `value` / 10^`decimals`: `Amount(5, 3)` is 0.005.
  explicit Amount(std::int64_t value, int decimals = 0) noexcept;

  /// Returns the number in `text`: digits with a sign and a point perhaps, white space around them. Nothing
  /// for another text and for more digits than `kMostDigits`; zeros at either end do not count.
  [[nodiscard]] static std::optional<Amount> Read(std::string_view text) noexcept;

  [[nodiscard]] bool IsZero() const noexcept;
  [[nodiscard]] bool IsNegative() const noexcept { return negative_ && !IsZero(); }
  /// How many decimals were written: 2 of "1.50".
  [[nodiscard]] int Decimals() const noexcept { return decimals_; }

  /// Returns the number rounded to `decimals`, halves away from zero.
  [[nodiscard]] Amount Rounded(int decimals) const noexcept;
  /// Returns a hundredth of the number.
  [[nodiscard]] Amount Hundredth() const noexcept;
  [[nodiscard]] Amount Absolute() const noexcept;
  /// Returns half a unit of the last decimal, of at least two: of "1.500" 0.0005.
  [[nodiscard]] Amount HalfUnit() const noexcept;
  /// Returns the quotient rounded to `decimals`, halves away from zero. Nothing for a divisor of zero and for
  /// one that takes more than nine digits to write.
  [[nodiscard]] std::optional<Amount> DividedBy(const Amount& divisor, int decimals) const noexcept;

  /// Returns the number with two decimals at least, and no more zeros at the end than these.
  [[nodiscard]] std::string Text() const;

  [[nodiscard]] Amount operator-() const noexcept;
  friend Amount operator+(const Amount& left, const Amount& right) noexcept;
  friend Amount operator-(const Amount& left, const Amount& right) noexcept { return left + -right; }
  friend Amount operator*(const Amount& left, const Amount& right) noexcept;
  Amount& operator+=(const Amount& other) noexcept { return *this = *this + other; }
  friend std::strong_ordering operator<=>(const Amount& left, const Amount& right) noexcept;
  friend bool operator==(const Amount& left, const Amount& right) noexcept {
    return std::is_eq(left <=> right);
  }

 private:
  // Room for two products' worth of digits: 96.
  static constexpr std::size_t kLimbs = 10;
  using Limbs = std::array<std::uint32_t, kLimbs>;

  // Multiplies by 10^`power`.
  void Scale(int power) noexcept;
  // Divides by `divisor`, toward zero; returns the remainder.
  std::uint32_t Divide(std::uint32_t divisor) noexcept;
  void MultiplyAndAdd(std::uint32_t factor, std::uint32_t addend) noexcept;
  [[nodiscard]] Amount WithDecimals(int decimals) const noexcept;

  Limbs limbs_{};  // the lowest first
  bool negative_ = false;
  int decimals_ = 0;
};

}  // namespace ravo::isdoc
