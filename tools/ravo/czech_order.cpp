#include "czech_order.h"

#include "generated/czech_order_table.h"
#include "natural_order.h"
#include "utf8_reader.h"

#include <cstddef>

namespace tool {
namespace {

namespace table = czech_order;

constexpr char kNextLevel = 1;
constexpr char kCommonWeight = 2;
constexpr std::string_view kCaron = "\u030C";
// In the order of `kWithCaron`.
constexpr std::string_view kCaronLetters = "cCrRsSzZ";
constexpr std::size_t kTenDigits = 10;

std::uint32_t ElementsOfCode(char32_t code) {
  if (code >= table::kEnd) return table::kUnlisted;
  return table::kElements[table::kPageOf[code / table::kPage] * table::kPage + code % table::kPage];
}

// A letter of two characters, or of a letter and a combining caron.
struct TailoredLetter {
  std::uint32_t element = 0;
  std::size_t size = 0;
};

TailoredLetter TailoredLetterAt(std::string_view text) {
  const std::size_t caron =
      text.size() > kCaron.size() ? kCaronLetters.find(text[0]) : std::string_view::npos;
  if (caron != std::string_view::npos && text.substr(1).starts_with(kCaron)) {
    return {table::kWithCaron[caron], 1 + kCaron.size()};
  }
  if (text.size() < 2 || (text[0] | 0x20) != 'c' || (text[1] | 0x20) != 'h') return {};
  return {table::kCh[(text[0] == 'C' ? 2 : 0) + (text[1] == 'H' ? 1 : 0)], 2};
}

void DropCommonWeights(std::string& level) {
  while (level.ends_with(kCommonWeight)) level.pop_back();
}

}  // namespace

CzechKeys::CzechKeys(const CzechOrder& order) : order_(order) {
  for (std::size_t lead = 0; lead < leads_.size(); ++lead) leads_[lead] = static_cast<char>(lead);
  if (!order.digits_first) return;
  constexpr std::size_t kNumbers = kTenDigits + 1;
  constexpr std::size_t kLetters = table::kNumberLead - table::kFirstLetterLead;
  for (std::size_t i = 0; i < kNumbers; ++i) {
    leads_[table::kNumberLead + i] = static_cast<char>(table::kFirstLetterLead + i);
  }
  for (std::size_t i = 0; i < kLetters; ++i) {
    leads_[table::kFirstLetterLead + i] = static_cast<char>(table::kFirstLetterLead + kNumbers + i);
  }
}

void CzechKeys::Append(std::string_view utf8, std::string& key) {
  secondary_.clear();
  tertiary_.clear();
  while (!utf8.empty()) utf8.remove_prefix(AppendCharacter(utf8, key));
  AppendLevels(key);
}

// Returns how many bytes are done.
std::size_t CzechKeys::AppendCharacter(std::string_view rest, std::string& key) {
  if (const std::size_t digits = order_.natural ? LengthOfDigits(rest) : 0; digits != 0) {
    AppendElement(table::kNumberLead << 21 | kCommonWeight << 5 | kCommonWeight, key);
    AppendNumberKey(rest.substr(0, digits), key);
    return digits;
  }
  if (const TailoredLetter letter = TailoredLetterAt(rest); letter.size != 0) {
    AppendElement(letter.element, key);
    return letter.size;
  }
  const Utf8Character character = FirstCharacter(rest);
  if (character.size == 0) return 1;
  const std::uint32_t elements = ElementsOfCode(character.code);
  if (elements == table::kUnlisted) {
    AppendUnlisted(character.code, key);
  } else {
    AppendElements(elements, key);
  }
  return character.size;
}

void CzechKeys::AppendElements(std::uint32_t elements, std::string& key) {
  if (elements >> 31 == 0) return AppendElement(elements, key);
  const std::uint32_t first = elements & 0xFFFF;
  const std::uint32_t count = elements >> 16 & 0xFF;
  for (std::uint32_t i = 0; i < count; ++i) AppendElement(table::kExpansions[first + i], key);
}

void CzechKeys::AppendElement(std::uint32_t element, std::string& key) {
  if (const std::uint32_t primary = element >> 13; primary != 0) {
    key += leads_[primary >> 8];
    if ((primary & 0xFF) != 0) key += static_cast<char>(primary & 0xFF);
  }
  if (const auto weight = static_cast<char>(element >> 5 & 0xFF); weight != 0) secondary_ += weight;
  if (const auto weight = static_cast<char>(element & 0x1F); weight != 0) tertiary_ += weight;
}

void CzechKeys::AppendUnlisted(char32_t code, std::string& key) {
  key += static_cast<char>(table::kUnlistedLead);
  for (const int shift : {14, 7, 0}) key += static_cast<char>(0x80 | (code >> shift & 0x7F));
  secondary_ += kCommonWeight;
  tertiary_ += kCommonWeight;
}

void CzechKeys::AppendLevels(std::string& key) {
  if (order_.ignore_case) tertiary_.clear();
  DropCommonWeights(secondary_);
  DropCommonWeights(tertiary_);
  if (secondary_.empty() && tertiary_.empty()) return;
  key += kNextLevel;
  key += secondary_;
  if (tertiary_.empty()) return;
  key += kNextLevel;
  key += tertiary_;
}

}  // namespace tool
