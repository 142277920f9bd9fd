#include <ravo/platform/file_stream.h>
#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/uninterrupted.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/text.h>

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravo {
namespace {

static_assert(sizeof(off_t) == 8, "files are larger than 2 GiB");

using platform::posix::Uninterrupted;

constexpr mode_t kNewFileRights = 0666;

// A pipe without a writer must not hold up whoever asks for its version: opening waits for nobody.
int FlagsOf(FileMode mode) {
  constexpr int always = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
  switch (mode) {
    case FileMode::Read:
      return always | O_RDONLY;
    case FileMode::ReadWrite:
      return always | O_RDWR;
    case FileMode::Create:
      return always | O_RDWR | O_CREAT | O_TRUNC;
  }
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
  return fstat(descriptor, &facts) == 0 && S_ISDIR(facts.st_mode);
}

int OpenFile(std::u16string_view name, FileMode mode) {
  const auto path = platform::posix::HostPath(name);
  if (!path) RaiseOpenError(name, ENOENT);
  const int descriptor = Uninterrupted([&] { return open(path->c_str(), FlagsOf(mode), kNewFileRights); });
  if (descriptor == -1) RaiseOpenError(name, errno);
  if (!IsFolder(descriptor)) return descriptor;
  close(descriptor);
  RaiseOpenError(name, EISDIR);
}

int Descriptor(std::intptr_t handle) { return static_cast<int>(handle); }

}  // namespace

FileStream::FileStream(std::u16string_view name, FileMode mode) : handle_(OpenFile(name, mode)) {}

FileStream::~FileStream() { close(Descriptor(handle_)); }

std::size_t FileStream::Read(std::span<std::byte> to) {
  const auto count =
      Uninterrupted([&] { return pread(Descriptor(handle_), to.data(), to.size(), position_); });
  if (count <= 0) return 0;
  position_ += count;
  return static_cast<std::size_t>(count);
}

std::size_t FileStream::Write(std::span<const std::byte> from) {
  const auto count =
      Uninterrupted([&] { return pwrite(Descriptor(handle_), from.data(), from.size(), position_); });
  if (count <= 0) return 0;
  position_ += count;
  return static_cast<std::size_t>(count);
}

void FileStream::SetPosition(std::int64_t position) {
  if (position < 0) throw RangeError(u"Range check error");
  position_ = position;
}

std::int64_t FileStream::Size() const {
  struct stat facts {};
  return fstat(Descriptor(handle_), &facts) == 0 ? facts.st_size : 0;
}

}  // namespace ravo
