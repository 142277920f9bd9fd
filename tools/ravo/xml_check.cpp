#include "console.h"
#include "document_file.h"
#include "document_words.h"
#include "foreign_text.h"
#include "json_text.h"
#include "printable.h"
#include "text.h"
#include "text_file.h"
#include "xml_work.h"
#include <ravo/document/check.h>
#include <ravo/document/suite.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace tool {
namespace {

using namespace ravo::document;

// Reports each finding with its place; returns their number.
using PlacedReport = std::function<void(TextPlace place, const DocumentFinding& finding)>;
std::size_t ReportFindings(const std::string& name, const FileDocument& open, const PlacedReport& report) {
  PlaceFinder places(open.Text().utf8);
  try {
    return CheckDocument(open.Text(), open.Document(),
                         [&](const DocumentFinding& finding) { report(places.Find(finding.at), finding); });
  } catch (const DocumentError& error) {
    throw FileError(ShownName(name) + ":" + WordsOf(PlacedIn(open.Text(), error)));
  }
}

std::string FindingText(const XmlOptions& options, const std::string& file, TextPlace place,
                        const DocumentFinding& finding) {
  const std::string code(CodeOf(finding.what.message));
  if (!options.json) {
    return ShownName(file) + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ": " +
           code + ": " + OnOneLine(WordsOf(finding.what)) + "\n";
  }
  return JsonLine({{"file", file},
                   {"line", place.line},
                   {"column", place.column},
                   {"code", code},
                   {"message", WordsOf(finding.what)}});
}

void CheckFile(const XmlOptions& options, const std::string& file, Outcome& outcome) {
  const FileDocument open(file);
  const auto report = [&](TextPlace place, const DocumentFinding& finding) {
    AddOutput(outcome, FindingText(options, file, place, finding));
  };
  if (ReportFindings(file, open, report) > 0)
    outcome.answer = std::max(outcome.answer, Answer::No);
  else if (!options.json)
    AddOutput(outcome, ShownName(file) + ": " +
                           Text("the document survives the suite, apart from the white space between tags, "
                                "which the suite lays out anew") +
                           "\n");
}

// Streams what the suite saves to a file or to standard output; on a terminal without control characters.
class SavedDocument final : public ravo::ByteStream {
 public:
  explicit SavedDocument(const std::string& name) {
    if (!name.empty() && name != kInputName) file_ = std::make_unique<WholeFile>(name);
  }
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override {
    const std::string_view bytes(reinterpret_cast<const char*>(from.data()), from.size());
    if (file_ != nullptr)
      static_cast<void>(file_->Write(bytes));  // Finish reports a failure
    else if (IsTerminal(Channel::Out))
      shown_ += bytes;
    else if (!tool::Write(Channel::Out, bytes))
      return 0;
    return from.size();
  }
  [[nodiscard]] std::size_t Read(std::span<std::byte>) override { return 0; }
  [[nodiscard]] std::int64_t Position() const override { return 0; }
  void SetPosition(std::int64_t) override {}
  [[nodiscard]] std::int64_t Size() const override { return 0; }

  // Returns an empty text, or the reason of a failure.
  [[nodiscard]] std::string Finish(Outcome& outcome) {
    outcome.out = OnLines(ForeignText(shown_));
    return file_ != nullptr ? file_->Finish() : std::string();
  }

 private:
  std::unique_ptr<WholeFile> file_;
  std::string shown_;
};

// Whether the suite keeps a document; reports why not.
bool Survives(const XmlOptions& options, const std::string& bytes, Outcome& outcome) {
  const FileDocument open(options.file, bytes);
  std::string first;
  const auto keep_first = [&first](TextPlace place, const DocumentFinding& finding) {
    if (!first.empty()) return;
    first =
        ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ": " + WordsOf(finding.what);
  };
  const std::size_t count = ReportFindings(options.file, open, keep_first);
  if (count == 0) return true;
  Complain(outcome, ShownName(options.file) + first, Answer::No);
  const std::string refusal =
      TextOf(static_cast<std::int64_t>(count),
             "the suite would spoil the document in one place; --suite formats it all the same",
             "the suite would spoil the document in {0} places, which `ravo xml check` lists; --suite "
             "formats it all the same");
  Complain(outcome, ShownName(options.file) + ": " + refusal, Answer::No);
  return false;
}

}  // namespace

// A file that cannot be read does not keep the others from being checked.
void CheckXml(const XmlOptions& options, Outcome& outcome) {
  for (const std::string& file : options.files) {
    try {
      CheckFile(options, file, outcome);
    } catch (const FileError& error) {
      Complain(outcome, error.what(), Answer::WrongUsage);
    }
  }
}

void FormatXml(const XmlOptions& options, Outcome& outcome) {
  const std::string bytes = ReadDocumentBytes(options.file);
  if (!options.suite && !Survives(options, bytes, outcome)) return;
  ravo::ECXMLParser::TECXMLParser parser;
  try {
    LoadAsSuite(bytes, parser);
  } catch (const ravo::Error& error) {
    throw FileError(ShownName(options.file) + ": " + error.what());
  }
  SavedDocument saved(options.out);
  parser.SaveToStream(saved, false);
  const std::string failure = saved.Finish(outcome);
  if (!failure.empty()) Complain(outcome, ShownName(options.out) + ": " + failure, Answer::WrongUsage);
}

}  // namespace tool
