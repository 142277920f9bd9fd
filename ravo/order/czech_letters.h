#pragma once

#include <ravo/convert/utf8_reader.h>
#include <ravo/order/generated/czech_order_table.h>
#include <ravo/order/number_keys.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace ravo::order {

/// What a text has at one place: a letter, which may be of two characters, or a number.
struct CzechLetter {
  /// Elements of generated/czech_order_table.h.
  std::span<const std::uint32_t> elements;
  /// A character that the table does not have; 0 for any other.
  char32_t unlisted = 0;
  /// Of a number that compares by its value.
  std::string_view digits;
  /// In bytes.
  std::size_t size = 0;
};

inline constexpr std::uint8_t kCommonWeight = 2;
inline constexpr std::uint32_t kNumberElement =
    std::uint32_t{czech_table::kNumberLead} << 21 | std::uint32_t{kCommonWeight} << 5 | kCommonWeight;

// Of an element.
constexpr std::uint32_t PrimaryWeight(std::uint32_t element) noexcept { return element >> 13; }
constexpr std::uint8_t SecondaryWeight(std::uint32_t element) noexcept { return element >> 5 & 0xFF; }
constexpr std::uint8_t TertiaryWeight(std::uint32_t element) noexcept { return element & 0x1F; }

/// Returns the first byte of a primary weight in keys.
constexpr std::uint8_t LeadInKeys(std::uint32_t lead, bool digits_first) noexcept {
  constexpr unsigned kNumbers = 11;  // the ten digits, and numbers by their value
  constexpr unsigned kFirst = czech_table::kFirstLetterLead;
  constexpr unsigned kNumber = czech_table::kNumberLead;
  if (!digits_first || lead < kFirst || lead >= kNumber + kNumbers) return static_cast<std::uint8_t>(lead);
  return static_cast<std::uint8_t>(lead < kNumber ? lead + kNumbers : lead - kNumber + kFirst);
}

/// The letters of Czech that are two characters: "ch", and a letter with a combining caron.
inline CzechLetter LetterOfTwo(std::string_view text) noexcept {
  constexpr std::string_view kCaron = "\u030C";
  // In the order of `kWithCaron`.
  constexpr std::string_view kCaronLetters = "cCrRsSzZ";
  const std::size_t caron =
      text.size() > kCaron.size() ? kCaronLetters.find(text[0]) : std::string_view::npos;
  if (caron != std::string_view::npos && text.substr(1).starts_with(kCaron)) {
    return {{czech_table::kWithCaron + caron, 1}, 0, {}, 1 + kCaron.size()};
  }
  if (text.size() < 2 || (text[0] | 0x20) != 'c' || (text[1] | 0x20) != 'h') return {};
  return {{czech_table::kCh + (text[0] == 'C' ? 2 : 0) + (text[1] == 'H' ? 1 : 0), 1}, 0, {}, 2};
}

inline CzechLetter LetterOfOne(char32_t code, std::size_t size) noexcept {
  constexpr unsigned kPage = czech_table::kPage;
  if (code >= czech_table::kEnd) return {{}, code, {}, size};
  const std::uint32_t& entry =
      czech_table::kElements[czech_table::kPageOf[code / kPage] * kPage + code % kPage];
  if (entry == czech_table::kUnlisted) return {{}, code, {}, size};
  if (entry >> 31 == 0) return {{&entry, 1}, 0, {}, size};
  return {{czech_table::kExpansions + (entry & 0xFFFF), entry >> 16 & 0xFF}, 0, {}, size};
}

/// Returns what a text, which is not empty, begins with. A byte that is not UTF-8 has no weight.
inline CzechLetter FirstLetter(std::string_view text, bool natural) noexcept {
  if (const std::size_t digits = natural ? LengthOfDigits(text) : 0; digits != 0)
    return {{&kNumberElement, 1}, 0, text.substr(0, digits), digits};
  if (const CzechLetter two = LetterOfTwo(text); two.size != 0) return two;
  const convert::Utf8Character character = convert::FirstCharacter(text);
  if (character.size == 0) return {{}, 0, {}, 1};
  return LetterOfOne(character.code, character.size);
}

}  // namespace ravo::order
