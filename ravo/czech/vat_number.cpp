#include <ravo/czech/country.h>
#include <ravo/czech/dic.h>
#include <ravo/czech/reading.h>
#include <ravo/czech/vat_number.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace ravo::czech {
namespace {

struct VatForm {
  std::string_view country;
  std::string_view form;
};
constexpr VatForm kVatForms[] = {
#define RAVO_VAT_FORM(country, form) {country, form},
#include "vat_forms.inc"
#undef RAVO_VAT_FORM
};
constexpr auto kVatIndex = detail::IndexByCountry(kVatForms);

constexpr detail::Spelling kVatSpelling{Code::VatEmpty,
                                        Code::VatCharacter,
                                        Code::VatLength,
                                        detail::kDigit | detail::kLetter | detail::kSign,
                                        detail::kBlank | detail::kHyphen | detail::kDot,
                                        {"DIC", "ICDPH", "VATID", "VATNO", "VAT", "USTIDNR", "USTID"}};
constexpr std::size_t kVatHead = 2;

constexpr bool FitsForm(char character, char form) noexcept {
  const detail::Marks marks = detail::kAsciiMarks[static_cast<unsigned char>(character)].marks;
  switch (form) {
    case '9':
      return marks == detail::kDigit;
    case 'A':
      return marks == detail::kLetter;
    case 'X':
      return marks != detail::kSign;
    case 'K':
      return marks != detail::kSign && character != 'I' && character != 'O';
    case 'S':
      return true;
    default:
      return character == form;
  }
}

constexpr std::size_t OddInForm(std::string_view own, std::string_view form) noexcept {
  std::size_t i = 0;
  while (i < form.size() && FitsForm(own[i], form[i])) ++i;
  return i;
}

constexpr bool SameCountry(std::string_view left, std::string_view right) noexcept {
  return left[0] == right[0] && left[1] == right[1];
}

// How the forms of a country take a number: where the one that fits farthest ends, and the longest form.
struct VatFit {
  bool fits = false;
  bool length_fits = false;
  std::size_t odd = 0;
  std::size_t longest = 0;
};
constexpr VatFit FitForms(std::string_view own, const VatForm* form) noexcept {
  const std::string_view country = form->country;
  VatFit fit;
  for (; form != std::end(kVatForms) && SameCountry(form->country, country); ++form) {
    fit.longest = std::max(fit.longest, form->form.size());
    if (form->form.size() != own.size()) continue;
    const std::size_t odd = OddInForm(own, form->form);
    fit.length_fits = true;
    fit.fits |= odd == own.size();
    fit.odd = std::max(fit.odd, odd);
  }
  return fit;
}

template <class Unit>
Parsed<VatNumber> CzechVat(std::basic_string_view<Unit> text) noexcept {
  const Parsed<Dic> dic = ParseDic(text);
  return {{Resized<14>(dic.value.text)}, dic.code, dic.position};
}

template <class Unit>
Parsed<VatNumber> ParseVatIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<14>(text, kVatSpelling);
  const std::string_view number = kept.View();
  if (number.starts_with("CZ")) return CzechVat(text);
  if (kept.code != Code::Correct && kept.code != Code::VatLength) return {{}, kept.code, kept.position};
  const auto refuse = [&](std::size_t index, Code code) {
    return detail::Refuse<VatNumber>(text, kVatSpelling, kept.from, index, code);
  };
  const std::size_t row =
      number.size() < kVatHead ? 0 : kVatIndex[detail::CountryNumber(number[0], number[1])];
  if (row == 0) return refuse(0, Code::VatCountry);
  const VatFit fit = FitForms(number.substr(kVatHead), &kVatForms[row - 1]);
  if (kept.code != Code::Correct || number.size() > kVatHead + fit.longest) {
    return refuse(kVatHead + fit.longest, Code::VatLength);
  }
  if (!fit.length_fits) return {{}, Code::VatLength, text.size()};
  if (!fit.fits) return refuse(kVatHead + fit.odd, Code::VatForm);
  return {{kept.text}};
}

}  // namespace

Parsed<VatNumber> ParseVatNumber(std::string_view text) noexcept { return ParseVatIn(text); }
Parsed<VatNumber> ParseVatNumber(std::u16string_view text) noexcept { return ParseVatIn(text); }

}  // namespace ravo::czech
