/* Changes values of an invoice and nothing else: amend FILE RESULT PATH VALUE [PATH VALUE]..., for example
   amend invoice.isdoc amended.isdoc Invoice/Note "paid in cash". Prints what was there, and how many faults
   the invoice has then. */
#include <ravo.h>
#include <stdio.h>
#include <stdlib.h>

#define MOST_CHANGES 16

typedef struct file_bytes {
  char* bytes;
  size_t length;
} file_bytes;

static int read_file(const char* name, file_bytes* read) {
  FILE* file = fopen(name, "rb");
  size_t room = 0;
  if (file == NULL) return 0;
  do {
    char* more = (char*)realloc(read->bytes, room += 65536);
    if (more == NULL) break;
    read->bytes = more;
    read->length += fread(more + read->length, 1, room - read->length, file);
  } while (read->length == room);
  return fclose(file) == 0 && read->length < room;
}

static int32_t RAVO_CALL write_piece(void* file, const void* bytes, size_t length) {
  return fwrite(bytes, 1, length, (FILE*)file) == length ? 0 : 1;
}

static int write_file(const char* name, const ravo_document* document, ravo_error* error) {
  FILE* file = fopen(name, "wb");
  ravo_status status = RAVO_OK;
  if (file == NULL) return 0;
  status = ravo_document_write(document, write_piece, file, error);
  return fclose(file) == 0 && status == RAVO_OK;
}

/* Prints what the document has at each path. */
static void print_values(const ravo_document* document, const ravo_document_change* changes, size_t count) {
  char value[1024] = "";
  size_t i = 0;
  for (i = 0; i < count; ++i) {
    ravo_document_get(document, changes[i].path, RAVO_NUL_TERMINATED, 0, value, sizeof value, NULL, NULL);
    printf("%s: %s\n", changes[i].path, value);
  }
}

/* What is wrong with the invoice as it is now. The checks read UTF-8, in which invoices are. */
static int print_faults(const char* name) {
  file_bytes text = {NULL, 0};
  ravo_invoice* invoice = NULL;
  ravo_error error = RAVO_ERROR_INIT;
  const int is_read = read_file(name, &text);
  if (is_read && ravo_invoice_open(text.bytes, text.length, &invoice, &error) == RAVO_OK)
    printf("faults: %lu\n", (unsigned long)ravo_invoice_finding_count(invoice));
  else
    fprintf(stderr, "%s: %s\n", name, is_read ? error.message : "cannot be read");
  free(text.bytes);
  ravo_invoice_close(invoice);
  return invoice != NULL;
}

static int amend(const file_bytes* invoice, const char* result, const ravo_document_change* changes,
                 size_t count, ravo_error* error) {
  ravo_document* document = NULL;
  int is_done = 0;
  if (ravo_document_open(invoice->bytes, invoice->length, &document, error) == RAVO_OK) {
    print_values(document, changes, count);
    is_done = ravo_document_set(document, changes, count, RAVO_DOCUMENT_ADD, error) == RAVO_OK &&
              write_file(result, document, error);
  }
  ravo_document_close(document);
  return is_done;
}

int main(int count, char** arguments) {
  ravo_document_change changes[MOST_CHANGES];
  size_t changed = 0;
  file_bytes invoice = {NULL, 0};
  ravo_error error = RAVO_ERROR_INIT;
  int is_done = 0;

  if (count < 5 || count % 2 == 0 || count > 3 + 2 * MOST_CHANGES) {
    fprintf(stderr, "usage: amend FILE RESULT PATH VALUE [PATH VALUE]...\n");
    return 2;
  }
  for (changed = 0; 2 * changed + 3 < (size_t)count; ++changed) {
    changes[changed].path = arguments[2 * changed + 3];
    changes[changed].path_length = RAVO_NUL_TERMINATED;
    changes[changed].value = arguments[2 * changed + 4];
    changes[changed].value_length = RAVO_NUL_TERMINATED;
  }
  is_done = read_file(arguments[1], &invoice) && amend(&invoice, arguments[2], changes, changed, &error);
  if (!is_done)
    fprintf(stderr, "%s: %s\n", arguments[1], error.status != RAVO_OK ? error.message : "a file failed");
  free(invoice.bytes);
  return is_done && print_faults(arguments[2]) ? 0 : 1;
}
