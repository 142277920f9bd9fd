#pragma once

#include <ravo/platform/file_handle.h>
#include <ravo/runtime/export.h>
#include <ravo/utils/calendar.h>

#include <cstdint>
#include <string>
#include <string_view>

/// Single files. Members that end in "A" take names in the system's 8-bit code page, the others in UTF-16; a
/// name that the code page cannot say is out of reach of the former. A name with a zero in it names nothing.
/// None of these raises for a call of the system that fails.
///
/// Names keep their Windows form on every system: "\" divides folders, "C:" is a drive. On other systems "/"
/// does so too, and a drive is what the mount table amounts to, "C:" being the root of the file system.
namespace ravo::DIUtils {

/// Whether there is a file of that name; false for a folder.
[[nodiscard]] RAVO_API bool FileExists(std::u16string_view name);
[[nodiscard]] RAVO_API bool FileExistsA(std::string_view name);
[[nodiscard]] RAVO_API bool FileExistsW(std::u16string_view name);

/// The size in bytes of what a directory search finds first under that name, "*" and "?" in its last part
/// included; 0 for a folder, -1 where nothing is found.
[[nodiscard]] RAVO_API std::int64_t GetFileSize(std::u16string_view name);
[[nodiscard]] RAVO_API std::int64_t GetFileSizeA(std::string_view name);
[[nodiscard]] RAVO_API std::int64_t GetFileSizeW(std::u16string_view name);

/// Gives an open file midnight (UTC) of a day as the time of its creation, of its last access and of its last
/// write, as far as the system and the disk can keep them. False where the system refuses, and for a year
/// outside 1601 to 30827 or a day that the calendar lacks. The file stays open.
RAVO_API bool SetFileDate(FileHandle file, std::int32_t year, std::uint16_t month, std::uint16_t day);

/// The same for a file or folder that exists; false also where it cannot be opened for writing.
RAVO_API bool SetFileDateYmd(std::u16string_view name, std::int32_t year, std::uint16_t month,
                             std::uint16_t day);
RAVO_API bool SetFileDateYmdA(std::string_view name, std::int32_t year, std::uint16_t month,
                              std::uint16_t day);
RAVO_API bool SetFileDateYmdW(std::u16string_view name, std::int32_t year, std::uint16_t month,
                              std::uint16_t day);

/// The same for a Julian date.
RAVO_API bool SetFileDate(std::u16string_view name, TJulianDate date);
RAVO_API bool SetFileDateA(std::string_view name, TJulianDate date);
RAVO_API bool SetFileDateW(std::u16string_view name, TJulianDate date);

// The system's header has a macro of this name; whoever includes both may use either form of the name.
#pragma push_macro("DeleteFile")
#undef DeleteFile

/// Deletes one file; true on success. A link is deleted itself.
RAVO_API bool DeleteFile(std::u16string_view name);
RAVO_API bool DeleteFileA(std::string_view name);
RAVO_API bool DeleteFileW(std::u16string_view name);

#pragma pop_macro("DeleteFile")

/// What `DeleteFile` of a UTF-16 name is called where that macro makes it `DeleteFileA`.
inline bool DeleteFileA(std::u16string_view name) { return DeleteFileW(name); }

}  // namespace ravo::DIUtils
