#include "isdoc_commands.h"
#include "text.h"

namespace tool {

void AddIsdocReaders(CLI::App& isdoc, Outcome& outcome) {
  for (const char* const name : {"check", "show", "csv"}) {
    CLI::App* const command =
        isdoc.add_subcommand(name, Text("Not in this program, which was built without expat"));
    command->allow_extras();
    command->callback([&outcome] {
      Complain(outcome, Text("this program was built without expat, which reads invoices"),
               Answer::WrongUsage);
    });
  }
}

}  // namespace tool
