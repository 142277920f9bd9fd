#include <ravo/common/byte_size.h>
#include <ravo/platform/drives.h>
#include <ravo/platform/folders.h>
#include <ravo/platform/locale.h>
#include <ravo/platform/system.h>
#include <ravo/runtime/date_text.h>
#include <ravo/sysinfo/captions.h>
#include <ravo/sysinfo/os_version_of.h>
#include <ravo/sysinfo/report_lines.h>
#include <ravo/sysinfo/system_info.h>

namespace ravo::RavoInterfaceInfo {

using sysinfo::AddHeading;
using sysinfo::AddNestedRow;
using sysinfo::AddRow;
using sysinfo::AddSubHeading;
using sysinfo::OSVersionOf;

using platform::SystemFolder;
using RavoInterfaceCommon::BytesToStr;

std::u16string GetTempDirectory() { return platform::Folders().Folder(SystemFolder::Temporary); }

TRavoSystemInfo::TRavoSystemInfo() { GetOS(); }

TRavoSystemInfo::~TRavoSystemInfo() = default;

std::u16string TRavoSystemInfo::AsText(TRavoSystemInfoTyp ATyp) {
  FStrings.Clear();
  AddHeading(FStrings, u"", ATyp == siBusiness ? _rRootBusiness.View() : _rRootClient.View());
  AddDateTime(u"\t");
  AddBios(u"\t");
  AddOS(u"\t");
  AddHDInfo(u"\t");
  AddHeading(FStrings, u"\t", _rFiles.View());
  AddVCLFiles(u"\t\t");
  if (ATyp == siBusiness) {
    AddBusinessFiles(u"\t\t");
  } else {
    AddVisualFiles(u"\t\t");
    AddReportFiles(u"\t\t");
  }
  return FStrings.Text();
}

// Reads the clock once, so a report made at midnight does not mix two days.
void TRavoSystemInfo::AddDateTime(std::u16string_view Indent) {
  const FormatSettings locale = platform::Locale().Settings();
  const DateTime now = platform::Locale().Now();
  AddHeading(FStrings, Indent, _rSystemLog.View());
  AddRow(FStrings, Indent, _rSystemDate.View(), FormatDateTime(locale.short_date, now, locale));
  AddRow(FStrings, Indent, _rSystemDay.View(), FormatDateTime(u"dddd", now, locale));
  AddRow(FStrings, Indent, _rSystemTime.View(), FormatDateTime(locale.long_time, now, locale));
}

void TRavoSystemInfo::AddHDInfo(std::u16string_view Indent) {
  AddHeading(FStrings, Indent, _rSystemHD.View());
  const platform::DriveCalls& calls = platform::Drives();
  const std::uint32_t drives = calls.LogicalDrives();
  platform::DiskSpace space;
  for (unsigned bit = 0; bit < 32; ++bit) {
    const std::u16string drive{static_cast<char16_t>(u'A' + bit), u':'};
    if (((drives >> bit) & 1) == 0 || calls.KindOfDrive(drive) != platform::DriveKind::Fixed) continue;
    // Kept: a drive whose query fails shows the numbers of the drive before it. Test:
    // Drives.AFailedQueryRepeatsTheDriveBefore
    space = calls.SpaceOfFolder(drive).value_or(space);
    AddSubHeading(FStrings, Indent, drive);
    AddNestedRow(FStrings, Indent, _rSystemHDSpace.View(), BytesToStr(space.total, true));
    AddNestedRow(FStrings, Indent, _rSystemHDFreeSpace.View(), BytesToStr(space.available, true));
  }
}

void TRavoSystemInfo::GetOS() {
  const platform::SystemCalls& system = platform::System();
  OSVersion_ = OSVersionOf(system.Version(), system.IsServerR2(), system.ProcessorArchitecture());
}

std::u16string TRavoSystemInfo::GetAPIString(TApiString Kind) const {
  switch (Kind) {
    case asSystemDir:
      return platform::Folders().Folder(SystemFolder::System);
    case asWindowsDir:
      return platform::Folders().Folder(SystemFolder::Windows);
    case asTempDir:
      return platform::Folders().Folder(SystemFolder::Temporary);
    case asComputerName:
      return platform::System().ComputerName();
    case asUserName:
      return platform::System().UserName();
    case asAllDataApp:
      return platform::Folders().Folder(SystemFolder::CommonDocuments);
    // Untested: callers pass a value of the enumeration, and all are above.
    default:
      return {};
  }
}

std::uint32_t TRavoSystemInfo::GetAPIInteger(TApiInteger Kind) const {
  const platform::MemoryFigures memory = platform::System().Memory();
  switch (Kind) {
    case aiTotalPhysMemory:
      return memory.total_physical;
    case aiAvailPhysMemory:
      return memory.available_physical;
    case aiTotalVirtualMemory:
      return memory.total_virtual;
    case aiAvailVirtualMemory:
      return memory.available_virtual;
    case aiTotalPageFile:
      return memory.total_page_file;
    case aiAvailPageFile:
      return memory.available_page_file;
    // Untested: callers pass a value of the enumeration, and all are above.
    default:
      return 0;
  }
}

}  // namespace ravo::RavoInterfaceInfo
