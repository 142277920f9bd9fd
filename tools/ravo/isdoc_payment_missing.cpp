#include "document_file.h"
#include "isdoc_payment.h"
#include "text.h"

namespace tool {

std::vector<PaymentNote> FillFromInvoice(const std::string& file, bool, PaymentRequest&) {
  throw FileError(ShownName(file) + ": " +
                  Text("this program was built without expat, which reads invoices"));
}

}  // namespace tool
