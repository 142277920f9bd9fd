#include "value_reasons.h"

#include "text.h"
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <algorithm>
#include <optional>

namespace tool {
namespace {

namespace common = ravo::RavoInterfaceCommon;

bool IsDecimalDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

// The number of characters in a text; a surrogate pair is one.
std::size_t CharactersIn(std::u16string_view text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char16_t unit) { return unit < 0xDC00 || unit > 0xDFFF; }));
}

// The first character from `from` on that is no digit.
std::optional<ValueReason> NoDigit(std::u16string_view value, std::size_t from, std::size_t to) {
  for (std::size_t at = from; at < to; ++at) {
    if (IsDecimalDigit(value[at])) continue;
    const bool is_pair = value[at] >= 0xD800 && value[at] < 0xDC00;
    const std::size_t position = CharactersIn(value.substr(0, at)) + 1;
    return ValueReason{"character", position,
                       Text("'{1}' at position {0} is no digit",
                            {std::to_string(position), ravo::ToUtf8(value.substr(at, is_pair ? 2 : 1))})};
  }
  return {};
}

std::optional<ValueReason> NoDigits(std::u16string_view value) {
  if (value.empty()) return ValueReason{"empty", 0, Text("the value is empty")};
  return NoDigit(value, 0, value.size());
}

ValueReason WrongLength(std::size_t length, std::size_t most, std::string message) {
  return {length > most ? "too-long" : "too-short", 0, std::move(message)};
}

ValueReason WhyNoAccount(std::u16string_view value) {
  return NoDigits(value).value_or(WrongLength(value.size(), 6, Text("an account has 3 to 6 digits")));
}

ValueReason WhyNoSynthetic(std::u16string_view value) {
  return NoDigits(value).value_or(WrongLength(value.size(), 3, Text("a synthetic account has 3 digits")));
}

ValueReason WhyNoAnalytic(std::u16string_view value) {
  return NoDigits(value).value_or(
      WrongLength(value.size(), 3, Text("an analytic account has at most 3 digits")));
}

ValueReason WhyNoBankAccount(std::u16string_view value) {
  constexpr std::ptrdiff_t kMostDigits = 62;
  const std::u16string_view account = value.substr(0, value.find(u'/'));
  const auto digits = std::ranges::count_if(account, IsDecimalDigit);
  if (value.empty()) return {"empty", 0, Text("the value is empty")};
  if (digits == 0) return {"no-digits", 0, Text("there is no digit before the bank code")};
  if (digits > kMostDigits)
    return {"too-long", 0, Text("there are more than 62 digits before the bank code")};
  return {"checksum", 0, Text("the weighted sum of the digits cannot be divided by 11")};
}

ValueReason WhyNoReference(std::u16string_view value) {
  if (auto reason = NoDigits(value)) return std::move(*reason);
  std::u16string right(value);
  for (char16_t digit = u'0'; digit <= u'9' && !common::ValidVS(right); ++digit) right.back() = digit;
  return {"wrong-check-digit", CharactersIn(value),
          Text("wrong check digit, right: {0}", {ravo::ToUtf8(right)})};
}

ValueReason WhyNoArticleCode(std::u16string_view value) {
  const std::u16string_view code = ravo::Trimmed(value);
  const auto begin = static_cast<std::size_t>(code.data() - value.data());
  if (code.empty()) return {"empty", 0, Text("the value is empty")};
  if (auto reason = NoDigit(value, begin, begin + code.size())) return std::move(*reason);
  std::u16string old_check;
  std::u16string new_check;
  std::u16string full;
  if (!common::CalculateEAN(value, old_check, new_check, full))
    return {"length", 0, Text("an article code has 8 or 13 digits")};
  if (old_check == u" ")
    return {"no-check-digit", 0, Text("without check digit, complete: {0}", {ravo::ToUtf8(full)})};
  return {"wrong-check-digit", begin + code.size(),
          Text("wrong check digit, right: {0}", {ravo::ToUtf8(full)})};
}

struct KindReasons {
  std::string_view kind;
  ValueReason (*why)(std::u16string_view value);
  const char* note;  // how the suite's rule differs, or null
};

constexpr const char* kDigitsOnly = ToTranslate(
    "the suite's rule counts the digits; whether the account is in the chart of accounts is not checked");

constexpr KindReasons kReasons[] = {
    {"ucet", WhyNoAccount, kDigitsOnly},
    {"su", WhyNoSynthetic, kDigitsOnly},
    {"au", WhyNoAnalytic, kDigitsOnly},
    {"banka", WhyNoBankAccount,
     ToTranslate(
         "the suite's rule takes all digits before the slash for one number; prefix and number are not "
         "checked apart, and the bank code is not checked")},
    {"vs", WhyNoReference,
     ToTranslate("the suite's rule demands a Luhn check digit, which a payment reference need not have, and "
                 "allows more than ten digits")},
    {"ean", WhyNoArticleCode, nullptr},
};

const KindReasons* ReasonsOf(const CheckKind& kind) {
  const auto* const found = std::ranges::find(kReasons, kind.name, &KindReasons::kind);
  return found == std::end(kReasons) ? nullptr : found;
}

}  // namespace

ValueReason WhyInvalid(const CheckKind& kind, std::u16string_view value) {
  const KindReasons* const reasons = ReasonsOf(kind);
  return reasons == nullptr ? ValueReason{"invalid", 0, kind.check(value).remark} : reasons->why(value);
}

std::string SuiteRuleNote(const CheckKind& kind) {
  const KindReasons* const reasons = ReasonsOf(kind);
  return reasons == nullptr || reasons->note == nullptr ? std::string() : Text(reasons->note);
}

}  // namespace tool
