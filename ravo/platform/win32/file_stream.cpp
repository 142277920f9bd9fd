#include <ravo/platform/stream_calls.h>
#include <ravo/platform/win32/handles.h>
#include <ravo/platform/win32/system_error.h>
#include <ravo/platform/win32/wide.h>
#include <ravo/runtime/error.h>

#include <windows.h>

namespace ravo::platform {
namespace {

[[noreturn]] void RaiseReadError() {
  throw StreamError(StreamOperation::Read, u"Stream read error: " + SystemErrorText(GetLastError()));
}

// Reading at the end of a file fails, and so does reading from a pipe that its writer has closed.
bool IsAtEnd() {
  const DWORD code = GetLastError();
  return code == ERROR_HANDLE_EOF || code == ERROR_BROKEN_PIPE;
}

std::size_t Read(FileHandle file, std::span<std::byte> to, OVERLAPPED* position) {
  DWORD moved = 0;
  const bool is_read = ReadFile(HandleOf(file), to.data(), Portion(to.size()), &moved, position) != 0;
  if (!is_read && !IsAtEnd()) RaiseReadError();
  return moved;
}

OVERLAPPED At(std::int64_t position) {
  OVERLAPPED at{};
  at.Offset = static_cast<DWORD>(position);
  at.OffsetHigh = static_cast<DWORD>(position >> 32);
  return at;
}

}  // namespace

FileHandle OpenStream(std::u16string_view name, FileMode mode) {
  const auto system_name = SystemName(name);
  if (!system_name) throw StreamError(StreamOperation::Open, name);
  const bool reads_only = mode == FileMode::Read;
  const HANDLE file =
      CreateFileW(system_name->c_str(), reads_only ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE,
                  reads_only ? FILE_SHARE_READ : 0, nullptr,
                  mode == FileMode::Create ? CREATE_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file != INVALID_HANDLE_VALUE) return reinterpret_cast<FileHandle>(file);
  throw StreamError(StreamOperation::Open, std::u16string(name) + u": " + SystemErrorText(GetLastError()));
}

void CloseStream(FileHandle file) noexcept { CloseHandle(HandleOf(file)); }

bool CanSeek(FileHandle file) noexcept { return GetFileType(HandleOf(file)) == FILE_TYPE_DISK; }

std::size_t ReadAt(FileHandle file, std::int64_t position, std::span<std::byte> to) {
  OVERLAPPED at = At(position);
  return Read(file, to, &at);
}

std::size_t ReadNext(FileHandle file, std::span<std::byte> to) { return Read(file, to, nullptr); }

// Callers throw if the result is 0.
std::size_t WriteAt(FileHandle file, std::int64_t position, std::span<const std::byte> from) {
  OVERLAPPED at = At(position);
  DWORD moved = 0;
  return WriteFile(HandleOf(file), from.data(), Portion(from.size()), &moved, &at) ? moved : 0;
}

std::int64_t StreamSize(FileHandle file) {
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(HandleOf(file), &size)) RaiseReadError();
  return size.QuadPart;
}

}  // namespace ravo::platform
