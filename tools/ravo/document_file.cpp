#include "document_file.h"

#include "console.h"
#include "document_words.h"
#include "printable.h"
#include "text.h"
#include "whole_input.h"

#include <utility>

namespace tool {

std::string ShownName(const std::string& name) {
  return name == kInputName ? Text("standard input") : OnOneLine(name);
}

std::string ReadDocumentBytes(const std::string& name) {
  std::string reason;
  auto bytes = ReadWhole(name, &reason);
  if (!bytes) throw FileError(ShownName(name) + ": " + reason);
  return std::move(*bytes);
}

FileDocument::FileDocument(const std::string& name, std::string bytes) try : OpenDocument(std::move(bytes)) {
} catch (const ravo::document::PlacedError& error) {
  throw FileError(ShownName(name) + ":" + WordsOf(error));
}

}  // namespace tool
