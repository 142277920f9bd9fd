#include "printable.h"
#include "xml_work.h"

#include <algorithm>

namespace tool {

std::string OnLines(std::string_view utf8) {
  std::string shown;
  while (!utf8.empty()) {
    const std::size_t end = std::min(utf8.find('\n'), utf8.size());
    std::string_view line = utf8.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    shown += Printable(line);
    if (end < utf8.size()) shown += '\n';
    utf8.remove_prefix(std::min(end + 1, utf8.size()));
  }
  return shown;
}

}  // namespace tool
