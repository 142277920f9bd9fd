#include "console.h"
#include "program.h"

#include <exception>

namespace tool {
namespace {

int Finish(const Outcome& outcome) {
  const bool written = Write(Channel::Out, outcome.out);
  if (!written && !Write(Channel::Err, "ravo: the output cannot be written\n")) return 2;
  const bool told = Write(Channel::Err, outcome.err);
  return written && told ? static_cast<int>(outcome.answer) : static_cast<int>(Answer::WrongUsage);
}

}  // namespace
}  // namespace tool

int main(int argc, char** argv) {
  try {
    return tool::Finish(tool::Run(tool::Arguments(argc, argv)));
  } catch (const std::exception& error) {
    static_cast<void>(tool::Write(tool::Channel::Err, std::string("ravo: ") + error.what() + "\n"));
    return static_cast<int>(tool::Answer::WrongUsage);
  }
}
