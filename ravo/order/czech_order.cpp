#include <ravo/order/czech_letters.h>
#include <ravo/order/czech_order.h>

#include <cstddef>

namespace ravo::order {
namespace {

constexpr char kNextLevel = 1;

void DropCommonWeights(std::string& level) {
  while (level.ends_with(static_cast<char>(kCommonWeight))) level.pop_back();
}

}  // namespace

CzechKeys::CzechKeys(const CzechOrder& order) : order_(order) {
  for (std::uint32_t lead = 0; lead < leads_.size(); ++lead)
    leads_[lead] = static_cast<char>(LeadInKeys(lead, order.digits_first));
}

void CzechKeys::Append(std::string_view utf8, std::string& key) {
  secondary_.clear();
  tertiary_.clear();
  while (!utf8.empty()) {
    const CzechLetter letter = FirstLetter(utf8, order_.natural);
    AppendLetter(letter, key);
    utf8.remove_prefix(letter.size);
  }
  AppendLevels(key);
}

void CzechKeys::AppendLetter(const CzechLetter& letter, std::string& key) {
  for (const std::uint32_t element : letter.elements) AppendElement(element, key);
  if (letter.unlisted != 0) AppendUnlisted(letter.unlisted, key);
  if (!letter.digits.empty()) AppendNumberKey(letter.digits, key);
}

void CzechKeys::AppendElement(std::uint32_t element, std::string& key) {
  if (const std::uint32_t primary = PrimaryWeight(element); primary != 0) {
    key += leads_[primary >> 8];
    if ((primary & 0xFF) != 0) key += static_cast<char>(primary & 0xFF);
  }
  if (const auto weight = static_cast<char>(SecondaryWeight(element)); weight != 0) secondary_ += weight;
  if (const auto weight = static_cast<char>(TertiaryWeight(element)); weight != 0) tertiary_ += weight;
}

void CzechKeys::AppendUnlisted(char32_t code, std::string& key) {
  key += static_cast<char>(czech_table::kUnlistedLead);
  for (const int shift : {14, 7, 0}) key += static_cast<char>(0x80 | (code >> shift & 0x7F));
  secondary_ += static_cast<char>(kCommonWeight);
  tertiary_ += static_cast<char>(kCommonWeight);
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

}  // namespace ravo::order
