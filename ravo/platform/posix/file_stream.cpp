#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/uninterrupted.h>
#include <ravo/platform/stream_calls.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/text.h>

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravo::platform {
namespace {

static_assert(sizeof(off_t) == 8, "files are larger than 2 GiB");

using posix::Uninterrupted;

constexpr mode_t kNewFileRights = 0666;

int FlagsOf(FileMode mode) {
  constexpr int always = O_CLOEXEC | O_NOCTTY;
  switch (mode) {
    case FileMode::Read:
      return always | O_RDONLY;
    case FileMode::ReadWrite:
      return always | O_RDWR;
    case FileMode::Create:
      return always | O_RDWR | O_CREAT | O_TRUNC;
  }
  // Untested: `mode` is never outside its enumeration.
  return always | O_RDONLY;
}

[[noreturn]] void RaiseOpenError(std::u16string_view name, int code) {
  std::u16string message = u"Cannot open file \"";
  message.append(name).append(u"\": ").append(FromUtf8(std::generic_category().message(code)));
  throw StreamError(StreamOperation::Open, message);
}

// The system opens folders for reading, but they have no bytes.
bool IsFolder(int descriptor) {
  struct stat facts {};
  // Untested: the call fails only if the system is broken.
  return fstat(descriptor, &facts) == 0 && S_ISDIR(facts.st_mode);
}

int Descriptor(FileHandle file) { return static_cast<int>(file); }

[[noreturn]] void RaiseReadError(int code) {
  throw StreamError(StreamOperation::Read,
                    u"Stream read error: " + FromUtf8(std::generic_category().message(code)));
}

std::size_t Moved(ssize_t count) {
  if (count < 0) RaiseReadError(errno);
  return static_cast<std::size_t>(count);
}

}  // namespace

FileHandle OpenStream(std::u16string_view name, FileMode mode) {
  const auto path = posix::HostPath(name);
  if (!path) RaiseOpenError(name, ENOENT);
  const int descriptor = Uninterrupted([&] { return open(path->c_str(), FlagsOf(mode), kNewFileRights); });
  if (descriptor == -1) RaiseOpenError(name, errno);
  if (!IsFolder(descriptor)) return descriptor;
  close(descriptor);
  RaiseOpenError(name, EISDIR);
}

void CloseStream(FileHandle file) noexcept { close(Descriptor(file)); }

bool CanSeek(FileHandle file) noexcept { return lseek(Descriptor(file), 0, SEEK_CUR) != -1; }

std::size_t ReadAt(FileHandle file, std::int64_t position, std::span<std::byte> to) {
  return Moved(Uninterrupted([&] { return pread(Descriptor(file), to.data(), to.size(), position); }));
}

std::size_t ReadNext(FileHandle file, std::span<std::byte> to) {
  return Moved(Uninterrupted([&] { return read(Descriptor(file), to.data(), to.size()); }));
}

// Callers throw if the result is 0.
std::size_t WriteAt(FileHandle file, std::int64_t position, std::span<const std::byte> from) {
  const auto count =
      Uninterrupted([&] { return pwrite(Descriptor(file), from.data(), from.size(), position); });
  return count < 0 ? 0 : static_cast<std::size_t>(count);
}

std::int64_t StreamSize(FileHandle file) {
  struct stat facts {};
  // Untested: the call fails only if the system is broken.
  if (fstat(Descriptor(file), &facts) != 0) RaiseReadError(errno);
  return facts.st_size;
}

}  // namespace ravo::platform
