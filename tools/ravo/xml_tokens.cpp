#include "document_file.h"
#include "json_text.h"
#include "printable.h"
#include "xml_work.h"
#include <ravo/DIUnicode.h>
#include <ravo/ECXMLTokenizer.h>
#include <ravo/RavoInterface.h>
#include <ravo/document/suite.h>

namespace tool {
namespace {

using namespace ravo::document;

const char* SuiteKind(std::uint8_t kind) {
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

const char* KindOf(PartKind kind) {
  constexpr const char* kNames[] = {"declaration", "doctype", "comment",     "instruction", "text",
                                    "cdata",       "open",    "stand-alone", "close"};
  return kNames[static_cast<std::size_t>(kind)];
}

// `column` is the name of the second field.
std::string TokenLine(const XmlOptions& options, std::int64_t line, const char* column, std::int64_t at,
                      const char* kind, const std::string& text) {
  if (options.json) return JsonLine({{"line", line}, {column, at}, {"kind", kind}, {"text", text}});
  return std::to_string(line) + "\t" + std::to_string(at) + "\t" + kind + "\t" + OnOneLine(text) + "\n";
}

void ListSuiteTokens(const XmlOptions& options, Outcome& outcome) {
  const auto take = [&](const ravo::ECXMLTokenizer::TXMLTokenizer& tokenizer) {
    const std::string text = ravo::ToUtf8(ravo::FromCodePage(tokenizer.TokenString()));
    const char* const kind = SuiteKind(tokenizer.Token());
    outcome.out += TokenLine(options, tokenizer.SourceLine(), "position", tokenizer.SourcePos(), kind, text);
  };
  const std::string bytes = ReadDocumentBytes(options.file);
  try {
    ReadSuiteTokens(bytes, take);
  } catch (const ravo::Error& error) {
    throw FileError(ShownName(options.file) + ": " + error.what());
  }
}

}  // namespace

void ListXmlTokens(const XmlOptions& options, Outcome& outcome) {
  if (options.suite) return ListSuiteTokens(options, outcome);
  const FileDocument open(options.file);
  PlaceFinder places(open.Text().utf8);
  for (const DocumentPart& part : open.Document().parts) {
    const auto [line, column] = places.Find(part.whole.begin);
    const std::string text(part.whole.Of(open.Text().utf8));
    AddOutput(outcome, TokenLine(options, static_cast<std::int64_t>(line), "column",
                                 static_cast<std::int64_t>(column), KindOf(part.kind), text));
  }
}

}  // namespace tool
