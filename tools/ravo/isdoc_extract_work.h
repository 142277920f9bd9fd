#pragma once

#include "outcome.h"

#include <cstddef>
#include <string>

namespace tool {

/// What `ravo isdoc extract` is asked.
struct ExtractOptions {
  std::string file;
  std::string folder;
  std::size_t max_size = 256;  ///< MiB that may be unpacked
  bool list = false;
  bool force = false;
  bool json = false;
};

/// Writes the files of a container into a folder: all of them, or none and a message.
void ExtractInvoice(const ExtractOptions& options, Outcome& outcome);

}  // namespace tool
