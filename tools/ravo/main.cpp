#include "console.h"
#include "language.h"
#include "program.h"
#include "text.h"

#include <cstdlib>
#include <exception>

namespace tool {
namespace {

bool Show(const Outcome& outcome) {
  return outcome.coloured ? WriteWithCodes(Channel::Out, outcome.out) : Write(Channel::Out, outcome.out);
}

int Finish(Outcome outcome) {
  if (!Show(outcome)) Complain(outcome, Text("the output cannot be written"), Answer::WrongUsage);
  if (!Write(Channel::Err, outcome.err)) outcome.answer = Answer::WrongUsage;
  return static_cast<int>(outcome.answer);
}

}  // namespace
}  // namespace tool

int main(int argc, char** argv) {
  try {
    tool::SetLanguage(
        tool::UsersLanguage([](const char* name) { return std::getenv(name); }, tool::SystemLanguage()));
    return tool::Finish(tool::Run(tool::Arguments(argc, argv)));
  } catch (const std::exception& error) {
    static_cast<void>(tool::Write(tool::Channel::Err, std::string("ravo: ") + error.what() + "\n"));
    return static_cast<int>(tool::Answer::WrongUsage);
  }
}
