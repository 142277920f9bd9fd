#pragma once

#include "support/fake_file_system.h"
#include <ravo/platform/machine.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <map>
#include <variant>

namespace ravo::test {

/// Orders names as Windows compares them in the registry, in file names and in version resources, as far as
/// plain letters go.
struct NameLess {
  using is_transparent = void;
  bool operator()(std::u16string_view left, std::u16string_view right) const noexcept {
    return std::ranges::lexicographical_compare(left, right, {}, AsciiLower, AsciiLower);
  }
};

template <class Value>
using NameMap = std::map<std::u16string, Value, NameLess>;

/// A registry value that is there but cannot be read.
struct Unreadable {};

/// The kinds of registry values: text, 32-bit integer, bytes.
using FakeRegistryValue = std::variant<std::u16string, std::int32_t, std::vector<std::byte>, Unreadable>;

/// The values of a key under their names; the unnamed one has an empty name.
using FakeRegistryKey = NameMap<FakeRegistryValue>;

/// String tables under their names of eight hexadecimal digits.
struct FakeVersionResource {
  std::optional<std::uint32_t> translation;
  NameMap<NameMap<std::u16string>> tables;
};

struct FakeFile {
  platform::FileFacts facts;
  std::optional<FakeVersionResource> version;
};

/// A drive without a space is one whose query fails.
struct FakeDrive {
  platform::DriveKind kind = platform::DriveKind::Fixed;
  std::optional<platform::DiskSpace> space;
};

/// A machine whose every answer is a plain member. As it stands it knows nothing at all: an unknown system
/// without drives, files, registry, names and folders.
class FakeMachine : public platform::Machine {
 public:
  platform::SystemVersion version;
  /// As the extended record where it has no value of its own.
  std::optional<platform::SystemVersion> basic_version;
  bool is_server_r2 = false;
  std::uint16_t architecture = platform::kArchitectureIntel;
  std::map<platform::SystemFolder, std::u16string> folders;
  std::u16string computer_name;
  std::u16string user_name;
  platform::MemoryFigures memory;

  /// Under their names of a letter and a colon.
  NameMap<FakeDrive> drives;
  /// Under their paths without a "\" in front.
  std::map<platform::RegistryRoot, NameMap<FakeRegistryKey>> registry;
  /// Under their full names.
  NameMap<FakeFile> files;
  char16_t path_delimiter = u'\\';
  /// Without a delimiter at the end.
  std::u16string current_folder = u"C:\\Ravo";

  /// What is asked of open files and folders.
  FakeFileSystem file_system;

  /// The shell's folders under their numbers, and the words for error codes.
  std::map<std::int32_t, std::u16string> shell_folders;
  std::map<std::uint32_t, std::u16string> error_texts;
  std::uint32_t last_error = 0;
  /// The size of any text on any device.
  std::optional<platform::TextSize> text_extent;

  FormatSettings locale;
  /// Each `Now` takes the next reading; the last one repeats. The day zero where there is none.
  std::vector<DateTime> clock;
  std::uint32_t code_page = 1250;
  /// Bytes that are other characters than in Windows-1250.
  std::map<char, char16_t> other_bytes;
  /// The code pages of locales.
  std::map<std::uint32_t, std::uint32_t> locale_code_pages;

  std::map<platform::ModuleHandle, std::map<std::uint16_t, std::u16string>> resource_texts;
  /// What loading a file of resources gives.
  NameMap<platform::ModuleHandle> resource_files;

  /// The objects of classes that this machine makes; the code for all other classes.
  std::map<Guid, ComponentFactory> components;
  ResultCode component_code = result_code::kClassNotRegistered;
  /// The one computer that can be reached besides this one.
  std::u16string remote_computer;

  /// What was sent to the debugger, and which resources were unloaded, in order.
  mutable std::vector<std::u16string> debug_output;
  mutable std::vector<platform::ModuleHandle> unloaded;
  /// The registry paths that were asked for, in order, as they were written.
  mutable std::vector<std::u16string> opened_keys;

  /// The key of that path, made where it is missing.
  FakeRegistryKey& Key(platform::RegistryRoot root, std::u16string_view path);

