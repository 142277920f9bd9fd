#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo::RavoInterfaceCommon {

/// Splits one line of a street address into the street and the house number: "Nádražní 1234/5" gives
/// "Nádražní" and "1234/5". The last word counts as a number when it reads as a 32-bit integer once "/", "-",
/// "\", and the Roman "X", "V", "I" of either case stand for zeros; otherwise the whole trimmed text is the
/// street and the number is empty.
RAVO_API void AdresaExpand(std::u16string_view Adresa, std::u16string& Ulice, std::u16string& Cislo);

/// The display text of a document: trimmed prefix and number joined, then "/" and the trimmed suffix where
/// there is one. "FV", "0012" and "2010" give "FV0012/2010".
[[nodiscard]] RAVO_API std::u16string DokladDescription(std::u16string_view Prefix,
                                                        std::u16string_view Number,
                                                        std::u16string_view Suffix);

}  // namespace ravo::RavoInterfaceCommon
