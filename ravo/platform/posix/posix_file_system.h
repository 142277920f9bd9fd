#pragma once

#include <ravo/platform/file_system.h>

#include <string>
#include <utility>

namespace ravo::platform::posix {

/// The file system of Linux under the names of the suite; the letters of its drives come from the mount table
/// below `root`.
class PosixFileSystem final : public FileSystem {
 public:
  explicit PosixFileSystem(std::string root) : root_(std::move(root)) {}
  ~PosixFileSystem() override;

  [[nodiscard]] std::optional<std::uint32_t> Attributes(std::u16string_view name) const override;

  [[nodiscard]] std::u16string CurrentFolder() const override;
  bool SetCurrentFolder(std::u16string_view folder) const override;

  bool CreateFolder(std::u16string_view folder) const override;
  /// Refuses the root of the file system.
  bool DeleteFolder(std::u16string_view folder, FolderPart part) const override;
  bool RemoveFile(std::u16string_view name) const override;

  [[nodiscard]] FileHandle Open(std::u16string_view name, FilePurpose purpose) const override;
  bool Close(FileHandle file) const override;
  [[nodiscard]] std::optional<std::int64_t> SizeOf(FileHandle file) const override;
  [[nodiscard]] std::optional<std::size_t> Read(FileHandle file, std::span<std::byte> to) const override;
  [[nodiscard]] std::optional<std::size_t> Write(FileHandle file,
                                                 std::span<const std::byte> from) const override;
  /// The system keeps no time of creation that could be set.
  bool SetTimes(FileHandle file, std::uint16_t year, std::uint16_t month, std::uint16_t day) const override;

 private:
  std::string root_;
};

}  // namespace ravo::platform::posix
