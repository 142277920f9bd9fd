#include <ravo/czech/fixed_text.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include <gtest/gtest.h>

namespace ravo::czech {
namespace {

std::string Printed(std::uint64_t number, int digits) {
  char text[24];
  std::snprintf(text, sizeof text, "%0*llu", digits, static_cast<unsigned long long>(number));
  return text;
}

// In plenty of room, and as the last characters of a text that is full.
void ExpectNumber(std::uint64_t number, int digits) {
  const std::string printed = Printed(number, digits);
  FixedText<24> roomy;
  roomy.Append('x');
  roomy.AppendNumber(number, digits);
  ASSERT_EQ(roomy.View(), "x" + printed);
  for (std::size_t i = roomy.size; i < roomy.characters.size(); ++i) ASSERT_EQ(roomy.characters[i], '\0');
  auto full = Fixed<16>(std::string(16 - printed.size(), 'x'));
  full.AppendNumber(number, digits);
  ASSERT_EQ(full.View(), std::string(16 - printed.size(), 'x') + printed);
}

TEST(FixedText, AppendsNumbersAsTheyArePrinted) {
  for (std::uint64_t number = 0; number < 100'000; ++number) ExpectNumber(number, 4);
  for (std::uint64_t power = 1; power <= 1'000'000'000; power *= 10) {
    for (int digits = 1; digits <= 10; ++digits) {
      for (const std::uint64_t number : {power - 1, power, power + 1, power * 9 + 8})
        ExpectNumber(number, digits);
    }
  }
  ExpectNumber(9'999'999'999, 1);
  std::uint64_t state = 1;
  for (int i = 0; i < 100'000; ++i) {
    state = state * 6364136223846793005U + 1442695040888963407U;
    ExpectNumber((state >> 11) % 10'000'000'000, 1);
  }
}

}  // namespace
}  // namespace ravo::czech
