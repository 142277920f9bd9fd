#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/string_list.h>
#include <ravo/sysinfo/os_version.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace ravo::platform {
class RegistryKey;
}  // namespace ravo::platform

/// The support report: facts about the computer, its system, memory and disks and the suite's installed
/// files, as a text indented with tabs, for the user to copy into a request for support.
namespace ravo::RavoInterfaceInfo {

/// Texts that the operating system is asked for.
enum TApiString : std::uint8_t {
  asSystemDir,
  asWindowsDir,
  asTempDir,
  asComputerName,
  asUserName,
  asAllDataApp
};

/// Amounts of memory that the operating system is asked for, in bytes.
enum TApiInteger : std::uint8_t {
  aiTotalPhysMemory,
  aiAvailPhysMemory,
  aiTotalVirtualMemory,
  aiAvailVirtualMemory,
  aiTotalPageFile,
  aiAvailPageFile
};

/// Who asks for the report: a client module with a user interface, or the application layer.
enum TRavoSystemInfoTyp : std::uint8_t { siVisual, siBusiness };

/// The folder of temporary files as the system reports it, with a delimiter at its end.
[[nodiscard]] RAVO_API std::u16string GetTempDirectory();

/// Collects the report. Everything is gathered when it is asked for; only the kind of operating system is
/// worked out once, on construction. A value that the machine does not have is empty or zero and its line is
/// there all the same. For one thread at a time.
class RAVO_API TRavoSystemInfo {
 public:
  TRavoSystemInfo();
  TRavoSystemInfo(const TRavoSystemInfo&) = delete;
  TRavoSystemInfo& operator=(const TRavoSystemInfo&) = delete;
  ~TRavoSystemInfo();

  /// The whole report, each line followed by carriage return and line feed.
  [[nodiscard]] std::u16string AsText(TRavoSystemInfoTyp ATyp);

  /// The "FileVersion" text of a file's version resource; a name without a folder is looked for in the
  /// current folder. Empty where the file or the text is missing, or the text has only one character.
  [[nodiscard]] std::u16string FileVersion(std::u16string_view AFileName) const;

  /// The kind of operating system, as worked out on construction.
  [[nodiscard]] TOSVersion OSVersion() const noexcept { return OSVersion_; }

 private:
  // The sections, in the order of the report. `Indent` is the tabs that they stand behind.
  void AddDateTime(std::u16string_view Indent);
  void AddBios(std::u16string_view Indent);
  void AddOS(std::u16string_view Indent);
  void AddHDInfo(std::u16string_view Indent);

  void GetOS();
  [[nodiscard]] std::u16string GetAPIString(TApiString Kind) const;
  [[nodiscard]] std::uint32_t GetAPIInteger(TApiInteger Kind) const;
  [[nodiscard]] std::u16string GetStrFromBuf(std::span<const char16_t> Buffer) const;

  // Parts of sections.
  [[nodiscard]] std::u16string BiosVersion(const platform::RegistryKey& key) const;
  void AddFolders(std::u16string_view indent);
  void AddMemory(std::u16string_view indent);

  // The inventory of installed files.
  void AddVCLFiles(std::u16string_view Indent);
  void AddVisualFiles(std::u16string_view Indent);
  void AddReportFiles(std::u16string_view Indent);
  void AddBusinessFiles(std::u16string_view Indent);
  void AddFileInfo(std::u16string_view Indent, std::u16string_view FileName);
  void AddFiles(std::u16string_view indent, std::u16string_view caption, std::u16string_view folder,
                std::span<const std::u16string_view> names);
  [[nodiscard]] std::u16string GetFileAttr(std::u16string_view FileName, std::u16string_view AttrName) const;
  [[nodiscard]] std::u16string GetFileInfo(std::u16string_view FileName, std::u16string_view Key) const;
  [[nodiscard]] std::u16string GetBusinessPath() const;

  StringList FStrings;
  TOSVersion OSVersion_ = osUnknown;
};

}  // namespace ravo::RavoInterfaceInfo
