#include "console.h"

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace tool {

std::vector<std::string> Arguments(int count, const char* const* values) {
  return count > 0 ? std::vector<std::string>(values + 1, values + count) : std::vector<std::string>();
}

bool Write(Channel channel, std::string_view utf8) {
  std::FILE* file = channel == Channel::Out ? stdout : stderr;
  return std::fwrite(utf8.data(), 1, utf8.size(), file) == utf8.size() && std::fflush(file) == 0;
}

bool IsTerminal(Channel channel) {
  return isatty(channel == Channel::Out ? STDOUT_FILENO : STDERR_FILENO) == 1;
}

bool ShowsColours(Channel channel) {
  const char* const kind = std::getenv("TERM");
  return IsTerminal(channel) && kind != nullptr && std::string_view(kind) != "dumb";
}

}  // namespace tool
