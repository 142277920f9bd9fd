#include <ravo/runtime/text.h>
#include <ravo/sysinfo/os_version_of.h>

namespace ravo::sysinfo {
namespace {

using namespace RavoInterfaceInfo;  // its enumerators

using platform::ProductType;
using platform::SystemFamily;
using platform::SystemVersion;

constexpr std::uint16_t kSuiteHomeServer = 0x8000;

bool IsWorkstation(const SystemVersion& version) { return version.product_type == ProductType::Workstation; }

bool HasLetter(const SystemVersion& version, std::u16string_view letter) {
  return Trimmed(version.service_pack) == letter;
}

TOSVersion Server2003Kind(const SystemVersion& version, bool is_server_r2, std::uint16_t architecture) {
  if (IsWorkstation(version) && architecture == platform::kArchitectureAmd64) return osXP64;
  // Kept: a home server is found only as a second release; a first release is reported as Windows Server
  // 2003. Test: GetOS.HomeServerOnlyAsSecondRelease
  if (!is_server_r2) return osS2003;
  return (version.suite_mask & kSuiteHomeServer) != 0 ? osHS : osS2003R2;
}

TOSVersion Nt5Kind(const SystemVersion& version, bool is_server_r2, std::uint16_t architecture) {
  switch (version.minor) {
    case 1:
      return osXP;
    case 2:
      return Server2003Kind(version, is_server_r2, architecture);
    default:
      return os2K;
  }
}

TOSVersion Nt6Kind(const SystemVersion& version) {
  switch (version.minor) {
    case 0:
      return IsWorkstation(version) ? osVista : osS2008;
    case 1:
      return IsWorkstation(version) ? osW7 : osS2008R2;
    default:
      return osUnknown;
  }
}

TOSVersion NtKind(const SystemVersion& version, bool is_server_r2, std::uint16_t architecture) {
  switch (version.major) {
    case 3:
      return osNT3;
    case 4:
      return osNT4;
    case 5:
      return Nt5Kind(version, is_server_r2, architecture);
    case 6:
      return Nt6Kind(version);
    default:
      return osUnknown;
  }
}

TOSVersion Windows9xKind(const SystemVersion& version) {
  if (version.major != 4) return osUnknown;
  switch (version.minor) {
    case 0:
      return HasLetter(version, u"B") ? os95OSR2 : os95;
    case 10:
      return HasLetter(version, u"A") ? os98SE : os98;
    case 90:
      return osME;
    default:
      return osUnknown;
  }
}

}  // namespace

TOSVersion OSVersionOf(const SystemVersion& version, bool is_server_r2, std::uint16_t architecture) {
  switch (version.family) {
    case SystemFamily::WindowsNt:
      return NtKind(version, is_server_r2, architecture);
    case SystemFamily::Win32s:
    case SystemFamily::Windows9x:
      return Windows9xKind(version);
    default:
      return osUnknown;
  }
}

bool IsNt(TOSVersion kind) noexcept {
  // Untested: no kind is after the last.
  return kind == osNT3 || kind == osNT4 || kind == os2K || (kind >= osXP && kind <= osW7);
}

}  // namespace ravo::sysinfo
