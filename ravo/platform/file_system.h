#pragma once

#include <ravo/platform/file_handle.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What the library asks of files and folders. A call of the system that fails is an answer here and raises
/// nothing; a name with a zero in it names nothing.
namespace ravo::platform {

/// Attribute bits with the numbers that Windows gives them.
inline constexpr std::uint32_t kReadOnlyAttribute = 0x1;
inline constexpr std::uint32_t kHiddenAttribute = 0x2;    ///< not shown
inline constexpr std::uint32_t kFolderAttribute = 0x10;   ///< a folder
inline constexpr std::uint32_t kArchiveAttribute = 0x20;  ///< a file

/// How a file is opened. Only files for reading and dating may be read by others meanwhile, where the system
/// has such locks.
enum class FilePurpose : std::uint8_t {
  Load,        ///< an existing file, to be read from its beginning to its end
  Save,        ///< a new or emptied file, to be written so
  Date,        ///< an existing file, to be given other times
  DateFolder,  ///< the same for a folder
};

/// What is deleted of a folder: what is in it, or the folder too.
enum class FolderPart : std::uint8_t { Contents, Whole };

/// The questions about files and folders.
class FileSystem {
 public:
  FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;
  virtual ~FileSystem();

  /// The attributes of a file or folder; no value where there is none of that name.
  [[nodiscard]] virtual std::optional<std::uint32_t> Attributes(std::u16string_view name) const = 0;

  /// Empty where the system does not tell.
  [[nodiscard]] virtual std::u16string CurrentFolder() const = 0;
  virtual bool SetCurrentFolder(std::u16string_view folder) const = 0;

  /// In a folder that exists; false also where the name is taken.
  virtual bool CreateFolder(std::u16string_view folder) const = 0;

  /// Deletes a folder with all that is in it, without questions, windows and recycle bin. A link in it is
  /// deleted and not followed. False where something stays.
  virtual bool DeleteFolder(std::u16string_view folder, FolderPart part) const = 0;

  /// Deletes one file, or a link to one.
  virtual bool RemoveFile(std::u16string_view name) const = 0;

  /// `kNoFile` where that fails.
  [[nodiscard]] virtual FileHandle Open(std::u16string_view name, FilePurpose purpose) const = 0;
  /// False where the system could not keep what was written.
  virtual bool Close(FileHandle file) const = 0;

  /// The size in bytes, or 0 for what has no size to tell; no value for what is no open file.
  [[nodiscard]] virtual std::optional<std::int64_t> SizeOf(FileHandle file) const = 0;
  /// Reads on, as much as one call of the system gives; 0 at the end, no value where that fails.
  [[nodiscard]] virtual std::optional<std::size_t> Read(FileHandle file, std::span<std::byte> to) const = 0;
  /// Writes on, as much as one call of the system takes; no value where that fails.
  [[nodiscard]] virtual std::optional<std::size_t> Write(FileHandle file,
                                                         std::span<const std::byte> from) const = 0;

  /// Makes midnight (UTC) of a day the time of creation, of the last access and of the last write. False
  /// where the system fails; a day that the calendar lacks is the caller's to avoid.
  virtual bool SetTimes(FileHandle file, std::uint16_t year, std::uint16_t month,
                        std::uint16_t day) const = 0;
};

}  // namespace ravo::platform
