#include "columns_answers.h"
#include "handles.h"
#include <ravo/czech/banks.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <string>
#include <vector>

using ravo::c::Answer;
using ravo::c::FailArgument;
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

struct ravo_bank_list : ravo::c::Handle {
  std::string text;
  std::vector<czech::Bank> banks;
  czech::Day date;
};

namespace {

czech::BankList ListOf(const ravo_bank_list* list) {
  ravo::c::RefuseClosed(list);
  return list == nullptr ? czech::BuiltInBanks() : czech::BankList{list->banks, list->date};
}

// What follows a column in the text is a delimiter or the end, never a part of another column.
void EndWithNul(std::string& text, std::string_view column) {
  const auto end = static_cast<std::size_t>(column.data() - text.data()) + column.size();
  if (!column.empty() && end < text.size()) text[end] = '\0';
}

ravo_status FailClosed(ravo_error* error) { return FailArgument(error, "the list is closed"); }

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

// Of a bank code, or of an account that ends with one: the name of the bank.
struct BankName {
  [[nodiscard]] Answer<std::string_view> operator()(std::string_view text) const noexcept {
    const std::string_view digits = text.substr(text.rfind('/') + 1);
    std::uint16_t code = 0;
    const char* const end = digits.data() + digits.size();
    const bool is_code = digits.size() == 4 && std::from_chars(digits.data(), end, code).ptr == end;
    const bool has_more = text.size() != digits.size();
    if (!is_code || (has_more && ravo::c::WellFormedLength(text) != text.size()))
      return Refused(czech::Code::BankCode, text);
    const auto answer = czech::FindBank(list, code, list.date);
    if (answer.bank == nullptr) return Refused(answer.code, text);
    return {answer.bank->name};
  }
  static Answer<std::string_view> Refused(czech::Code code, std::string_view text) noexcept {
    return {{}, static_cast<std::uint16_t>(ravo::c::CodeOfRefusal(code, text))};
  }
  czech::BankList list;
};

}  // namespace

ravo_status ravo_bank_list_open(const char* text, size_t text_length, ravo_day date, ravo_bank_list** list,
                                ravo_error* error) {
  if (list == nullptr) return FailNullResult(error);
  if (!czech::InCalendar({date})) return FailRange(error, "the day is not in the years 1 to 9999");
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &csv = input] { return OpenList(csv, {date}, list, error); });
}

void ravo_bank_list_close(ravo_bank_list* list) { ravo::c::Close(list); }

ravo_day ravo_bank_list_date(const ravo_bank_list* list) { return ListOf(list).date.number; }

size_t ravo_bank_count(const ravo_bank_list* list) { return ListOf(list).banks.size(); }

ravo_status ravo_bank_at(const ravo_bank_list* list, size_t index, ravo_bank* bank, ravo_error* error) {
  if (IsClosed(list)) return FailClosed(error);
  if (!IsKnown(bank)) return FailStruct(error);
  const auto banks = ListOf(list).banks;
  if (index >= banks.size()) return FailUnknown(error, "the list has fewer banks");
  return FillBank(bank, banks[index]);
}

ravo_status ravo_bank_find(const ravo_bank_list* list, int32_t code, ravo_bank* bank, ravo_error* error) {
  if (IsClosed(list)) return FailClosed(error);
  if (!IsKnown(bank)) return FailStruct(error);
  if (code < 0 || code > 9999) return FailWrong(error, czech::Code::BankUnknown, 0);
  const czech::BankList banks = ListOf(list);
  const auto answer = czech::FindBank(banks, static_cast<std::uint16_t>(code), banks.date);
  if (answer.bank == nullptr) return FailWrong(error, answer.code, 0);
  return FillBank(bank, *answer.bank);
}

ravo_status ravo_bank_find_column(const ravo_bank_list* list, const ravo_column* column, uint32_t flags,
                                  ravo_answers* answers, ravo_progress progress, void* context,
                                  ravo_error* error) {
  if (IsClosed(list)) return FailClosed(error);
  return Guarded(error, [&] {
    return ravo::c::AnswerTexts<ravo::c::kTexts>(column, {flags, progress, context}, answers, error,
                                                 BankName{ListOf(list)});
  });
}
