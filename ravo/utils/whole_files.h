#pragma once

#include <ravo/platform/file_handle.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

/// Whole files as texts and bytes, taken and written as they are: no byte-order mark is recognised, removed
/// or written. Names are as `utils/files.h` says; the "A" or "W" behind "Str" is the text's, the one at the
/// end the name's. Saving replaces what a file held; where it fails, the file may be there in part.
namespace ravo::DIUtils {

/// The bytes of a file. False, and `text` as it was, where the file cannot be opened or read. Raises
/// `RangeError` for 2 GiB and more.
RAVO_API bool LoadStrAFromFile(std::u16string_view name, std::string& text);
RAVO_API bool LoadStrAFromFileA(std::string_view name, std::string& text);
RAVO_API bool LoadStrAFromFileW(std::u16string_view name, std::string& text);

/// The UTF-16 units of a file, low byte first; half a unit at its end is left out. False and errors as above.
RAVO_API bool LoadStrWFromFileA(std::string_view name, std::u16string& text);
RAVO_API bool LoadStrWFromFileW(std::u16string_view name, std::u16string& text);

/// Writes `count` bytes to an open file where it stands; it stays open. False where not all were written.
RAVO_API bool SaveBufToFile(const void* bytes, std::size_t count, FileHandle file);

/// Makes a file of `count` bytes. True only where opening, writing all and closing succeeded.
RAVO_API bool SaveBufToFile(const void* bytes, std::size_t count, std::u16string_view name);
RAVO_API bool SaveBufToFileA(const void* bytes, std::size_t count, std::string_view name);
RAVO_API bool SaveBufToFileW(const void* bytes, std::size_t count, std::u16string_view name);

/// The same with the bytes of a text.
RAVO_API bool SaveStrAToFile(std::string_view text, std::u16string_view name);
RAVO_API bool SaveStrAToFileA(std::string_view text, std::string_view name);
RAVO_API bool SaveStrAToFileW(std::string_view text, std::u16string_view name);

/// The same with the UTF-16 units of a text, low byte first. Raises `RangeError` for 2^31 units and more,
/// `OverflowError` from 2^30 on.
RAVO_API bool SaveStrWToFile(std::u16string_view text, std::u16string_view name);
RAVO_API bool SaveStrWToFileA(std::u16string_view text, std::string_view name);
RAVO_API bool SaveStrWToFileW(std::u16string_view text, std::u16string_view name);

}  // namespace ravo::DIUtils
