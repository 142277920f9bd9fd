#include <ravo/platform/files.h>
#include <ravo/platform/locale.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/registry.h>
#include <ravo/runtime/date_text.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/text.h>
#include <ravo/sysinfo/captions.h>
#include <ravo/sysinfo/file_lists.h>
#include <ravo/sysinfo/registry_text.h>
#include <ravo/sysinfo/report_lines.h>
#include <ravo/sysinfo/system_info.h>

namespace ravo::RavoInterfaceInfo {
namespace {

using sysinfo::AddHeading;
using sysinfo::AddNestedRow;
using sysinfo::AddRow;
using sysinfo::AddSubHeading;
using sysinfo::kBusinessFiles;
using sysinfo::kReportFiles;
using sysinfo::kVclFiles;
using sysinfo::kVisualFiles;
using sysinfo::TextOf;

// The in-process server of the application layer.
constexpr std::u16string_view kBusinessServerPath =
    u"CLSID\\{346EC041-56AD-470D-A74D-980AA7022656}\\InprocServer32";

constexpr std::u16string_view kSize = u"Velikost";
constexpr std::u16string_view kWritten = u"Datum/čas";
constexpr std::u16string_view kAttributes = u"Atributy";
constexpr std::u16string_view kFileAttributes[] = {kSize, kWritten, kAttributes};

constexpr std::u16string_view kVersionKeys[] = {u"CompanyName",  u"FileDescription", u"FileVersion",
                                                u"InternalName", u"LegalCopyright",  u"OriginalFilename",
                                                u"ProductName",  u"ProductVersion"};

// Returns the length of the folder part of a name, including the delimiter after it; 0 for a bare name.
std::size_t FolderLength(std::u16string_view name) { return name.find_last_of(u"\\/:") + 1; }

// Returns the folder part of a name, with one delimiter after it.
std::u16string FolderOf(std::u16string_view name) {
  std::u16string_view folder = name.substr(0, FolderLength(name));
  if (!folder.empty() && folder.back() != u':') folder.remove_suffix(1);
  return std::u16string(folder) + platform::Paths().PathDelimiter();
}

// Kept: client files are looked for in the current folder, not in that of the running program. Test:
// InstalledFiles.ClientFilesAreLookedForInTheCurrentFolder
std::u16string CurrentFolder() { return FolderOf(platform::Paths().FullPath(u"Ravo.exe")); }

// A time stamp outside the calendar must not fail the whole report.
std::u16string TimeStampText(DateTime written) {
  try {
    return DateTimeText(written, platform::Locale().Settings());
  } catch (const ConvertError&) {
    return {};
  }
}

bool FileExists(std::u16string_view name) {
  const auto facts = platform::Paths().FindFile(name);
  return facts && (facts->attributes & platform::kFolderAttribute) == 0;
}

// A string table is named by language and code page, four digits each.
std::u16string TableName(std::uint32_t translation) {
  return ToHex(translation & 0xFFFF, 4) + ToHex(translation >> 16, 4);
}

}  // namespace

std::u16string TRavoSystemInfo::FileVersion(std::u16string_view AFileName) const {
  const std::u16string folder = FolderLength(AFileName) == 0 ? CurrentFolder() : std::u16string();
  return GetFileInfo(folder + std::u16string(AFileName), u"FileVersion");
}

void TRavoSystemInfo::AddVCLFiles(std::u16string_view Indent) {
  AddFiles(Indent, _rFilesVCL.View(), CurrentFolder(), kVclFiles);
}

void TRavoSystemInfo::AddVisualFiles(std::u16string_view Indent) {
  AddFiles(Indent, _rFilesRavo.View(), CurrentFolder(), kVisualFiles);
}

void TRavoSystemInfo::AddReportFiles(std::u16string_view Indent) {
  AddFiles(Indent, _rFilesReport.View(), CurrentFolder(), kReportFiles);
}

void TRavoSystemInfo::AddBusinessFiles(std::u16string_view Indent) {
  AddFiles(Indent, _rFilesRavo.View(), GetBusinessPath(), kBusinessFiles);
}

void TRavoSystemInfo::AddFiles(std::u16string_view indent, std::u16string_view caption,
                               std::u16string_view folder, std::span<const std::u16string_view> names) {
  AddHeading(FStrings, indent, caption);
  const std::u16string deeper = std::u16string(indent) + u'\t';
  for (const std::u16string_view name : names) AddFileInfo(deeper, std::u16string(folder).append(name));
}

void TRavoSystemInfo::AddFileInfo(std::u16string_view Indent, std::u16string_view FileName) {
  if (!FileExists(FileName)) return;
  AddHeading(FStrings, Indent, FileName);
  for (const std::u16string_view name : kFileAttributes) {
    AddRow(FStrings, Indent, name, GetFileAttr(FileName, name));
  }
  AddSubHeading(FStrings, Indent, _rSystemVersion.View());
  for (const std::u16string_view key : kVersionKeys) {
    AddNestedRow(FStrings, Indent, key, GetFileInfo(FileName, key));
  }
}

std::u16string TRavoSystemInfo::GetFileAttr(std::u16string_view FileName,
                                            std::u16string_view AttrName) const {
  const auto facts = platform::Paths().FindFile(FileName);
  // Untested: the file would have to be deleted while the report is made.
  if (!facts) return {};
  if (AttrName == kSize) return ToText(facts->size) + u" B";
  if (AttrName == kWritten) return TimeStampText(facts->written);
  // Untested: the report asks for three attributes only.
  if (AttrName == kAttributes) return ToHex(facts->attributes, 8);
  // Untested: the report asks for three attributes only.
  return {};
}

std::u16string TRavoSystemInfo::GetFileInfo(std::u16string_view FileName, std::u16string_view Key) const {
  const auto version = platform::Paths().OpenVersionResource(FileName);
  const auto translation = version ? version->FirstTranslation() : std::nullopt;
  if (!translation) return {};
  std::u16string text = version->String(TableName(*translation), Key).value_or(std::u16string());
  // Kept: a version string of one character is shown as empty. Test:
  // InstalledFiles.AVersionOfOneCharacterIsEmpty
  return text.size() <= 1 ? std::u16string() : text;
}

// Kept: for an unregistered server the result is the root of the current drive. Test:
// InstalledFiles.AnUnregisteredServerMeansTheRootOfTheDrive
std::u16string TRavoSystemInfo::GetBusinessPath() const {
  const auto key = platform::Registry().OpenKey(platform::RegistryRoot::ClassesRoot, kBusinessServerPath);
  return FolderOf(TextOf(key, u""));
}

}  // namespace ravo::RavoInterfaceInfo
