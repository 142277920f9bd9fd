#include <ravo/czech/account.h>
#include <ravo/czech/iban.h>
#include <ravo/czech/payment_text.h>
#include <ravo/czech/reading.h>

#include <algorithm>

namespace ravo::czech {
namespace {

constexpr std::size_t kLeastDigitsAlone = 5;
constexpr std::size_t kMostSymbolDigits = 10;
constexpr std::size_t kIbanLeast = 15;
constexpr std::size_t kIbanMost = 34;

// A text, looked at from some place on and back. Outside of it there is nothing: a unit of 0.
template <class Unit>
class PaymentText {
 public:
  explicit PaymentText(std::basic_string_view<Unit> text) noexcept : text_(text) {}

  std::optional<FoundPayment> FindFrom(std::size_t from) const noexcept {
    std::size_t at = from;
    // A search that begins within digits is not at their beginning.
    while (at > 0 && at < text_.size() && IsDigitAt(at) && IsDigitAt(at - 1)) ++at;
    for (;;) {
      while (at < text_.size() && !IsDigitAt(at)) ++at;
      if (at >= text_.size()) return std::nullopt;
      const std::size_t end = DigitsEnd(at);
      auto found = FindAt(at, end);
      if (found) return found;
      at = end;
    }
  }

 private:
  std::uint32_t UnitAt(std::size_t at) const noexcept {
    return at < text_.size() ? detail::UnitValue(text_[at]) : 0;
  }
  bool IsDigitAt(std::size_t at) const noexcept { return UnitAt(at) - '0' < 10; }
  // The capital of an ASCII letter; another unit as it is.
  std::uint32_t UpperAt(std::size_t at) const noexcept {
    const std::uint32_t unit = UnitAt(at);
    return unit - 'a' < 26 ? unit - 'a' + 'A' : unit;
  }
  bool IsLetterAt(std::size_t at) const noexcept { return UpperAt(at) - 'A' < 26; }
  // A letter of any script, as far as units tell: no-break spaces are none.
  bool IsWordAt(std::size_t at) const noexcept {
    return IsLetterAt(at) || (UnitAt(at) >= 0x80 && !IsNoBreakSpaceEnd(at));
  }
  bool IsNoBreakSpaceEnd(std::size_t at) const noexcept {
    return UnitAt(at) == 0xA0 && (sizeof(Unit) > 1 || (at > 0 && UnitAt(at - 1) == 0xC2));
  }

  std::size_t DigitsEnd(std::size_t at) const noexcept {
    while (IsDigitAt(at)) ++at;
    return at;
  }

  // Past one blank at `at`, if there is one.
  std::size_t PastBlank(std::size_t at) const noexcept {
    if (UnitAt(at) == ' ') return at + 1;
    const std::size_t last = at + (sizeof(Unit) == 1 ? 1 : 0);
    return UnitAt(at) >= 0x80 && IsNoBreakSpaceEnd(last) ? last + 1 : at;
  }

  // Before what divides a label from its number, which ends at `at`.
  std::size_t BeforeDividers(std::size_t at) const noexcept {
    for (;;) {
      const std::uint32_t unit = at > 0 ? UnitAt(at - 1) : 0;
      if (unit == ' ' || unit == ':' || unit == '.' || unit == '=' || unit == '\t') {
        --at;
      } else if (at > 0 && IsNoBreakSpaceEnd(at - 1)) {
        at -= sizeof(Unit) > 1 ? 1 : 2;
      } else {
        return at;
      }
    }
  }

  std::size_t WordBegin(std::size_t end) const noexcept {
    while (end > 0 && IsWordAt(end - 1)) --end;
    return end;
  }

  bool WordIs(std::size_t begin, std::size_t end, std::string_view word) const noexcept {
    if (end - begin != word.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i) {
      if (UpperAt(begin + i) != static_cast<unsigned char>(word[i])) return false;
    }
    return true;
  }

  // The kind of symbol whose label begins with this letter.
  static std::optional<Kind> SymbolOf(std::uint32_t letter) noexcept {
    if (letter == 'V') return Kind::VariableSymbol;
    if (letter == 'K') return Kind::ConstantSymbol;
    if (letter == 'S') return Kind::SpecificSymbol;
    return std::nullopt;
  }

  // The kind of symbol whose label ends at `end`: "VS", "V. S.", or a word and "symbol".
  std::optional<Kind> LabelBefore(std::size_t end) const noexcept {
    const std::uint32_t last = end > 0 ? UpperAt(end - 1) : 0;
    if (last != 'S' && last != 'L' && last != 'M') return std::nullopt;
    const std::size_t begin = WordBegin(end);
    if (begin + 2 == end && last == 'S') return SymbolOf(UpperAt(begin));
    const std::size_t word_end = BeforeDividers(begin);
    const std::size_t word = WordBegin(word_end);
    if (begin + 1 == end && last == 'S') return word + 1 == word_end ? SymbolOf(UpperAt(word)) : std::nullopt;
    if (!WordIs(begin, end, "SYMBOL") && !WordIs(begin, end, "SYM")) return std::nullopt;
    return word_end - word >= 3 && IsSymbolWord(word) ? SymbolOf(UpperAt(word)) : std::nullopt;
  }

