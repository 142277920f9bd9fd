#include "console.h"
#include "text.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <stdexcept>

#include <unistd.h>

namespace tool {

std::vector<std::string> Arguments(int count, const char* const* values) {
  return count > 0 ? std::vector<std::string>(values + 1, values + count) : std::vector<std::string>();
}

bool WriteWithCodes(Channel channel, std::string_view utf8) {
  const int file = channel == Channel::Out ? STDOUT_FILENO : STDERR_FILENO;
  while (!utf8.empty()) {
    const ssize_t count = write(file, utf8.data(), utf8.size());
    if (count < 0 && errno != EINTR) return false;
    utf8.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  }
  return true;
}

std::size_t ReadInput(std::span<std::byte> to) {
  for (;;) {
    const ssize_t count = read(STDIN_FILENO, to.data(), to.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR) throw std::runtime_error(Text("standard input cannot be read"));
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
