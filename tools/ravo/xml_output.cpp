#include "console.h"
#include "printable.h"
#include "xml_work.h"

#include <algorithm>

namespace tool {

// Output that cannot be written is kept: the program reports the failure when it writes the rest.
void AddOutput(Outcome& outcome, std::string_view text) {
  constexpr std::size_t kAtOnce = std::size_t{1} << 16;
  const bool is_enough = outcome.out.size() + text.size() >= kAtOnce;
  const auto write = [&outcome](std::string_view bytes) {
    return outcome.coloured ? WriteWithCodes(Channel::Out, bytes) : Write(Channel::Out, bytes);
  };
  if (is_enough && write(outcome.out)) outcome.out.clear();
  if (!is_enough || !outcome.out.empty() || !write(text)) outcome.out += text;
}

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
