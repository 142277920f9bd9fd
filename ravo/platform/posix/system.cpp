#include <ravo/platform/posix/posix_machine.h>
#include <ravo/platform/posix/system.h>
#include <ravo/platform/posix/user.h>
#include <ravo/runtime/text.h>

#include <charconv>
#include <limits>

#include <sys/utsname.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

constexpr std::uint16_t kUnknownArchitecture = 0xFFFF;
constexpr std::size_t kMostServicePackUnits = 127;

bool StartsWithDigit(std::string_view text) {
  return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

// Removes a decimal number from the front; one that is too large reads as the largest.
std::uint32_t TakeNumber(std::string_view& rest) {
  std::uint32_t number = 0;
  const auto result = std::from_chars(rest.data(), rest.data() + rest.size(), number);
  rest.remove_prefix(static_cast<std::size_t>(result.ptr - rest.data()));
  return result.ec == std::errc::result_out_of_range ? std::numeric_limits<std::uint32_t>::max() : number;
}

// Removes up to three numbers from the front.
SystemNumbers TakeNumbers(std::string_view& release) {
  SystemNumbers numbers;
  // Untested: the loop ends at the third number.
  for (std::uint32_t* part : {&numbers.major, &numbers.minor, &numbers.build}) {
    if (!StartsWithDigit(release)) break;
    *part = TakeNumber(release);
    if (part != &numbers.build && release.starts_with('.') && StartsWithDigit(release.substr(1))) {
      release.remove_prefix(1);
    } else {
      break;
    }
  }
  return numbers;
}

}  // namespace

SystemVersion VersionFromRelease(std::string_view release) {
  SystemVersion version;
  static_cast<SystemNumbers&>(version) = TakeNumbers(release);
  if (release.starts_with('-')) release.remove_prefix(1);
  version.service_pack = FromUtf8(release).substr(0, kMostServicePackUnits);
  return version;
}

std::uint16_t ArchitectureFromMachineName(std::string_view name) {
  if (name == "x86_64") return kArchitectureAmd64;
  const bool is_intel =
      name.size() == 4 && name[0] == 'i' && name[1] >= '3' && name[1] <= '6' && name.substr(2) == "86";
  return is_intel ? kArchitectureIntel : kUnknownArchitecture;
}

std::u16string HostName() {
  // Linux allows 64 bytes; a name cut short need not be terminated.
  char name[256] = {};
  // Untested: the call fails only if the system is broken.
  return gethostname(name, sizeof name - 1) == 0 ? FromUtf8(name) : std::u16string();
}

SystemVersion PosixSystem::Version() const {
  utsname names{};
  // Untested: the call fails only if the system is broken.
  return uname(&names) == 0 ? VersionFromRelease(names.release) : SystemVersion();
}

SystemVersion PosixSystem::BasicVersion() const { return Version(); }
SystemNumbers PosixSystem::VersionNumbers() const noexcept {
  utsname names{};
  // Untested: the call fails only if the system is broken.
  if (uname(&names) != 0) return {};
  std::string_view release(names.release);
  return TakeNumbers(release);
}

std::uint16_t PosixSystem::ProcessorArchitecture() const {
  utsname names{};
  // Untested: the call fails only if the system is broken.
  return uname(&names) == 0 ? ArchitectureFromMachineName(names.machine) : kUnknownArchitecture;
}

std::u16string PosixSystem::ComputerName() const { return HostName(); }

std::u16string PosixSystem::UserName() const {
  const auto user = CurrentUser();
  return user ? FromUtf8(user->name) : std::u16string();
}

}  // namespace ravo::platform::posix
