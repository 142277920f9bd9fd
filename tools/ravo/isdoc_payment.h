#pragma once

#include "payment_request.h"

#include <string>
#include <vector>

namespace tool {

/// Fills what `request` leaves open with what an invoice asks to be paid; `with_invoice` also with the data
/// of an invoice code. The invoice is not checked.
///
/// Returns what the user should know about it. Throws `FileError` for a file that cannot be read, and for an
/// invoice that asks for no payment to an account.
[[nodiscard]] std::vector<PaymentNote> FillFromInvoice(const std::string& file, bool with_invoice,
                                                       PaymentRequest& request);

}  // namespace tool
