#include <ravo/runtime/big_natural.h>

#include <algorithm>
#include <bit>
#include <cstddef>

namespace ravo {
namespace {

using Limbs = std::vector<std::uint32_t>;

constexpr std::uint64_t kBinaryBase = std::uint64_t{1} << 32;
constexpr std::uint64_t kDecimalBase = 1'000'000'000;
constexpr int kDecimalLimbDigits = 9;

// Computes limbs * factor + summand. The intermediate result of one limb fits 64 bits with either base: it is
// at most (2^32 - 1) * (2^32 - 1) + (2^32 - 1).
template <std::uint64_t kBase>
void MultiplyAdd(Limbs& limbs, std::uint32_t factor, std::uint32_t summand) {
  std::uint64_t carry = summand;
  for (std::uint32_t& limb : limbs) {
    carry += std::uint64_t{limb} * factor;
    limb = static_cast<std::uint32_t>(carry % kBase);
    carry /= kBase;
  }
  for (; carry != 0; carry /= kBase) limbs.push_back(static_cast<std::uint32_t>(carry % kBase));
}

// The largest power of a base that fits a factor.
struct Step {
  std::uint32_t base;
  int power;
  std::uint32_t factor;
};
constexpr Step kTwos{2, 31, std::uint32_t{1} << 31};
constexpr Step kFives{5, 13, 1'220'703'125};

template <std::uint64_t kBase>
void MultiplyByPower(Limbs& limbs, const Step& step, int power) {
  for (; power >= step.power; power -= step.power) MultiplyAdd<kBase>(limbs, step.factor, 0);
  for (; power > 0; --power) MultiplyAdd<kBase>(limbs, step.base, 0);
}

template <std::uint64_t kBase>
Limbs LimbsOf(std::uint64_t value) {
  Limbs limbs;
  for (; value != 0; value /= kBase) limbs.push_back(static_cast<std::uint32_t>(value % kBase));
  return limbs;
}

std::uint32_t LimbAt(const Limbs& limbs, std::size_t at) { return at < limbs.size() ? limbs[at] : 0; }

}  // namespace

BigNatural::BigNatural(std::uint64_t value) : limbs_(LimbsOf<kBinaryBase>(value)) {}

BigNatural::BigNatural(std::string_view digits) {
  while (!digits.empty()) {
    std::uint32_t factor = 1;
    std::uint32_t chunk = 0;
    for (; factor < kDecimalBase && !digits.empty(); digits.remove_prefix(1)) {
      factor *= 10;
      chunk = chunk * 10 + static_cast<std::uint32_t>(digits.front() - '0');
    }
    MultiplyAdd<kBinaryBase>(limbs_, factor, chunk);
  }
}

int BigNatural::BitLength() const noexcept {
  if (limbs_.empty()) return 0;
  return static_cast<int>(32 * limbs_.size()) - std::countl_zero(limbs_.back());
}

void BigNatural::MultiplyByPowerOf5(int power) { MultiplyByPower<kBinaryBase>(limbs_, kFives, power); }

void BigNatural::ShiftLeft(int bits) {
  if (limbs_.empty()) return;
  MultiplyAdd<kBinaryBase>(limbs_, std::uint32_t{1} << (bits % 32), 0);
  limbs_.insert(limbs_.begin(), static_cast<std::size_t>(bits / 32), 0);
}

void BigNatural::Add(const BigNatural& other) {
  limbs_.resize(std::max(limbs_.size(), other.limbs_.size()));
  std::uint64_t carry = 0;
  for (std::size_t i = 0; i < limbs_.size(); ++i) {
    carry += std::uint64_t{limbs_[i]} + LimbAt(other.limbs_, i);
    limbs_[i] = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
  if (carry != 0) limbs_.push_back(1);
}

void BigNatural::Subtract(const BigNatural& other) {
  std::uint64_t borrow = 0;
  for (std::size_t i = 0; i < limbs_.size(); ++i) {
    const std::uint64_t taken = LimbAt(other.limbs_, i) + borrow;
    borrow = limbs_[i] < taken ? 1 : 0;
    limbs_[i] = static_cast<std::uint32_t>(limbs_[i] + (borrow << 32) - taken);
  }
  DropLeadingZeros();
}

std::strong_ordering operator<=>(const BigNatural& left, const BigNatural& right) noexcept {
  if (left.limbs_.size() != right.limbs_.size()) return left.limbs_.size() <=> right.limbs_.size();
  return std::lexicographical_compare_three_way(left.limbs_.rbegin(), left.limbs_.rend(),
                                                right.limbs_.rbegin(), right.limbs_.rend());
}

void BigNatural::DropLeadingZeros() noexcept {
  while (!limbs_.empty() && limbs_.back() == 0) limbs_.pop_back();
}

BigDecimalNatural::BigDecimalNatural(std::uint64_t value) : limbs_(LimbsOf<kDecimalBase>(value)) {}

void BigDecimalNatural::MultiplyByPowerOf2(int power) { MultiplyByPower<kDecimalBase>(limbs_, kTwos, power); }

void BigDecimalNatural::MultiplyByPowerOf5(int power) {
  MultiplyByPower<kDecimalBase>(limbs_, kFives, power);
}

std::string BigDecimalNatural::Digits() const {
  std::string digits(kDecimalLimbDigits * limbs_.size(), '0');
  auto at = digits.rbegin();
  for (std::uint32_t limb : limbs_) {
    for (int i = 0; i < kDecimalLimbDigits; ++i, limb /= 10) *at++ = static_cast<char>('0' + limb % 10);
  }
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

}  // namespace ravo
