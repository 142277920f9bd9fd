#include <ravo/platform/posix/host_file.h>

#include <array>
#include <cstdlib>
#include <fstream>

namespace ravo::platform::posix {
namespace {

constexpr std::size_t kMostBytes = 1 << 20;

}  // namespace

std::optional<std::string> ReadHostFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text;
  std::array<char, 4096> chunk{};
  // These files have no size to go by.
  // Untested: the file would have to fail while it is read.
  while (file && text.size() < kMostBytes) {
    file.read(chunk.data(), chunk.size());
    text.append(chunk.data(), static_cast<std::size_t>(file.gcount()));
  }
  // At the end of file failbit is set, but not badbit; a file that was never opened is not at its end.
  if (file.bad() || (file.fail() && !file.eof())) return std::nullopt;
  return text;
}

std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  const std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return line;
}

std::string_view TrimmedBytes(std::string_view bytes) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t first = bytes.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return bytes.substr(first, bytes.find_last_not_of(blanks) - first + 1);
}

std::string EnvironmentText(const char* name) {
  const char* text = std::getenv(name);
  return text ? text : "";
}

}  // namespace ravo::platform::posix
