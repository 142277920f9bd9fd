#pragma once

#include "support/fake_file_system.h"
#include <ravo/platform/code_pages.h>
#include <ravo/platform/components.h>
#include <ravo/platform/diagnostics.h>
#include <ravo/platform/drives.h>
#include <ravo/platform/folders.h>
#include <ravo/platform/locale.h>
#include <ravo/platform/machine.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/registry.h>
#include <ravo/platform/resources.h>
#include <ravo/platform/system.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <map>
#include <variant>

namespace ravo::test {

/// Orders names as Windows compares them in the registry, in file names and in version resources, for ASCII
/// letters.
struct NameLess {
  using is_transparent = void;
  bool operator()(std::u16string_view left, std::u16string_view right) const noexcept {
    return std::ranges::lexicographical_compare(left, right, {}, AsciiLower, AsciiLower);
  }
};

template <class Value>
using NameMap = std::map<std::u16string, Value, NameLess>;

/// A registry value that exists but cannot be read.
struct Unreadable {};

/// The kinds of registry values: text, 32-bit integer, bytes.
using FakeRegistryValue = std::variant<std::u16string, std::int32_t, std::vector<std::byte>, Unreadable>;

/// The values of a key by name; the unnamed one has an empty name.
using FakeRegistryKey = NameMap<FakeRegistryValue>;

/// String tables by their names of eight hexadecimal digits.
struct FakeVersionResource {
  std::optional<std::uint32_t> translation;
  NameMap<NameMap<std::u16string>> tables;
};

struct FakeFile {
  platform::FileFacts facts;
  std::optional<FakeVersionResource> version;
};

/// A drive. Without a space, the query for it fails.
struct FakeDrive {
  platform::DriveKind kind = platform::DriveKind::Fixed;
  std::optional<platform::DiskSpace> space;
};

// Fakes of the chapters, whose answers are plain members. A test puts one of them in force:
//
//   platform::Machine machine = platform::RealMachine();
//   machine.drives = &drives;
//   const platform::ScopedMachine scope(machine);

class FakeSystem : public platform::SystemCalls {
 public:
  platform::SystemVersion version;
  /// Empty means the same as `version`.
  std::optional<platform::SystemVersion> basic_version;
  bool is_server_r2 = false;
  std::uint16_t architecture = platform::kArchitectureIntel;
  std::u16string computer_name;
  std::u16string user_name;
  platform::MemoryFigures memory;
  /// The size of any text on any device.
  std::optional<platform::TextSize> text_extent;

  [[nodiscard]] platform::SystemVersion Version() const override { return version; }
  [[nodiscard]] platform::SystemVersion BasicVersion() const override {
    return basic_version.value_or(version);
  }
  [[nodiscard]] platform::SystemNumbers VersionNumbers() const noexcept override { return version; }
  [[nodiscard]] bool IsServerR2() const override { return is_server_r2; }
  [[nodiscard]] std::uint16_t ProcessorArchitecture() const override { return architecture; }
  [[nodiscard]] std::u16string ComputerName() const override { return computer_name; }
  [[nodiscard]] std::u16string UserName() const override { return user_name; }
  [[nodiscard]] platform::MemoryFigures Memory() const override { return memory; }
  [[nodiscard]] std::optional<platform::TextSize> TextExtent(platform::DeviceContext,
                                                             std::u16string_view) const override {
    return text_extent;
  }
};

class FakeFolders : public platform::FolderCalls {
 public:
  std::map<platform::SystemFolder, std::u16string> folders;
  /// By number.
  std::map<std::int32_t, std::u16string> shell_folders;

  [[nodiscard]] std::u16string Folder(platform::SystemFolder folder) const override;
  [[nodiscard]] std::u16string ShellFolder(std::int32_t number) const override;
};

class FakeDiagnostics : public platform::DiagnosticCalls {
 public:
  std::map<std::uint32_t, std::u16string> error_texts;
  std::uint32_t last_error = 0;
  /// The texts sent to the debugger, in order.
  mutable std::vector<std::u16string> debug_output;

  [[nodiscard]] std::u16string ErrorText(std::uint32_t code) const override;
  [[nodiscard]] std::uint32_t LastErrorCode() const noexcept override { return last_error; }
  void DebugOutput(std::u16string_view text) const override { debug_output.emplace_back(text); }
};

class FakeDrives : public platform::DriveCalls {
 public:
  /// Named by a letter and a colon.
  NameMap<FakeDrive> drives;

  [[nodiscard]] std::uint32_t LogicalDrives() const override;
  [[nodiscard]] platform::DriveKind KindOfDrive(std::u16string_view drive) const override;
  [[nodiscard]] std::optional<platform::DiskSpace> SpaceOfFolder(std::u16string_view folder) const override;
};

class FakeRegistry : public platform::RegistryCalls {
 public:
  /// By their paths without a leading "\".
  std::map<platform::RegistryRoot, NameMap<FakeRegistryKey>> registry;
  /// The paths that were asked for, in order, as they were written.
  mutable std::vector<std::u16string> opened_keys;

