#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

/// Folders, and the names that only the system can complete. What `utils/files.h` says of names and failures
/// holds here too. Names that these functions answer have "\" between their folders on every system, so that
/// the functions of `utils/file_names.h` can take them apart.
namespace ravo::DIUtils {

/// Whether there is a folder of that name; false for a file.
[[nodiscard]] RAVO_API bool DirectoryExistsA(std::string_view folder);
[[nodiscard]] RAVO_API bool DirectoryExistsW(std::u16string_view folder);

/// Makes a folder and those on the way to it. False only where making one was tried and failed: true also,
/// and nothing made, for what has fewer than three characters without a "\" at its end (a drive, an empty
/// name) and for what ends in ":" or, even so, in another "\".
RAVO_API bool ForceDirectories(std::u16string_view folder);
RAVO_API bool ForceDirectoriesA(std::string_view folder);
RAVO_API bool ForceDirectoriesW(std::u16string_view folder);

/// Deletes what is in a folder and, `with_folder`, the folder too: for good, not into the recycle bin, and
/// without a question. Links are deleted and not followed, but for one that is itself the name of a folder
/// whose contents alone are to go; a folder with a link that cannot be deleted so stays whole. On Windows the
/// shell deletes, which may refuse read-only files and files in use, and has a longest name. False where
/// something stays, and for an empty name or one with wildcards; a drive itself cannot be deleted.
RAVO_API bool DeleteDirectory(std::u16string_view folder, bool with_folder);
RAVO_API bool DeleteDirectoryA(std::string_view folder, bool with_folder);
RAVO_API bool DeleteDirectoryW(std::u16string_view folder, bool with_folder);

/// The bytes that the caller may still use on the disk of a folder, or -1.
[[nodiscard]] RAVO_API std::int64_t DiskFreeA(std::string_view folder);
[[nodiscard]] RAVO_API std::int64_t DiskFreeW(std::u16string_view folder);
/// All the bytes of that disk, or -1.
[[nodiscard]] RAVO_API std::int64_t DiskSizeA(std::string_view folder);
/// The free bytes of that disk, those that the caller may not use too, or -1.
[[nodiscard]] RAVO_API std::int64_t DiskTotalFreeA(std::string_view folder);

/// The current folder of the process, without a "\" at its end unless it is the root of a drive; empty where
/// the system does not tell.
[[nodiscard]] RAVO_API std::u16string GetCurrentFolder();
[[nodiscard]] RAVO_API std::string GetCurrentFolderA();
[[nodiscard]] RAVO_API std::u16string GetCurrentFolderW();
/// True on success.
RAVO_API bool SetCurrentFolder(std::u16string_view folder);
RAVO_API bool SetCurrentFolderA(std::string_view folder);
RAVO_API bool SetCurrentFolderW(std::u16string_view folder);

/// A name with the current folder in front, without "." and ".." and up to its first zero; empty where the
/// system cannot say. Nothing of that name need be there.
[[nodiscard]] RAVO_API std::string ExpandFileNameA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExpandFileNameW(std::u16string_view name);

/// The folder that the shell has under a number (CSIDL), with a "\" at its end; empty where there is none. On
/// other systems it is one of the user's own folders, as their desktop knows them.
[[nodiscard]] RAVO_API std::u16string GetSpecialFolder(std::int32_t number);
[[nodiscard]] RAVO_API std::string GetSpecialFolderA(std::int32_t number);
[[nodiscard]] RAVO_API std::u16string GetSpecialFolderW(std::int32_t number);

/// Number 5: the documents of the user.
[[nodiscard]] RAVO_API std::string GetPersonalFolderA();
[[nodiscard]] RAVO_API std::u16string GetPersonalFolderW();

/// Number 0: the virtual desktop.
[[nodiscard]] RAVO_API std::u16string GetDesktopFolder();
[[nodiscard]] RAVO_API std::string GetDesktopFolderA();
[[nodiscard]] RAVO_API std::u16string GetDesktopFolderW();

/// Number 16: the folder that holds the files of the desktop.
[[nodiscard]] RAVO_API std::u16string GetDesktopDirectoryFolder();
[[nodiscard]] RAVO_API std::string GetDesktopDirectoryFolderA();
[[nodiscard]] RAVO_API std::u16string GetDesktopDirectoryFolderW();

/// The folder for temporary files, with a "\" at its end.
[[nodiscard]] RAVO_API std::u16string GetTempFolder();
[[nodiscard]] RAVO_API std::string GetTempFolderA();
[[nodiscard]] RAVO_API std::u16string GetTempFolderW();

}  // namespace ravo::DIUtils
