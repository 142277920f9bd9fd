#include "output_options.h"

#include "output_file.h"
#include "text.h"

#include <string>

namespace tool {
namespace {

// The options that name a file to write.
constexpr const char* kOutputOptions[] = {"-o", "--in-place", "--rejects", "--clean"};

std::string RefuseEmpty(const std::string& name) {
  return name.empty() ? tool::Text("the name of the output file is empty") : std::string();
}

}  // namespace

void AddOutputRules(CLI::App& command) {
  bool writes = false;
  for (const char* const name : kOutputOptions) {
    CLI::Option* const option = command.get_option_no_throw(name);
    if (option == nullptr) continue;
    writes = true;
    if (option->get_expected_max() > 0) option->check(RefuseEmpty, "");
  }
  if (writes && command.get_option_no_throw("--force") == nullptr) {
    command.add_flag_callback(
        "--force", [] { ReplaceReadOnlyFiles(true); }, tool::Text("Replace a file that is read-only"));
  }
  for (CLI::App* const part : command.get_subcommands({})) AddOutputRules(*part);
}

}  // namespace tool
