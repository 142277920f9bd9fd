#pragma once

#include "outcome.h"

#include <string>
#include <vector>

/// The work of `ravo isdoc`, a function for each of its commands that read invoices.
namespace tool {

struct IsdocOptions {
  std::vector<std::string> files;
  std::string file;
  bool lines = false;
  bool recapitulation = false;
  bool strict = false;
  bool json = false;
};

using IsdocWork = void(const IsdocOptions& options, Outcome& outcome);

IsdocWork CheckInvoices;
IsdocWork ShowInvoice;
IsdocWork WriteInvoicesAsTable;

}  // namespace tool
