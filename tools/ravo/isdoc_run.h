#pragma once

#include "isdoc_file.h"
#include "outcome.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tool {

/// What the work on one invoice gave.
struct InvoiceResult {
  std::string out;         ///< for standard output
  std::size_t errors = 0;  ///< findings that break a rule
  std::size_t notes = 0;   ///< findings that are worth a look
};

/// How many invoices there were.
struct InvoiceCounts {
  std::size_t read = 0;
  std::size_t with_errors = 0;
  std::size_t with_notes = 0;  ///< and no errors
  std::size_t skipped = 0;     ///< files of folders that are no invoices
};

/// Works on all invoices that `names` stand for, on several threads, and adds the output in their order. A
/// file that cannot be read is an error message and does not keep the others from being read.
[[nodiscard]] InvoiceCounts RunOverInvoices(
    const std::vector<std::string>& names, Outcome& outcome,
    const std::function<InvoiceResult(const std::string& name, const ravo::isdoc::Document& invoice)>& work);

}  // namespace tool
