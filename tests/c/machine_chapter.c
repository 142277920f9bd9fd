#include "chapters.h"
#include "expect.h"
#include "memory.h"

#include <stdlib.h>

enum { ROOM = 1 << 16 };

static char* report_of(ravo_machine_layer layer) {
  char* report = malloc(ROOM);
  size_t length = 0;
  if (report == NULL) return NULL;
  EXPECT(ravo_machine_report(layer, report, ROOM, &length, NULL) == RAVO_OK);
  EXPECT(length == strlen(report));
  return report;
}

/* The captions come in this order, whatever the machine is. */
static void reports_in_sections(void) {
  static const char* const captions[] = {"\r\n\tČasové informace\r\n\t\tAktuální datum: ",
                                         "\r\n\tBIOS\r\n",
                                         "\r\n\tOperační systém\r\n\t\tOS: ",
                                         "\r\n\t\tNázev počítače: ",
                                         "\r\n\t\tPaměť\r\n\t\t\tCelková fyzická paměť: ",
                                         "\r\n\tPevné disky\r\n",
                                         "\r\n\tSoubory\r\n\t\tVCL\r\n"};
  char* report = report_of(RAVO_MACHINE_CLIENT);
  const char* at = report;
  size_t i = 0;
  EXPECT(report != NULL && strncmp(report, TEXT("Informace o klientské vrstvě\r\n")) == 0);
  for (i = 0; at != NULL && i < sizeof captions / sizeof *captions; ++i) {
    at = strstr(at, captions[i]);
    if (at == NULL) printf("the report has no \"%s\" in its place\n", captions[i]), ++failures;
  }
  EXPECT(report == NULL || strstr(report, "\r\n\t\tSestavy\r\n") != NULL);
  free(report);
}

static void reports_of_the_application_layer(void) {
  char* report = report_of(RAVO_MACHINE_BUSINESS);
  EXPECT(report != NULL && strncmp(report, TEXT("Informace o aplikační vrstvě\r\n")) == 0);
  EXPECT(report != NULL && strstr(report, "\r\n\t\tSestavy\r\n") == NULL);
  free(report);
}

static void refuses_reports(void) {
  char text[12] = "as it was";
  size_t length = 0;
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_machine_report(-1, text, sizeof text, &length, &error) == RAVO_ARGUMENT);
  EXPECT(error.status == RAVO_ARGUMENT);
  EXPECT(ravo_machine_report(2, text, sizeof text, &length, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_machine_report(256, text, sizeof text, &length, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_machine_report(RAVO_MACHINE_CLIENT, NULL, 1, &length, NULL) == RAVO_ARGUMENT);
  EXPECT(length == 0);
  EXPECT_TEXT(text, "as it was");
  EXPECT(ravo_machine_report(RAVO_MACHINE_CLIENT, text, 11, NULL, &error) == RAVO_BUFFER);
  EXPECT_TEXT(text, "Informace ");
  EXPECT(ravo_machine_report(RAVO_MACHINE_CLIENT, NULL, 0, &length, NULL) == RAVO_OK && length > 500);
}

/* Denies memory from each allocation on. */
static void survives_without_memory(void) {
  enum { MOST = 20000 };
  size_t allowed = 0;
  ravo_status status = RAVO_MEMORY;
  for (allowed = 0; status == RAVO_MEMORY && allowed < MOST; ++allowed) {
    deny_allocations_after(allowed);
    status = ravo_machine_report(RAVO_MACHINE_CLIENT, NULL, 0, NULL, NULL);
    allow_allocations();
  }
  EXPECT(status == RAVO_OK);
  EXPECT(!allocations_are_counted || allowed > 100);
}

void test_machine(void) {
  reports_in_sections();
  reports_of_the_application_layer();
  refuses_reports();
  survives_without_memory();
}
