/*
 * A program of another compiler, linked by another linker: it has no library but the system's and ours, by
 * ravo.lib.
 */
#include <ravo.h>

__declspec(dllimport) void __stdcall ExitProcess(unsigned code);
__declspec(dllimport) void* __stdcall GetStdHandle(unsigned long which);
__declspec(dllimport) int __stdcall WriteFile(void* file, const void* bytes, unsigned long size,
                                              unsigned long* written, void* overlapped);

/* What a compiler expects of a C library. */
int _fltused = 0;

void* memset(void* bytes, int value, size_t size) {
  for (size_t i = 0; i < size; ++i) ((unsigned char*)bytes)[i] = (unsigned char)value;
  return bytes;
}

void* memcpy(void* to, const void* from, size_t size) {
  for (size_t i = 0; i < size; ++i) ((unsigned char*)to)[i] = ((const unsigned char*)from)[i];
  return to;
}

static int same(const char* left, const char* right) {
  for (; *left != '\0' && *left == *right; ++left) ++right;
  return *left == *right;
}

static int failures = 0;

static void say(const char* text) {
  unsigned long size = 0;
  while (text[size] != '\0') ++size;
  WriteFile(GetStdHandle((unsigned long)-11), text, size, &size, NULL);
}

#define WORDS(line) WORDS_OF(line)
#define WORDS_OF(line) #line
#define EXPECT(condition) \
  ((condition) ? (void)0 : (void)(say("foreign.c:" WORDS(__LINE__) ": " #condition "\r\n"), ++failures))

static void gets_values(void) {
  char value[RAVO_VALUE_SIZE];
  size_t length = 0;
  EXPECT(ravo_respell(RAVO_KIND_IBAN, "cz6508000000192000145399", 24, value, sizeof value, &length, NULL) ==
         RAVO_OK);
  EXPECT(same(value, "CZ65 0800 0000 1920 0014 5399"));
  EXPECT(length == 29);
}

static void gets_reasons(void) {
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_check(RAVO_KIND_ICO, "0462x781", RAVO_NUL_TERMINATED, NULL, 0, NULL, &error) == RAVO_WRONG);
  EXPECT(error.size == sizeof error && error.status == RAVO_WRONG && error.position == 4);
  EXPECT(same(ravo_reason_name(error.code), "ico.character"));
  EXPECT(same(error.message, ravo_reason_sentence(error.code, RAVO_LANGUAGE_ENGLISH)));
}

/* The sum stays in a register across the calls: 0.5 + 1 + ... + 16. */
static void keeps_registers(void) {
  double sum = 0;
  ravo_date date = {0, 0, 0};
  for (ravo_day day = 2451545; day < 2451577; ++day) {
    EXPECT(ravo_date_of(day, &date, NULL) == RAVO_OK);
    sum += (day - 2451544) * 0.5;
  }
  EXPECT(sum == 264.0);
  EXPECT(date.year == 2000 && date.month == 2 && date.day == 1);
}

static void runs_vectors(void) {
  static const char text[] =
      "P\xC5\x99\xC3\xADli\xC5\xA1 \xC5\xBElu\xC5\xA5ou\xC4\x8Dk\xC3\xBD k\xC5\xAF\xC5\x88, "
      "P\xC5\x99\xC3\xADli\xC5\xA1 \xC5\xBElu\xC5\xA5ou\xC4\x8Dk\xC3\xBD k\xC5\xAF\xC5\x88\xFF";
  ravo_error error = RAVO_ERROR_INIT;
  char info[1024];
  EXPECT(ravo_check(RAVO_KIND_ICO, text, sizeof text - 1, NULL, 0, NULL, &error) == RAVO_UTF8);
  EXPECT(error.position == sizeof text - 2);
  EXPECT(ravo_build_info(info, sizeof info, NULL, &error) == RAVO_OK);
}

/* Adds what it gets to the caller's sum, and ends the work with a number of its own. */
static int32_t RAVO_CALL stops(void* context, size_t done, size_t total) {
  *(double*)context += (double)(done + total);
  return -17;
}

static void is_called_back(void) {
  static const int32_t offsets[] = {0, 8};
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  double sum = 0.5;
  column.layout = RAVO_LAYOUT_OFFSETS_32;
  column.length = 1;
  column.values = offsets;
  column.data = "04625781";
  column.data_size = 8;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, stops, &sum, &error) == RAVO_STOPPED);
  EXPECT(error.code == -17);
  EXPECT(sum == 2.5);
}

static void everything(void) {
  gets_values();
  gets_reasons();
  keeps_registers();
  runs_vectors();
  is_called_back();
}

#if defined(__i386__)
/* Compilers for 32-bit Windows align the stack to 4 bytes and no more: each place that a caller's stack can
 * have. */
static void with_stack_at(unsigned depth, void (*work)(void)) {
  __asm__ volatile("movl %%esp, %%esi\n\tsubl %0, %%esp\n\tcall *%1\n\tmovl %%esi, %%esp"
                   :
                   : "r"(depth), "r"(work)
                   : "eax", "ecx", "edx", "esi", "memory", "cc");
}

static void everywhere(void) {
  for (unsigned depth = 0; depth < 16; depth += 4) with_stack_at(depth, everything);
}
#else
static void everywhere(void) { everything(); }
#endif

void start(void);

void start(void) {
  everywhere();
  if (failures == 0) say("called, and answered\r\n");
  ExitProcess(failures == 0 ? 0 : 1);
}
