#pragma once

#include "document_text.h"

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

/// A decoded and scanned document.
class OpenDocument {
 public:
  /// Reads a file. Throws `FileError`, with line and column if the document is not XML.
  explicit OpenDocument(const std::string& name);
  /// Takes the bytes of a file that was read.
  OpenDocument(const std::string& name, std::string bytes);
  OpenDocument(const OpenDocument&) = delete;
  OpenDocument& operator=(const OpenDocument&) = delete;

  [[nodiscard]] const DocumentText& Text() const { return text_; }
  [[nodiscard]] const ScannedDocument& Document() const { return document_; }

 private:
  DocumentText text_;
  ScannedDocument document_;
};

}  // namespace tool
