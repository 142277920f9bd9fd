#include <ravo/common/accounts.h>
#include <ravo/runtime/checked.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace ravo::RavoInterfaceCommon {
namespace {

constexpr bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
constexpr std::int32_t ValueOf(char16_t digit) { return digit - u'0'; }

// Converts a sum of digits to the checked 32-bit sum.
std::int32_t CheckedSum(std::uint64_t sum) {
  if (sum > std::numeric_limits<std::int32_t>::max()) throw OverflowError(u"Integer overflow");
  return static_cast<std::int32_t>(sum);
}

}  // namespace

bool IsNumbers(std::u16string_view text) noexcept {
  return !text.empty() && std::ranges::all_of(text, IsDigit);
}

bool ValidSU(std::u16string_view text) noexcept { return text.size() == 3 && IsNumbers(text); }

// Kept: an empty analytic account is valid, because an account may have no analytic part. Test:
// ValidAU.IsUpToThreeDigitsAndMayBeEmpty
bool ValidAU(std::u16string_view text) noexcept {
  return text.empty() || (text.size() <= 3 && IsNumbers(text));
}

bool ValidUcet(std::u16string_view text) noexcept {
  return text.size() >= 3 && text.size() <= 6 && IsNumbers(text);
}

void UcetNaSUAU(std::u16string_view Ucet, std::u16string& SU, std::u16string& AU) {
  const std::u16string_view synthetic = Ucet.substr(0, 3);
  const std::u16string_view analytic = Trimmed(Ucet.substr(synthetic.size()).substr(0, 3));
  // Both parts are copied before a result is written: an argument may alias a result.
  std::u16string su(synthetic);
  AU = std::u16string(analytic);
  SU = std::move(su);
}

bool ValidVS(std::u16string_view text) {
  // One pass from the right, two digits at a time; 64 bits hold the sum of any text that fits into memory.
  constexpr auto kDoubled = [](unsigned digit) { return 2 * digit - (digit > 4 ? 9 : 0); };
  std::uint64_t sum = 0;
  bool digits_alone = !text.empty();
  std::size_t left = text.size();
  for (; left >= 2; left -= 2) {
    const unsigned single = unsigned{text[left - 1]} - u'0';
    const unsigned doubled = unsigned{text[left - 2]} - u'0';
    digits_alone &= single <= 9 && doubled <= 9;
    sum += single + kDoubled(doubled);
  }
  if (left == 1) {
    digits_alone &= IsDigit(text.front());
    sum += unsigned{text.front()} - u'0';
  }
  return digits_alone && CheckedSum(sum) % 10 == 0;
}

// Kept: prefix and base number form one weighted sum: 1-9 is valid although neither part is. Test:
// UcetMod11.PrefixAndBaseNumberFormOneSum
bool UcetMod11(std::u16string_view text) {
  // The weights 2^1, 2^2, ... modulo 11, from the right; they repeat.
  constexpr std::array<std::int32_t, 10> kWeights{2, 4, 8, 5, 10, 9, 7, 3, 6, 1};
  constexpr std::size_t kMostDigits = 62;  // 2^63 does not fit a signed 64-bit integer
  text = text.substr(0, text.find(u'/'));
  std::int32_t sum = 0;
  std::size_t digits = 0;
  for (auto unit = text.rbegin(); unit != text.rend(); ++unit) {
    if (!IsDigit(*unit)) continue;
    if (digits == kMostDigits) throw FloatError(u"Invalid floating point operation");
    sum += ValueOf(*unit) * kWeights[digits % kWeights.size()];
    ++digits;
  }
  return digits > 0 && sum % 11 == 0;
}

namespace {

constexpr std::size_t kDataDigits = 12;

// Returns the check digit of 12 data digits, or of 7 data digits after five zeros.
char16_t EanCheckDigit(std::u16string_view data) {
  std::int32_t sum = 0;
  for (std::size_t i = 0; i < data.size(); ++i) {
    const bool even_position = (kDataDigits - data.size() + i) % 2 != 0;
    sum += ValueOf(data[i]) * (even_position ? 3 : 1);
  }
  return static_cast<char16_t>(u'0' + (10 - sum % 10) % 10);
}

bool IsEanLength(std::size_t length) { return length == 7 || length == 8 || length == 12 || length == 13; }

}  // namespace

// Kept: the check digit of the code and the computed one are not compared; the caller gets both. Test:
// CalculateEAN.CompletesAndComparesCodes
bool CalculateEAN(std::u16string_view code, std::u16string& OldCheck, std::u16string& NewCheck,
                  std::u16string& FullCode) {
  const std::u16string_view trimmed = Trimmed(code);
  const bool valid = IsEanLength(trimmed.size()) && IsNumbers(trimmed);
  // Copied before the results are written: `code` may alias one of them.
  std::array<char16_t, 13> digits{};
  if (valid) std::ranges::copy(trimmed, digits.begin());
  const bool carries_check = trimmed.size() == 8 || trimmed.size() == 13;
  const std::u16string_view data(digits.data(), valid ? trimmed.size() - (carries_check ? 1 : 0) : 0);
  OldCheck = valid && carries_check ? digits[data.size()] : u' ';
  NewCheck = valid ? EanCheckDigit(data) : u' ';
  FullCode = data;
  if (valid) FullCode += NewCheck;
  return valid;
}

}  // namespace ravo::RavoInterfaceCommon
