#pragma once

#include "outcome.h"
#include "payment_request.h"

#include <string>

namespace tool {

/// What `ravo qr` is asked.
struct QrOptions {
  PaymentRequest request;
  std::string format;  ///< "text", "blocks", "svg", "png"; or empty
  std::string out;
  std::string isdoc;  ///< the invoice that asks for the payment, "-" for standard input; or empty
  bool with_invoice = false;
  std::string read;  ///< the text of a code to read, "-" for standard input; or empty
  int scale = 8;
  bool json = false;
};

/// Makes a code and writes it, or reads one.
void AnswerQr(const QrOptions& options, Outcome& outcome);

}  // namespace tool
