#include <ravo/platform/linux/mounts.h>
#include <ravo/platform/posix/host_file.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <set>

namespace ravo::platform {
namespace gnu_linux {
namespace {

using posix::Drive;
using posix::ReadHostFile;
using posix::TakeLine;
using posix::TrimmedBytes;

constexpr std::string_view kDevices = "/dev/";

bool IsOctal(char ch) { return ch >= '0' && ch <= '7'; }

// A backslash and three octal digits encode a byte: blanks, tabs, line feeds and backslashes are written so.
std::string WithoutEscapes(std::string_view field) {
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    const std::string_view digits = field.substr(i + 1, 3);
    const bool is_escape = field[i] == '\\' && digits.size() == 3 && std::ranges::all_of(digits, IsOctal);
    text.push_back(is_escape ? static_cast<char>(std::stoi(std::string(digits), nullptr, 8)) : field[i]);
    if (is_escape) i += 3;
  }
  return text;
}

std::string_view TakeField(std::string_view& line) {
  const std::size_t end = line.find(' ');
  const std::string_view field = line.substr(0, end);
  line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
  return field;
}

bool IsRemote(const Mount& mount) {
  constexpr std::string_view types[] = {"nfs", "nfs4", "cifs", "smb3"};
  return std::ranges::find(types, mount.type) != std::end(types);
}

// Tells whether a device holds a file system itself, rather than being backed by a file or by memory.
bool IsDisk(const Mount& mount) {
  if (!mount.device.starts_with(kDevices) || mount.type == "squashfs" || mount.type == "fuse") return false;
  const std::string_view name = std::string_view(mount.device).substr(kDevices.size());
  const auto is_numbered = [&](std::string_view stem) {
    // Untested: needs a device of that stem without a number.
    return name.starts_with(stem) && std::ranges::all_of(name.substr(stem.size()), [](unsigned char ch) {
             return std::isdigit(ch) != 0;
           });
  };
  return !is_numbered("loop") && !is_numbered("ram") && !is_numbered("zram");
}

DriveKind KindOf(const Mount& mount, const IsRemovable& is_removable) {
  return is_removable(std::string_view(mount.device).substr(kDevices.size())) ? DriveKind::Removable
                                                                              : DriveKind::Fixed;
}

// The last mount on "/" covers those before it.
Mount RootOf(std::span<const Mount> mounts) {
  const auto at =
      std::find_if(mounts.rbegin(), mounts.rend(), [](const Mount& m) { return m.folder == "/"; });
  return at == mounts.rend() ? Mount{"", "/", ""} : *at;
}

// A partition has no such mark of its own: its disk has, whose folder is the parent.
bool IsMarkedRemovable(const std::string& root, std::string_view device) {
  const std::string folder = root + "/sys/class/block/" + std::string(device);
  for (const char* place : {"/removable", "/../removable"}) {
    const auto mark = ReadHostFile(folder + place);
    if (mark) return TrimmedBytes(*mark) == "1";
  }
  return false;
}

}  // namespace

std::vector<Mount> ParseMounts(std::string_view table) {
  std::vector<Mount> mounts;
  while (!table.empty()) {
    std::string_view line = TakeLine(table);
    Mount mount;
    for (std::string* field : {&mount.device, &mount.folder, &mount.type}) {
      *field = WithoutEscapes(TakeField(line));
    }
    if (!mount.type.empty()) mounts.push_back(std::move(mount));
  }
  return mounts;
}

std::vector<Drive> DrivesOf(std::span<const Mount> mounts, const IsRemovable& is_removable) {
  std::vector<Drive> drives;
  std::set<std::string_view> seen;
  const auto add = [&](const Mount& mount, DriveKind kind) {
    if (seen.insert(mount.device).second && drives.size() < 'Z' - 'C' + 1) {
      drives.push_back({static_cast<char16_t>(u'C' + drives.size()), kind, mount.folder});
    }
  };
  const Mount root = RootOf(mounts);
  add(root, IsDisk(root) ? KindOf(root, is_removable) : DriveKind::Fixed);
  for (const Mount& mount : mounts) {
    if (mount.folder != "/" && IsDisk(mount)) add(mount, KindOf(mount, is_removable));
  }
  for (const Mount& mount : mounts) {
    if (mount.folder != "/" && IsRemote(mount)) add(mount, DriveKind::Remote);
  }
  return drives;
}

}  // namespace gnu_linux

std::vector<posix::Drive> posix::CurrentDrives(const std::string& root) {
  const auto mounts = gnu_linux::ParseMounts(ReadHostFile(root + "/proc/self/mounts").value_or(""));
  return gnu_linux::DrivesOf(
      mounts, [&](std::string_view device) { return gnu_linux::IsMarkedRemovable(root, device); });
}

}  // namespace ravo::platform