  /// Returns the key of that path; adds it if it is missing.
  FakeRegistryKey& Key(platform::RegistryRoot root, std::u16string_view path);

  [[nodiscard]] std::unique_ptr<platform::RegistryKey> OpenKey(platform::RegistryRoot root,
                                                               std::u16string_view path) const override;
};

class FakePaths : public platform::PathCalls {
 public:
  /// By their full names.
  NameMap<FakeFile> files;
  char16_t path_delimiter = u'\\';
  /// Without a delimiter at the end.
  std::u16string current_folder = u"C:\\Ravo";

  [[nodiscard]] char16_t PathDelimiter() const override { return path_delimiter; }
  [[nodiscard]] std::u16string FullPath(std::u16string_view name) const override;
  [[nodiscard]] std::optional<platform::FileFacts> FindFile(std::u16string_view name) const override;
  [[nodiscard]] std::unique_ptr<platform::VersionResource> OpenVersionResource(
      std::u16string_view name) const override;
};

class FakeLocale : public platform::LocaleCalls {
 public:
  FormatSettings locale;
  /// Each `Now` returns the next reading; the last one repeats. Without readings `Now` returns day 0.
  std::vector<DateTime> clock;

  [[nodiscard]] FormatSettings Settings() const override { return locale; }
  /// Folds A to Z alone.
  [[nodiscard]] bool SameText(std::u16string_view left, std::u16string_view right) const override;
  [[nodiscard]] DateTime Now() const override;

 private:
  mutable std::size_t next_reading_ = 0;
};

class FakeCodePages : public platform::CodePageCalls {
 public:
  std::uint32_t code_page = 1250;
  /// Bytes that are other characters than in Windows-1250.
  std::map<char, char16_t> other_bytes;
  std::map<std::uint32_t, std::uint32_t> locale_code_pages;

  [[nodiscard]] std::uint32_t CodePage() const override { return code_page; }
  [[nodiscard]] std::u16string FromCodePage(std::string_view bytes) const override;
  [[nodiscard]] std::string ToCodePage(std::u16string_view text) const override;
  [[nodiscard]] std::optional<std::u16string> DecodeCodePage(std::uint32_t code_page,
                                                             std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> EncodeCodePage(std::uint32_t code_page,
                                                          std::u16string_view text) const override;
  [[nodiscard]] std::optional<std::uint32_t> CodePageOfLocale(std::uint32_t locale) const override;
};

class FakeResources : public platform::ResourceCalls {
 public:
  std::map<platform::ModuleHandle, std::map<std::uint16_t, std::u16string>> resource_texts;
  /// The modules that loading a file gives, by the file's name.
  NameMap<platform::ModuleHandle> resource_files;
  /// The modules that were unloaded, in order.
  mutable std::vector<platform::ModuleHandle> unloaded;

  [[nodiscard]] std::optional<std::u16string_view> ResourceText(platform::ModuleHandle module,
                                                                std::uint16_t id) const override;
  [[nodiscard]] platform::ModuleHandle LoadResources(std::u16string_view file) const override;
  void UnloadResources(platform::ModuleHandle module) const override { unloaded.push_back(module); }
};

class FakeComponents : public platform::ComponentCalls {
 public:
  /// The classes that have objects.
  std::map<Guid, ComponentFactory> components;
  /// The code for all other classes.
  ResultCode component_code = result_code::kClassNotRegistered;
  /// The one other computer that can be reached.
  std::u16string remote_computer;

  [[nodiscard]] platform::ComponentAnswer CreateComponent(const Guid& class_id) const override;
  [[nodiscard]] platform::ComponentAnswer CreateRemoteComponent(const Guid& class_id,
                                                                std::u16string_view computer) const override;
  /// Refuses: the classes are those of `components`.
  [[nodiscard]] ResultCode OfferComponent(const Guid&, ComponentFactory, std::uint32_t&) const override {
    return result_code::kNotImplemented;
  }
  void RevokeComponent(std::uint32_t) const override {}
  /// "error" and the code.
  [[nodiscard]] std::u16string ComponentErrorText(ResultCode code) const override;
};

/// A fake of each chapter. As constructed it knows nothing: an unknown system without drives, files,
/// registry, names and folders.
class FakeMachine : public FakeSystem,
                    public FakeFolders,
                    public FakeDiagnostics,
                    public FakeDrives,
                    public FakeRegistry,
                    public FakePaths,
                    public FakeLocale,
                    public FakeCodePages,
                    public FakeResources,
                    public FakeComponents {
 public:
  FakeFileSystem file_system;

  /// Returns the machine whose chapters are the parts of this object.
  operator platform::Machine() const;  // NOLINT(google-explicit-constructor): it stands for one
};

}  // namespace ravo::test
