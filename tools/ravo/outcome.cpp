#include "outcome.h"

#include <algorithm>

namespace tool {

void Complain(Outcome& outcome, std::string_view message, Answer answer) {
  outcome.err += "ravo";
  if (!outcome.command.empty()) outcome.err += " " + outcome.command;
  outcome.err.append(": ").append(message).append("\n");
  outcome.answer = std::max(outcome.answer, answer);
}

}  // namespace tool
