#include "isdoc_file.h"

#include "console.h"
#include "document_file.h"
#include "document_words.h"
#include "printable.h"
#include "text.h"
#include "text_file.h"
#include "xml_tree_text.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace tool {
namespace {

using namespace ravo::document;
namespace isdoc = ravo::isdoc;
namespace fs = std::filesystem;

std::string Utf8Of(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

bool HasEnding(const std::string& name, std::string_view ending) {
  const auto is_same = [](char left, char right) {
    return (left >= 'A' && left <= 'Z' ? left - 'A' + 'a' : left) == right;
  };
  return name.size() > ending.size() &&
         std::equal(ending.begin(), ending.end(), name.end() - static_cast<std::ptrdiff_t>(ending.size()),
                    [&](char expected, char own) { return is_same(own, expected); });
}

bool MayBeInvoice(const std::string& name) { return HasEnding(name, ".isdoc") || HasEnding(name, ".xml"); }

void AddFolder(const std::string& folder, InvoiceFiles& found) {
  std::error_code error;
  std::vector<std::string> names;
  const auto options = fs::directory_options::skip_permission_denied;
  for (fs::recursive_directory_iterator entry(PathOf(folder), options, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code unknown;
    if (entry->is_directory(unknown)) continue;
    std::string name = Utf8Of(entry->path());
    if (MayBeInvoice(name))
      names.push_back(std::move(name));
    else
      ++found.others;
  }
  if (error) found.errors.push_back(ShownName(folder) + ": " + Text("the folder cannot be read to its end"));
  std::ranges::sort(names);
  for (std::string& name : names) found.files.push_back({std::move(name), false});
}

[[noreturn]] void RefuseContainer(const std::string& name) {
  throw FileError(ShownName(name) + ": " +
                  Text("is an archive or a PDF; take the invoice out of it with 'ravo isdoc extract'"));
}

// The program's own scanner tells in the user's language what is not XML.
[[noreturn]] void RefuseXml(const std::string& name, const DocumentText& text,
                            const isdoc::ReadingError& error) {
  try {
    static_cast<void>(ScanDocument(text.utf8));
  } catch (const DocumentError& fault) {
    throw FileError(ShownName(name) + ":" + WordsOf(PlacedIn(text, fault)));
  }
  throw FileError(ShownName(name) + ":" + std::to_string(error.place.line) + ":" +
                  std::to_string(error.place.column) + ": " + error.message);
}

DocumentText Decoded(const std::string& name) {
  std::string bytes = ReadDocumentBytes(name);
  if (bytes.starts_with("PK\3\4") || bytes.starts_with("%PDF-")) RefuseContainer(name);
  try {
    return DecodeDocument(std::move(bytes));
  } catch (const PlacedError& error) {
    throw FileError(ShownName(name) + ":" + WordsOf(error));
  }
}

}  // namespace

InvoiceFiles FindInvoices(const std::vector<std::string>& names) {
  InvoiceFiles found;
  for (const std::string& name : names) {
    std::error_code error;
    if (name != kInputName && fs::is_directory(PathOf(name), error))
      AddFolder(name, found);
    else
      found.files.push_back({name, true});
  }
  return found;
}

OpenInvoice ReadInvoice(const std::string& name) {
  const DocumentText text = Decoded(name);
  isdoc::ReadingError error;
  std::optional<isdoc::Document> document = isdoc::Document::Read(text.utf8, error);
  if (!document) RefuseXml(name, text, error);
  const isdoc::Version version = isdoc::VersionOf(*document);
  return {std::move(*document), version};
}

std::string WhyNotKnown(const OpenInvoice& invoice) {
  if (invoice.version == isdoc::Version::Other)
    return Text("is ISDOC {0}; this program knows ISDOC 6",
                {OnOneLine(std::string(isdoc::VersionText(invoice.document)))});
  return Text("is no ISDOC document: its root is '{0}'",
              {OnOneLine(std::string(invoice.document.Root().name))});
}

isdoc::Document ReadKnownInvoice(const std::string& name) {
  OpenInvoice invoice = ReadInvoice(name);
  if (invoice.version != isdoc::Version::Known)
    throw FileError(ShownName(name) + ": " + WhyNotKnown(invoice));
  return std::move(invoice.document);
}

}  // namespace tool
