#pragma once

#include "outcome.h"

#include <string_view>

namespace tool {

/// Adds to the output, which is written as it grows.
void AddOutput(Outcome& outcome, std::string_view text);

/// Complains, and writes the errors as they grow: for one of many values.
void ComplainOfOne(Outcome& outcome, std::string_view message, Answer answer);

}  // namespace tool
