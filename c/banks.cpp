#include "support.h"
#include <ravo/czech/banks.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using ravo::c::FailNullResult;
using ravo::c::FailRange;
using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::FailWrong;
using ravo::c::Fill;
using ravo::c::Guarded;
using ravo::c::IsKnown;
using ravo::c::ReadText;
namespace czech = ravo::czech;

struct ravo_bank_list {
  std::string text;
  std::vector<czech::Bank> banks;
  czech::Day date;
};

namespace {

czech::BankList ListOf(const ravo_bank_list* list) {
  return list == nullptr ? czech::BuiltInBanks() : czech::BankList{list->banks, list->date};
}

// What follows a column in the text is a delimiter or the end, never a part of another column.
void EndWithNul(std::string& text, std::string_view column) {
  const auto end = static_cast<std::size_t>(column.data() - text.data()) + column.size();
  if (!column.empty() && end < text.size()) text[end] = '\0';
}

ravo_status FillBank(ravo_bank* bank, const czech::Bank& row) {
  Fill(*bank, {0, row.bic.empty() ? nullptr : row.bic.data(), row.name.empty() ? "" : row.name.data(),
               row.code, row.clears});
  return RAVO_OK;
}

ravo_status OpenList(std::string_view text, czech::Day date, ravo_bank_list** list, ravo_error* error) {
  auto opened = std::make_unique<ravo_bank_list>();
  opened->text = text;
  opened->date = date;
  opened->banks.resize(static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1);
  const auto read = czech::ReadBankList(opened->text, opened->banks);
  if (!read) return FailWrong(error, read.code, read.position);
  opened->banks.resize(read.value);
  for (const czech::Bank& bank : opened->banks) {
    EndWithNul(opened->text, bank.bic);
    EndWithNul(opened->text, bank.name);
  }
  *list = opened.release();
  return RAVO_OK;
}

}  // namespace

ravo_status ravo_bank_list_open(const char* text, size_t text_length, ravo_day date, ravo_bank_list** list,
                                ravo_error* error) {
  if (list == nullptr) return FailNullResult(error);
  if (!czech::InCalendar({date})) return FailRange(error, "the day is not in the years 1 to 9999");
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &csv = input] { return OpenList(csv, {date}, list, error); });
}

void ravo_bank_list_close(ravo_bank_list* list) { delete list; }

ravo_day ravo_bank_list_date(const ravo_bank_list* list) { return ListOf(list).date.number; }

size_t ravo_bank_count(const ravo_bank_list* list) { return ListOf(list).banks.size(); }

ravo_status ravo_bank_at(const ravo_bank_list* list, size_t index, ravo_bank* bank, ravo_error* error) {
  if (!IsKnown(bank)) return FailStruct(error);
  const auto banks = ListOf(list).banks;
  if (index >= banks.size()) return FailUnknown(error, "the list has fewer banks");
  return FillBank(bank, banks[index]);
}

ravo_status ravo_bank_find(const ravo_bank_list* list, int32_t code, ravo_bank* bank, ravo_error* error) {
  if (!IsKnown(bank)) return FailStruct(error);
  if (code < 0 || code > 9999) return FailWrong(error, czech::Code::BankUnknown, 0);
  const czech::BankList banks = ListOf(list);
  const auto answer = czech::FindBank(banks, static_cast<std::uint16_t>(code), banks.date);
  if (answer.bank == nullptr) return FailWrong(error, answer.code, 0);
  return FillBank(bank, *answer.bank);
}
