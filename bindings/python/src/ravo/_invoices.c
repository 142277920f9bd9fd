/* Electronic invoices, read and checked: everything of one at once, so that nothing is left to close. */
#include "_module.h"
#include "_records.inc"

/* Lists of an open invoice: each function of ravo.h that counts rows, with the one that writes a row. */
#define LIST_OF(Record, row, INIT)                                                             \
  static PyObject* All##Record(ravo_module* module, const ravo_invoice* invoice) {             \
    const size_t count = ravo_invoice_##row##_count(invoice);                                  \
    PyObject* rows = PyTuple_New((Py_ssize_t)count);                                           \
    for (size_t i = 0; rows != NULL && i < count; ++i) {                                       \
      ravo_invoice_##row row = INIT;                                                           \
      ravo_invoice_##row##_at(invoice, i, &row, NULL);                                         \
      PyObject* record = Make##Record(module, &row);                                           \
      if (record == NULL || PyTuple_SetItem(rows, (Py_ssize_t)i, record) != 0) Py_CLEAR(rows); \
    }                                                                                          \
    return rows;                                                                               \
  }

LIST_OF(InvoiceLine, line, RAVO_INVOICE_LINE_INIT)
LIST_OF(InvoiceRate, rate, RAVO_INVOICE_RATE_INIT)
LIST_OF(InvoicePayment, payment, RAVO_INVOICE_PAYMENT_INIT)
LIST_OF(InvoiceFinding, finding, RAVO_INVOICE_FINDING_INIT)

static PyObject* Head(ravo_module* module, const ravo_invoice* invoice) {
  ravo_invoice_head head = RAVO_INVOICE_HEAD_INIT;
  ravo_invoice_head_of(invoice, &head, NULL);
  return MakeInvoiceHead(module, &head);
}

static PyObject* Party(ravo_module* module, const ravo_invoice* invoice, ravo_invoice_role role) {
  ravo_invoice_party party = RAVO_INVOICE_PARTY_INIT;
  ravo_invoice_party_of(invoice, role, &party, NULL);
  return MakeInvoiceParty(module, &party);
}

static PyObject* Totals(ravo_module* module, const ravo_invoice* invoice) {
  ravo_invoice_totals totals = RAVO_INVOICE_TOTALS_INIT;
  ravo_invoice_totals_of(invoice, &totals, NULL);
  return MakeInvoiceTotals(module, &totals);
}

static PyObject* Parts(ravo_module* module, const ravo_invoice* invoice) {
  PyObject* parts[] = {Head(module, invoice),
                       Party(module, invoice, RAVO_INVOICE_ROLE_SUPPLIER),
                       Party(module, invoice, RAVO_INVOICE_ROLE_CUSTOMER),
                       AllInvoiceLine(module, invoice),
                       AllInvoiceRate(module, invoice),
                       Totals(module, invoice),
                       AllInvoicePayment(module, invoice),
                       AllInvoiceFinding(module, invoice)};
  return MakeTuple(parts, sizeof parts / sizeof *parts);
}

/* invoice(bytes): head, supplier, customer, lines, rates, totals, payments, findings */
static PyObject* Invoice(PyObject* self, PyObject* object) {
  ravo_module* module = PyModule_GetState(self);
  bytes_in bytes = {0};
  ravo_invoice* invoice = NULL;
  ravo_error error = RAVO_ERROR_INIT;
  ravo_status status = RAVO_OK;
  if (!TakeBytes(object, &bytes)) return NULL;
  Py_BEGIN_ALLOW_THREADS;
  status = ravo_invoice_open(bytes.view.buf, (size_t)bytes.view.len, &invoice, &error);
  Py_END_ALLOW_THREADS;
  ReleaseBytes(&bytes);
  if (status != RAVO_OK) return RaiseAt(module, &error, PyLong_FromSize_t(error.position));
  PyObject* parts = Parts(module, invoice);
  ravo_invoice_close(invoice);
  return parts;
}

static PyMethodDef invoice_functions[] = {
    {"invoice", Invoice, METH_O,
     "invoice(bytes, /)\n--\n\nReturns what an invoice says and what is wrong with it."},
    {NULL, NULL, 0, NULL}};

int AddInvoices(PyObject* module) { return PyModule_AddFunctions(module, invoice_functions); }
