#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/platform/posix/uninterrupted.h>

#include <chrono>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

constexpr mode_t kNewFileRights = 0666;

int FlagsOf(FilePurpose purpose) {
  constexpr int always = O_CLOEXEC | O_NOCTTY;
  switch (purpose) {
    case FilePurpose::Load:
      return always | O_RDONLY;
    case FilePurpose::Save:
      return always | O_WRONLY | O_CREAT | O_TRUNC;
    // Without O_NONBLOCK, opening a pipe would wait for a reader; a pipe has no date to set anyway.
    case FilePurpose::Date:
      return always | O_WRONLY | O_NONBLOCK;
    case FilePurpose::DateFolder:
      return always | O_RDONLY | O_DIRECTORY;
  }
  // Untested: `purpose` is never outside its enumeration.
  return always | O_RDONLY;
}

int Descriptor(FileHandle file) { return static_cast<int>(file); }

std::optional<std::size_t> Moved(ssize_t count) {
  return count < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(count));
}

}  // namespace

FileHandle PosixFiles::Open(std::u16string_view name, FilePurpose purpose) const {
  const auto path = HostPath(name, root_);
  if (!path) return kNoFile;
  return Uninterrupted([&] { return open(path->c_str(), FlagsOf(purpose), kNewFileRights); });
}

// A network file system may report only now that the disk is full.
bool PosixFiles::Close(FileHandle file) const { return close(Descriptor(file)) == 0; }

std::optional<std::int64_t> PosixFiles::SizeOf(FileHandle file) const {
  struct stat facts {};
  // Untested: the call fails only if the system is broken.
  if (fstat(Descriptor(file), &facts) != 0) return std::nullopt;
  return facts.st_size;
}

std::optional<std::size_t> PosixFiles::Read(FileHandle file, std::span<std::byte> to) const {
  return Moved(Uninterrupted([&] { return read(Descriptor(file), to.data(), to.size()); }));
}

std::optional<std::size_t> PosixFiles::Write(FileHandle file, std::span<const std::byte> from) const {
  return Moved(Uninterrupted([&] { return write(Descriptor(file), from.data(), from.size()); }));
}

bool PosixFiles::SetTimes(FileHandle file, std::uint16_t year, std::uint16_t month, std::uint16_t day) const {
  const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{month},
                                         std::chrono::day{day}};
  const std::chrono::sys_seconds midnight{std::chrono::sys_days(date)};
  const timespec time{midnight.time_since_epoch().count(), 0};
  const timespec times[2] = {time, time};
  return futimens(Descriptor(file), times) == 0;
}

}  // namespace ravo::platform::posix
