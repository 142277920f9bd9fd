#include <ravo/czech/bic.h>
#include <ravo/czech/day.h>
#include <ravo/czech/dic.h>
#include <ravo/czech/iban.h>
#include <ravo/czech/ico.h>
#include <ravo/czech/payment_code_values.h>
#include <ravo/czech/reading.h>

#include <algorithm>
#include <iterator>

namespace ravo::czech::detail {
namespace {

constexpr PaymentKey kPaymentKeys[] = {
#define RAVO_PAYMENT_KEY(kind, key, form, longest, need, choices) \
  {PaymentCodeKind::kind, key, ValueForm::form, longest, ValueNeed::need, choices},
#include "payment_code_keys.inc"
#undef RAVO_PAYMENT_KEY
};

constexpr std::size_t kLongestOfOthers = kPaymentCodeRoom;

bool IsCapital(char c) noexcept { return c >= 'A' && c <= 'Z'; }
bool IsHex(char c) noexcept { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F'); }

ValueFault From(ValueFault fault, std::size_t offset) noexcept {
  return {fault.code, fault.position + offset};
}

// The first character for which `belongs` is false, as a fault.
template <class Belongs>
ValueFault EachIs(std::string_view value, Code code, Belongs belongs) noexcept {
  const auto* const wrong = std::ranges::find_if_not(value, belongs);
  if (wrong == value.end()) return {};
  return {code, static_cast<std::size_t>(wrong - value.begin())};
}

ValueFault CheckDigits(std::string_view value) noexcept {
  const std::size_t end = FirstNoDigit(value);
  return end == value.size() ? ValueFault{} : ValueFault{Code::PaymentCodeCharacter, end};
}

// A value that is correct in form but has another canonical form: blanks, small letters.
template <class Value>
ValueFault CheckCanonical(std::string_view text, const Parsed<Value>& parsed) noexcept {
  if (!parsed) return {parsed.code, parsed.position};
  const std::string_view wanted = parsed.value.text.View();
  const auto differing = std::ranges::mismatch(text, wanted).in1;
  if (text == wanted) return {};
  return {Code::PaymentCodeCharacter, static_cast<std::size_t>(differing - text.begin())};
}

ValueFault CheckAccount(std::string_view value) noexcept {
  const std::size_t plus = value.find('+');
  const ValueFault fault = CheckCanonical(value.substr(0, plus), ParseIban(value.substr(0, plus)));
  if (fault.code != Code::Correct || plus == std::string_view::npos) return fault;
  const std::string_view bic = value.substr(plus + 1);
  return From(CheckCanonical(bic, ParseBic(bic)), plus + 1);
}

ValueFault CheckAccounts(std::string_view value) noexcept {
  const std::size_t comma = value.find(',');
  const ValueFault fault = CheckAccount(value.substr(0, comma));
  if (fault.code != Code::Correct || comma == std::string_view::npos) return fault;
  return From(CheckAccount(value.substr(comma + 1)), comma + 1);
}

// At least one digit, and after a point one to `decimals` more.
ValueFault CheckDecimal(std::string_view value, std::size_t decimals) noexcept {
  const std::size_t point = FirstNoDigit(value);
  if (point == 0) return {Code::PaymentCodeAmount, 0};
  if (point == value.size()) return {};
  const std::size_t end = FirstNoDigit(value, point + 1);
  if (value[point] != '.') return {Code::PaymentCodeAmount, point};
  if (end != value.size()) return {Code::PaymentCodeAmount, end};
  const std::size_t count = end - point - 1;
  if (count >= 1 && count <= decimals) return {};
  return {Code::PaymentCodeAmount, std::min(end, point + 1 + decimals)};
}

ValueFault CheckSignedAmount(std::string_view value) noexcept {
  const std::size_t sign = value.starts_with('-') ? 1 : 0;
  return From(CheckDecimal(value.substr(sign), 2), sign);
}

ValueFault CheckCurrency(std::string_view value) noexcept {
  if (value.size() != 3) return {Code::PaymentCodeCurrency, value.size()};
  return EachIs(value, Code::PaymentCodeCurrency, IsCapital);
}

int NumberAt(std::string_view digits, std::size_t from, std::size_t count) noexcept {
  int number = 0;
  for (const char digit : digits.substr(from, count)) number = number * 10 + (digit - '0');
  return number;
}

ValueFault CheckDate(std::string_view value) noexcept {
  const std::size_t end = FirstNoDigit(value);
  if (value.size() != 8 || end != 8) return {Code::PaymentCodeDate, end};
  const bool exists = Exists({NumberAt(value, 0, 4), NumberAt(value, 4, 2), NumberAt(value, 6, 2)});
  return exists ? ValueFault{} : ValueFault{Code::PaymentCodeDate, 0};
}

ValueFault CheckRetryDays(std::string_view value) noexcept {
  const ValueFault fault = CheckDigits(value);
  if (fault.code != Code::Correct) return fault;
  const int days = NumberAt(value, 0, value.size());
  return days >= 1 && days <= 30 ? ValueFault{} : ValueFault{Code::PaymentCodeChoice, 0};
}

ValueFault CheckHex(std::string_view value) noexcept {
  if (value.size() != 8) return {Code::PaymentCodeLength, value.size()};
  return EachIs(value, Code::PaymentCodeCharacter, IsHex);
}

ValueFault CheckDic(std::string_view value) noexcept {
  if (value.starts_with("CZ")) return CheckCanonical(value, ParseDic(value));
  return EachIs(value, Code::PaymentCodeCharacter,
                [](char c) { return IsCapital(c) || (c >= '0' && c <= '9'); });
}

// Well-formed UTF-8 without control characters, of at most `longest` characters.
ValueFault CheckCharacters(std::string_view value, std::size_t longest) noexcept {
  std::size_t count = 0;
  for (std::size_t at = 0; at < value.size(); ++count) {
    const CodePoint point = CodePointAt(value, at);
    if (point.value == 0xFFFD && point.units == 1) return {Code::PaymentCodeEncoding, at};
    if (point.value < 0x20 || (point.value >= 0x7F && point.value < 0xA0))
      return {Code::PaymentCodeCharacter, at};
    if (count == longest) return {Code::PaymentCodeLength, at};
    at += point.units;
  }
  return {};
}

ValueFault CheckForm(const PaymentKey& key, std::string_view value) noexcept {
  switch (key.form) {
    case ValueForm::Account:
      return CheckAccount(value);
    case ValueForm::Accounts:
      return CheckAccounts(value);
    case ValueForm::Amount:
      return CheckDecimal(value, 2);
    case ValueForm::SignedAmount:
      return CheckSignedAmount(value);
    case ValueForm::Rate:
      return CheckDecimal(value, key.longest);
    case ValueForm::Currency:
      return CheckCurrency(value);
    case ValueForm::Date:
      return CheckDate(value);
    case ValueForm::Digits:
      return CheckDigits(value);
    case ValueForm::RetryDays:
      return CheckRetryDays(value);
    case ValueForm::Hex:
      return CheckHex(value);
    case ValueForm::Choice:
      return key.choices.find(value) == std::string_view::npos ? ValueFault{Code::PaymentCodeChoice, 0}
                                                               : ValueFault{};
    case ValueForm::Ico:
      return CheckCanonical(value, ParseIco(value));
    case ValueForm::Dic:
      return CheckDic(value);
    case ValueForm::Invoice:
      return CheckInvoiceInside(value);
    case ValueForm::Text:
      break;
  }
  return {};
}

}  // namespace

std::span<const PaymentKey> PaymentKeys() noexcept { return kPaymentKeys; }

const PaymentKey* FindPaymentKey(PaymentCodeKind kind, std::string_view key) noexcept {
  const auto* const found = std::ranges::find_if(
      kPaymentKeys, [&](const PaymentKey& row) { return row.kind == kind && row.key == key; });
  return found == std::end(kPaymentKeys) ? nullptr : found;
}

ValueFault CheckPaymentValue(const PaymentKey* key, std::string_view value) noexcept {
  if (value.empty()) return {Code::PaymentCodeEmpty, 0};
  const ValueFault fault = CheckCharacters(value, key ? key->longest : kLongestOfOthers);
  return fault.code == Code::Correct && key ? CheckForm(*key, value) : fault;
}

}  // namespace ravo::czech::detail
