#pragma once

#include <ravo/platform/machine.h>
#include <ravo/platform/posix/posix_file_system.h>

namespace ravo::platform::posix {

/// The real machine of Linux. What the system says of itself in files is read below a root folder, the real
/// one unless a test gives another; each question reads anew.
class PosixMachine final : public Machine {
 public:
  /// `root` has no "/" at its end; empty is the real one.
  explicit PosixMachine(std::string root = {}) : root_(std::move(root)), files_(root_) {}
  ~PosixMachine() override;

  [[nodiscard]] SystemVersion Version() const override;
  [[nodiscard]] SystemVersion BasicVersion() const override;
  [[nodiscard]] SystemNumbers VersionNumbers() const noexcept override;
  [[nodiscard]] bool IsServerR2() const override { return false; }
  [[nodiscard]] std::uint16_t ProcessorArchitecture() const override;
  [[nodiscard]] std::u16string Folder(SystemFolder folder) const override;
  [[nodiscard]] std::u16string ComputerName() const override;
  [[nodiscard]] std::u16string UserName() const override;
  [[nodiscard]] MemoryFigures Memory() const override;
  [[nodiscard]] std::u16string ShellFolder(std::int32_t number) const override;
  /// The codes are those of `errno`.
  [[nodiscard]] std::u16string ErrorText(std::uint32_t code) const override;
  [[nodiscard]] std::uint32_t LastErrorCode() const noexcept override;
  /// There are no such devices here.
  [[nodiscard]] std::optional<TextSize> TextExtent(DeviceContext, std::u16string_view) const override {
    return std::nullopt;
  }

  [[nodiscard]] std::uint32_t LogicalDrives() const override;
  [[nodiscard]] DriveKind KindOfDrive(std::u16string_view drive) const override;
  [[nodiscard]] std::optional<DiskSpace> SpaceOfFolder(std::u16string_view folder) const override;

  [[nodiscard]] std::unique_ptr<RegistryKey> OpenKey(RegistryRoot root,
                                                     std::u16string_view path) const override;

  [[nodiscard]] const FileSystem& Files() const noexcept override { return files_; }
  [[nodiscard]] char16_t PathDelimiter() const override { return u'/'; }
  [[nodiscard]] std::u16string FullPath(std::u16string_view name) const override;
  [[nodiscard]] std::optional<FileFacts> FindFile(std::u16string_view name) const override;
  [[nodiscard]] std::unique_ptr<VersionResource> OpenVersionResource(std::u16string_view name) const override;

  [[nodiscard]] FormatSettings Locale() const override;
  [[nodiscard]] DateTime Now() const override;

  [[nodiscard]] std::uint32_t CodePage() const override;
  [[nodiscard]] std::u16string FromCodePage(std::string_view bytes) const override;
  /// Each code unit that the code page lacks becomes "?".
  [[nodiscard]] std::string ToCodePage(std::u16string_view text) const override;
  [[nodiscard]] bool SameText(std::u16string_view left, std::u16string_view right) const override;
  [[nodiscard]] std::optional<std::u16string> DecodeCodePage(std::uint32_t code_page,
                                                             std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> EncodeCodePage(std::uint32_t code_page,
                                                          std::u16string_view text) const override;
  [[nodiscard]] std::optional<std::uint32_t> CodePageOfLocale(std::uint32_t locale) const override;

  /// Linux has no channel to a debugger: nothing happens.
  void DebugOutput(std::u16string_view) const override {}

  [[nodiscard]] std::optional<std::u16string_view> ResourceText(ModuleHandle module,
                                                                std::uint16_t id) const override;
  [[nodiscard]] ModuleHandle LoadResources(std::u16string_view file) const override;
  void UnloadResources(ModuleHandle module) const override;

  [[nodiscard]] ComponentAnswer CreateComponent(const Guid& class_id) const override;
  [[nodiscard]] ComponentAnswer CreateRemoteComponent(const Guid& class_id,
                                                      std::u16string_view computer) const override;
  [[nodiscard]] ResultCode OfferComponent(const Guid& class_id, ComponentFactory factory,
                                          std::uint32_t& registration) const override;
  void RevokeComponent(std::uint32_t registration) const override;
  [[nodiscard]] std::u16string ComponentErrorText(ResultCode code) const override;

 private:
  std::string root_;
  PosixFileSystem files_;
};

}  // namespace ravo::platform::posix
