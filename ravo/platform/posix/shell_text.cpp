#include <ravo/platform/posix/host_file.h>
#include <ravo/platform/posix/shell_text.h>

namespace ravo::platform::posix {
namespace {

// Returns the text of one word, quoted as a whole or bare. A backslash escapes the next character, except in
// single quotes.
std::string Unquoted(std::string_view word) {
  const bool is_quoted = word.starts_with('"') || word.starts_with('\'');
  const char quote = is_quoted ? word.front() : '\0';
  if (is_quoted) word.remove_prefix(1);
  std::string text;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (is_quoted && word[i] == quote) break;
    if (word[i] == '\\' && quote != '\'' && i + 1 < word.size()) ++i;
    text.push_back(word[i]);
  }
  return text;
}

}  // namespace

std::optional<std::string> ShellAssignment(std::string_view text, std::string_view name) {
  std::optional<std::string> value;
  while (!text.empty()) {
    const std::string_view line = TrimmedBytes(TakeLine(text));
    const bool is_it = line.size() > name.size() && line.starts_with(name) && line[name.size()] == '=';
    if (is_it) value = Unquoted(line.substr(name.size() + 1));
  }
  return value;
}

}  // namespace ravo::platform::posix
