#ifndef RAVO_TESTS_SMALL_DOCUMENT_H
#define RAVO_TESTS_SMALL_DOCUMENT_H

#include <ravo.h>

/* A document with an attribute, a child and a finding. */
#define SMALL_DOCUMENT \
  "<?xml version=\"1.0\" encoding=\"windows-1250\"?><a b=\"1\" c=\"2\"><!-- --><d>3</d></a>"

/* Opens it and checks it. */
static ravo_status open_checked(ravo_document** document) {
  size_t count = 0;
  const ravo_status status = ravo_document_open(SMALL_DOCUMENT, sizeof SMALL_DOCUMENT - 1, document, NULL);
  return status != RAVO_OK ? status : ravo_document_check(*document, &count, NULL);
}

#endif
