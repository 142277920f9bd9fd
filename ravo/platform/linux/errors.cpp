#include <ravo/platform/linux/linux_machine.h>
#include <ravo/runtime/text.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <limits>

namespace ravo::platform::gnu_linux {

std::u16string LinuxDiagnostics::ErrorText(std::uint32_t code) const {
  constexpr std::uint32_t most = std::numeric_limits<int>::max();
  const int number = code <= most ? static_cast<int>(code) : 0;
  // The system has messages even for unknown codes, but no name.
  if (number == 0 || !strerrorname_np(number)) return {};
  std::array<char, 256> buffer{};
  return FromUtf8(strerror_r(number, buffer.data(), buffer.size()));
}

std::uint32_t LinuxDiagnostics::LastErrorCode() const noexcept { return static_cast<std::uint32_t>(errno); }

}  // namespace ravo::platform::gnu_linux
