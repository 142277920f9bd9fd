#include <ravo/czech/national_accounts.h>
#include <ravo/czech/weights.h>

#include <array>
#include <cstddef>

namespace ravo::czech::detail {
namespace {

constexpr int RemainderOf(std::string_view digits, int divisor) noexcept {
  int remainder = 0;
  for (const char digit : digits) remainder = (remainder * 10 + (digit - '0')) % divisor;
  return remainder;
}

// Bank code, prefix and number, both with a sum divisible by eleven. Zeros alone are no number.
bool MatchesCzechoslovak(std::string_view own) noexcept {
  const int prefix = WeightedSum(own.data() + 4, std::array{10, 5, 8, 4, 2, 1});
  const int number = WeightedSum(own.data() + 10, std::array{6, 3, 7, 9, 10, 5, 8, 4, 2, 1});
  return prefix % 11 == 0 && number % 11 == 0 && number != 0;
}

// Of the ten digits before it, 97 for none.
bool MatchesBelgian(std::string_view own) noexcept {
  const int remainder = RemainderOf(own.substr(0, 10), 97);
  return RemainderOf(own.substr(10), 100) == (remainder == 0 ? 97 : remainder);
}

constexpr char SpanishDigit(int sum) noexcept {
  const int digit = 11 - sum % 11;
  return static_cast<char>('0' + (digit > 9 ? 11 - digit : digit));
}

// One digit for bank and branch, one for the account.
bool MatchesSpanish(std::string_view own) noexcept {
  const int office = WeightedSum(own.data(), std::array{4, 8, 5, 10, 9, 7, 3, 6});
  const int account = WeightedSum(own.data() + 10, std::array{1, 2, 4, 8, 5, 10, 9, 7, 3, 6});
  return own[8] == SpanishDigit(office) && own[9] == SpanishDigit(account);
}

bool MatchesMontenegrin(std::string_view own) noexcept { return RemainderOf(own, 97) == 1; }

// A remainder of one leaves no digit.
bool MatchesNorwegian(std::string_view own) noexcept {
  const int sum = WeightedSum(own.data(), std::array{5, 4, 3, 2, 7, 6, 5, 4, 3, 2});
  return (11 - sum % 11) % 11 == own[10] - '0';
}

struct NationalRow {
  std::string_view country;
  bool (*matches)(std::string_view own) noexcept;
};
constexpr NationalRow kNationalRows[] = {
    {"CZ", MatchesCzechoslovak}, {"SK", MatchesCzechoslovak}, {"BE", MatchesBelgian},
    {"ES", MatchesSpanish},      {"ME", MatchesMontenegrin},  {"NO", MatchesNorwegian},
};

}  // namespace

bool NationalChecksMatch(std::string_view country, std::string_view own) noexcept {
  for (const NationalRow& row : kNationalRows) {
    if (row.country == country) return row.matches(own);
  }
  return true;
}

}  // namespace ravo::czech::detail
