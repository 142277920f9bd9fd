#include "console.h"
#include "language.h"
#include "program.h"

#include <cstdlib>
#include <exception>

int main(int argc, char** argv) {
  try {
    tool::SetLanguage(
        tool::UsersLanguage([](const char* name) { return std::getenv(name); }, tool::SystemLanguage()));
    return tool::RunAndWrite(tool::Arguments(argc, argv));
  } catch (const std::exception& error) {
    static_cast<void>(tool::Write(tool::Channel::Err, std::string("ravo: ") + error.what() + "\n"));
    return static_cast<int>(tool::Answer::WrongUsage);
  }
}
