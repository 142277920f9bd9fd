#pragma once

#include <ravo/platform/file_handle.h>
#include <ravo/runtime/export.h>
#include <ravo/utils/calendar.h>

#include <cstdint>
#include <string>
#include <string_view>

/// Single files. Members that end in "A" take names in the system's 8-bit code page, the others in UTF-16;
/// the former cannot reach a name that the code page lacks. A name that contains a zero denotes no file. A
/// failing system call never throws.
///
/// Names keep their Windows form on every system: "\" separates folders, "C:" is a drive. On other systems
/// "/" is a separator too, and "C:" is the root of the file system.
namespace ravo::DIUtils {

/// Returns whether there is a file of this name; false for a folder.
[[nodiscard]] RAVO_API bool FileExists(std::u16string_view name);
[[nodiscard]] RAVO_API bool FileExistsA(std::string_view name);
[[nodiscard]] RAVO_API bool FileExistsW(std::u16string_view name);

/// Returns the size in bytes of the first file that a directory search finds; 0 for a folder, -1 if nothing
/// is found. The last part of the name may contain the wildcards "*" and "?".
[[nodiscard]] RAVO_API std::int64_t GetFileSize(std::u16string_view name);
[[nodiscard]] RAVO_API std::int64_t GetFileSizeA(std::string_view name);
[[nodiscard]] RAVO_API std::int64_t GetFileSizeW(std::u16string_view name);

/// Sets the creation, last access and last write time of an open file to midnight (UTC) of a day, as far as
/// the system and the disk support them.
///
/// Returns false if the system refuses, for a year outside 1601 to 30827, and for a day that the calendar
/// lacks. The file stays open.
RAVO_API bool SetFileDate(FileHandle file, std::int32_t year, std::uint16_t month, std::uint16_t day);

/// Sets the times of an existing file or folder; returns false also if it cannot be opened for writing.
RAVO_API bool SetFileDateYmd(std::u16string_view name, std::int32_t year, std::uint16_t month,
                             std::uint16_t day);
RAVO_API bool SetFileDateYmdA(std::string_view name, std::int32_t year, std::uint16_t month,
                              std::uint16_t day);
RAVO_API bool SetFileDateYmdW(std::u16string_view name, std::int32_t year, std::uint16_t month,
                              std::uint16_t day);

/// Sets the times of an existing file or folder to a Julian date.
RAVO_API bool SetFileDate(std::u16string_view name, TJulianDate date);
RAVO_API bool SetFileDateA(std::string_view name, TJulianDate date);
RAVO_API bool SetFileDateW(std::u16string_view name, TJulianDate date);

// The system's header defines a macro of this name; a program that includes both may use either form of the
// name.
#pragma push_macro("DeleteFile")
#undef DeleteFile

/// Deletes one file; returns true on success. A link itself is deleted, not its target.
RAVO_API bool DeleteFile(std::u16string_view name);
RAVO_API bool DeleteFileA(std::string_view name);
RAVO_API bool DeleteFileW(std::u16string_view name);

#pragma pop_macro("DeleteFile")

/// The name of `DeleteFile` for UTF-16 names if that macro turns it into `DeleteFileA`.
inline bool DeleteFileA(std::u16string_view name) { return DeleteFileW(name); }

}  // namespace ravo::DIUtils
