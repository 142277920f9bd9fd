#include "isdoc_extract_work.h"

#include "columns.h"
#include "console.h"
#include "document_file.h"
#include "isdoc_extract.h"
#include "json_text.h"
#include "output_file.h"
#include "printable.h"
#include "system_reason.h"
#include "text.h"
#include "text_file.h"
#include "whole_input.h"
#include "xml_tree_text.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <vector>

namespace tool {
namespace {

namespace fs = std::filesystem;

struct Extract {
  std::vector<ContainerPart> parts;
  std::vector<std::string> names;  // as they are written
};

std::string PathIn(const std::string& folder, const std::string& name) {
  return folder.ends_with('/') ? folder + name : folder + "/" + name;
}

// A manifest tells a reader which part is the invoice; extracted, it would tell nothing.
bool IsManifest(const ContainerPart& part) { return part.name == "manifest.xml"; }

// Returns whether no file is in the way; a link that leads nowhere is.
bool AllAreNew(const ExtractOptions& options, const Extract& extract, Outcome& outcome) {
  bool all = true;
  for (const std::string& name : extract.names) {
    const std::string path = PathIn(options.folder, name);
    std::error_code error;
    if (fs::symlink_status(PathOf(path), error).type() == fs::file_type::not_found) continue;
    Complain(outcome, Text("{0}: exists; --force replaces it", {path}), Answer::WrongUsage);
    all = false;
  }
  return all;
}

bool MakeFolder(const std::string& folder, Outcome& outcome) {
  std::error_code error;
  fs::create_directories(PathOf(folder), error);
  if (!error) return true;
  Complain(outcome, Text("{0}: the folder cannot be made: {1}", {folder, SystemReason(error)}),
           Answer::WrongUsage);
  return false;
}

// All drafts are written before the first takes its name.
bool WriteAll(const ExtractOptions& options, const Extract& extract, Outcome& outcome) {
  std::vector<std::unique_ptr<WholeFile>> files;
  for (std::size_t i = 0; i < extract.parts.size(); ++i) {
    files.push_back(std::make_unique<WholeFile>(PathIn(options.folder, extract.names[i])));
    if (files.back()->Write(extract.parts[i].bytes)) continue;
    Complain(outcome, PathIn(options.folder, extract.names[i]) + ": " + files.back()->Finish(),
             Answer::WrongUsage);
    return false;
  }
  for (std::size_t i = 0; i < files.size(); ++i) {
    const std::string failure = files[i]->Finish();
    if (failure.empty()) continue;
    Complain(outcome, PathIn(options.folder, extract.names[i]) + ": " + failure, Answer::WrongUsage);
    return false;
  }
  return true;
}

void ListParts(const ExtractOptions& options, const Extract& extract, Outcome& outcome) {
  Columns rows;
  Json json = Json::array();
  for (std::size_t i = 0; i < extract.parts.size(); ++i) {
    const ContainerPart& part = extract.parts[i];
    const bool is_invoice = IsInvoice(part);
    const std::string written = options.list ? extract.names[i] : PathIn(options.folder, extract.names[i]);
    rows.Add({is_invoice ? Text("invoice") : Text("attachment"), std::to_string(part.bytes.size()), written});
    json.push_back({{"role", is_invoice ? "invoice" : "attachment"},
                    {"name", part.name},
                    {"size", part.bytes.size()},
                    {"file", written}});
  }
  outcome.out = options.json ? JsonText(json) : rows.Text();
}

Extract ReadContainer(const ExtractOptions& options, const std::string& bytes) {
  Extract extract;
  extract.parts = PartsOf(bytes, options.max_size << 20);
  std::erase_if(extract.parts, IsManifest);
  std::stable_partition(extract.parts.begin(), extract.parts.end(), IsInvoice);
  extract.names = SafeNames(extract.parts);
  return extract;
}

void WriteParts(const ExtractOptions& options, const Extract& extract, Outcome& outcome) {
  if (!options.list && !extract.parts.empty()) {
    if (!options.force && !AllAreNew(options, extract, outcome)) return;
    ReplaceReadOnlyFiles(options.force);
    if (!MakeFolder(options.folder, outcome) || !WriteAll(options, extract, outcome)) return;
  }
  ListParts(options, extract, outcome);
  if (std::ranges::none_of(extract.parts, IsInvoice))
    Complain(outcome, Text("{0}: there is no ISDOC invoice in it", {ShownName(options.file)}), Answer::No);
}

}  // namespace

void ExtractInvoice(const ExtractOptions& options, Outcome& outcome) {
  std::string reason;
  const auto bytes = ReadWhole(options.file, &reason);
  if (!bytes) return Complain(outcome, ShownName(options.file) + ": " + reason, Answer::WrongUsage);
  try {
    WriteParts(options, ReadContainer(options, *bytes), outcome);
  } catch (const ContainerError& error) {
    Complain(outcome, ShownName(options.file) + ": " + error.what(), Answer::WrongUsage);
  }
}

}  // namespace tool
