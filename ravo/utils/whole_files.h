#pragma once

#include <ravo/platform/file_handle.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

/// Whole files as texts and bytes, unchanged: a byte-order mark is neither recognized, removed nor written.
/// Names are as `utils/files.h` says. The "A" or "W" after "Str" is the kind of the text, the one at the end
/// that of the name. Saving replaces the contents of a file; if it fails, part of the file may have been
/// written.
namespace ravo::DIUtils {

/// Reads the bytes of a file into `text`. Returns false and leaves `text` unchanged if the file cannot be
/// opened or read. Throws `RangeError` for 2 GiB and more.
RAVO_API bool LoadStrAFromFile(std::u16string_view name, std::string& text);
RAVO_API bool LoadStrAFromFileA(std::string_view name, std::string& text);
RAVO_API bool LoadStrAFromFileW(std::u16string_view name, std::string& text);

/// Reads the little-endian UTF-16 units of a file into `text`; an odd last byte is dropped. Fails and throws
/// as above.
RAVO_API bool LoadStrWFromFileA(std::string_view name, std::u16string& text);
RAVO_API bool LoadStrWFromFileW(std::u16string_view name, std::u16string& text);

/// Writes `count` bytes at the position of an open file, which stays open. Returns false if not all were
/// written.
RAVO_API bool SaveBufToFile(const void* bytes, std::size_t count, FileHandle file);

/// Writes a file of `count` bytes. Returns true only if opening, writing and closing all succeed.
RAVO_API bool SaveBufToFile(const void* bytes, std::size_t count, std::u16string_view name);
RAVO_API bool SaveBufToFileA(const void* bytes, std::size_t count, std::string_view name);
RAVO_API bool SaveBufToFileW(const void* bytes, std::size_t count, std::u16string_view name);

/// Writes a file with the bytes of a text.
RAVO_API bool SaveStrAToFile(std::string_view text, std::u16string_view name);
RAVO_API bool SaveStrAToFileA(std::string_view text, std::string_view name);
RAVO_API bool SaveStrAToFileW(std::string_view text, std::u16string_view name);

/// Writes a file with the little-endian UTF-16 units of a text. Throws `RangeError` for 2^31 units and more,
/// else `OverflowError` from 2^30 units on.
RAVO_API bool SaveStrWToFile(std::u16string_view text, std::u16string_view name);
RAVO_API bool SaveStrWToFileA(std::u16string_view text, std::string_view name);
RAVO_API bool SaveStrWToFileW(std::u16string_view text, std::u16string_view name);

}  // namespace ravo::DIUtils
