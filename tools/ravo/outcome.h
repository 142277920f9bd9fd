#pragma once

#include <string>

/// The result of a sub-command: its texts, in UTF-8 with "\n" at line ends, and the answer for the exit
/// status.
namespace tool {

enum class Answer { Yes = 0, No = 1, WrongUsage = 2 };

struct Outcome {
  std::string out;
  std::string err;
  Answer answer = Answer::Yes;
};

}  // namespace tool
