#include "support.h"
#include <ravo/common/accounts.h>
#include <ravo/common/descriptions.h>
#include <ravo/runtime/text.h>

using ravo::c::FailStruct;
using ravo::c::Fill;
using ravo::c::FromUnits;
using ravo::c::Guarded;
using ravo::c::IsKnown;
using ravo::c::ReadText;
using ravo::c::Units;
using ravo::c::WriteTexts;
namespace suite = ravo::RavoInterfaceCommon;

namespace {

// Copies a text to a place in a struct, which is zeros.
template <std::size_t size>
void Copy(std::u16string_view text, char (&place)[size]) {
  const std::string utf8 = ravo::ToUtf8(text);
  std::copy_n(utf8.data(), std::min(utf8.size(), size - 1), place);
}

}  // namespace

ravo_status ravo_suite_is_numbers(const char* text, size_t text_length, int32_t* answer, ravo_error* error) {
  return FromUnits(text, text_length, answer, error, suite::IsNumbers);
}

ravo_status ravo_suite_valid_su(const char* text, size_t text_length, int32_t* answer, ravo_error* error) {
  return FromUnits(text, text_length, answer, error, suite::ValidSU);
}

ravo_status ravo_suite_valid_au(const char* text, size_t text_length, int32_t* answer, ravo_error* error) {
  return FromUnits(text, text_length, answer, error, suite::ValidAU);
}

ravo_status ravo_suite_valid_ucet(const char* text, size_t text_length, int32_t* answer, ravo_error* error) {
  return FromUnits(text, text_length, answer, error, suite::ValidUcet);
}

ravo_status ravo_suite_valid_vs(const char* text, size_t text_length, int32_t* answer, ravo_error* error) {
  return FromUnits(text, text_length, answer, error, suite::ValidVS);
}

ravo_status ravo_suite_ucet_mod_11(const char* text, size_t text_length, int32_t* answer, ravo_error* error) {
  return FromUnits(text, text_length, answer, error, suite::UcetMod11);
}

ravo_status ravo_suite_ucet_na_su_au(const char* ucet, size_t ucet_length, char* su, size_t su_size,
                                     size_t* su_length, char* au, size_t au_size, size_t* au_length,
                                     ravo_error* error) {
  const auto [input, status] = ReadText(ucet, ucet_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &utf8 = input] {
    std::u16string synthetic;
    std::u16string analytic;
    suite::UcetNaSUAU(Units(utf8), synthetic, analytic);
    return WriteTexts({su, su_size, su_length}, ravo::ToUtf8(synthetic), {au, au_size, au_length},
                      ravo::ToUtf8(analytic), error);
  });
}

ravo_status ravo_suite_calculate_ean(const char* code, size_t code_length, ravo_suite_ean* ean,
                                     ravo_error* error) {
  if (!IsKnown(ean)) return FailStruct(error);
  const auto [input, status] = ReadText(code, code_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &utf8 = input] {
    std::u16string old_check;
    std::u16string new_check;
    std::u16string full;
    ravo_suite_ean result{};
    result.valid = suite::CalculateEAN(Units(utf8), old_check, new_check, full);
    Copy(old_check, result.old_check);
    Copy(new_check, result.new_check);
    Copy(full, result.full_code);
    Fill(*ean, result);
    return RAVO_OK;
  });
}
