#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/variant.h>

#include <string>
#include <string_view>

/// Identifiers of records and their versions, as SQL text carries them.
namespace ravo::RavoInterfaceCommon {

/// The identifier of a record as text. Unquoted: nothing for an empty or null value, else the value's own
/// text. Quoted: "Null" for an empty or null value, else the variant sum of a single quote, the value and a
/// single quote, so only texts pass; any other kind raises `VariantError`. Quotes inside are not doubled.
/// UIDToString(u"abc", true) is 'abc' with its quotes.
[[nodiscard]] RAVO_API std::u16string UIDToString(const Variant& value, bool quoted);

/// The eight bytes of a record's version that is written in hexadecimal: every "0x" is removed, then each two
/// characters are one byte, in the written order; what follows the sixteenth is ignored. Nothing at all for a
/// text of three characters or fewer. Raises `ConvertError` where a pair is missing, halved or not
/// hexadecimal.
[[nodiscard]] RAVO_API ByteArray TimestampToBytes(std::u16string_view text);

}  // namespace ravo::RavoInterfaceCommon
