#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo::RavoInterfaceCommon {

/// Splits a street address into the street and the house number: "Nádražní 1234/5" into "Nádražní" and
/// "1234/5".
///
/// The last word is the house number if it reads as a 32-bit integer after "/", "-", "\", and the Roman
/// digits "X", "V", "I" of either case are replaced by zeros. Otherwise `Ulice` is the whole trimmed text and
/// `Cislo` is empty.
RAVO_API void AdresaExpand(std::u16string_view Adresa, std::u16string& Ulice, std::u16string& Cislo);

/// Returns the display text of a document: the trimmed prefix and number, then "/" and the trimmed suffix if
/// there is one. "FV", "0012" and "2010" give "FV0012/2010".
[[nodiscard]] RAVO_API std::u16string DokladDescription(std::u16string_view Prefix,
                                                        std::u16string_view Number,
                                                        std::u16string_view Suffix);

}  // namespace ravo::RavoInterfaceCommon
