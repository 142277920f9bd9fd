#include "columns_answers.h"
#include <ravo/czech/vat.h>
#include <ravo/runtime/currency.h>
#include <ravo/runtime/text.h>

using ravo::Currency;
using ravo::c::Answer;
using ravo::c::Computed;
using ravo::c::Fail;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailRange;
using ravo::c::FailRefused;
using ravo::c::Guarded;
using ravo::c::ReadText;
using ravo::c::Units;
using ravo::c::WriteText;
namespace czech = ravo::czech;

namespace {

bool IsRounding(ravo_rounding rounding) {
  return rounding >= RAVO_ROUND_HALF_AWAY && rounding <= RAVO_ROUND_TOWARD;
}

ravo_status FailRounding(ravo_error* error) { return FailArgument(error, "the rounding is unknown"); }

// A character that can part crowns from decimals.
bool IsSeparator(int32_t separator) {
  return separator > ' ' && separator < 0x7F && (separator < '0' || separator > '9') && separator != '-' &&
         separator != '+';
}

ravo_status FailSeparator(ravo_error* error) { return FailArgument(error, "the separator is unusable"); }

ravo_status FailStep(ravo_error* error) { return FailRange(error, "the step is not above 0"); }

// Whether `denominator` x `step` fits the divisor of a product. Precondition: `step` is positive.
bool IsDivisor(std::int64_t denominator, ravo_money step) {
  const auto bits = static_cast<std::uint64_t>(denominator);
  std::uint64_t divisor = 0;
  return !__builtin_mul_overflow(denominator < 0 ? 0 - bits : bits, static_cast<std::uint64_t>(step),
                                 &divisor);
}

// The rounding and step of a result.
struct Rounded {
  ravo_money step;
  ravo_rounding rounding;
};

// Writes `amount` x `numerator` / `denominator`; `too_large` is the message for a divisor that is.
ravo_status Product(ravo_money amount, std::int64_t numerator, std::int64_t denominator, Rounded how,
                    ravo_money* result, ravo_error* error, std::string_view too_large) {
  if (!IsRounding(how.rounding)) return FailRounding(error);
  if (result == nullptr) return FailNullResult(error);
  if (how.step <= 0) return FailStep(error);
  if (denominator == 0) return FailRange(error, "the denominator is 0");
  if (!IsDivisor(denominator, how.step)) return FailRange(error, too_large);
  const auto rounding = static_cast<ravo::Rounding>(how.rounding);
  return Computed(
      result, error,
      [&] { return ravo::TimesRatio({amount}, numerator, denominator, {how.step}, rounding).raw; },
      "the result does not fit 64 bits");
}

struct RoundedMoney {
  [[nodiscard]] Answer<ravo_money> operator()(std::string_view bytes) const {
    try {
      return {ravo::RoundedTo({ravo::c::LoadAt<ravo_money>(bytes.data(), 0)}, step, rounding).raw};
    } catch (const ravo::OverflowError&) {
      return {0, static_cast<std::uint16_t>(czech::Code::MoneyRange)};
    }
  }
  Currency step;
  ravo::Rounding rounding;
};

}  // namespace

ravo_status ravo_money_format(ravo_money amount, int32_t separator, int32_t places, char* buffer, size_t size,
                              size_t* length, ravo_error* error) {
  if (!IsSeparator(separator)) return FailSeparator(error);
  if (places < 0 || places > Currency::kPlaces) return FailArgument(error, "the places are not 0 to 4");
  return Guarded(error, [&] {
    const std::u16string text = ravo::CurrencyText({amount}, static_cast<char16_t>(separator), places);
    return WriteText({buffer, size, length}, ravo::ToUtf8(text), error);
  });
}

ravo_status ravo_money_read(const char* text, size_t text_length, int32_t separator, ravo_money* amount,
                            ravo_error* error) {
  if (amount == nullptr) return FailNullResult(error);
  if (!IsSeparator(separator)) return FailSeparator(error);
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &utf8 = input] {
    const auto parsed = ravo::TryParseCurrency(Units(utf8), static_cast<char16_t>(separator));
    if (!parsed) return Fail(error, {RAVO_WRONG, 0, 0, "the text is no amount, or does not fit 64 bits"});
    *amount = parsed->raw;
    return static_cast<ravo_status>(RAVO_OK);
  });
}

ravo_status ravo_money_round(ravo_money amount, ravo_money step, ravo_rounding rounding, ravo_money* result,
                             ravo_error* error) {
  return Product(amount, 1, 1, {step, rounding}, result, error, {});
}

ravo_status ravo_money_round_column(const ravo_column* column, uint32_t flags, ravo_money step,
                                    ravo_rounding rounding, ravo_money* results, ravo_answers* answers,
                                    ravo_progress progress, void* context, ravo_error* error) {
  if (!IsRounding(rounding)) return FailRounding(error);
  if (step <= 0) return FailStep(error);
  return Guarded(error, [&] {
    return ravo::c::AnswerNumbers<sizeof(ravo_money)>(
        column, {flags, progress, context}, results, answers, error,
        RoundedMoney{{step}, static_cast<ravo::Rounding>(rounding)});
  });
}

ravo_status ravo_money_times_ratio(ravo_money amount, int64_t numerator, int64_t denominator, ravo_money step,
                                   ravo_rounding rounding, ravo_money* result, ravo_error* error) {
  return Product(amount, numerator, denominator, {step, rounding}, result, error,
                 "the denominator times the step does not fit 64 bits");
}

ravo_status ravo_money_times_rate(ravo_money amount, ravo_money rate, ravo_money step, ravo_rounding rounding,
                                  ravo_money* result, ravo_error* error) {
  return Product(amount, rate, Currency::kScale, {step, rounding}, result, error, "the step is too large");
}

ravo_status ravo_money_to_crowns(ravo_money amount, ravo_rounding rounding, ravo_money* rounded,
                                 ravo_money* difference, ravo_error* error) {
  if (rounded == nullptr || difference == nullptr) return FailNullResult(error);
  if (!IsRounding(rounding)) return FailRounding(error);
  const auto answer = czech::RoundToCrowns({amount}, static_cast<czech::CrownRounding>(rounding));
  if (!answer) return FailRefused(error, answer.code, 0);
  *rounded = answer.value.rounded.raw;
  *difference = answer.value.difference.raw;
  return RAVO_OK;
}
