// The support report: a text about the computer, its operating system, memory, disks and installed files of
// the suite.
//
// `TRavoSystemInfo` collects it, one source file per section: bios.cpp, operating_system.cpp with
// os_version.h, installed_files.cpp with file_lists.h. The lines are formed by report_lines.h, their captions
// are rows of captions.inc.
//
// Start here. The report reads the machine through ravo/platform only, so a test can replace it. It changes
// nothing on the machine, sends nothing, and leaves out no line because a value is missing.
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

/// The support report: facts about the computer, its system, memory, disks and the suite's installed files,
/// as a text indented with tabs, for the user to copy into a support request.
namespace ravo::RavoInterfaceInfo {

/// Texts that are read from the operating system.
enum TApiString : std::uint8_t {
  asSystemDir,
  asWindowsDir,
  asTempDir,
  asComputerName,
  asUserName,
  asAllDataApp
};

/// Amounts of memory that are read from the operating system, in bytes.
enum TApiInteger : std::uint8_t {
  aiTotalPhysMemory,
  aiAvailPhysMemory,
  aiTotalVirtualMemory,
  aiAvailVirtualMemory,
  aiTotalPageFile,
  aiAvailPageFile
};

/// The kind of module that asks for the report: a client with a user interface, or the application layer.
enum TRavoSystemInfoTyp : std::uint8_t { siVisual, siBusiness };

/// Returns the folder for temporary files as the system reports it, with a delimiter at its end.
[[nodiscard]] RAVO_API std::u16string GetTempDirectory();

/// Collects the report. Values are read at each call; only the kind of operating system is determined once,
/// on construction. A value that the machine does not have is empty or zero, and its line is still there. Use
/// from one thread at a time.
class RAVO_API TRavoSystemInfo {
 public:
  TRavoSystemInfo();
  TRavoSystemInfo(const TRavoSystemInfo&) = delete;
  TRavoSystemInfo& operator=(const TRavoSystemInfo&) = delete;
  ~TRavoSystemInfo();

  /// Returns the whole report, each line followed by carriage return and line feed.
  [[nodiscard]] std::u16string AsText(TRavoSystemInfoTyp ATyp);

  /// Returns the "FileVersion" text of a file's version resource. A name without a folder is searched in the
  /// current folder.
  ///
  /// Empty if the file or the text is missing. A text of one character is returned as empty too.
  [[nodiscard]] std::u16string FileVersion(std::u16string_view AFileName) const;

  /// Returns the kind of operating system, determined on construction.
  [[nodiscard]] TOSVersion OSVersion() const noexcept { return OSVersion_; }

 private:
  // The sections, in the order of the report. `Indent` holds the tabs before each line.
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
