#pragma once

#include "console.h"
#include "text.h"
#include "whole_input.h"

#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace tool {

/// Returns the words of a command line, with the lines of standard input, one value each, in place of "-".
/// Throws `std::runtime_error`, whose message is for people, if it cannot be read.
[[nodiscard]] inline std::vector<std::string> WithInputLines(const std::vector<std::string>& words) {
  std::vector<std::string> values;
  for (const std::string& word : words) {
    if (word != kInputName) {
      values.push_back(word);
      continue;
    }
    const std::optional<std::string> input = ReadWhole(word);
    if (!input) throw std::runtime_error(Text("standard input cannot be read"));
    std::istringstream lines(*input);
    for (std::string line; std::getline(lines, line); values.push_back(line))
      if (line.ends_with('\r')) line.pop_back();
  }
  return values;
}

}  // namespace tool
