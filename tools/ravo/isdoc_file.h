#pragma once

#include <ravo/isdoc/document.h>
#include <ravo/isdoc/version.h>

#include <string>
#include <vector>

namespace tool {

/// An invoice among others: the file, and whether it was named or found in a folder.
struct InvoiceFile {
  std::string name;  ///< UTF-8
  bool is_named = true;
};

/// The invoices that a command line names.
struct InvoiceFiles {
  std::vector<InvoiceFile> files;   ///< those of a folder by their names
  std::size_t others = 0;           ///< files in folders that cannot be invoices
  std::vector<std::string> errors;  ///< folders that cannot be read
};

/// Returns the files that `names` stand for: of a folder all *.isdoc and *.xml in it and below.
[[nodiscard]] InvoiceFiles FindInvoices(const std::vector<std::string>& names);

/// A document read from a file.
struct OpenInvoice {
  ravo::isdoc::Document document;
  ravo::isdoc::Version version = ravo::isdoc::Version::None;
};

/// Reads a file, decoded as XML requires. Throws `FileError`, with line and column if it is not XML.
[[nodiscard]] OpenInvoice ReadInvoice(const std::string& name);

/// Returns why a document is no invoice that this program knows: another version, or something else.
[[nodiscard]] std::string WhyNotKnown(const OpenInvoice& invoice);

/// Reads an invoice of a known version. Throws `FileError`.
[[nodiscard]] ravo::isdoc::Document ReadKnownInvoice(const std::string& name);

}  // namespace tool
