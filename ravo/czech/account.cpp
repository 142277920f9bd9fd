#include <ravo/czech/account.h>
#include <ravo/czech/national_accounts.h>
#include <ravo/czech/reading.h>

#include <algorithm>
#include <cstddef>

namespace ravo::czech {
namespace {

// Room for a part that is too long to be named as such.
constexpr std::size_t kAccountRoom = 40;
constexpr std::size_t kPrefixDigits = 6;
constexpr std::size_t kNumberDigits = 10;
constexpr std::size_t kBankDigits = 4;

constexpr detail::Spelling kAccountSpelling{
    Code::AccountEmpty,  Code::AccountCharacter,
    Code::AccountLength, detail::kDigit | detail::kHyphen | detail::kSlash,
    detail::kBlank,      {"CISLOUCTU", "CUCTU", "CU", "UCET"}};

// Of at most ten digits.
constexpr std::uint64_t ValueOf(std::string_view digits) noexcept {
  std::uint64_t value = 0;
  for (const char digit : digits) value = value * 10 + static_cast<std::uint64_t>(digit - '0');
  return value;
}

struct AccountFault {
  Code code = Code::Correct;
  std::size_t index = 0;  // of the kept characters
};

// The parts of an account as they stand.
struct AccountParts {
  std::string_view prefix;
  std::string_view number;
  std::string_view bank;
  std::size_t number_at = 0;
};

// Hyphen and slash stand once each, in this order.
AccountFault Split(std::string_view text, AccountParts& parts) noexcept {
  const std::size_t hyphen = detail::FirstNoDigit(text);
  const bool has_prefix = hyphen < text.size() && text[hyphen] == '-';
  if (has_prefix && (hyphen == 0 || hyphen > kPrefixDigits)) {
    return {Code::AccountPrefixLength, std::min(hyphen, kPrefixDigits)};
  }
  parts.prefix = text.substr(0, has_prefix ? hyphen : 0);
  parts.number_at = has_prefix ? hyphen + 1 : 0;
  const std::size_t slash = has_prefix ? detail::FirstNoDigit(text, parts.number_at) : hyphen;
  parts.number = text.substr(parts.number_at, slash - parts.number_at);
  if (slash < text.size() && text[slash] == '-') return {Code::AccountCharacter, slash};
  if (parts.number.size() > kNumberDigits) return {Code::AccountLength, parts.number_at + kNumberDigits};
  if (parts.number.size() < 2) return {Code::AccountLength, slash};
  const std::size_t bank_at = std::min(slash + 1, text.size());
  parts.bank = text.substr(bank_at);
  const std::size_t end = detail::FirstNoDigit(text, bank_at);
  if (end < text.size()) return {Code::AccountCharacter, end};
  if (parts.bank.size() != kBankDigits)
    return {Code::AccountBank, bank_at + std::min(parts.bank.size(), kBankDigits)};
  return {};
}

AccountFault CheckSums(const AccountParts& parts) noexcept {
  if (!detail::CzechSumMatches(parts.prefix)) return {Code::AccountPrefixChecksum, parts.prefix.size() - 1};
  const std::size_t last = parts.number_at + parts.number.size() - 1;
  if (!detail::CzechSumMatches(parts.number)) return {Code::AccountChecksum, last};
  return {};
}

template <class Unit>
Parsed<Account> ParseAccountIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<kAccountRoom>(text, kAccountSpelling);
  if (kept.code != Code::Correct) return {{}, kept.code, kept.position};
  AccountParts parts;
  AccountFault fault = Split(kept.View(), parts);
  if (fault.code == Code::Correct) fault = CheckSums(parts);
  if (fault.code != Code::Correct) {
    return detail::Refuse<Account>(text, kAccountSpelling, kept.from, fault.index, fault.code);
  }
  const std::uint64_t number = ValueOf(parts.number);
  if (number == 0) {
    return detail::Refuse<Account>(text, kAccountSpelling, kept.from, parts.number_at, Code::AccountZero);
  }
  return {{number, static_cast<std::uint32_t>(ValueOf(parts.prefix)),
           static_cast<std::uint16_t>(ValueOf(parts.bank))}};
}

}  // namespace

Parsed<Account> ParseAccount(std::string_view text) noexcept { return ParseAccountIn(text); }
Parsed<Account> ParseAccount(std::u16string_view text) noexcept { return ParseAccountIn(text); }

FixedText<22> Format(const Account& account) noexcept {
  FixedText<22> text;
  if (account.prefix != 0) {
    text.AppendNumber(account.prefix, 1);
    text.Append('-');
  }
  text.AppendNumber(account.number, 2);
  text.Append('/');
  text.AppendNumber(account.bank, 4);
  return text;
}

Iban IbanOf(const Account& account) noexcept {
  Iban iban{Fixed<34>("CZ00")};
  iban.text.AppendNumber(account.bank, kBankDigits);
  iban.text.AppendNumber(account.prefix, kPrefixDigits);
  iban.text.AppendNumber(account.number, kNumberDigits);
  const int check = 98 - detail::IbanRemainder(iban.text.View());
  iban.text.characters[2] = static_cast<char>('0' + check / 10);
  iban.text.characters[3] = static_cast<char>('0' + check % 10);
  return iban;
}

std::optional<Account> AccountOf(const Iban& iban) noexcept {
  const std::string_view text = iban.text.View();
  if (!text.starts_with("CZ")) return std::nullopt;
  return Account{ValueOf(text.substr(14)), static_cast<std::uint32_t>(ValueOf(text.substr(8, kPrefixDigits))),
                 static_cast<std::uint16_t>(ValueOf(text.substr(4, kBankDigits)))};
}

}  // namespace ravo::czech
