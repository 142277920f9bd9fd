#include "words_after_mark.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace tool {
namespace {

// No argument contains it.
constexpr std::string_view kWordMark = "\x01--\x01";

}  // namespace

std::vector<std::string> MarkedAfterDashes(std::vector<std::string> arguments) {
  const auto dashes = std::find(arguments.begin(), arguments.end(), "--");
  if (dashes == arguments.end()) return arguments;
  for (auto word = arguments.erase(dashes); word != arguments.end(); ++word) word->insert(0, kWordMark);
  return arguments;
}

std::string Unmarked(std::string text) {
  for (std::size_t at = text.find(kWordMark); at != std::string::npos; at = text.find(kWordMark, at))
    text.erase(at, kWordMark.size());
  return text;
}

void UnmarkValues(CLI::App& command) {
  for (CLI::Option* const option : command.get_options([](const CLI::Option*) { return true; })) {
    if (option->get_expected_max() > 0) option->transform(Unmarked, "");
  }
  for (CLI::App* const part : command.get_subcommands({})) UnmarkValues(*part);
}

}  // namespace tool
