#include "console.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include <unistd.h>

namespace tool {

std::vector<std::string> Arguments(int count, const char* const* values) {
  return count > 0 ? std::vector<std::string>(values + 1, values + count) : std::vector<std::string>();
}

bool WriteWithCodes(Channel channel, std::string_view utf8) {
  std::FILE* file = channel == Channel::Out ? stdout : stderr;
  return std::fwrite(utf8.data(), 1, utf8.size(), file) == utf8.size() && std::fflush(file) == 0;
}

std::size_t ReadInput(std::span<std::byte> to) {
  for (;;) {
    const ssize_t count = read(STDIN_FILENO, to.data(), to.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR) throw std::runtime_error("standard input cannot be read");
  }
}

std::string SystemLanguage() { return {}; }

bool IsTerminal(Channel channel) {
  return isatty(channel == Channel::Out ? STDOUT_FILENO : STDERR_FILENO) == 1;
}

bool ShowsColours(Channel channel) {
  const char* const kind = std::getenv("TERM");
  return IsTerminal(channel) && kind != nullptr && std::string_view(kind) != "dumb";
}

}  // namespace tool
