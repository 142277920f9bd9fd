#include <ravo/czech/country.h>
#include <ravo/czech/iban.h>
#include <ravo/czech/national_accounts.h>
#include <ravo/czech/reading.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace ravo::czech {
namespace {

struct IbanRow {
  std::string_view country;
  std::string_view form;  // past the check digits: n digit, a letter, c either
  bool digits_alone;
};
consteval bool IsDigitsAlone(std::string_view form) {
  return form.find_first_not_of('n') == std::string_view::npos;
}
constexpr IbanRow kIbanRows[] = {
#define RAVO_IBAN(country, form) {country, form, IsDigitsAlone(form)},
#include "generated/iban_countries.inc"
#undef RAVO_IBAN
};
constexpr auto kIbanIndex = detail::IndexByCountry(kIbanRows);

constexpr detail::Spelling kIbanSpelling{Code::IbanEmpty,
                                         Code::IbanCharacter,
                                         Code::IbanLength,
                                         detail::kDigit | detail::kLetter,
                                         detail::kBlank | detail::kHyphen | detail::kDot,
                                         {"IBAN"}};
constexpr std::size_t kIbanHead = 4;
// The longest own part, and the room for loops of known length over any.
constexpr std::size_t kOwnMost = 30;
constexpr std::size_t kOwnRoom = 32;
constexpr std::size_t kIbanRoom = kIbanHead + kOwnRoom;

constexpr bool IsDigit(char character) noexcept { return character >= '0' && character <= '9'; }

// Whether the character is of the form's kind.
constexpr bool FitsIban(char character, char form) noexcept {
  return form == 'c' || IsDigit(character) == (form == 'n');
}

// The first character that is not; the length otherwise.
std::size_t OddCharacter(std::string_view characters, std::string_view form) noexcept {
  bool fits = true;
  for (std::size_t i = 0; i < form.size(); ++i) fits &= FitsIban(characters[i], form[i]);
  std::size_t odd = fits ? form.size() : 0;
  while (odd < form.size() && FitsIban(characters[odd], form[odd])) ++odd;
  return odd;
}

constexpr std::size_t kMostDecimals = 72;
constexpr auto kPowersOfTen = [] {
  std::array<std::uint8_t, kMostDecimals> powers{};
  int power = 1;
  for (std::uint8_t& entry : powers) {
    entry = static_cast<std::uint8_t>(power);
    power = power * 10 % 97;
  }
  return powers;
}();

// Adds a text's digits and letters, from its end on, to a sum by powers of ten; `decimal` is the next power.
inline int SumOf(std::string_view text, std::size_t& decimal) noexcept {
  int sum = 0;
  for (std::size_t i = text.size(); i-- > 0;) {
    const int digit = text[i] - '0';
    const bool is_letter = digit > 9;
    sum += (is_letter ? digit - 7 : digit) * kPowersOfTen[decimal];
    decimal += is_letter ? 2 : 1;
  }
  return sum;
}

// By place in an own part of the most digits: the powers of ten that its digits have in the whole, and the
// largest digits; past its end nothing counts. Shorter ones begin farther on.
constexpr auto kOwnPowers = [] {
  std::array<std::uint8_t, kOwnMost + kOwnRoom> powers{};
  for (std::size_t i = 0; i < kOwnMost; ++i) powers[i] = kPowersOfTen[kOwnMost - 1 - i + 6];
  return powers;
}();
constexpr auto kOwnLargest = [] {
  std::array<std::uint8_t, kOwnMost + kOwnRoom> largest{};
  for (std::size_t i = 0; i < largest.size(); ++i) largest[i] = i < kOwnMost ? 9 : 255;
  return largest;
}();

// Whether the first `size` of `own` are digits. Precondition: `kOwnRoom` characters can be read.
inline bool AreDigits(const char* own, std::size_t size) noexcept {
  const std::uint8_t* const largest = &kOwnLargest[kOwnMost - size];
  unsigned odd = 0;
  for (std::size_t i = 0; i < kOwnRoom; ++i)
    odd |= static_cast<std::uint8_t>(own[i] - '0') > largest[i] ? 1U : 0U;
  return odd == 0;
}

// What these digits add to the remainder of the whole. Precondition: as above.
inline int SumOfDigits(const char* own, std::size_t size) noexcept {
  const std::uint8_t* const powers = &kOwnPowers[kOwnMost - size];
  int sum = 0;
  for (std::size_t i = 0; i < kOwnRoom; ++i) {
    sum += static_cast<std::int16_t>(static_cast<std::uint8_t>(own[i] - '0')) *
           static_cast<std::int16_t>(powers[i]);
  }
  return sum;
}

template <class Unit>
Parsed<Iban> ParseIbanIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<kIbanRoom>(text, kIbanSpelling);
  const auto refuse = [&](std::size_t index, Code code) {
    return detail::Refuse<Iban>(text, kIbanSpelling, kept.from, index, code);
  };
  if (kept.code != Code::Correct && kept.code != Code::IbanLength) return {{}, kept.code, kept.position};
  const std::string_view iban = kept.View();
  const std::size_t row = iban.size() < 2 ? 0 : kIbanIndex[detail::CountryNumber(iban[0], iban[1])];
  if (row == 0) return refuse(0, Code::IbanCountry);
  const std::string_view form = kIbanRows[row - 1].form;
  if (iban.size() < kIbanHead + form.size()) return {{}, Code::IbanLength, text.size()};
  if (kept.code != Code::Correct || iban.size() > kIbanHead + form.size()) {
    return refuse(kIbanHead + form.size(), Code::IbanLength);
  }
  const std::string_view own = iban.substr(kIbanHead);
  if (!IsDigit(iban[2])) return refuse(2, Code::IbanForm);
  if (!IsDigit(iban[3])) return refuse(3, Code::IbanForm);
  const bool digits_alone = kIbanRows[row - 1].digits_alone && AreDigits(own.data(), own.size());
  const std::size_t odd = digits_alone ? form.size() : OddCharacter(own, form);
  if (odd < form.size()) return refuse(kIbanHead + odd, Code::IbanForm);
  std::size_t decimal = 0;
  const int head = SumOf(iban.substr(0, kIbanHead), decimal);
  const int sum = head + (digits_alone ? SumOfDigits(own.data(), own.size()) : SumOf(own, decimal));
  const int check = (iban[2] - '0') * 10 + (iban[3] - '0');
  if (check < 2 || check > 98 || sum % 97 != 1) return refuse(2, Code::IbanChecksum);
  if (!detail::NationalChecksMatch(iban.substr(0, 2), own)) return refuse(kIbanHead, Code::IbanNational);
  return {{Resized<34>(kept.text)}};
}

}  // namespace

int detail::IbanRemainder(std::string_view iban) noexcept {
  std::size_t decimal = 0;
  const int head = SumOf(iban.substr(0, kIbanHead), decimal);
  return (head + SumOf(iban.substr(kIbanHead), decimal)) % 97;
}

Parsed<Iban> ParseIban(std::string_view text) noexcept { return ParseIbanIn(text); }
Parsed<Iban> ParseIban(std::u16string_view text) noexcept { return ParseIbanIn(text); }

FixedText<42> Format(const Iban& iban) noexcept {
  FixedText<42> text;
  for (std::size_t i = 0; i < iban.text.size; ++i) {
    if (i > 0 && i % 4 == 0) text.Append(' ');
    text.Append(iban.text.characters[i]);
  }
  return text;
}

}  // namespace ravo::czech
