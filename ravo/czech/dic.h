#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <cstdint>
#include <string_view>

namespace ravo::czech {

/// The kind of holder, as far as the digits tell.
enum class DicForm : std::uint8_t {
  LegalEntity,  ///< eight digits, an IČO
  BirthNumber,  ///< a birth number of nine or ten digits
  Special,      ///< nine digits from 6 on: a person whose birth number is not used
  Group,        ///< nine digits from 699 on: a group of payers of VAT
};

/// A Czech tax number.
struct Dic {
  FixedText<12> text;                   ///< "CZ27082440"
  DicForm form = DicForm::LegalEntity;  ///< whose
  friend constexpr bool operator==(const Dic&, const Dic&) noexcept = default;
};

/// Returns the Czech tax number in `text`, correct in form: CZ and eight, nine or ten digits.
///
/// Eight digits are an IČO that does not begin with nine; nine digits from 6 on have a check digit of their
/// own; all others are birth numbers (`ParseBirthNumber`). Refused: `DicEmpty`, `DicCountry`, `DicCharacter`,
/// `DicLength`, `DicFirst`, `DicDate`, `DicChecksum`. A number without CZ is `DicCountry`, because the law
/// (280/2009, section 130) makes CZ a part of it.
///
///     ParseDic("DIČ: CZ 699004237")  // CZ699004237, a group
[[nodiscard]] Parsed<Dic> ParseDic(std::string_view text) noexcept;
[[nodiscard]] Parsed<Dic> ParseDic(std::u16string_view text) noexcept;

/// Returns the usual spelling, which is the canonical form.
[[nodiscard]] constexpr FixedText<12> Format(const Dic& dic) noexcept { return dic.text; }

}  // namespace ravo::czech
