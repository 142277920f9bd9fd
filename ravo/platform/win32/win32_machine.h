#pragma once

#include <ravo/platform/code_pages.h>
#include <ravo/platform/components.h>
#include <ravo/platform/diagnostics.h>
#include <ravo/platform/drives.h>
#include <ravo/platform/files.h>
#include <ravo/platform/folders.h>
#include <ravo/platform/locale.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/registry.h>
#include <ravo/platform/resources.h>
#include <ravo/platform/system.h>

/// The chapters as Windows answers them; each source file of this folder answers questions of one subject.
namespace ravo::platform {

class Win32System final : public SystemCalls {
 public:
  [[nodiscard]] SystemVersion Version() const override;
  [[nodiscard]] SystemVersion BasicVersion() const override;
  [[nodiscard]] SystemNumbers VersionNumbers() const noexcept override;
  [[nodiscard]] bool IsServerR2() const override;
  [[nodiscard]] std::uint16_t ProcessorArchitecture() const override;
  [[nodiscard]] std::u16string ComputerName() const override;
  [[nodiscard]] std::u16string UserName() const override;
  [[nodiscard]] MemoryFigures Memory() const override;
  [[nodiscard]] std::optional<TextSize> TextExtent(DeviceContext device,
                                                   std::u16string_view text) const override;
};

class Win32Folders final : public FolderCalls {
 public:
  [[nodiscard]] std::u16string Folder(SystemFolder folder) const override;
  [[nodiscard]] std::u16string ShellFolder(std::int32_t number) const override;
};

class Win32Diagnostics final : public DiagnosticCalls {
 public:
  [[nodiscard]] std::u16string ErrorText(std::uint32_t code) const override;
  [[nodiscard]] std::uint32_t LastErrorCode() const noexcept override;
  void DebugOutput(std::u16string_view text) const override;
};

class Win32Drives final : public DriveCalls {
 public:
  [[nodiscard]] std::uint32_t LogicalDrives() const override;
  [[nodiscard]] DriveKind KindOfDrive(std::u16string_view drive) const override;
  [[nodiscard]] std::optional<DiskSpace> SpaceOfFolder(std::u16string_view folder) const override;
};

class Win32Registry final : public RegistryCalls {
 public:
  [[nodiscard]] std::unique_ptr<RegistryKey> OpenKey(RegistryRoot root,
                                                     std::u16string_view path) const override;
};

class Win32Paths final : public PathCalls {
 public:
  [[nodiscard]] char16_t PathDelimiter() const override { return u'\\'; }
  [[nodiscard]] std::u16string FullPath(std::u16string_view name) const override;
  [[nodiscard]] std::optional<FileFacts> FindFile(std::u16string_view name) const override;
  [[nodiscard]] std::unique_ptr<VersionResource> OpenVersionResource(std::u16string_view name) const override;
};

class Win32Files final : public FileCalls {
 public:
  [[nodiscard]] std::optional<std::uint32_t> Attributes(std::u16string_view name) const override;

  [[nodiscard]] std::u16string CurrentFolder() const override;
  bool SetCurrentFolder(std::u16string_view folder) const override;

  bool CreateFolder(std::u16string_view folder) const override;
  /// The shell deletes, which decides about read-only files and files in use. Links to folders are removed
  /// before, because some shells delete their targets too.
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

class Win32Locale final : public LocaleCalls {
 public:
  [[nodiscard]] FormatSettings Settings() const override;
  [[nodiscard]] bool SameText(std::u16string_view left, std::u16string_view right) const override;
  [[nodiscard]] DateTime Now() const override;
};

class Win32CodePages final : public CodePageCalls {
 public:
  [[nodiscard]] std::uint32_t CodePage() const override;
  [[nodiscard]] std::u16string FromCodePage(std::string_view bytes) const override;
  [[nodiscard]] std::string ToCodePage(std::u16string_view text) const override;
  [[nodiscard]] std::optional<std::u16string> DecodeCodePage(std::uint32_t code_page,
                                                             std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> EncodeCodePage(std::uint32_t code_page,
                                                          std::u16string_view text) const override;
  [[nodiscard]] std::optional<std::uint32_t> CodePageOfLocale(std::uint32_t locale) const override;
};

class Win32Resources final : public ResourceCalls {
 public:
  [[nodiscard]] std::optional<std::u16string_view> ResourceText(ModuleHandle module,
                                                                std::uint16_t id) const override;
  [[nodiscard]] ModuleHandle LoadResources(std::u16string_view file) const override;
  void UnloadResources(ModuleHandle module) const override;
};

class Win32Components final : public ComponentCalls {
 public:
  [[nodiscard]] ComponentAnswer CreateComponent(const Guid& class_id) const override;
  [[nodiscard]] ComponentAnswer CreateRemoteComponent(const Guid& class_id,
                                                      std::u16string_view computer) const override;
  [[nodiscard]] ResultCode OfferComponent(const Guid& class_id, ComponentFactory factory,
                                          std::uint32_t& registration) const override;
  void RevokeComponent(std::uint32_t registration) const override;
  [[nodiscard]] std::u16string ComponentErrorText(ResultCode code) const override;
};

}  // namespace ravo::platform
