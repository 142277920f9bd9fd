#include <ravo/platform/file_stream.h>
#include <ravo/platform/win32/handles.h>
#include <ravo/platform/win32/system_error.h>
#include <ravo/platform/win32/wide.h>
#include <ravo/runtime/error.h>

#include <windows.h>

namespace ravo {
namespace {

using platform::HandleOf;
using platform::Portion;

std::intptr_t Open(std::u16string_view name, FileMode mode) {
  const auto system_name = platform::SystemName(name);
  if (!system_name) throw StreamError(StreamOperation::Open, name);
  const bool reads_only = mode == FileMode::Read;
  const HANDLE file =
      CreateFileW(system_name->c_str(), reads_only ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE,
                  reads_only ? FILE_SHARE_READ : 0, nullptr,
                  mode == FileMode::Create ? CREATE_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file != INVALID_HANDLE_VALUE) return reinterpret_cast<std::intptr_t>(file);
  throw StreamError(StreamOperation::Open,
                    std::u16string(name) + u": " + platform::SystemErrorText(GetLastError()));
}

[[noreturn]] void ThrowLastError() { throw Error(platform::SystemErrorText(GetLastError())); }

}  // namespace

FileStream::FileStream(std::u16string_view name, FileMode mode) : handle_(Open(name, mode)) {}

FileStream::~FileStream() { CloseHandle(HandleOf(handle_)); }

// A failed transfer has moved nothing: the checked operations of the base class raise then.
std::size_t FileStream::Read(std::span<std::byte> to) {
  DWORD moved = 0;
  if (!ReadFile(HandleOf(handle_), to.data(), Portion(to.size()), &moved, nullptr)) return 0;
  position_ += moved;
  return moved;
}

std::size_t FileStream::Write(std::span<const std::byte> from) {
  DWORD moved = 0;
  if (!WriteFile(HandleOf(handle_), from.data(), Portion(from.size()), &moved, nullptr)) return 0;
  position_ += moved;
  return moved;
}

void FileStream::SetPosition(std::int64_t position) {
  if (position < 0) throw RangeError(u"Range check error");
  LARGE_INTEGER target{};
  target.QuadPart = position;
  if (!SetFilePointerEx(HandleOf(handle_), target, nullptr, FILE_BEGIN)) ThrowLastError();
  position_ = position;
}

std::int64_t FileStream::Size() const {
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(HandleOf(handle_), &size)) ThrowLastError();
  return size.QuadPart;
}

}  // namespace ravo
