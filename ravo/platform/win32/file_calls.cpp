#include <ravo/platform/win32/handles.h>
#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>

namespace ravo::platform {
namespace {

struct OpenWay {
  DWORD access;
  DWORD share;
  DWORD disposition;
  DWORD flags;
};

OpenWay WayOf(FilePurpose purpose) {
  switch (purpose) {
    case FilePurpose::Load:
      return {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN};
    case FilePurpose::Save:
      return {GENERIC_WRITE, 0, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN};
    case FilePurpose::Date:
      return {GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING, 0};
    case FilePurpose::DateFolder:
      return {GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS};
  }
  return {};
}

}  // namespace

FileHandle Win32Files::Open(std::u16string_view name, FilePurpose purpose) const {
  const auto system_name = SystemName(name);
  if (!system_name) return kNoFile;
  const OpenWay way = WayOf(purpose);
  return reinterpret_cast<FileHandle>(
      CreateFileW(system_name->c_str(), way.access, way.share, nullptr, way.disposition, way.flags, nullptr));
}

bool Win32Files::Close(FileHandle file) const { return CloseHandle(HandleOf(file)) != 0; }

std::optional<std::int64_t> Win32Files::SizeOf(FileHandle file) const {
  LARGE_INTEGER size{};
  // Pipes and consoles have no size.
  if (GetFileType(HandleOf(file)) != FILE_TYPE_DISK) return 0;
  if (!GetFileSizeEx(HandleOf(file), &size)) return std::nullopt;
  return size.QuadPart;
}

std::optional<std::size_t> Win32Files::Read(FileHandle file, std::span<std::byte> to) const {
  DWORD moved = 0;
  if (ReadFile(HandleOf(file), to.data(), Portion(to.size()), &moved, nullptr)) return moved;
  // The writer of a pipe has closed it.
  return GetLastError() == ERROR_BROKEN_PIPE ? std::optional(std::size_t{0}) : std::nullopt;
}

std::optional<std::size_t> Win32Files::Write(FileHandle file, std::span<const std::byte> from) const {
  DWORD moved = 0;
  if (!WriteFile(HandleOf(file), from.data(), Portion(from.size()), &moved, nullptr)) return std::nullopt;
  return moved;
}

bool Win32Files::SetTimes(FileHandle file, std::uint16_t year, std::uint16_t month, std::uint16_t day) const {
  SYSTEMTIME date{};
  date.wYear = year;
  date.wMonth = month;
  date.wDay = day;
  FILETIME time{};
  return SystemTimeToFileTime(&date, &time) && SetFileTime(HandleOf(file), &time, &time, &time);
}

}  // namespace ravo::platform
