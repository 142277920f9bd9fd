#include "file_reason.h"

#include "console.h"
#include "system_reason.h"
#include "text.h"
#include "text_file.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace tool {
namespace {

namespace fs = std::filesystem;

// The stream keeps no reason; the system's last error is still that of the attempt.
std::error_code OpeningError(const fs::path& path) {
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (file && file.peek() != std::ifstream::traits_type::eof()) return {};
  return {errno, std::generic_category()};
}

}  // namespace

std::string WhyUnreadable(const std::string& name) {
  if (name == kInputName) return Text("standard input fails");
  const fs::path path = PathOf(name);
  std::error_code error;
  if (fs::is_directory(path, error)) return Text("it is a folder");
  const std::error_code why = OpeningError(path);
  return why ? SystemReason(why) : Text("the system gives no reason");
}

std::string UnreadableMessage(const std::string& name) {
  return Text("{0}: cannot be read: {1}", {name, WhyUnreadable(name)});
}

}  // namespace tool
