#include "commands.h"
#include "console.h"
#include "form_file.h"
#include "json_text.h"
#include "program_values.h"
#include "text.h"
#include "text_file.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

namespace tool {
namespace {

struct FormOptions {
  std::string fields;
  std::string form;
  std::string delimiter;
  bool json = false;
};

std::string Written(const std::string& name, std::size_t fields) {
  return TextOf(static_cast<std::int64_t>(fields), "{1}: one field", "{1}: {0} fields", {name}) + "\n";
}

void Run(const FormOptions& options, Outcome& outcome) {
  const auto fail = [&outcome](const std::string& file, const std::string& why) {
    Complain(outcome, file + ": " + why, Answer::WrongUsage);
  };
  try {
    const FormFile form = MakeFormFile(options.fields, DelimiterOf(options.delimiter));
    const std::string failure = WriteTextFile(options.form, form.bytes);
    if (!failure.empty()) return fail(options.form, failure);
    if (options.form == kInputName) return;
    outcome.out = options.json ? JsonText({{"file", options.form}, {"fields", form.fields}})
                               : Written(options.form, form.fields);
  } catch (const std::runtime_error& error) {
    fail(options.fields, error.what());
  }
}

constexpr const char* kFormFooter = ToTranslate(
    "The first row of the table (UTF-8 or Windows-1250) has the column names: field, value and, optionally,\n"
    "kind. Kinds are\n"
    "  text     a text with Czech characters; the default\n"
    "  plain    a text in the 8-bit code page of forms\n"
    "  number   the state of a check box or a choice\n"
    "\n"
    "Exit status: 0 the form is written, 2 wrong usage or a table that does not fit a form.\n"
    "\n"
    "Examples:\n"
    "  ravo form samples/form.csv -o form.fdf\n"
    "  pdftk form.pdf fill_form form.fdf output filled.pdf\n");

}  // namespace

void AddFormCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("form", Text("Writes a forms data file that fills a PDF form"));
  const auto options = std::make_shared<FormOptions>();
  command->add_option(Text("FIELDS.csv"), options->fields, Text("The table of fields and values"))
      ->required();
  command->add_option("-o,--output", options->form, Text("The file to write"))
      ->type_name(Text("FORM.fdf"))
      ->required();
  AddDelimiterOption(*command, options->delimiter);
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kFormFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool
