#include "amount.h"

#include "blanks.h"

#include <algorithm>
#include <utility>

namespace ravo::isdoc {
namespace {

constexpr std::string_view kDigits = "0123456789";

// The digits of a number on either side of its point.
struct Parts {
  std::string_view whole;
  std::string_view fraction;
};

std::optional<Parts> PartsOf(std::string_view text) {
  const std::size_t point = std::min(text.find('.'), text.size());
  const Parts parts{text.substr(0, point), text.substr(std::min(point + 1, text.size()))};
  if (parts.whole.size() + parts.fraction.size() == 0) return std::nullopt;
  const auto is_number = [](std::string_view digits) {
    return digits.find_first_not_of(kDigits) == std::string_view::npos;
  };
  return is_number(parts.whole) && is_number(parts.fraction) ? std::optional(parts) : std::nullopt;
}

std::strong_ordering CompareSizes(const std::array<std::uint32_t, 10>& left,
                                  const std::array<std::uint32_t, 10>& right) {
  return std::lexicographical_compare_three_way(left.rbegin(), left.rend(), right.rbegin(), right.rend());
}

}  // namespace

Amount::Amount(std::int64_t value, int decimals) noexcept : negative_(value < 0), decimals_(decimals) {
  const std::uint64_t size =
      negative_ ? std::uint64_t{0} - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
  limbs_[0] = static_cast<std::uint32_t>(size);
  limbs_[1] = static_cast<std::uint32_t>(size >> 32);
}

std::optional<Amount> Amount::Read(std::string_view text) noexcept {
  text = Trimmed(text);
  Amount result;
  result.negative_ = text.starts_with('-');
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  auto parts = PartsOf(text);
  if (!parts) return std::nullopt;
  parts->whole.remove_prefix(std::min(parts->whole.find_first_not_of('0'), parts->whole.size()));
  if (parts->fraction.size() > kMostDigits)
    parts->fraction = parts->fraction.substr(
        0, std::max<std::size_t>(kMostDigits, parts->fraction.find_last_not_of('0') + 1));
  if (parts->whole.size() > kMostDigits || parts->fraction.size() > kMostDigits) return std::nullopt;
  for (const std::string_view digits : {parts->whole, parts->fraction}) {
    for (const char digit : digits) result.MultiplyAndAdd(10, static_cast<std::uint32_t>(digit - '0'));
  }
  result.decimals_ = static_cast<int>(parts->fraction.size());
  return result;
}

bool Amount::IsZero() const noexcept {
  return std::ranges::all_of(limbs_, [](std::uint32_t limb) { return limb == 0; });
}

Amount Amount::Rounded(int decimals) const noexcept {
  if (decimals_ <= decimals) return *this;
  Amount result = *this;
  // Digits after the one that decides do not matter to it.
  for (; result.decimals_ > decimals + 1; --result.decimals_) result.Divide(10);
  const std::uint32_t last = result.Divide(10);
  --result.decimals_;
  if (last >= 5) result.MultiplyAndAdd(1, 1);
  return result;
}

Amount Amount::Hundredth() const noexcept {
  Amount result = *this;
  result.decimals_ += 2;
  return result;
}

Amount Amount::Absolute() const noexcept {
  Amount result = *this;
  result.negative_ = false;
  return result;
}

Amount Amount::HalfUnit() const noexcept { return Amount(5, std::max(decimals_, 2) + 1); }

std::optional<Amount> Amount::DividedBy(const Amount& divisor, int decimals) const noexcept {
  if (divisor.IsZero() ||
      !std::all_of(divisor.limbs_.begin() + 1, divisor.limbs_.end(), [](auto limb) { return limb == 0; }))
    return std::nullopt;
  // One decimal more than asked for decides how it is rounded.
  Amount result = WithDecimals(std::max(decimals_, decimals + 1));
  result.Scale(divisor.decimals_);
  result.Divide(divisor.limbs_[0]);
  result.negative_ = negative_ != divisor.negative_;
  return result.Rounded(decimals);
}

std::string Amount::Text() const {
  std::string digits;
  Amount rest = *this;
  int decimals = decimals_;
  while (!rest.IsZero()) digits += static_cast<char>('0' + rest.Divide(10));
  for (; decimals < 2; ++decimals) digits.insert(digits.begin(), '0');
  while (digits.size() <= static_cast<std::size_t>(decimals)) digits += '0';
  while (decimals > 2 && digits.front() == '0') {
    digits.erase(digits.begin());
    --decimals;
  }
  std::ranges::reverse(digits);
  digits.insert(digits.size() - static_cast<std::size_t>(decimals), 1, '.');
  return (IsNegative() ? "-" : "") + digits;
}

Amount Amount::operator-() const noexcept {
  Amount result = *this;
  result.negative_ = !negative_;
  return result;
}

Amount operator+(const Amount& left, const Amount& right) noexcept {
  const int decimals = std::max(left.decimals_, right.decimals_);
  Amount larger = left.WithDecimals(decimals);
  Amount smaller = right.WithDecimals(decimals);
  if (std::is_lt(CompareSizes(larger.limbs_, smaller.limbs_))) std::swap(larger, smaller);
  const bool adds = larger.negative_ == smaller.negative_;
  std::int64_t carry = 0;
  for (std::size_t i = 0; i < Amount::kLimbs; ++i) {
    const std::int64_t other = smaller.limbs_[i];
    carry += std::int64_t{larger.limbs_[i]} + (adds ? other : -other);
    larger.limbs_[i] = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
  return larger;
}

Amount operator*(const Amount& left, const Amount& right) noexcept {
  Amount result;
  result.negative_ = left.negative_ != right.negative_;
  result.decimals_ = left.decimals_ + right.decimals_;
  for (std::size_t i = 0; i < Amount::kLimbs; ++i) {
    if (left.limbs_[i] == 0) continue;
    std::uint64_t carry = 0;
    for (std::size_t j = 0; i + j < Amount::kLimbs; ++j) {
      carry += std::uint64_t{left.limbs_[i]} * right.limbs_[j] + result.limbs_[i + j];
      result.limbs_[i + j] = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
  }
  return result;
}

std::strong_ordering operator<=>(const Amount& left, const Amount& right) noexcept {
  const bool is_negative = left.IsNegative();
  if (is_negative != right.IsNegative())
    return is_negative ? std::strong_ordering::less : std::strong_ordering::greater;
  const int decimals = std::max(left.decimals_, right.decimals_);
  const Amount first = left.WithDecimals(decimals);
  const Amount second = right.WithDecimals(decimals);
  return is_negative ? CompareSizes(second.limbs_, first.limbs_) : CompareSizes(first.limbs_, second.limbs_);
}

void Amount::Scale(int power) noexcept {
  constexpr std::uint32_t kNinth = 1'000'000'000;
  for (; power >= 9; power -= 9) MultiplyAndAdd(kNinth, 0);
  for (; power > 0; --power) MultiplyAndAdd(10, 0);
}

std::uint32_t Amount::Divide(std::uint32_t divisor) noexcept {
  std::uint64_t rest = 0;
  for (std::size_t i = kLimbs; i-- > 0;) {
    rest = rest << 32 | limbs_[i];
    limbs_[i] = static_cast<std::uint32_t>(rest / divisor);
    rest %= divisor;
  }
  return static_cast<std::uint32_t>(rest);
}

void Amount::MultiplyAndAdd(std::uint32_t factor, std::uint32_t addend) noexcept {
  std::uint64_t carry = addend;
  for (std::uint32_t& limb : limbs_) {
    carry += std::uint64_t{limb} * factor;
    limb = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
}

Amount Amount::WithDecimals(int decimals) const noexcept {
  Amount result = *this;
  result.Scale(decimals - decimals_);
  result.decimals_ = decimals;
  return result;
}

}  // namespace ravo::isdoc
