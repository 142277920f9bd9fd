#include <ravo/platform/linux/linux_machine.h>
#include <ravo/platform/linux/memory.h>
#include <ravo/platform/posix/host_file.h>

#include <algorithm>
#include <charconv>
#include <limits>

#include <sys/resource.h>

namespace ravo::platform::gnu_linux {
namespace {

using posix::ReadHostFile;
using posix::TakeLine;
using posix::TrimmedBytes;

// The share of user space in a 48-bit address space, and in a 32-bit one.
constexpr std::uint64_t kUserSpace = sizeof(void*) == 8 ? std::uint64_t{1} << 47 : std::uint64_t{3} << 30;

// Returns the field "Name: 123 kB" in bytes; 0 if it is missing, the largest number if it is too large.
std::uint64_t BytesOf(std::string_view text, std::string_view name) {
  constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (!line.starts_with(name) || !line.substr(name.size()).starts_with(':')) continue;
    const std::string_view figure = TrimmedBytes(line.substr(name.size() + 1));
    std::uint64_t kilobytes = 0;
    const auto result = std::from_chars(figure.data(), figure.data() + figure.size(), kilobytes);
    // Untested: needs a machine with over 16 exbibytes.
    return result.ec == std::errc::result_out_of_range || kilobytes > most / 1024 ? most : kilobytes * 1024;
  }
  return 0;
}

std::uint32_t Clamped(std::uint64_t bytes) {
  return static_cast<std::uint32_t>(
      std::min<std::uint64_t>(bytes, std::numeric_limits<std::uint32_t>::max()));
}

std::uint64_t Rest(std::uint64_t total, std::uint64_t used) { return total - std::min(total, used); }

std::uint64_t AddressSpace() {
  rlimit limit{};
  // Untested: the tests run without a limit of the address space.
  const bool is_limited = getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
  // Untested: the tests run without a limit of the address space.
  return is_limited ? std::min<std::uint64_t>(limit.rlim_cur, kUserSpace) : kUserSpace;
}

}  // namespace

MemoryFigures MemoryFrom(std::string_view meminfo, std::string_view status, std::uint64_t address_space) {
  const std::uint64_t commit_limit = BytesOf(meminfo, "CommitLimit");
  MemoryFigures figures;
  figures.total_physical = Clamped(BytesOf(meminfo, "MemTotal"));
  figures.available_physical = Clamped(BytesOf(meminfo, "MemAvailable"));
  figures.total_virtual = Clamped(address_space);
  figures.available_virtual = Clamped(Rest(address_space, BytesOf(status, "VmSize")));
  figures.total_page_file = Clamped(commit_limit);
  figures.available_page_file = Clamped(Rest(commit_limit, BytesOf(meminfo, "Committed_AS")));
  return figures;
}

MemoryFigures LinuxSystem::Memory() const {
  return MemoryFrom(ReadHostFile(root_ + "/proc/meminfo").value_or(""),
                    ReadHostFile(root_ + "/proc/self/status").value_or(""), AddressSpace());
}

}  // namespace ravo::platform::gnu_linux
