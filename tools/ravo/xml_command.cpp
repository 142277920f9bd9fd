#include "commands.h"
#include "document_file.h"
#include "document_words.h"
#include "printable.h"
#include "text.h"
#include "xml_work.h"
#include <ravo/RavoInterface.h>

#include <memory>
#include <string>

namespace tool {
namespace {

using ravo::document::Message;
using ravo::document::PathError;

Answer AnswerTo(const PathError& error) {
  const bool is_missing =
      error.What().message == Message::NothingThere || error.What().message == Message::NothingThereAdd;
  return is_missing ? Answer::No : Answer::WrongUsage;
}

// If a document cannot be read, the output is the reason alone.
void Guarded(XmlWork* work, const XmlOptions& options, Outcome& outcome) {
  try {
    work(options, outcome);
    return;
  } catch (const PathError& error) {
    Complain(outcome, ShownName(options.file) + ": " + OnOneLine(WordsOf(error.What())), AnswerTo(error));
  } catch (const FileError& error) {
    Complain(outcome, OnOneLine(error.what()), Answer::WrongUsage);
  } catch (const ravo::Error& error) {
    Complain(outcome, ShownName(options.file) + ": " + OnOneLine(error.what()), Answer::WrongUsage);
  }
  outcome.out.clear();
}

constexpr const char* kXmlFooter = ToTranslate(
    "A document is decoded as XML requires: by its byte-order mark, else from the encoding that it "
    "declares,\n"
    "else from UTF-8. What is not XML is an error with line and column. FILE can be - for standard input.\n"
    "With --suite, show, get and tokens print what the suite's modules see instead.\n"
    "\n"
    "A path names elements from the root on, each with its number among the elements of its name, and\n"
    "possibly an attribute after \"@\": Invoice/Line[2]/@ID. If no element has a name exactly, its case is\n"
    "ignored.\n"
    "\n"
    "set changes the bytes of the values and no others. check lists where the suite would see or save\n"
    "something else. format lays a document out as the suite saves it, and refuses one that the suite would\n"
    "spoil.\n"
    "\n"
    "Exit status: 0 done, 1 nothing at the path or a document that the suite would spoil, 2 wrong usage or "
    "a\n"
    "document that cannot be read or written.\n"
    "\n"
    "Examples:\n"
    "  ravo xml show export.xml\n"
    "  ravo xml get export.xml Faktury/Faktura[2]/@Cislo\n"
    "  ravo xml set export.xml Faktury/Faktura[2]/Popis \"Pronájem\" --dry-run\n"
    "  ravo xml set -i export.xml Faktury/@Stav odeslano Faktury/Faktura[1]/Kod 17\n"
    "  ravo xml check export.xml\n"
    "  ravo xml format export.xml -o tidy.xml\n"
    "  ravo xml tokens export.xml     line, column, kind and text of each piece\n");

// Adds the sub-commands, which share their options.
class XmlCommands {
 public:
  XmlCommands(CLI::App& xml, Outcome& outcome) : xml_(xml), outcome_(outcome) {}

  CLI::App* Add(const char* name, const std::string& what, XmlWork* work) {
    CLI::App* const command = xml_.add_subcommand(name, what);
    const auto options = options_;
    command->callback([work, options, &outcome = outcome_] { Guarded(work, *options, outcome); });
    return command;
  }

  void AddReaders() {
    CLI::App* const show = Reader("show", Text("Shows the elements"), ShowXml);
    show->add_flag("--color", options_->colour, Text("In colours even if the output is not a terminal"));
    CLI::App* const get = Reader("get", Text("Prints the text or attribute at a path"), GetXml);
    get->add_option(Text("PATH"), options_->path, Text("The element or attribute"))->required();
    get->add_flag("--raw", options_->edit.is_raw, Text("As it is written in the document"));
    Reader("tokens", Text("Lists the pieces"), ListXmlTokens);
  }

  void AddSet() {
    CLI::App* const set =
        WithFile("set", Text("Sets texts and attributes, and changes nothing else"), SetXml);
    set->add_option(Text("CHANGES"), options_->changes, Text("Paths, each with its value after it"))
        ->required();
    set->add_flag("-i,--in-place", options_->in_place,
                  Text("Edit the file instead of printing the document"));
    set->add_flag("--dry-run", options_->dry_run, Text("Show the lines that change, as a diff"));
    AddOut(*set);
    set->add_flag("--add", options_->edit.adds,
                  Text("Add a missing attribute, or a missing next element of a name"));
    set->add_flag("--raw", options_->edit.is_raw, Text("The values are XML, with references and tags"));
    set->add_flag("--references", options_->edit.uses_references,
                  Text("Write references for characters that the encoding of the document lacks"));
  }

  void AddFormat() {
    CLI::App* const format = WithFile("format", Text("Prints the document as the suite saves it"), FormatXml);
    AddOut(*format);
    format->add_flag("--suite", options_->suite, Text("Even if the suite spoils the document"));
  }

  void AddCheck() {
    CLI::App* const check =
        Add("check", Text("Lists where the suite would see or save something else"), CheckXml);
    check->add_option(Text("FILE"), options_->files, Text("XML files"))->required();
    AddJson(*check);
  }

 private:
  CLI::App* WithFile(const char* name, const std::string& what, XmlWork* work) {
    CLI::App* const command = Add(name, what, work);
    command->add_option(Text("FILE"), options_->file, Text("An XML file"))->required();
    return command;
  }

  CLI::App* Reader(const char* name, const std::string& what, XmlWork* work) {
    CLI::App* const command = WithFile(name, what, work);
    AddJson(*command);
    command->add_flag("--suite", options_->suite, Text("As the suite's modules see it"));
    return command;
  }

  void AddJson(CLI::App& command) {
    command.add_flag("--json", options_->json, Text("One JSON object a line"));
  }

  void AddOut(CLI::App& command) {
    const auto named = [](const std::string& name) {
      return name.empty() ? Text("the name of the output file is empty") : std::string();
    };
    command.add_option("-o", options_->out, Text("Write to this file"))
        ->type_name(Text("FILE"))
        ->check(CLI::Validator(named, ""));
  }

  CLI::App& xml_;
  Outcome& outcome_;
  std::shared_ptr<XmlOptions> options_ = std::make_shared<XmlOptions>();
};

}  // namespace

void AddXmlCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* xml = program.add_subcommand("xml", Text("Shows, checks and edits XML documents"));
  xml->require_subcommand(1);
  // A path may begin with "/" on every system.
  xml->allow_windows_style_options(false);
  xml->footer(Text(kXmlFooter));
  XmlCommands commands(*xml, outcome);
  commands.AddReaders();
  commands.AddSet();
  commands.AddCheck();
  commands.AddFormat();
}

}  // namespace tool
