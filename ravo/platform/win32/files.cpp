#include <ravo/platform/win32/clock.h>
#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>

#include <windows.h>

namespace ravo::platform {
namespace {

DateTime LocalDateTime(const FILETIME& written) {
  FILETIME local{};
  SYSTEMTIME time{};
  if (!FileTimeToLocalFileTime(&written, &local) || !FileTimeToSystemTime(&local, &time)) return 0;
  return DateTimeOf(time);
}

}  // namespace

std::u16string Win32Paths::FullPath(std::u16string_view name) const {
  const std::wstring wide_name = ToWide(name);
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const auto size = static_cast<DWORD>(path.size());
    const DWORD length = GetFullPathNameW(wide_name.c_str(), size, path.data(), nullptr);
    // If the buffer is too small, the call returns the size needed, which a change of folder in another
    // thread may outdate.
    path.resize(length);
    if (length < size) return FromWide(path);
  }
}

std::optional<FileFacts> Win32Paths::FindFile(std::u16string_view name) const {
  WIN32_FIND_DATAW data{};
  const auto pattern = SystemName(name);
  const HANDLE search = pattern ? FindFirstFileW(pattern->c_str(), &data) : INVALID_HANDLE_VALUE;
  if (search == INVALID_HANDLE_VALUE) return std::nullopt;
  FindClose(search);
  const auto size = static_cast<std::uint64_t>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
  return FileFacts{static_cast<std::int64_t>(size), LocalDateTime(data.ftLastWriteTime),
                   data.dwFileAttributes};
}

}  // namespace ravo::platform
