#include "money_round.h"

#include <algorithm>

namespace tool {
namespace {

namespace common = ravo::RavoInterfaceCommon;

std::int64_t PowerOfTen(int exponent) {
  std::int64_t power = 1;
  for (int i = 0; i < exponent; ++i) power *= 10;
  return power;
}

std::int64_t DividedUp(std::uint64_t dividend, std::int64_t divisor) {
  return static_cast<std::int64_t>((dividend - 1) / static_cast<std::uint64_t>(divisor) + 1);
}

// Amounts have four decimals, so all of them are multiples of the steps past that.
std::int64_t StepOfRule(const RoundRule& rule) {
  return rule.halves ? ravo::Currency::kScale / 2
                     : PowerOfTen(std::max(ravo::Currency::kPlaces - rule.decimals, 0));
}

ravo::Rounding RoundingOf(common::TRoundType type) {
  if (type == common::rtUp) return ravo::Rounding::AwayFromZero;
  return type == common::rtDown ? ravo::Rounding::TowardZero : ravo::Rounding::HalfAwayFromZero;
}

// The suite counts the steps of an amount in 32 bits when it rounds up or down. Below whole units it first
// rounds the count to four decimals, ties to even, which moves the limit by half of the lowest of them.
std::int64_t LimitOfSteps(const RoundRule& rule) {
  constexpr std::int64_t kSteps = std::int64_t{1} << 31;
  if (rule.decimals > ravo::Currency::kPlaces)
    return DividedUp(kSteps, PowerOfTen(rule.decimals - ravo::Currency::kPlaces));
  const std::int64_t half = rule.decimals < 0 ? PowerOfTen(-rule.decimals) / 2 : 0;
  const std::int64_t step = StepOfRule(rule);
  return rule.type == common::rtUp ? (kSteps - 1) * step + half + 1 : kSteps * step - half;
}

}  // namespace

RoundRule RuleOfLetter(char letter) {
  switch (letter | 0x20) {
    case 'd':
      return {common::rtMath, 1};
    case 'p':
      return {common::rtMath, 0, true};
    case 'n':
      return {common::rtUp, 1};
    case 'm':
      return {common::rtMath, 0};
    default:
      return {common::rtMath, 2};
  }
}

std::string_view ModeName(const RoundRule& rule) {
  if (rule.type == common::rtUp) return "up";
  return rule.type == common::rtDown ? "down" : "math";
}

ravo::Currency RoundExactly(ravo::Currency amount, const RoundRule& rule) {
  return ravo::RoundedTo(amount, {StepOfRule(rule)}, RoundingOf(rule.type));
}

std::optional<ravo::Currency> RoundAsSuite(ravo::Currency amount, const RoundRule& rule) {
  try {
    if (rule.halves) return common::RoundDPH(amount, u'P');
    return common::RoundValue(amount, rule.type, static_cast<std::int8_t>(rule.decimals));
  } catch (const ravo::Error&) {
    return {};
  }
}

std::optional<ravo::Currency> SuiteLimit(const RoundRule& rule) {
  if (rule.halves) return {};
  if (rule.type != common::rtMath) return ravo::Currency{LimitOfSteps(rule)};
  if (rule.decimals <= ravo::Currency::kPlaces) return {};
  // The scaled amount must fit 64 bits.
  constexpr std::uint64_t kScaled = std::uint64_t{1} << 63;
  return ravo::Currency{DividedUp(kScaled, PowerOfTen(rule.decimals - ravo::Currency::kPlaces))};
}

bool IsPastSuiteLimit(ravo::Currency amount, const RoundRule& rule) {
  const std::optional<ravo::Currency> limit = SuiteLimit(rule);
  return limit && (amount.raw >= limit->raw || amount.raw <= -limit->raw);
}

}  // namespace tool
