#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/variant.h>

#include <string>
#include <string_view>

/// Identifiers of records and of their versions, in the form that SQL texts use.
namespace ravo::RavoInterfaceCommon {

/// Returns the identifier of a record as text.
///
/// If `quoted` is false: an empty text for an empty or null value, else the text of the value. If `quoted` is
/// true: "Null" for an empty or null value, else the value between single quotes; quotes inside are not
/// doubled. Throws `VariantError` if `quoted` is true and the value is of any other kind than text.
///
///     UIDToString(u"abc", true)   // 'abc', with its quotes
[[nodiscard]] RAVO_API std::u16string UIDToString(const Variant& value, bool quoted);

/// Returns the eight bytes of a record version written in hexadecimal; nothing for a text of three characters
/// or fewer.
///
/// Every "0x" is removed, then each two characters give one byte, in written order; characters after the
/// sixteenth are ignored. Throws `ConvertError` if a pair is missing, incomplete or not hexadecimal.
[[nodiscard]] RAVO_API ByteArray TimestampToBytes(std::u16string_view text);

}  // namespace ravo::RavoInterfaceCommon
