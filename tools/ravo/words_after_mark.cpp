#include "words_after_mark.h"

#include <algorithm>
#include <utility>

namespace tool {
namespace {

// No argument begins with it.
constexpr char kWordMark = '\x01';

}  // namespace

std::vector<std::string> MarkedAfterDashes(std::vector<std::string> arguments) {
  const auto dashes = std::find(arguments.begin(), arguments.end(), "--");
  if (dashes == arguments.end()) return arguments;
  for (auto word = arguments.erase(dashes); word != arguments.end(); ++word) word->insert(0, 1, kWordMark);
  return arguments;
}

std::string Unmarked(std::string text) {
  std::erase(text, kWordMark);
  return text;
}

void UnmarkValues(CLI::App& command) {
  for (CLI::Option* const option : command.get_options([](const CLI::Option*) { return true; })) {
    if (option->get_expected_max() > 0) option->transform(Unmarked, "");
  }
  for (CLI::App* const part : command.get_subcommands({})) UnmarkValues(*part);
}

}  // namespace tool