  bool IsSymbolWord(std::size_t word) const noexcept {
    return WordIs(word, word + 3, "VAR") || WordIs(word, word + 3, "KON") || WordIs(word, word + 3, "SPE");
  }

  std::optional<FoundPayment> FindAt(std::size_t begin, std::size_t end) const noexcept {
    if (begin > 1 && IsLetterAt(begin - 1)) {
      const auto iban = FindIban(begin);
      return iban ? iban : FindLabelled(begin, end);
    }
    const std::uint32_t before = begin > 0 ? UnitAt(begin - 1) : 0;
    if (before == '-' || before == '/' || (begin > 0 && IsWordAt(begin - 1))) return std::nullopt;
    auto found = FindAccount(begin, end);
    return found ? found : FindLabelled(begin, end);
  }

  std::optional<FoundPayment> FindLabelled(std::size_t begin, std::size_t end) const noexcept {
    const auto symbol = LabelBefore(BeforeDividers(begin));
    return symbol ? FindSymbol(*symbol, begin, end) : std::nullopt;
  }

  // Two letters stand before `digits`.
  std::optional<FoundPayment> FindIban(std::size_t digits) const noexcept {
    const std::size_t begin = digits - 2;
    if (!IsLetterAt(begin) || !IsDigitAt(digits + 1)) return std::nullopt;
    if (begin > 0 && (IsWordAt(begin - 1) || IsDigitAt(begin - 1))) return std::nullopt;
    std::array<std::size_t, kIbanMost> ends{};
    std::size_t count = 0;
    for (std::size_t at = begin; count < kIbanMost && (IsLetterAt(at) || IsDigitAt(at)); ++count) {
      ends[count] = at + 1;
      at = PastBlank(at + 1);
    }
    return count < kIbanLeast ? std::nullopt : IbanOfLength(begin, ends, count);
  }

  // The country says how long it is: what refuses the longest tells where it ends.
  std::optional<FoundPayment> IbanOfLength(std::size_t begin, const std::array<std::size_t, kIbanMost>& ends,
                                           std::size_t count) const noexcept {
    auto iban = ParseIban(text_.substr(begin, ends[count - 1] - begin));
    std::size_t end = ends[count - 1];
    if (iban.code == Code::IbanLength && iban.position > 0 && begin + iban.position < end) {
      const auto past = std::ranges::upper_bound(
          ends.begin(), ends.begin() + static_cast<std::ptrdiff_t>(count), begin + iban.position);
      if (past == ends.begin()) return std::nullopt;
      end = *(past - 1);
      iban = ParseIban(text_.substr(begin, end - begin));
    }
    if (!iban || IsWordAt(end) || IsDigitAt(end)) return std::nullopt;
    return FoundPayment{Kind::Iban, begin, end, iban.value.text};
  }

  // Past a hyphen or slash with at most one blank on either side; `at` otherwise.
  std::size_t PastDivider(std::size_t at, char divider) const noexcept {
    const std::size_t mark = PastBlank(at);
    return UnitAt(mark) == static_cast<unsigned char>(divider) ? PastBlank(mark + 1) : at;
  }

  std::optional<FoundPayment> FindAccount(std::size_t begin, std::size_t end) const noexcept {
    const std::size_t number = PastDivider(end, '-');
    const bool has_prefix = number != end;
    const std::size_t number_end = has_prefix ? DigitsEnd(number) : end;
    if (!has_prefix && end - begin < kLeastDigitsAlone) return std::nullopt;
    const std::size_t bank = PastDivider(number_end, '/');
    if (bank == number_end || DigitsEnd(bank) != bank + 4) return std::nullopt;
    const std::size_t account_end = bank + 4;
    if (UnitAt(account_end) == '/' || IsWordAt(account_end)) return std::nullopt;
    const auto account = ParseAccount(text_.substr(begin, account_end - begin));
    if (!account) return std::nullopt;
    return FoundPayment{Kind::Account, begin, account_end, Resized<34>(Format(account.value))};
  }

  std::optional<FoundPayment> FindSymbol(Kind kind, std::size_t begin, std::size_t end) const noexcept {
    std::size_t digits = end - begin;
    for (;;) {
      const std::size_t group = PastBlank(end);
      const std::size_t group_end = DigitsEnd(group);
      if (group == end || group_end != group + 3 || digits + 3 > kMostSymbolDigits) break;
      if (IsPartOfMore(group_end)) break;
      digits += 3;
      end = group_end;
    }
    if (IsPartOfMore(end)) return std::nullopt;
    const auto symbol = Check(kind, text_.substr(begin, end - begin));
    if (!symbol) return std::nullopt;
    return FoundPayment{kind, begin, end, symbol.value};
  }

  // Whether digits that end here go on as an account, a date or a word.
  bool IsPartOfMore(std::size_t end) const noexcept {
    return UnitAt(end) == '-' || UnitAt(end) == '/' || IsWordAt(end);
  }

  std::basic_string_view<Unit> text_;
};

}  // namespace

std::optional<FoundPayment> FindPayment(std::string_view text, std::size_t from) noexcept {
  return PaymentText<char>(text).FindFrom(from);
}
std::optional<FoundPayment> FindPayment(std::u16string_view text, std::size_t from) noexcept {
  return PaymentText<char16_t>(text).FindFrom(from);
}

}  // namespace ravo::czech
