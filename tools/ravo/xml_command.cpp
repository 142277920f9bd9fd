#include "commands.h"
#include "console.h"
#include "foreign_text.h"
#include "text_file.h"
#include "xml_file.h"
#include "xml_path.h"
#include "xml_tree_text.h"
#include <ravo/DIUnicode.h>
#include <ravo/ECXMLTokenizer.h>
#include <ravo/RavoInterface.h>

#include <memory>
#include <string>

namespace tool {
namespace {

using ravo::ECXMLParser::TECXMLParser;

struct XmlOptions {
  std::string file;
  std::string path;
  std::string value;
  std::string out;
  bool colour = false;
};

void Show(const XmlOptions& options, Outcome& outcome) {
  TECXMLParser parser;
  const XmlWords words = LoadXmlFile(options.file, parser);
  outcome.coloured = options.colour || ShowsColours(Channel::Out);
  outcome.out = XmlTreeText(*parser.Root(), words, options.colour || ShowsColours(Channel::Out));
}

void AnswerNoSuchPlace(const XmlOptions& options, Outcome& outcome) {
  outcome.err = "ravo: " + options.file + ": there is no item '" + options.path + "'\n";
  outcome.answer = Answer::No;
}

void Get(const XmlOptions& options, Outcome& outcome) {
  TECXMLParser parser;
  const XmlWords words = LoadXmlFile(options.file, parser);
  const XmlPlace place = FindXmlPlace(*parser.Root(), words, options.path, false);
  if (place.item == nullptr) return AnswerNoSuchPlace(options, outcome);
  if (place.attribute.empty()) {
    outcome.out = words.Shown(ravo::ReplaceAll(place.item->Text(), u"\r\n", u"\n")) + "\n";
    return;
  }
  const ravo::StringList params = place.item->Params();
  const auto index = XmlAttribute(params, words, place.attribute);
  if (!index) return AnswerNoSuchPlace(options, outcome);
  outcome.out = OnOneLine(words.Shown(params.ValueAt(*index))) + "\n";
}

void WriteDocument(const std::string& name, TECXMLParser& parser, Outcome& outcome) {
  const std::string failure = WriteTextFile(name, SavedXml(parser));
  if (failure.empty()) return;
  outcome.err = "ravo: " + name + ": " + failure + "\n";
  outcome.answer = Answer::WrongUsage;
}

void SetAttribute(const XmlPlace& place, const XmlWords& words, std::u16string_view value) {
  ravo::StringList& params = place.item->Params();
  const auto index = XmlAttribute(params, words, place.attribute);
  const std::u16string name = index ? std::u16string(params.NameAt(*index)) : place.attribute;
  params.SetValue(name, value);
}

void Set(const XmlOptions& options, Outcome& outcome) {
  TECXMLParser parser;
  const XmlWords words = LoadXmlFile(options.file, parser);
  const std::u16string value = words.Kept(options.value);
  const XmlPlace place = FindXmlPlace(*parser.Root(), words, options.path, true);
  if (place.item == nullptr) return AnswerNoSuchPlace(options, outcome);
  if (place.attribute.empty()) {
    place.item->SetText(value);
  } else {
    SetAttribute(place, words, value);
  }
  WriteDocument(options.out.empty() ? options.file : options.out, parser, outcome);
}

void Format(const XmlOptions& options, Outcome& outcome) {
  TECXMLParser parser;
  const XmlWords words = LoadXmlFile(options.file, parser);
  if (!options.out.empty()) return WriteDocument(options.out, parser, outcome);
  const std::u16string text = ravo::FromCodePage(SavedXml(parser));
  outcome.out = words.Shown(ravo::ReplaceAll(text, u"\r\n", u"\n"));
}

const char* KindName(std::uint8_t kind) {
  using namespace ravo::ECXMLTokenizer;
  switch (kind) {
    case xtComment:
      return "comment";
    case xtHeader:
      return "header";
    case xtOpenTag:
      return "open";
    case xtCloseTag:
      return "close";
    case xtStandAloneTag:
      return "stand-alone";
    default:
      return "text";
  }
}

void Tokens(const XmlOptions& options, Outcome& outcome) {
  ReadXmlTokens(options.file, [&](const ravo::ECXMLTokenizer::TXMLTokenizer& tokenizer) {
    outcome.out += std::to_string(tokenizer.SourceLine()) + "\t" + std::to_string(tokenizer.SourcePos()) +
                   "\t" + KindName(tokenizer.Token()) + "\t" +
                   OnOneLine(ForeignText(tokenizer.TokenString())) + "\n";
  });
}

using Work = void (*)(const XmlOptions&, Outcome&);

// If a file cannot be read, the output is the reason alone.
void Guarded(Work work, const XmlOptions& options, Outcome& outcome) {
  try {
    work(options, outcome);
  } catch (const std::exception& error) {
    outcome.out.clear();
    outcome.err = std::string("ravo: ") + error.what() + "\n";
    outcome.answer = Answer::WrongUsage;
  }
}

CLI::App* AddWork(CLI::App& xml, const char* name, const char* what, Work work,
                  const std::shared_ptr<XmlOptions>& options, Outcome& outcome) {
  CLI::App* command = xml.add_subcommand(name, what);
  command->add_option("FILE", options->file, "An XML file")->required();
  command->callback([work, options, &outcome] { Guarded(work, *options, outcome); });
  return command;
}

constexpr const char* kXmlFooter =
    "The rules are the library's: comments are dropped, close tags close whatever is open, a line break in "
    "a\n"
    "text is written as <br/>. Bytes stay as they are; they are read as UTF-8 where the document says so, "
    "and\n"
    "otherwise as Windows-1250, the code page of the suite's data.\n"
    "\n"
    "A path names elements from the root on, by name and by number among those of their name, and an\n"
    "attribute behind \"@\" at its end: Invoice/Line[2]/@ID. Names are taken in either case.\n"
    "\n"
    "Exit status: 0 done, 1 there is no item at the path, 2 wrong usage or a file that cannot be read or "
    "written.\n"
    "\n"
    "Examples:\n"
    "  ravo xml show export.xml\n"
    "  ravo xml get export.xml Faktury/Faktura[2]/@Cislo\n"
    "  ravo xml set export.xml Faktury/Faktura[2]/Popis \"Pronájem\"\n"
    "  ravo xml format export.xml -o tidy.xml\n"
    "  ravo xml tokens export.xml     line, position, kind and text of each token\n";

}  // namespace

void AddXmlCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* xml = program.add_subcommand("xml", "Shows and edits XML documents");
  xml->require_subcommand(1);
  // A path may begin with "/" on every system.
  xml->allow_windows_style_options(false);
  xml->footer(kXmlFooter);
  const auto options = std::make_shared<XmlOptions>();
  const auto add = [&](const char* name, const char* what, Work work) {
    return AddWork(*xml, name, what, work, options, outcome);
  };
  add("show", "Shows the tree", Show)
      ->add_flag("--color", options->colour, "In colours even where nobody watches");
  add("get", "Prints the text or the attribute at a path", Get)
      ->add_option("PATH", options->path, "Where")
      ->required();
  CLI::App* set = add("set", "Sets the text or the attribute at a path; adds what is missing", Set);
  set->add_option("PATH", options->path, "Where")->required();
  set->add_option("VALUE", options->value, "What stands there from now on; nothing takes an attribute away")
      ->required();
  set->add_option("-o", options->out, "Write to this file instead")->type_name("FILE");
  add("format", "Prints the document as it would be saved", Format)
      ->add_option("-o", options->out, "Write to this file, bytes as the library saves them")
      ->type_name("FILE");
  add("tokens", "Lists the tokens", Tokens);
}

}  // namespace tool
