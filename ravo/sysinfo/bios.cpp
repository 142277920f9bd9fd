#include <ravo/platform/registry.h>
#include <ravo/sysinfo/captions.h>
#include <ravo/sysinfo/registry_text.h>
#include <ravo/sysinfo/report_lines.h>
#include <ravo/sysinfo/system_info.h>

#include <array>

namespace ravo::RavoInterfaceInfo {
namespace {

using sysinfo::AddHeading;
using sysinfo::AddRow;
using sysinfo::TextOf;

constexpr std::size_t kMostBytes = 255;

// One unit more than the bytes fill, so a zero always follows the last whole one.
using BiosBuffer = std::array<char16_t, (kMostBytes + 1) / 2 + 1>;

BiosBuffer UnitsOf(std::span<const std::byte> bytes) {
  BiosBuffer units{};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto shifted = std::to_integer<unsigned>(bytes[i]) << (i % 2 == 0 ? 0 : 8);
    units[i / 2] = static_cast<char16_t>(units[i / 2] | shifted);
  }
  return units;
}

}  // namespace

void TRavoSystemInfo::AddBios(std::u16string_view Indent) {
  const auto key =
      platform::Registry().OpenKey(platform::RegistryRoot::LocalMachine, u"\\HARDWARE\\DESCRIPTION\\System");
  AddHeading(FStrings, Indent, _rSystemBIOS.View());
  AddRow(FStrings, Indent, _rSystemBIOSName.View(), TextOf(key, u"Identifier"));
  AddRow(FStrings, Indent, _rSystemBIOSDate.View(), TextOf(key, u"SystemBiosDate"));
  // Kept: the BIOS version is under the copyright caption; the caption for versions has no row, and the
  // extended row no value. Test: Bios.VersionStandsUnderTheCopyrightCaption
  AddRow(FStrings, Indent, _rSystemBIOSCopyright.View(), key ? BiosVersion(*key) : std::u16string());
  AddRow(FStrings, Indent, _rSystemBIOSExtendedInfo.View(), u"");
}

// The value is a list of texts. On the one kind of system that writes it as a list all of it is shown,
// elsewhere its first text.
std::u16string TRavoSystemInfo::BiosVersion(const platform::RegistryKey& key) const {
  try {
    const auto bytes = key.Bytes(u"SystemBiosVersion", kMostBytes);
    if (!bytes) return {};
    const BiosBuffer units = UnitsOf(*bytes);
    return OSVersion_ == osXP ? GetStrFromBuf(units) : std::u16string(units.data());
  } catch (...) {
    return {};
  }
}

std::u16string TRavoSystemInfo::GetStrFromBuf(std::span<const char16_t> Buffer) const {
  std::u16string result;
  int zeros = 0;
  for (const char16_t unit : Buffer) {
    zeros = unit == 0 ? zeros + 1 : 0;
    if (zeros == 2) break;
    if (unit != 0) result.push_back(unit);
  }
  return result;
}

}  // namespace ravo::RavoInterfaceInfo
