#include <ravo/common/byte_size.h>
#include <ravo/platform/machine.h>
#include <ravo/runtime/date_text.h>
#include <ravo/sysinfo/captions.h>
#include <ravo/sysinfo/report_lines.h>
#include <ravo/sysinfo/system_info.h>

namespace ravo::RavoInterfaceInfo {

using platform::CurrentMachine;
using platform::SystemFolder;
using RavoInterfaceCommon::BytesToStr;

std::u16string GetTempDirectory() { return CurrentMachine().Folder(SystemFolder::Temporary); }

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
  const FormatSettings locale = CurrentMachine().Locale();
  const DateTime now = CurrentMachine().Now();
  AddHeading(FStrings, Indent, _rSystemLog.View());
  AddRow(FStrings, Indent, _rSystemDate.View(), FormatDateTime(locale.short_date, now, locale));
  AddRow(FStrings, Indent, _rSystemDay.View(), FormatDateTime(u"dddd", now, locale));
  AddRow(FStrings, Indent, _rSystemTime.View(), FormatDateTime(locale.long_time, now, locale));
}

void TRavoSystemInfo::AddHDInfo(std::u16string_view Indent) {
  const platform::Machine& machine = CurrentMachine();
  AddHeading(FStrings, Indent, _rSystemHD.View());
  const std::uint32_t drives = machine.LogicalDrives();
  platform::DiskSpace space;
  for (unsigned bit = 0; bit < 32; ++bit) {
    const std::u16string drive{static_cast<char16_t>(u'A' + bit), u':'};
    if (((drives >> bit) & 1) == 0 || machine.KindOfDrive(drive) != platform::DriveKind::Fixed) continue;
    // Kept: a drive whose query fails shows the numbers of the drive before it. Test:
    // Drives.AFailedQueryRepeatsTheDriveBefore
    space = machine.SpaceOfFolder(drive).value_or(space);
    AddSubHeading(FStrings, Indent, drive);
    AddNestedRow(FStrings, Indent, _rSystemHDSpace.View(), BytesToStr(space.total, true));
    AddNestedRow(FStrings, Indent, _rSystemHDFreeSpace.View(), BytesToStr(space.available, true));
  }
}

void TRavoSystemInfo::GetOS() {
  const platform::Machine& machine = CurrentMachine();
  OSVersion_ = OSVersionOf(machine.Version(), machine.IsServerR2(), machine.ProcessorArchitecture());
}

std::u16string TRavoSystemInfo::GetAPIString(TApiString Kind) const {
  const platform::Machine& machine = CurrentMachine();
  switch (Kind) {
    case asSystemDir:
      return machine.Folder(SystemFolder::System);
    case asWindowsDir:
      return machine.Folder(SystemFolder::Windows);
    case asTempDir:
      return machine.Folder(SystemFolder::Temporary);
    case asComputerName:
      return machine.ComputerName();
    case asUserName:
      return machine.UserName();
    case asAllDataApp:
      return machine.Folder(SystemFolder::CommonDocuments);
    // Untested: callers pass a value of the enumeration, and all are above.
    default:
      return {};
  }
}

std::uint32_t TRavoSystemInfo::GetAPIInteger(TApiInteger Kind) const {
  const platform::MemoryFigures memory = CurrentMachine().Memory();
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
