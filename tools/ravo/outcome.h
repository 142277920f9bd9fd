#pragma once

#include <string>

/// What a sub-command leaves behind: its texts, in UTF-8 with "\n" at line ends, and the answer that the
/// process gives to its caller.
namespace tool {

enum class Answer { Yes = 0, No = 1, WrongUsage = 2 };

struct Outcome {
  std::string out;
  std::string err;
  Answer answer = Answer::Yes;
};

}  // namespace tool
