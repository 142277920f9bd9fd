#include <ravo/czech/account.h>
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

struct AccountFault {
  Code code = Code::Correct;
  std::size_t index = 0;  // of the kept characters
};

// Digits as they stand: their value, and their sum by the powers of two, whose remainders by eleven are the
// weights. Both wrap where there are more digits than an account has.
struct DigitRun {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::uint64_t value = 0;
  std::uint32_t sum = 0;

  [[nodiscard]] constexpr std::size_t Size() const noexcept { return end - begin; }
  [[nodiscard]] constexpr bool SumMatches() const noexcept { return sum % 11 == 0; }
};

template <class Unit>
constexpr DigitRun ReadRun(std::basic_string_view<Unit> text, std::size_t begin) noexcept {
  // Locals: a result that is filled in could share memory with the text.
  std::size_t end = begin;
  std::uint64_t value = 0;
  std::uint32_t sum = 0;
  for (; end < text.size(); ++end) {
    const std::uint32_t digit = detail::UnitValue(text[end]) - '0';
    if (digit > 9) break;
    value = value * 10 + digit;
    sum = sum * 2 + digit;
  }
  return {begin, end, value, sum};
}

template <class Unit>
constexpr bool IsAt(std::basic_string_view<Unit> text, std::size_t at, char character) noexcept {
  return at < text.size() && text[at] == static_cast<Unit>(character);
}

// Prefix, number and bank code, with one hyphen after the prefix and one slash before the bank code.
struct AccountParts {
  DigitRun prefix;
  DigitRun number;
  DigitRun bank;
};

template <class Unit>
inline AccountFault Split(std::basic_string_view<Unit> text, AccountParts& parts) noexcept {
  DigitRun number = ReadRun(text, 0);
  if (IsAt(text, number.end, '-')) {
    const std::size_t size = number.Size();
    if (size == 0 || size > kPrefixDigits) return {Code::AccountPrefixLength, std::min(size, kPrefixDigits)};
    parts.prefix = number;
    number = ReadRun(text, number.end + 1);
  }
  if (number.end < text.size() && !IsAt(text, number.end, '/')) return {Code::AccountCharacter, number.end};
  if (number.Size() > kNumberDigits) return {Code::AccountLength, number.begin + kNumberDigits};
  if (number.Size() < 2) return {Code::AccountLength, number.end};
  const DigitRun bank = ReadRun(text, std::min(number.end + 1, text.size()));
  if (bank.end < text.size()) return {Code::AccountCharacter, bank.end};
  if (bank.Size() != kBankDigits) return {Code::AccountBank, bank.begin + std::min(bank.Size(), kBankDigits)};
  parts.number = number;
  parts.bank = bank;
  return {};
}

inline AccountFault CheckSums(const AccountParts& parts) noexcept {
  if (!parts.prefix.SumMatches()) return {Code::AccountPrefixChecksum, parts.prefix.end - 1};
  if (!parts.number.SumMatches()) return {Code::AccountChecksum, parts.number.end - 1};
  if (parts.number.value == 0) return {Code::AccountZero, parts.number.begin};
  return {};
}

Account AccountFrom(const AccountParts& parts) noexcept {
  return {parts.number.value, static_cast<std::uint32_t>(parts.prefix.value),
          static_cast<std::uint16_t>(parts.bank.value)};
}

// An account with a label, blanks or other hyphens, or a fault.
template <class Unit>
[[gnu::noinline]] Parsed<Account> ParseMixed(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<kAccountRoom>(text, kAccountSpelling);
  if (kept.code != Code::Correct) return {{}, kept.code, kept.position};
  AccountParts parts;
  AccountFault fault = Split(kept.View(), parts);
  if (fault.code == Code::Correct) fault = CheckSums(parts);
  if (fault.code == Code::Correct) return {AccountFrom(parts)};
  return detail::Refuse<Account>(text, kAccountSpelling, kept.from, fault.index, fault.code);
}

// Whether a part has no zeros before it that the usual spelling leaves out.
template <class Unit>
bool IsUsual(std::basic_string_view<Unit> text, const DigitRun& run) noexcept {
  return run.Size() == 0 || !IsAt(text, run.begin, '0');
}

// Most inputs are digits, a hyphen and a slash alone: they need no copy.
template <class Unit>
detail::ReadAccount ReadAccountIn(std::basic_string_view<Unit> text) noexcept {
  AccountParts parts;
  const bool correct = Split(text, parts).code == Code::Correct && CheckSums(parts).code == Code::Correct;
  if (!correct) return {ParseMixed(text)};
  return {{AccountFrom(parts)}, IsUsual(text, parts.prefix) && IsUsual(text, parts.number)};
}

}  // namespace

Parsed<Account> ParseAccount(std::string_view text) noexcept { return ReadAccountIn(text).parsed; }
Parsed<Account> ParseAccount(std::u16string_view text) noexcept { return ReadAccountIn(text).parsed; }
detail::ReadAccount detail::ReadAccountText(std::string_view text) noexcept { return ReadAccountIn(text); }

FixedText<22> Format(const Account& account) noexcept { return detail::AccountText<22>(account); }

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
  const auto value = [text](std::size_t at, std::size_t count) {
    return ReadRun(text.substr(at, count), 0).value;
  };
  return Account{value(14, kNumberDigits), static_cast<std::uint32_t>(value(8, kPrefixDigits)),
                 static_cast<std::uint16_t>(value(4, kBankDigits))};
}

}  // namespace ravo::czech
