#pragma once

#include <ravo/platform/chapter.h>
#include <ravo/platform/file_handle.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ravo::platform {

/// Attribute bits with the numbers that Windows gives them.
inline constexpr std::uint32_t kReadOnlyAttribute = 0x1;
inline constexpr std::uint32_t kHiddenAttribute = 0x2;    ///< not shown
inline constexpr std::uint32_t kFolderAttribute = 0x10;   ///< a folder
inline constexpr std::uint32_t kArchiveAttribute = 0x20;  ///< a file

/// The purpose of opening a file. Other processes may read it meanwhile only if it is open for loading or
/// dating, on systems that have such locks.
enum class FilePurpose : std::uint8_t {
  Load,        ///< an existing file, read from its beginning to its end
  Save,        ///< a new or emptied file, written so
  Date,        ///< an existing file, to be given other times
  DateFolder,  ///< the same for a folder
};

/// The part of a folder to delete: its contents, or the folder too.
enum class FolderPart : std::uint8_t { Contents, Whole };

/// Files and folders. A failing system call is an answer here and throws nothing; a name with a zero in it
/// names nothing.
class FileCalls : public Chapter {
 public:
  /// Returns the attributes of a file or folder; no value if nothing has that name.
  [[nodiscard]] virtual std::optional<std::uint32_t> Attributes(std::u16string_view name) const = 0;

  /// Returns the process's current folder; empty if the system does not tell.
  [[nodiscard]] virtual std::u16string CurrentFolder() const = 0;
  /// Changes the process's current folder; false if that fails.
  virtual bool SetCurrentFolder(std::u16string_view folder) const = 0;

  /// Creates a folder inside an existing one; false also if the name is taken.
  virtual bool CreateFolder(std::u16string_view folder) const = 0;

  /// Deletes a folder with its contents, without questions, windows and recycle bin; false if something
  /// stays.
  ///
  /// Links inside it are deleted and not followed.
  virtual bool DeleteFolder(std::u16string_view folder, FolderPart part) const = 0;

  /// Deletes one file, or a link to one; false if that fails.
  virtual bool RemoveFile(std::u16string_view name) const = 0;

  /// Opens a file; `kNoFile` if that fails.
  [[nodiscard]] virtual FileHandle Open(std::u16string_view name, FilePurpose purpose) const = 0;
  /// Closes a file; false if the system could not keep the written bytes.
  virtual bool Close(FileHandle file) const = 0;

  /// Returns the size in bytes, 0 for a file without a size (a pipe); no value for a handle that is not open.
  [[nodiscard]] virtual std::optional<std::int64_t> SizeOf(FileHandle file) const = 0;
  /// Reads on, as many bytes as one system call gives; 0 at the end, no value if that fails.
  [[nodiscard]] virtual std::optional<std::size_t> Read(FileHandle file, std::span<std::byte> to) const = 0;
  /// Writes on, as many bytes as one system call takes; no value if that fails.
  [[nodiscard]] virtual std::optional<std::size_t> Write(FileHandle file,
                                                         std::span<const std::byte> from) const = 0;

  /// Sets the times of creation, last access and last write to midnight (UTC) of a day; false if the system
  /// fails.
  ///
  /// The caller passes only days that the calendar has.
  virtual bool SetTimes(FileHandle file, std::uint16_t year, std::uint16_t month,
                        std::uint16_t day) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const FileCalls& Files() noexcept;

}  // namespace ravo::platform
