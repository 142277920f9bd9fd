#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

/// The parts of file names, by their text alone and the same on every system: "\" separates folders, ":" ends
/// a drive, "/" is an ordinary character. Members that end in "A" take texts in the system's 8-bit code page,
/// the others UTF-16.
namespace ravo::DIUtils {

/// Returns the path of a file name, up to and including the last "\" or ":"; empty if there is neither.
///
///     ExtractFilePath(u"C:\\a\\b.txt")   // C:\a\ ; that of "C:b.txt" is "C:"
[[nodiscard]] RAVO_API std::u16string ExtractFilePath(std::u16string_view name);
[[nodiscard]] RAVO_API std::string ExtractFilePathA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExtractFilePathW(std::u16string_view name);

/// Returns the part of `name` after its `ExtractFilePath`.
[[nodiscard]] RAVO_API std::u16string ExtractFileName(std::u16string_view name);
[[nodiscard]] RAVO_API std::string ExtractFileNameA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExtractFileNameW(std::u16string_view name);

/// Returns the extension: the last "." of the file name and the text after it, or an empty text. A name whose
/// only "." is its first character is all extension; a name that ends in "." has the extension ".".
[[nodiscard]] RAVO_API std::u16string ExtractFileExt(std::u16string_view name);
[[nodiscard]] RAVO_API std::string ExtractFileExtA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExtractFileExtW(std::u16string_view name);

/// Returns the drive of a file name, or an empty text.
///
/// That is the first two characters if the second is ":", whatever the first one is. If the name begins with
/// "\\" (server and share of a network) it is the part before the second "\" after that, or the whole name,
/// without a trailing "\".
[[nodiscard]] RAVO_API std::string ExtractFileDriveA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExtractFileDriveW(std::u16string_view name);

/// Returns `name` with its `ExtractFileExt` replaced by `extension`, which is used as it is, with or without
/// a point.
[[nodiscard]] RAVO_API std::u16string ChangeFileExt(std::u16string_view name, std::u16string_view extension);
[[nodiscard]] RAVO_API std::string ChangeFileExtA(std::string_view name, std::string_view extension);
[[nodiscard]] RAVO_API std::u16string ChangeFileExtW(std::u16string_view name, std::u16string_view extension);

/// Returns whether the character at the 1-based `index` exists and is "\".
[[nodiscard]] RAVO_API bool IsPathDelimiter(std::u16string_view text, std::size_t index) noexcept;
[[nodiscard]] RAVO_API bool IsPathDelimiterA(std::string_view text, std::size_t index) noexcept;
[[nodiscard]] RAVO_API bool IsPathDelimiterW(std::u16string_view text, std::size_t index) noexcept;

/// Appends "\" to `name` unless it ends with one; an empty name becomes "\".
RAVO_API void IncludeTrailingPathDelimiterByRef(std::u16string& name);
RAVO_API void IncludeTrailingPathDelimiterByRefA(std::string& name);
RAVO_API void IncludeTrailingPathDelimiterByRefW(std::u16string& name);

/// Returns `name` without one trailing "\".
[[nodiscard]] RAVO_API std::u16string ExcludeTrailingPathDelimiter(std::u16string_view name);
[[nodiscard]] RAVO_API std::string ExcludeTrailingPathDelimiterA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExcludeTrailingPathDelimiterW(std::u16string_view name);

}  // namespace ravo::DIUtils
