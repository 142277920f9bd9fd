#include <ravo/platform/linux/linux_machine.h>
#include <ravo/platform/linux/registry.h>
#include <ravo/platform/posix/host_file.h>
#include <ravo/platform/posix/shell_text.h>
#include <ravo/platform/posix/user.h>
#include <ravo/runtime/text.h>

#include <sys/utsname.h>

namespace ravo::platform::gnu_linux {
namespace {

using posix::CurrentUser;
using posix::ReadHostFile;
using posix::ShellAssignment;
using posix::TrimmedBytes;

// Returns a text of the firmware; empty if it is missing.
std::string FirmwareText(const std::string& root, std::string_view name) {
  const auto text = ReadHostFile(root + "/sys/class/dmi/id/" + std::string(name));
  return std::string(TrimmedBytes(text.value_or("")));
}

// Joins both with a blank; returns the one that is not empty if the other is.
std::string Pair(const std::string& first, const std::string& second) {
  // Untested: needs firmware with the second fact and not the first.
  return first.empty() || second.empty() ? first + second : first + " " + second;
}

std::string SystemName(const std::string& root) {
  for (const char* place : {"/etc/os-release", "/usr/lib/os-release"}) {
    const auto text = ReadHostFile(root + place);
    if (text) return ShellAssignment(*text, "PRETTY_NAME").value_or("");
  }
  return {};
}

std::string MachineName() {
  utsname names{};
  // Untested: the call fails only if the system is broken.
  return uname(&names) == 0 ? names.machine : "";
}

}  // namespace

std::vector<RegistryValue> HardwareValues(const std::string& root, std::string_view machine) {
  const auto text = [&](std::string_view name) { return FirmwareText(root, name); };
  std::string name = Pair(text("sys_vendor"), text("product_name"));
  if (name.empty()) name = machine;
  return {
      {u"Identifier", FromUtf8(name)},
      {u"SystemBiosVersion", FromUtf8(Pair(text("bios_vendor"), text("bios_version"))),
       RegistryKind::ManyTexts},
      {u"SystemBiosDate", FromUtf8(text("bios_date"))},
  };
}

std::vector<RegistryValue> SystemValues(const std::string& root, std::string_view owner) {
  return {{u"Version", FromUtf8(SystemName(root))}, {u"RegisteredOwner", FromUtf8(owner)}};
}

std::unique_ptr<RegistryKey> LinuxRegistry::OpenKey(RegistryRoot root, std::u16string_view path) const {
  if (root != RegistryRoot::LocalMachine) return nullptr;
  if (path.starts_with(u'\\')) path.remove_prefix(1);
  if (SameAsciiText(path, u"HARDWARE\\DESCRIPTION\\System")) {
    return MakeKey(HardwareValues(root_, MachineName()));
  }
  if (SameAsciiText(path, u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion") ||
      SameAsciiText(path, u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion")) {
    const auto user = CurrentUser();
    return MakeKey(SystemValues(root_, user ? user->full_name : ""));
  }
  return nullptr;
}

}  // namespace ravo::platform::gnu_linux
