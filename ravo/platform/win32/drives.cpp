#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>

#include <windows.h>

namespace ravo::platform {

std::uint32_t Win32Drives::LogicalDrives() const { return GetLogicalDrives(); }

DriveKind Win32Drives::KindOfDrive(std::u16string_view drive) const {
  const UINT kind = GetDriveTypeW(ToWide(drive).c_str());
  return kind <= DRIVE_RAMDISK ? static_cast<DriveKind>(kind) : DriveKind::Unknown;
}

std::optional<DiskSpace> Win32Drives::SpaceOfFolder(std::u16string_view folder) const {
  ULARGE_INTEGER available{};
  ULARGE_INTEGER total{};
  ULARGE_INTEGER free{};
  const auto name = SystemName(folder);
  if (!name || !GetDiskFreeSpaceExW(name->c_str(), &available, &total, &free)) return std::nullopt;
  return DiskSpace{static_cast<std::int64_t>(total.QuadPart), static_cast<std::int64_t>(available.QuadPart),
                   static_cast<std::int64_t>(free.QuadPart)};
}

}  // namespace ravo::platform
