#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

/// Replacement and removal. Each gives a new text; an empty search text changes nothing.
namespace ravo::DIUtils {

/// `text` with every `search`, looked for from left to right, replaced by `replacement`. Occurrences do not
/// overlap, and what was put in is not searched again.
[[nodiscard]] RAVO_API std::u16string StrReplace(std::u16string_view text, std::u16string_view search,
                                                 std::u16string_view replacement);
[[nodiscard]] RAVO_API std::string StrReplaceA(std::string_view text, std::string_view search,
                                               std::string_view replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceW(std::u16string_view text, std::u16string_view search,
                                                  std::u16string_view replacement);
/// The same where `search` is compared after case folding.
[[nodiscard]] RAVO_API std::string StrReplaceIA(std::string_view text, std::string_view search,
                                                std::string_view replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceIW(std::u16string_view text, std::u16string_view search,
                                                   std::u16string_view replacement);

/// The whole replacement again and again until the text no longer contains `search`: two blanks by one
/// leave no double blank. Raises `RangeError` where that may have no end: the replacement contains the
/// search text, or it is no shorter and has not come to an end after as many passes as the text has
/// characters (10,000 at least) or with 67,108,864 characters. A crafted text takes quadratic time.
[[nodiscard]] RAVO_API std::string StrReplaceLoopA(std::string_view text, std::string_view search,
                                                   std::string_view replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceLoopW(std::u16string_view text, std::u16string_view search,
                                                      std::u16string_view replacement);
[[nodiscard]] RAVO_API std::string StrReplaceLoopIA(std::string_view text, std::string_view search,
                                                    std::string_view replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceLoopIW(std::u16string_view text, std::u16string_view search,
                                                       std::u16string_view replacement);

/// `text` with every `search` replaced by `replacement`.
[[nodiscard]] RAVO_API std::string StrReplaceCharA(std::string_view text, char search, char replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceCharW(std::u16string_view text, char16_t search,
                                                      char16_t replacement);

/// `text` without every span from a `from` to the next `to` behind it, both included, compared after case
/// folding. A `from` without a `to` stays with all that follows; so does everything where a marker is empty.
[[nodiscard]] RAVO_API std::string StrRemoveFromToIA(std::string_view text, std::string_view from,
                                                     std::string_view to);
[[nodiscard]] RAVO_API std::u16string StrRemoveFromToIW(std::u16string_view text, std::u16string_view from,
                                                        std::u16string_view to);

/// `text` without its white space: bytes 0 to 32 (A), what `CharIsWhiteSpaceW` says (W).
[[nodiscard]] RAVO_API std::string StrRemoveSpacingA(std::string_view text);
[[nodiscard]] RAVO_API std::u16string StrRemoveSpacingW(std::u16string_view text);

}  // namespace ravo::DIUtils
