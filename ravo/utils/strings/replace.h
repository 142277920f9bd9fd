#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

/// Replacement and removal. Each function returns a new text; an empty search text changes nothing.
namespace ravo::DIUtils {

/// Returns `text` with each `search` replaced by `replacement`, from left to right. Occurrences do not
/// overlap, and inserted text is not searched again.
[[nodiscard]] RAVO_API std::u16string StrReplace(std::u16string_view text, std::u16string_view search,
                                                 std::u16string_view replacement);
[[nodiscard]] RAVO_API std::string StrReplaceA(std::string_view text, std::string_view search,
                                               std::string_view replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceW(std::u16string_view text, std::u16string_view search,
                                                  std::u16string_view replacement);
/// Returns the same with `search` compared after case folding.
[[nodiscard]] RAVO_API std::string StrReplaceIA(std::string_view text, std::string_view search,
                                                std::string_view replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceIW(std::u16string_view text, std::u16string_view search,
                                                   std::u16string_view replacement);

/// Returns `text` with the whole replacement repeated until it no longer contains `search`: replacing two
/// blanks by one leaves no double blank.
///
/// Throws `RangeError` if that might never end: the replacement contains the search text, or it is not
/// shorter and either the passes exceed the length of the text (at least 10,000) or the text reaches
/// 67,108,864 characters. The worst case takes quadratic time.
[[nodiscard]] RAVO_API std::string StrReplaceLoopA(std::string_view text, std::string_view search,
                                                   std::string_view replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceLoopW(std::u16string_view text, std::u16string_view search,
                                                      std::u16string_view replacement);
[[nodiscard]] RAVO_API std::string StrReplaceLoopIA(std::string_view text, std::string_view search,
                                                    std::string_view replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceLoopIW(std::u16string_view text, std::u16string_view search,
                                                       std::u16string_view replacement);

/// Returns `text` with each character `search` replaced by `replacement`.
[[nodiscard]] RAVO_API std::string StrReplaceCharA(std::string_view text, char search, char replacement);
[[nodiscard]] RAVO_API std::u16string StrReplaceCharW(std::u16string_view text, char16_t search,
                                                      char16_t replacement);

/// Returns `text` without each span from a `from` to the next `to` after it, both included, compared after
/// case folding. A `from` without a `to` is kept, with all that follows; nothing is removed if a marker is
/// empty.
[[nodiscard]] RAVO_API std::string StrRemoveFromToIA(std::string_view text, std::string_view from,
                                                     std::string_view to);
[[nodiscard]] RAVO_API std::u16string StrRemoveFromToIW(std::u16string_view text, std::u16string_view from,
                                                        std::u16string_view to);

/// Returns `text` without white space: bytes 0 to 32 (A), or `CharIsWhiteSpaceW` (W).
[[nodiscard]] RAVO_API std::string StrRemoveSpacingA(std::string_view text);
[[nodiscard]] RAVO_API std::u16string StrRemoveSpacingW(std::u16string_view text);

}  // namespace ravo::DIUtils
