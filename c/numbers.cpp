#include "support.h"
#include <ravo/czech/account.h>
#include <ravo/czech/birth_number.h>
#include <ravo/czech/isbn.h>
#include <ravo/czech/payment_text.h>

using ravo::c::FailRange;
using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::FailWrong;
using ravo::c::Fill;
using ravo::c::IsKnown;
using ravo::c::ReadText;
using ravo::c::WriteText;
namespace czech = ravo::czech;

ravo_status ravo_account_read(const char* text, size_t text_length, ravo_account* account,
                              ravo_error* error) {
  if (!IsKnown(account)) return FailStruct(error);
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  const auto parsed = czech::ParseAccount(input);
  if (!parsed) return FailWrong(error, parsed.code, parsed.position);
  const czech::Account& value = parsed.value;
  Fill(*account, {0, static_cast<int64_t>(value.number), static_cast<int32_t>(value.prefix), value.bank});
  return RAVO_OK;
}

ravo_status ravo_account_to_iban(const char* text, size_t text_length, char* buffer, size_t size,
                                 size_t* length, ravo_error* error) {
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  const auto parsed = czech::ParseAccount(input);
  if (!parsed) return FailWrong(error, parsed.code, parsed.position);
  return WriteText({buffer, size, length}, czech::IbanOf(parsed.value).text.View(), error);
}

ravo_status ravo_account_of_iban(const char* text, size_t text_length, char* buffer, size_t size,
                                 size_t* length, ravo_error* error) {
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  const auto parsed = czech::ParseIban(input);
  if (!parsed) return FailWrong(error, parsed.code, parsed.position);
  const auto account = czech::AccountOf(parsed.value);
  if (!account) return FailUnknown(error, "the IBAN is not Czech");
  return WriteText({buffer, size, length}, czech::Format(*account).View(), error);
}

ravo_status ravo_birth_read(const char* text, size_t text_length, ravo_day today, ravo_birth* birth,
                            ravo_error* error) {
  if (!IsKnown(birth)) return FailStruct(error);
  if (!czech::InCalendar({today})) return FailRange(error, "the day is not in the years 1 to 9999");
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  const auto parsed = czech::ParseBirthNumber(input);
  if (!parsed) return FailWrong(error, parsed.code, parsed.position);
  const czech::BirthNumber& value = parsed.value;
  const czech::Code born = czech::CheckBorn(value, {today});
  if (born != czech::Code::Correct) return FailWrong(error, born, 0);
  Fill(*birth,
       {0, czech::DayOf(value.born).number, value.sex == czech::Sex::Female ? RAVO_SEX_FEMALE : RAVO_SEX_MALE,
        value.second_series, value.remainder_ten});
  return RAVO_OK;
}

ravo_status ravo_isbn_to_13(const char* text, size_t text_length, char* buffer, size_t size, size_t* length,
                            ravo_error* error) {
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  const auto parsed = czech::ParseIsbn(input);
  if (!parsed) return FailWrong(error, parsed.code, parsed.position);
  return WriteText({buffer, size, length}, czech::ToIsbn13(parsed.value).text.View(), error);
}

ravo_status ravo_payment_find(const char* text, size_t text_length, size_t from, ravo_payment* payment,
                              ravo_error* error) {
  if (!IsKnown(payment)) return FailStruct(error);
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  if (from > input.size()) return FailRange(error, "the search begins past the end of the text");
  const auto found = czech::FindPayment(input, from);
  if (!found) return FailUnknown(error, "there is no payment data");
  ravo_payment result{0, found->begin, found->end, static_cast<ravo_kind>(found->kind), {}};
  const std::string_view canonical = found->canonical.View();
  std::copy_n(canonical.data(), canonical.size(), result.canonical);
  Fill(*payment, result);
  return RAVO_OK;
}
