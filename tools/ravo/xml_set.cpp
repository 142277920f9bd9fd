#include "console.h"
#include "document_diff.h"
#include "document_file.h"
#include "text.h"
#include "text_file.h"
#include "xml_work.h"

#include <utility>

namespace tool {
namespace {

using namespace ravo::document;

[[noreturn]] void Refuse(const XmlOptions& options, const std::string& why) {
  throw FileError(ShownName(options.file) + ": " + why);
}

std::vector<ValueChange> ChangesOf(const XmlOptions& options) {
  std::vector<ValueChange> changes;
  for (std::size_t i = 0; i < options.changes.size(); i += 2) {
    if (i + 1 == options.changes.size())
      Refuse(options, Text("paths and values come in pairs; '{0}' has no value", {options.changes[i]}));
    changes.push_back({options.changes[i], options.changes[i + 1]});
  }
  return changes;
}

// Reads the result again, so that nothing is written that was not asked for.
void CheckEdited(const XmlOptions& options, const FileDocument& edited,
                 const std::vector<ValueChange>& changes) {
  if (HasValues(edited.Document(), changes, options.edit.is_raw)) return;
  Refuse(options, Text("the edited document would not contain the values that were asked for, so nothing was "
                       "written; please report this"));
}

void CheckTarget(const XmlOptions& options) {
  const bool has_out = !options.out.empty();
  if (options.in_place + options.dry_run + has_out > 1)
    Refuse(options, Text("use only one of --in-place, --dry-run and -o"));
  if (options.in_place && options.file == kInputName)
    Refuse(options, Text("there is no file to edit in place"));
}

// Writes a document to a file or to standard output; on a terminal without control characters.
void Deliver(const std::string& file, const DocumentText& document, Outcome& outcome) {
  if (file.empty() || file == kInputName) {
    if (IsTerminal(Channel::Out)) return AddOutput(outcome, OnLines(document.utf8));
    return AddOutput(outcome, document.bytes);
  }
  const std::string failure = WriteTextFile(file, document.bytes);
  if (!failure.empty()) Complain(outcome, ShownName(file) + ": " + failure, Answer::WrongUsage);
}

// A changed document and how it differs.
struct EditedDocument {
  std::string bytes;
  std::string diff;
  bool is_changed = false;
};

// The document as it was is freed before the result is read.
EditedDocument EditXml(const XmlOptions& options, const std::vector<ValueChange>& changes) {
  const FileDocument open(options.file);
  const auto edits = EditsFor(open.Text(), open.Document(), changes, options.edit);
  EditedDocument edited{EditedBytes(open.Text(), edits), {}, false};
  edited.is_changed = edited.bytes != open.Text().bytes;
  if (options.dry_run) edited.diff = EditsDiff(ShownName(options.file), open.Text().utf8, edits);
  return edited;
}

}  // namespace

void SetXml(const XmlOptions& options, Outcome& outcome) {
  CheckTarget(options);
  const std::vector<ValueChange> changes = ChangesOf(options);
  EditedDocument edited = EditXml(options, changes);
  const FileDocument document(options.file, std::move(edited.bytes));
  CheckEdited(options, document, changes);
  if (options.dry_run)
    outcome.out = OnLines(edited.diff);
  else if (!options.in_place)
    Deliver(options.out, document.Text(), outcome);
  else if (edited.is_changed)
    Deliver(options.file, document.Text(), outcome);
}

}  // namespace tool
