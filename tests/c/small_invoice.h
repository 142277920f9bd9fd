#ifndef RAVO_TESTS_SMALL_INVOICE_H
#define RAVO_TESTS_SMALL_INVOICE_H

/* A document with a line, a rate, a payment and findings. */
#define SMALL_INVOICE                                                                       \
  "<Invoice><InvoiceLines><InvoiceLine><ID> 1 </ID></InvoiceLine></InvoiceLines><TaxTotal>" \
  "<TaxSubTotal/></TaxTotal><PaymentMeans><Payment/></PaymentMeans></Invoice>"

#endif
