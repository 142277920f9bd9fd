#pragma once

#include <ravo/platform/file_system.h>

namespace ravo::platform {

/// The questions about files answered by Windows.
class Win32FileSystem final : public FileSystem {
 public:
  [[nodiscard]] std::optional<std::uint32_t> Attributes(std::u16string_view name) const override;

  [[nodiscard]] std::u16string CurrentFolder() const override;
  bool SetCurrentFolder(std::u16string_view folder) const override;

  bool CreateFolder(std::u16string_view folder) const override;
  /// By the shell, which decides about read-only files and files in use; links to folders go before it is
  /// asked, for not every shell leaves alone what they lead to.
  bool DeleteFolder(std::u16string_view folder, FolderPart part) const override;
  bool RemoveFile(std::u16string_view name) const override;

  [[nodiscard]] FileHandle Open(std::u16string_view name, FilePurpose purpose) const override;
  bool Close(FileHandle file) const override;
  [[nodiscard]] std::optional<std::int64_t> SizeOf(FileHandle file) const override;
  [[nodiscard]] std::optional<std::size_t> Read(FileHandle file, std::span<std::byte> to) const override;
  [[nodiscard]] std::optional<std::size_t> Write(FileHandle file,
                                                 std::span<const std::byte> from) const override;
  bool SetTimes(FileHandle file, std::uint16_t year, std::uint16_t month, std::uint16_t day) const override;
};

}  // namespace ravo::platform
