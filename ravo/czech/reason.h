#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

/// Why a check refuses: a number, a short text and a sentence for each reason.
namespace ravo::czech {

/// The reasons. Numbers and texts never change their meaning; new ones are added.
enum class Code : std::uint16_t {
  Correct = 0,
#define RAVO_REASON(number, name, text, czech, english) name = (number),
#include "reasons.inc"
#undef RAVO_REASON
};

/// The two languages of sentences.
enum class Language : std::uint8_t { Czech, English };

/// Returns the stable text of `code`, such as "ico.checksum"; "correct" for `Code::Correct`.
///
/// Empty for a number that is no code.
[[nodiscard]] std::string_view CodeText(Code code) noexcept;

/// Returns the code whose text is `text`, or nothing.
[[nodiscard]] std::optional<Code> CodeOf(std::string_view text) noexcept;

/// Returns one sentence in UTF-8, without a full stop: "wrong: the check digit does not match", or "correct
/// in form".
///
/// Empty for a number that is no code.
[[nodiscard]] std::string_view Sentence(Code code, Language language) noexcept;

/// What a check answers: the value in its canonical form, or the reason and where the input is at fault.
template <class Value>
struct Parsed {
  Value value{};              ///< canonical; meaningless unless `code` is `Code::Correct`
  Code code = Code::Correct;  ///< the reason
  std::size_t position =
      0;  ///< in units of the input, 0-based; the length of the input if something is missing there

  /// Whether the input is correct in form.
  [[nodiscard]] constexpr explicit operator bool() const noexcept { return code == Code::Correct; }
};

}  // namespace ravo::czech
