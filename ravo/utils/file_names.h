#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

/// The parts of file names by their text alone, the same on every system: "\" divides folders and ":" ends a
/// drive; "/" is a character like any other. Members that end in "A" take texts of the system's 8-bit code
/// page, the others UTF-16.
namespace ravo::DIUtils {

/// Everything up to and including the last "\" or ":"; empty where there is none.
/// `ExtractFilePath(u"C:\\a\\b.txt")` is `C:\a\`, and that of "C:b.txt" is "C:".
[[nodiscard]] RAVO_API std::u16string ExtractFilePath(std::u16string_view name);
[[nodiscard]] RAVO_API std::string ExtractFilePathA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExtractFilePathW(std::u16string_view name);

/// What follows the path: `name` without its `ExtractFilePath`.
[[nodiscard]] RAVO_API std::u16string ExtractFileName(std::u16string_view name);
[[nodiscard]] RAVO_API std::string ExtractFileNameA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExtractFileNameW(std::u16string_view name);

/// What the last "." of the file's name begins, the point included; empty where it has none. A name that
/// begins with its only point is all extension, and one that ends in a point has the extension ".".
[[nodiscard]] RAVO_API std::u16string ExtractFileExt(std::u16string_view name);
[[nodiscard]] RAVO_API std::string ExtractFileExtA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExtractFileExtW(std::u16string_view name);

/// The drive: the first two characters where the second is ":", whatever the first one is. Of a name that
/// begins with "\\" (server and share of a network) it is all before the second "\" that follows, or the
/// whole name, without a further "\" at its end. Empty for other names.
[[nodiscard]] RAVO_API std::string ExtractFileDriveA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExtractFileDriveW(std::u16string_view name);

/// `name` with `extension`, which is taken as it is, with or without a point, in the place of its
/// `ExtractFileExt`.
[[nodiscard]] RAVO_API std::u16string ChangeFileExt(std::u16string_view name, std::u16string_view extension);
[[nodiscard]] RAVO_API std::string ChangeFileExtA(std::string_view name, std::string_view extension);
[[nodiscard]] RAVO_API std::u16string ChangeFileExtW(std::u16string_view name, std::u16string_view extension);

/// Whether the character at `index`, counted from 1, is there and is "\".
[[nodiscard]] RAVO_API bool IsPathDelimiter(std::u16string_view text, std::size_t index) noexcept;
[[nodiscard]] RAVO_API bool IsPathDelimiterA(std::string_view text, std::size_t index) noexcept;
[[nodiscard]] RAVO_API bool IsPathDelimiterW(std::u16string_view text, std::size_t index) noexcept;

/// Makes `name` end in "\"; an empty name becomes "\".
RAVO_API void IncludeTrailingPathDelimiterByRef(std::u16string& name);
RAVO_API void IncludeTrailingPathDelimiterByRefA(std::string& name);
RAVO_API void IncludeTrailingPathDelimiterByRefW(std::u16string& name);

/// `name` without one "\" at its end.
[[nodiscard]] RAVO_API std::u16string ExcludeTrailingPathDelimiter(std::u16string_view name);
[[nodiscard]] RAVO_API std::string ExcludeTrailingPathDelimiterA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExcludeTrailingPathDelimiterW(std::u16string_view name);

}  // namespace ravo::DIUtils
