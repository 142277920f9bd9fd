#pragma once

#include "output_pieces.h"
#include <ravo/document/edit.h>

#include <string>
#include <string_view>
#include <vector>

/// The work of `ravo xml`, a function for each of its commands. They throw `FileError` for a document that
/// cannot be read and `PathError` for a path or value that does not fit.
namespace tool {

struct XmlOptions {
  std::string file;
  std::vector<std::string> files;
  std::string path;
  std::vector<std::string> changes;  ///< paths, each with its value after it
  std::string out;
  ravo::document::EditOptions edit;
  bool colour = false;
  bool json = false;
  bool suite = false;
  bool in_place = false;
  bool dry_run = false;
};

using XmlWork = void(const XmlOptions& options, Outcome& outcome);

XmlWork ShowXml;
XmlWork GetXml;
XmlWork ListXmlTokens;
XmlWork SetXml;
XmlWork CheckXml;
XmlWork FormatXml;

/// Returns a text of several lines in the form for a terminal, with its control characters made visible.
[[nodiscard]] std::string OnLines(std::string_view utf8);

}  // namespace tool
