#include "document_file.h"

#include "console.h"
#include "printable.h"
#include "text.h"
#include "text_file.h"
#include "whole_input.h"

#include <filesystem>
#include <utility>

namespace tool {
namespace {

DocumentMessage ReasonOf(const std::string& name) {
  std::error_code error;
  const auto status = std::filesystem::status(PathOf(name), error);
  if (status.type() == std::filesystem::file_type::not_found) return DocumentMessage::Missing;
  return std::filesystem::is_directory(status) ? DocumentMessage::Folder : DocumentMessage::Unreadable;
}

// Names the file and the place of an error.
template <class Work>
auto Placing(const std::string& name, std::string_view utf8, Work work) {
  try {
    return work();
  } catch (const PlacedError& error) {
    throw FileError(ShownName(name) + ":" + error.what());
  } catch (const DocumentError& error) {
    throw FileError(ShownName(name) + ":" + PlacedError(utf8, error).what());
  }
}

}  // namespace

std::string ShownName(const std::string& name) {
  return name == kInputName ? Text("standard input") : OnOneLine(name);
}

std::string ReadDocumentBytes(const std::string& name) {
  auto bytes = ReadWhole(name);
  if (bytes) return std::move(*bytes);
  const DocumentMessage reason = name == kInputName ? DocumentMessage::Unreadable : ReasonOf(name);
  throw FileError(ShownName(name) + ": " + MessageText(reason));
}

OpenDocument::OpenDocument(const std::string& name) : OpenDocument(name, ReadDocumentBytes(name)) {}

OpenDocument::OpenDocument(const std::string& name, std::string bytes)
    : text_(Placing(name, "", [&] { return DecodeDocument(std::move(bytes)); })),
      document_(Placing(name, text_.utf8, [&] { return ScanDocument(text_.utf8); })) {}

}  // namespace tool
