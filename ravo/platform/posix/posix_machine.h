#pragma once

#include <ravo/platform/code_pages.h>
#include <ravo/platform/components.h>
#include <ravo/platform/drives.h>
#include <ravo/platform/files.h>
#include <ravo/platform/folders.h>
#include <ravo/platform/locale.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/system.h>

#include <string>
#include <utility>

/// The chapters that POSIX answers; each source file of this folder answers questions of one subject.
///
/// Files of the system are read below a root folder, which is the real one (empty) unless a test gives
/// another. It has no "/" at its end. Each question reads anew.
namespace ravo::platform::posix {

/// Without the memory figures, which POSIX does not have.
class PosixSystem : public SystemCalls {
 public:
  [[nodiscard]] SystemVersion Version() const override;
  [[nodiscard]] SystemVersion BasicVersion() const override;
  [[nodiscard]] SystemNumbers VersionNumbers() const noexcept override;
  [[nodiscard]] bool IsServerR2() const override { return false; }
  [[nodiscard]] std::uint16_t ProcessorArchitecture() const override;
  [[nodiscard]] std::u16string ComputerName() const override;
  [[nodiscard]] std::u16string UserName() const override;
  /// There are no such devices.
  [[nodiscard]] std::optional<TextSize> TextExtent(DeviceContext, std::u16string_view) const override {
    return std::nullopt;
  }
};

class PosixFolders final : public FolderCalls {
 public:
  [[nodiscard]] std::u16string Folder(SystemFolder folder) const override;
  [[nodiscard]] std::u16string ShellFolder(std::int32_t number) const override;
};

/// The letters come from `CurrentDrives`.
class PosixDrives final : public DriveCalls {
 public:
  explicit PosixDrives(std::string root = {}) : root_(std::move(root)) {}
  [[nodiscard]] std::uint32_t LogicalDrives() const override;
  [[nodiscard]] DriveKind KindOfDrive(std::u16string_view drive) const override;
  [[nodiscard]] std::optional<DiskSpace> SpaceOfFolder(std::u16string_view folder) const override;

 private:
  std::string root_;
};

class PosixPaths final : public PathCalls {
 public:
  explicit PosixPaths(std::string root = {}) : root_(std::move(root)) {}
  [[nodiscard]] char16_t PathDelimiter() const override { return u'/'; }
  [[nodiscard]] std::u16string FullPath(std::u16string_view name) const override;
  [[nodiscard]] std::optional<FileFacts> FindFile(std::u16string_view name) const override;
  [[nodiscard]] std::unique_ptr<VersionResource> OpenVersionResource(std::u16string_view name) const override;

 private:
  std::string root_;
};

class PosixFiles final : public FileCalls {
 public:
  explicit PosixFiles(std::string root = {}) : root_(std::move(root)) {}
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

class PosixLocale final : public LocaleCalls {
 public:
  [[nodiscard]] FormatSettings Settings() const override;
  [[nodiscard]] bool SameText(std::u16string_view left, std::u16string_view right) const override;
  [[nodiscard]] DateTime Now() const override;
};

class PosixCodePages final : public CodePageCalls {
 public:
  [[nodiscard]] std::uint32_t CodePage() const override;
  [[nodiscard]] std::u16string FromCodePage(std::string_view bytes) const override;
  /// Each code unit that the code page lacks becomes "?".
  [[nodiscard]] std::string ToCodePage(std::u16string_view text) const override;
  [[nodiscard]] std::optional<std::u16string> DecodeCodePage(std::uint32_t code_page,
                                                             std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> EncodeCodePage(std::uint32_t code_page,
                                                          std::u16string_view text) const override;
  [[nodiscard]] std::optional<std::uint32_t> CodePageOfLocale(std::uint32_t locale) const override;
};

/// Objects live in this process alone (`component_registry.h`).
class PosixComponents final : public ComponentCalls {
 public:
  [[nodiscard]] ComponentAnswer CreateComponent(const Guid& class_id) const override;
  [[nodiscard]] ComponentAnswer CreateRemoteComponent(const Guid& class_id,
                                                      std::u16string_view computer) const override;
  [[nodiscard]] ResultCode OfferComponent(const Guid& class_id, ComponentFactory factory,
                                          std::uint32_t& registration) const override;
  void RevokeComponent(std::uint32_t registration) const override;
  [[nodiscard]] std::u16string ComponentErrorText(ResultCode code) const override;
};

}  // namespace ravo::platform::posix
