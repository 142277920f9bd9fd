#include "commands.h"
#include "console.h"
#include "form_file.h"
#include "text_file.h"

#include <memory>
#include <stdexcept>
#include <string>

namespace tool {
namespace {

struct FormOptions {
  std::string fields;
  std::string form;
  std::string delimiter;
};

void Run(const FormOptions& options, Outcome& outcome) {
  const auto fail = [&outcome](const std::string& file, const std::string& why) {
    outcome.err = "ravo: " + file + ": " + why + "\n";
    outcome.answer = Answer::WrongUsage;
  };
  try {
    const FormFile form =
        MakeFormFile(options.fields, options.delimiter.empty() ? '\0' : options.delimiter[0]);
    const std::string failure = WriteTextFile(options.form, form.bytes);
    if (!failure.empty()) return fail(options.form, failure);
    if (options.form != kInputName)
      outcome.out = options.form + ": " + std::to_string(form.fields) + " fields\n";
  } catch (const std::runtime_error& error) {
    fail(options.fields, error.what());
  }
}

constexpr const char* kFormFooter =
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
    "  pdftk form.pdf fill_form form.fdf output filled.pdf\n";

}  // namespace

void AddFormCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("form", "Writes a forms data file that fills a PDF form");
  const auto options = std::make_shared<FormOptions>();
  command->add_option("FIELDS.csv", options->fields, "The table of fields and values")->required();
  command->add_option("-o,--output", options->form, "The file to write")->type_name("FORM.fdf")->required();
  command->add_option("--delimiter", options->delimiter, "The delimiter between columns; detected by default")
      ->type_name("CHAR")
      ->check(CLI::IsMember({";", ",", "\t", "|"}));
  command->footer(kFormFooter);
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool
