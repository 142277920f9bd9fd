#pragma once

#include "table_blocks.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// A block of a table and what its worker makes of it.
struct BlockWork {
  struct Piece {
    std::size_t begin = 0;
    std::size_t end = 0;
  };

  TableBlock block;
  std::string lines;            // the findings, a line each
  std::size_t findings = 0;     // how many were found since the last write
  std::vector<Piece> rejected;  // rows with findings, in order
  bool is_done = false;         // all its rows are checked
};

}  // namespace tool
