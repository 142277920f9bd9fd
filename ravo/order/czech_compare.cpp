#include <ravo/order/czech_letters.h>
#include <ravo/order/czech_order.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ravo::order {
namespace {

enum class Level : std::uint8_t { Letters, Accents, Capitals };

/// Reads the weights of a text on one level in order. After the last one it repeats for ever the weight that
/// sort keys leave out.
class Weights {
 public:
  Weights(std::string_view text, Level level, const CzechOrder& order) noexcept
      : text_(text), level_(level), order_(order) {}

  [[nodiscard]] bool IsAtEnd() const noexcept { return is_at_end_; }

  std::uint64_t Next() noexcept {
    for (;;) {
      while (element_ < letter_.elements.size()) {
        if (const std::uint64_t weight = WeightOf(letter_.elements[element_++]); weight != 0) return weight;
      }
      if (has_number_) return TakeLengthOfNumber();
      if (!digits_.empty()) return TakeDigit();
      if (text_.empty()) return End();
      TakeLetter();
      if (letter_.unlisted != 0) return WeightOfUnlisted();
    }
  }

 private:
  [[nodiscard]] std::uint64_t WeightOf(std::uint32_t element) const noexcept {
    if (level_ == Level::Accents) return SecondaryWeight(element);
    if (level_ == Level::Capitals) return TertiaryWeight(element);
    const std::uint32_t primary = PrimaryWeight(element);
    return primary == 0 ? 0 : InKeys(LeadInKeys(primary >> 8, order_.digits_first), primary & 0xFF);
  }
  [[nodiscard]] std::uint64_t WeightOfUnlisted() const noexcept {
    return level_ == Level::Letters ? InKeys(czech_table::kUnlistedLead, letter_.unlisted) : kCommonWeight;
  }
  static std::uint64_t InKeys(std::uint8_t lead, std::uint32_t rest) noexcept {
    return std::uint64_t{lead} << 32 | rest;
  }

  void TakeLetter() noexcept {
    letter_ = FirstLetter(text_, order_.natural);
    text_.remove_prefix(letter_.size);
    element_ = 0;
    has_number_ = level_ == Level::Letters && !letter_.digits.empty();
  }
  // More than 0, which is the end.
  std::uint64_t TakeLengthOfNumber() noexcept {
    has_number_ = false;
    digits_ = WithoutZeros(letter_.digits);
    return digits_.size() + 1;
  }
  std::uint64_t TakeDigit() noexcept {
    const auto digit = static_cast<unsigned char>(digits_.front());
    digits_.remove_prefix(1);
    return digit;
  }
  std::uint64_t End() noexcept {
    is_at_end_ = true;
    return level_ == Level::Letters ? 0 : kCommonWeight;
  }

  std::string_view text_;
  Level level_;
  const CzechOrder& order_;
  CzechLetter letter_{};
  std::size_t element_ = 0;
  bool has_number_ = false;
  std::string_view digits_;
  bool is_at_end_ = false;
};

int CompareLevel(std::string_view a, std::string_view b, Level level, const CzechOrder& order) noexcept {
  Weights left(a, level, order);
  Weights right(b, level, order);
  while (!left.IsAtEnd() || !right.IsAtEnd()) {
    const std::uint64_t of_left = left.Next();
    const std::uint64_t of_right = right.Next();
    if (of_left != of_right) return of_left < of_right ? -1 : 1;
  }
  return 0;
}

}  // namespace

int CompareCzech(std::string_view a, std::string_view b, const CzechOrder& order) noexcept {
  for (const Level level : {Level::Letters, Level::Accents}) {
    if (const int result = CompareLevel(a, b, level, order); result != 0) return result;
  }
  return order.ignore_case ? 0 : CompareLevel(a, b, Level::Capitals, order);
}

}  // namespace ravo::order
