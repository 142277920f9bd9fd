#pragma once

#include <string>
#include <string_view>

/// The result of a sub-command: its texts, in UTF-8 with "\n" at line ends, and the answer for the exit
/// status.
namespace tool {

/// 0 nothing found or yes; 1 findings or no; 2 wrong usage, or some of the work could not be done.
enum class Answer { Yes = 0, No = 1, WrongUsage = 2 };

struct Outcome {
  std::string out;
  std::string err;
  Answer answer = Answer::Yes;
  /// The words of the command that runs ("xml show").
  std::string command;
  /// The output has colour codes of its own, so it reaches a terminal as it is.
  bool coloured = false;
};

/// Adds the line "ravo COMMAND: MESSAGE" to the errors. The answer only gets worse.
void Complain(Outcome& outcome, std::string_view message, Answer answer);

}  // namespace tool
