#pragma once

/// Electronic invoices by the Czech national standard ISDOC 6.0.2.
///
/// `Document` is the invoice as a tree of elements with their places, read by expat. `CheckStructure` answers
/// what the standard's schema says, from rows that are generated from it; `CheckContent` what a schema cannot
/// say: the standard's business rules, identifiers and accounts by the rules of `ravo/czech`, dates, and the
/// arithmetic, in exact decimals. Both append to one list of `Finding`. A finding has the number of its rule,
/// its place, what was found and what was expected, and how grave it is.
///
/// The room is the static library RavoIsdoc, with expat inside; nothing of it is exported from
/// RavoInterface. Like `ravo/czech` it never asks the machine: texts come in, findings go out.
#include <ravo/isdoc/content.h>
#include <ravo/isdoc/document.h>
#include <ravo/isdoc/finding.h>
#include <ravo/isdoc/structure.h>
