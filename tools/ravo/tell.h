#pragma once

#include "outcome.h"

#include <algorithm>
#include <string_view>

namespace tool {

/// Adds the line "ravo COMMAND: MESSAGE" to the errors. The answer only gets worse.
inline void Tell(Outcome& outcome, std::string_view command, std::string_view message, Answer answer) {
  outcome.err.append("ravo ").append(command).append(": ").append(message).append("\n");
  outcome.answer = std::max(outcome.answer, answer);
}

}  // namespace tool
