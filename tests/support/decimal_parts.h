#pragma once

#include <ravo/runtime/decimal.h>

#include <ostream>
#include <string>
#include <string_view>

namespace ravo::test {

/// A decimal number as a literal of a test row.
struct Decimal {
  bool negative;
  std::string_view digits;
  int point;

  [[nodiscard]] DecimalNumber Number() const { return {negative, std::string(digits), point}; }
};

inline bool operator==(const DecimalNumber& left, const Decimal& right) {
  return left.negative == right.negative && left.digits == right.digits && left.point == right.point;
}

inline std::ostream& operator<<(std::ostream& out, const Decimal& value) {
  return out << (value.negative ? "-0." : "0.") << value.digits << 'e' << value.point;
}

}  // namespace ravo::test

namespace ravo {

inline std::ostream& operator<<(std::ostream& out, const DecimalNumber& value) {
  return out << test::Decimal{value.negative, value.digits, value.point};
}

}  // namespace ravo
