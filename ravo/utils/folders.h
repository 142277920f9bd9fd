#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

/// Folders, and names that only the system can complete. Names and failures are treated as `utils/files.h`
/// says. Returned names have "\" between folders on every system, so `utils/file_names.h` can split them.
namespace ravo::DIUtils {

/// Returns whether there is a folder of this name; false for a file.
[[nodiscard]] RAVO_API bool DirectoryExistsA(std::string_view folder);
[[nodiscard]] RAVO_API bool DirectoryExistsW(std::u16string_view folder);

/// Creates a folder and its missing parents; returns false only if creating one was tried and failed.
///
/// Names shorter than three characters without their trailing "\" (a drive, an empty name) and names that
/// then end in ":" or "\" return true without creating anything.
RAVO_API bool ForceDirectories(std::u16string_view folder);
RAVO_API bool ForceDirectoriesA(std::string_view folder);
RAVO_API bool ForceDirectoriesW(std::u16string_view folder);

/// Deletes the contents of a folder and, if `with_folder` is true, the folder too; permanently and without a
/// prompt.
///
/// Links are deleted, not followed, except if `folder` itself is a link and only its contents are deleted; a
/// folder that contains a link that cannot be deleted this way is kept whole. On Windows the shell deletes:
/// it may refuse read-only files and files in use, and limits the length of names. Returns false if anything
/// remains, for an empty name, for wildcards, and for a drive if `with_folder` is true.
RAVO_API bool DeleteDirectory(std::u16string_view folder, bool with_folder);
RAVO_API bool DeleteDirectoryA(std::string_view folder, bool with_folder);
RAVO_API bool DeleteDirectoryW(std::u16string_view folder, bool with_folder);

/// Returns the bytes available to the caller on the disk of a folder, or -1 if the system fails.
[[nodiscard]] RAVO_API std::int64_t DiskFreeA(std::string_view folder);
[[nodiscard]] RAVO_API std::int64_t DiskFreeW(std::u16string_view folder);
/// Returns the total size of the disk of a folder in bytes, or -1 if the system fails.
[[nodiscard]] RAVO_API std::int64_t DiskSizeA(std::string_view folder);
/// Returns all free bytes of the disk of a folder, including those that the caller may not use, or -1 if the
/// system fails.
[[nodiscard]] RAVO_API std::int64_t DiskTotalFreeA(std::string_view folder);

/// Returns the current folder of the process, without a trailing "\" unless it is the root of a drive; empty
/// if the system fails.
[[nodiscard]] RAVO_API std::u16string GetCurrentFolder();
[[nodiscard]] RAVO_API std::string GetCurrentFolderA();
[[nodiscard]] RAVO_API std::u16string GetCurrentFolderW();
/// Sets the current folder of the process; returns true on success.
RAVO_API bool SetCurrentFolder(std::u16string_view folder);
RAVO_API bool SetCurrentFolderA(std::string_view folder);
RAVO_API bool SetCurrentFolderW(std::u16string_view folder);

/// Returns the absolute form of a name, with "." and ".." resolved, up to its first zero; empty if the system
/// fails. The file need not exist.
[[nodiscard]] RAVO_API std::string ExpandFileNameA(std::string_view name);
[[nodiscard]] RAVO_API std::u16string ExpandFileNameW(std::u16string_view name);

/// Returns the folder of the shell with the given number (CSIDL), with a trailing "\"; empty if there is no
/// such folder. On other systems it is one of the user's folders, as the desktop defines them.
[[nodiscard]] RAVO_API std::u16string GetSpecialFolder(std::int32_t number);
[[nodiscard]] RAVO_API std::string GetSpecialFolderA(std::int32_t number);
[[nodiscard]] RAVO_API std::u16string GetSpecialFolderW(std::int32_t number);

/// Returns the folder of the user's documents, number 5.
[[nodiscard]] RAVO_API std::string GetPersonalFolderA();
[[nodiscard]] RAVO_API std::u16string GetPersonalFolderW();

/// Returns the virtual desktop, number 0.
[[nodiscard]] RAVO_API std::u16string GetDesktopFolder();
[[nodiscard]] RAVO_API std::string GetDesktopFolderA();
[[nodiscard]] RAVO_API std::u16string GetDesktopFolderW();

/// Returns the folder that holds the files of the desktop, number 16.
[[nodiscard]] RAVO_API std::u16string GetDesktopDirectoryFolder();
[[nodiscard]] RAVO_API std::string GetDesktopDirectoryFolderA();
[[nodiscard]] RAVO_API std::u16string GetDesktopDirectoryFolderW();

/// Returns the folder for temporary files, with a trailing "\".
[[nodiscard]] RAVO_API std::u16string GetTempFolder();
[[nodiscard]] RAVO_API std::string GetTempFolderA();
[[nodiscard]] RAVO_API std::u16string GetTempFolderW();

}  // namespace ravo::DIUtils