  [[nodiscard]] platform::SystemVersion Version() const override { return version; }
  [[nodiscard]] platform::SystemVersion BasicVersion() const override {
    return basic_version.value_or(version);
  }
  [[nodiscard]] platform::SystemNumbers VersionNumbers() const noexcept override { return version; }
  [[nodiscard]] bool IsServerR2() const override { return is_server_r2; }
  [[nodiscard]] std::uint16_t ProcessorArchitecture() const override { return architecture; }
  [[nodiscard]] std::u16string Folder(platform::SystemFolder folder) const override;
  [[nodiscard]] std::u16string ComputerName() const override { return computer_name; }
  [[nodiscard]] std::u16string UserName() const override { return user_name; }
  [[nodiscard]] platform::MemoryFigures Memory() const override { return memory; }
  [[nodiscard]] std::u16string ShellFolder(std::int32_t number) const override;
  [[nodiscard]] std::u16string ErrorText(std::uint32_t code) const override;
  [[nodiscard]] std::uint32_t LastErrorCode() const noexcept override { return last_error; }
  [[nodiscard]] std::optional<platform::TextSize> TextExtent(platform::DeviceContext,
                                                             std::u16string_view) const override {
    return text_extent;
  }
  [[nodiscard]] std::uint32_t LogicalDrives() const override;
  [[nodiscard]] platform::DriveKind KindOfDrive(std::u16string_view drive) const override;
  [[nodiscard]] std::optional<platform::DiskSpace> SpaceOfFolder(std::u16string_view folder) const override;
  [[nodiscard]] std::unique_ptr<platform::RegistryKey> OpenKey(platform::RegistryRoot root,
                                                               std::u16string_view path) const override;
  [[nodiscard]] const platform::FileSystem& Files() const noexcept override { return file_system; }
  [[nodiscard]] char16_t PathDelimiter() const override { return path_delimiter; }
  [[nodiscard]] std::u16string FullPath(std::u16string_view name) const override;
  [[nodiscard]] std::optional<platform::FileFacts> FindFile(std::u16string_view name) const override;
  [[nodiscard]] std::unique_ptr<platform::VersionResource> OpenVersionResource(
      std::u16string_view name) const override;
  [[nodiscard]] FormatSettings Locale() const override { return locale; }
  [[nodiscard]] DateTime Now() const override;
  [[nodiscard]] std::uint32_t CodePage() const override { return code_page; }
  [[nodiscard]] std::u16string FromCodePage(std::string_view bytes) const override;
  [[nodiscard]] std::string ToCodePage(std::u16string_view text) const override;
  [[nodiscard]] bool SameText(std::u16string_view left, std::u16string_view right) const override;
  [[nodiscard]] std::optional<std::u16string> DecodeCodePage(std::uint32_t code_page,
                                                             std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> EncodeCodePage(std::uint32_t code_page,
                                                          std::u16string_view text) const override;
  [[nodiscard]] std::optional<std::uint32_t> CodePageOfLocale(std::uint32_t locale) const override;
  void DebugOutput(std::u16string_view text) const override { debug_output.emplace_back(text); }
  [[nodiscard]] std::optional<std::u16string_view> ResourceText(platform::ModuleHandle module,
                                                                std::uint16_t id) const override;
  [[nodiscard]] platform::ModuleHandle LoadResources(std::u16string_view file) const override;
  void UnloadResources(platform::ModuleHandle module) const override { unloaded.push_back(module); }
  [[nodiscard]] platform::ComponentAnswer CreateComponent(const Guid& class_id) const override;
  [[nodiscard]] platform::ComponentAnswer CreateRemoteComponent(const Guid& class_id,
                                                                std::u16string_view computer) const override;
  /// This machine offers what `components` says and nothing else.
  [[nodiscard]] ResultCode OfferComponent(const Guid&, ComponentFactory, std::uint32_t&) const override {
    return result_code::kNotImplemented;
  }
  void RevokeComponent(std::uint32_t) const override {}
  /// "error" and the code.
  [[nodiscard]] std::u16string ComponentErrorText(ResultCode code) const override;

 private:
  mutable std::size_t next_reading_ = 0;
};

}  // namespace ravo::test
