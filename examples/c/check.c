/* Checks a value: check KIND VALUE, for example check ico "046 25 781". */
#include <ravo.h>
#include <stdio.h>

int main(int count, char** arguments) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_kind kind = 0;
  char value[RAVO_VALUE_SIZE];

  if (count != 3 || ravo_kind_of(arguments[1], RAVO_NUL_TERMINATED, &kind, &error) != RAVO_OK) {
    fprintf(stderr, "usage: check KIND VALUE\nkinds:");
    for (kind = 1; ravo_kind_name(kind) != NULL; ++kind) fprintf(stderr, " %s", ravo_kind_name(kind));
    fprintf(stderr, "\n");
    return 2;
  }
  if (ravo_check(kind, arguments[2], RAVO_NUL_TERMINATED, value, sizeof value, NULL, &error) == RAVO_OK) {
    printf("correct in form: %s\n", value);
    return 0;
  }
  printf("%s, at byte %lu\n", error.message, (unsigned long)error.position);
  return 1;
}
