#pragma once

#include <ravo/document/text.h>

#include <stdexcept>
#include <string>

namespace tool {

/// An error message about a file, which starts with its name.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Returns the name of a file for messages, without control characters.
[[nodiscard]] std::string ShownName(const std::string& name);

/// Returns all bytes of a file, or of standard input for "-". Throws `FileError`.
[[nodiscard]] std::string ReadDocumentBytes(const std::string& name);

/// A document of a file.
class FileDocument : public ravo::document::OpenDocument {
 public:
  /// Reads a file. Throws `FileError`, with line and column if the document is not XML.
  explicit FileDocument(const std::string& name) : FileDocument(name, ReadDocumentBytes(name)) {}
  /// Takes the bytes of a file that was read.
  FileDocument(const std::string& name, std::string bytes);
};

}  // namespace tool
