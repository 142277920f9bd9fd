#include <ravo/czech/birth_number.h>
#include <ravo/czech/dic.h>
#include <ravo/czech/reading.h>
#include <ravo/czech/weights.h>

#include <cstddef>

namespace ravo::czech {
namespace {

constexpr detail::Spelling kDicSpelling{Code::DicEmpty,  Code::DicCharacter,
                                        Code::DicLength, detail::kDigit | detail::kLetter | detail::kSlash,
                                        detail::kBlank,  {"DIC", "VATID", "VATNO", "VAT"}};
constexpr std::size_t kCountry = 2;
constexpr std::size_t kSlashInDic = kCountry + 6;

struct DicFault {
  Code code = Code::Correct;
  std::size_t index = 0;  // of the digits
};

// The digits between the first and the last have the weights 8 to 2.
constexpr char SpecialCheckDigit(std::string_view digits) noexcept {
  const int sum = detail::WeightedSum(digits.data() + 1, std::array{8, 7, 6, 5, 4, 3, 2});
  return static_cast<char>('0' + (18 - (21 - sum % 11) % 11) % 10);
}

constexpr DicFault CheckEight(std::string_view digits) noexcept {
  if (digits[0] == '9') return {Code::DicFirst, 0};
  if (detail::IcoCheckDigit(digits.data()) != digits[7]) return {Code::DicChecksum, 7};
  return {};
}

constexpr Code DicCodeOf(Code birth_number) noexcept {
  switch (birth_number) {
    case Code::Correct:
      return Code::Correct;
    case Code::BirthNumberDate:
      return Code::DicDate;
    case Code::BirthNumberLength:
      return Code::DicLength;
    default:
      return Code::DicChecksum;
  }
}

DicFault CheckDigits(std::string_view digits, DicForm& form) noexcept {
  if (digits.size() == 8) return CheckEight(digits);
  if (digits.size() == 9 && digits[0] == '6') {
    form = digits.starts_with("699") ? DicForm::Group : DicForm::Special;
    if (SpecialCheckDigit(digits) != digits[8]) return {Code::DicChecksum, 8};
    return {};
  }
  form = DicForm::BirthNumber;
  BirthNumber number;
  const auto fault = detail::ReadBirthNumber(digits, number);
  return {DicCodeOf(fault.code), fault.index};
}

template <class Unit>
Parsed<Dic> ParseDicIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<16>(text, kDicSpelling);
  const auto refuse = [&](std::size_t index, Code code) {
    return detail::Refuse<Dic>(text, kDicSpelling, kept.from, index, code);
  };
  const bool readable = kept.code == Code::Correct || kept.code == Code::DicLength;
  if (readable && !kept.View().starts_with("CZ")) return refuse(0, Code::DicCountry);
  if (kept.code != Code::Correct) return {{}, kept.code, kept.position};
  const bool divided = kept.Size() > kSlashInDic && kept.At(kSlashInDic) == '/';
  FixedText<16> canonical = kept.text;
  if (divided) {
    canonical = Fixed<16>(kept.View().substr(0, kSlashInDic));
    canonical.Append(kept.View().substr(kSlashInDic + 1));
  }
  const std::size_t odd = detail::FirstNoDigit(canonical.View(), kCountry);
  if (odd < canonical.size) {
    return refuse(divided && odd >= kSlashInDic ? odd + 1 : odd, Code::DicCharacter);
  }
  const std::string_view digits = canonical.View().substr(kCountry);
  if (digits.size() > 10) return refuse(kCountry + (divided ? 11 : 10), Code::DicLength);
  if (digits.size() < 8) return {{}, Code::DicLength, text.size()};
  // A slash divides birth numbers alone.
  if (divided && digits.size() == 8) return refuse(kSlashInDic, Code::DicCharacter);
  Dic dic{Resized<12>(canonical)};
  const DicFault fault = CheckDigits(digits, dic.form);
  if (fault.code == Code::Correct) return {dic};
  const std::size_t index = kCountry + fault.index;
  return refuse(divided && index >= kSlashInDic ? index + 1 : index, fault.code);
}

}  // namespace

Parsed<Dic> ParseDic(std::string_view text) noexcept { return ParseDicIn(text); }
Parsed<Dic> ParseDic(std::u16string_view text) noexcept { return ParseDicIn(text); }

}  // namespace ravo::czech
