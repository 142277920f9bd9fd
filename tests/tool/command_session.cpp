// Runs command lines of the program one after another: under an emulator or a sanitizer, the start of a
// process takes most of the time of a short command. Each line of standard input is a request in JSON; the
// line that answers it on standard output is the exit status.
#include "console.h"
#include "language.h"
#include "program.h"
#include "redirection.h"

#include <iostream>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

namespace {

int Status(const nlohmann::json& request) {
  const std::string language = request["language"];
  tool::SetLanguage(tool::UsersLanguage(
      [&language](std::string_view name) { return name == "RAVO_LANG" ? language.c_str() : nullptr; },
      tool::SystemLanguage()));
  const tool::Redirection channels(request["in"], request["out"], request["err"]);
  return tool::RunAndWrite(request["arguments"]);
}

}  // namespace

int main() {
  for (std::string line; std::getline(std::cin, line);) {
    const int status = Status(nlohmann::json::parse(line));
    std::cout << status << std::endl;
  }
}
