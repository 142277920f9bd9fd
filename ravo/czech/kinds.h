#pragma once

#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

/// All kinds by number or name, for callers that learn the kind at run time: the prompt, columns, other
/// languages.
namespace ravo::czech {

/// What a text can be checked for. The hundreds of a refusal's `Code` are the number of its kind.
enum class Kind : std::uint8_t {
#define RAVO_KIND(number, name, text, parse, czech, english) name = (number),
#include "kinds.inc"
#undef RAVO_KIND
};

/// Returns all kinds, by number.
[[nodiscard]] std::span<const Kind> AllKinds() noexcept;

/// Returns the stable text of a kind, such as "ico". Empty for a number that is no kind.
[[nodiscard]] std::string_view KindText(Kind kind) noexcept;

/// Returns the kind whose text is `text`, or nothing.
[[nodiscard]] std::optional<Kind> KindOf(std::string_view text) noexcept;

/// Returns the name of the kind in UTF-8. Empty for a number that is no kind.
[[nodiscard]] std::string_view KindName(Kind kind, Language language) noexcept;

/// Returns the canonical form of `text` as that kind, or why it is not correct in form.
///
/// The canonical form is the value's `text`; of an account, its usual spelling. `Code::Correct` with an empty
/// text for a number that is no kind.
[[nodiscard]] Parsed<FixedText<34>> Check(Kind kind, std::string_view text) noexcept;
[[nodiscard]] Parsed<FixedText<34>> Check(Kind kind, std::u16string_view text) noexcept;

/// Returns why `text` is not correct in form, `Code::Correct` if it is: what `Check` says, without the text.
[[nodiscard]] Code Refusal(Kind kind, std::string_view text) noexcept;

/// Returns the usual spelling of `text` as that kind, or why it is not correct in form.
[[nodiscard]] Parsed<FixedText<42>> Respell(Kind kind, std::string_view text) noexcept;
[[nodiscard]] Parsed<FixedText<42>> Respell(Kind kind, std::u16string_view text) noexcept;

}  // namespace ravo::czech
