#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <string_view>

namespace ravo::czech {

/// A Czech postcode: five digits.
struct PostCode {
  FixedText<5> text;  ///< "11000"
  friend constexpr bool operator==(const PostCode&, const PostCode&) noexcept = default;
};

/// Returns the postcode in `text`, correct in form: five digits of which the first is 1 to 7.
///
/// Refused: `PostCodeEmpty`, `PostCodeCharacter`, `PostCodeLength`, `PostCodeFirst` (0, 8 and 9 are Slovak or
/// none).
[[nodiscard]] Parsed<PostCode> ParsePostCode(std::string_view text) noexcept;
[[nodiscard]] Parsed<PostCode> ParsePostCode(std::u16string_view text) noexcept;

/// Returns the usual spelling: "110 00".
[[nodiscard]] FixedText<6> Format(const PostCode& code) noexcept;

}  // namespace ravo::czech
