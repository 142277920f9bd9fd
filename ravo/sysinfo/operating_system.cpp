#include <ravo/common/byte_size.h>
#include <ravo/platform/registry.h>
#include <ravo/platform/system.h>
#include <ravo/runtime/text.h>
#include <ravo/sysinfo/captions.h>
#include <ravo/sysinfo/os_version_of.h>
#include <ravo/sysinfo/registry_text.h>
#include <ravo/sysinfo/report_lines.h>
#include <ravo/sysinfo/system_info.h>

namespace ravo::RavoInterfaceInfo {
namespace {

using sysinfo::AddHeading;
using sysinfo::AddNestedRow;
using sysinfo::AddRow;
using sysinfo::AddSubHeading;
using sysinfo::IsNt;
using sysinfo::TextOf;

using platform::RegistryRoot;

std::u16string_view CurrentVersionPath(TOSVersion kind) {
  return IsNt(kind) ? u"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"
                    : u"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
}

// Kept: the key of the hot-fix has "WindowsNT" without a blank; the system's own key has one. Test:
// OperatingSystem.HotfixKeyHasNoBlank
constexpr std::u16string_view kServicePack6aPath =
    u"\\SOFTWARE\\Microsoft\\WindowsNT\\CurrentVersion\\Hotfix\\Q246009";

bool HasServicePack6a() {
  const auto key = platform::Registry().OpenKey(RegistryRoot::LocalMachine, kServicePack6aPath);
  return key && key->Integer(u"Installed") == 1;
}

struct ServicePack {
  std::u16string name;
  std::u16string extension;
};

ServicePack ServicePackOf(TOSVersion kind, const std::u16string& name) {
  switch (kind) {
    case osNT3:
    case osNT4:
    case os2K:
    case osXP:
      return {name == u"Service Pack 6" && HasServicePack6a() ? u"Service Pack 6a" : name, name};
    case os95OSR2:
      return {name, u"OSR 2"};
    case os98SE:
      return {name, u"Second Edition"};
    default:
      return {name, {}};
  }
}

std::u16string NumbersOf(const platform::SystemVersion& version) {
  return ToText(std::uint64_t{version.major}) + u"." + ToText(std::uint64_t{version.minor}) + u"." +
         ToText(std::uint64_t{version.build});
}

}  // namespace

void TRavoSystemInfo::AddOS(std::u16string_view Indent) {
  const platform::SystemVersion version = platform::System().BasicVersion();
  const auto key = platform::Registry().OpenKey(RegistryRoot::LocalMachine, CurrentVersionPath(OSVersion_));
  const ServicePack pack =
      key ? ServicePackOf(OSVersion_, version.service_pack) : ServicePack{version.service_pack, {}};
  const auto row = [&](std::u16string_view caption, std::u16string_view value) {
    AddRow(FStrings, Indent, caption, value);
  };
  AddHeading(FStrings, Indent, _rSystemSystem.View());
  row(_rSystemSystemName.View(), TextOf(key, IsNt(OSVersion_) ? u"ProductName" : u"Version"));
  row(_rSystemVersionOS.View(), NumbersOf(version));
  row(u"CSD", pack.name);
  row(u"CSDEx", pack.extension);
  row(_rSystemSystemRegisteredOwner.View(), TextOf(key, u"RegisteredOwner"));
  row(_rSystemSystemRegisteredOrganization.View(), TextOf(key, u"RegisteredOrganization"));
  row(_rSystemComputerName.View(), GetAPIString(asComputerName));
  row(_rSystemUserName.View(), GetAPIString(asUserName));
  AddFolders(Indent);
  AddMemory(Indent);
}

void TRavoSystemInfo::AddFolders(std::u16string_view indent) {
  const auto row = [&](const ResourceString& caption, TApiString kind) {
    AddNestedRow(FStrings, indent, caption.View(), GetAPIString(kind));
  };
  AddSubHeading(FStrings, indent, _rSystemDirectory.View());
  row(_rSystemSystemDir, asSystemDir);
  row(_rSystemWindowsDir, asWindowsDir);
  row(_rSystemTempDir, asTempDir);
  row(_rSystemAllAppData, asAllDataApp);
}

void TRavoSystemInfo::AddMemory(std::u16string_view indent) {
  const auto row = [&](const ResourceString& caption, TApiInteger kind) {
    AddNestedRow(FStrings, indent, caption.View(),
                 RavoInterfaceCommon::BytesToStr(GetAPIInteger(kind), true));
  };
  AddSubHeading(FStrings, indent, _rSystemMemory.View());
  row(_rSystemTotalPhysMemory, aiTotalPhysMemory);
  row(_rSystemAvailPhysMemory, aiAvailPhysMemory);
  row(_rSystemTotalVirtualMemory, aiTotalVirtualMemory);
  row(_rSystemAvailVirtualMemory, aiAvailVirtualMemory);
  row(_rSystemTotalPageFile, aiTotalPageFile);
  row(_rSystemAvailPageFile, aiAvailPageFile);
}

}  // namespace ravo::RavoInterfaceInfo
