#include <ravo/czech/banks.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace ravo::czech {
namespace {

constexpr Bank kBanks[] = {
#define RAVO_BANK(code, clears, bic, name) {code, clears, bic, name},
#include "generated/banks.inc"
#undef RAVO_BANK
};
static_assert(std::ranges::is_sorted(kBanks, {}, &Bank::code));
// The edition of the source is of this day; the list was fetched for it.
constexpr Day kBanksDate = DayOf({2022, 11, 13});

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kColumns = 4;
using Columns = std::array<std::string_view, kColumns>;

constexpr std::string_view Stripped(std::string_view column) noexcept {
  constexpr std::string_view kEnds = " \t\r\"";
  const std::size_t begin = std::min(column.find_first_not_of(kEnds), column.size());
  return column.substr(begin, column.find_last_not_of(kEnds) + 1 - begin);
}

// The columns of a line, or false where there are not four.
bool SplitLine(std::string_view line, Columns& columns) noexcept {
  for (std::size_t i = 0; i < kColumns; ++i) {
    const std::size_t end = line.find(';');
    if ((end == std::string_view::npos) != (i + 1 == kColumns)) return false;
    columns[i] = Stripped(line.substr(0, end));
    if (i + 1 < kColumns) line.remove_prefix(end + 1);
  }
  return true;
}

// The code, or -1.
constexpr int BankCodeOf(std::string_view column) noexcept {
  if (column.size() != 4 || column.find_first_not_of("0123456789") != std::string_view::npos) return -1;
  int code = 0;
  for (const char digit : column) code = code * 10 + (digit - '0');
  return code;
}

// Appends a line's bank to the first `count` of `room`.
Code ReadLine(std::string_view line, std::span<Bank> room, std::size_t& count) noexcept {
  Columns columns;
  if (!SplitLine(line, columns)) return Code::BankLine;
  const int code = BankCodeOf(columns[0]);
  if (code < 0) return Code::BankCode;
  if (count == room.size()) return Code::BankRoom;
  room[count++] = {static_cast<std::uint16_t>(code), columns[3] == "A", columns[2], columns[1]};
  return Code::Correct;
}

}  // namespace

BankList BuiltInBanks() noexcept { return {kBanks, kBanksDate}; }

BankAnswer FindBank(const BankList& list, std::uint16_t code, Day day) noexcept {
  BankAnswer answer{nullptr, Code::BankUnknown, list.date, day.number - list.date.number};
  if (list.banks.empty()) answer.code = Code::BankEmpty;
  const auto found = std::ranges::lower_bound(list.banks, code, {}, &Bank::code);
  if (found == list.banks.end() || found->code != code) return answer;
  answer.bank = &*found;
  answer.code = Code::Correct;
  return answer;
}

Parsed<std::size_t> ReadBankList(std::string_view text, std::span<Bank> room) noexcept {
  std::size_t count = 0;
  std::size_t at = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  for (bool captions = true; at < text.size(); captions = false) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const std::string_view line = text.substr(at, end - at);
    if (!captions && !Stripped(line).empty()) {
      const Code code = ReadLine(line, room, count);
      if (code != Code::Correct) return {0, code, at};
    }
    at = end + 1;
  }
  if (count == 0) return {0, Code::BankEmpty, text.size()};
  const std::span<Bank> banks = room.first(count);
  std::ranges::sort(banks, {}, &Bank::code);
  const auto twice = std::ranges::adjacent_find(banks, {}, &Bank::code);
  if (twice == banks.end()) return {count};
  const auto* const later = std::max(twice->name.data(), std::next(twice)->name.data());
  return {0, Code::BankTwice, static_cast<std::size_t>(later - text.data())};
}

}  // namespace ravo::czech
