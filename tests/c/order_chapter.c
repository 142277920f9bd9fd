#include "chapters.h"
#include "expect.h"

enum { KEY_SIZE = 256 };

typedef struct key {
  char bytes[KEY_SIZE];
  size_t length;
} key;

static int sign_of(int value) { return (value > 0) - (value < 0); }

/* As memcmp compares, and their lengths then. */
static int compare_keys(const key* a, const key* b) {
  const size_t common = a->length < b->length ? a->length : b->length;
  const int bytes = memcmp(a->bytes, b->bytes, common);
  return bytes != 0 ? sign_of(bytes) : (a->length > b->length) - (a->length < b->length);
}

static void expect_order(const char* a, const char* b, uint32_t flags, int expected) {
  key of_a;
  key of_b;
  int32_t order = 7;
  const size_t all = RAVO_NUL_TERMINATED;
  EXPECT(ravo_compare_czech(a, all, b, all, flags, &order, NULL) == RAVO_OK);
  if (order != expected) printf("%s and %s\n", a, b);
  EXPECT(order == expected);
  EXPECT(ravo_compare_czech(b, all, a, all, flags, &order, NULL) == RAVO_OK && order == -expected);
  EXPECT(ravo_czech_key(a, all, flags, of_a.bytes, KEY_SIZE, &of_a.length, NULL) == RAVO_OK);
  EXPECT(ravo_czech_key(b, all, flags, of_b.bytes, KEY_SIZE, &of_b.length, NULL) == RAVO_OK);
  EXPECT(compare_keys(&of_a, &of_b) == expected);
}

static void is_the_czech_one(void) {
  static const char* const texts[] = {"",     "-",    "a",   "a b", "ab",   "až",   "cz",   "ča",
                                      "da",   "hz",   "cha", "Cha", "CHA",  "chá",  "i",    "rada",
                                      "Rada", "ráda", "rz",  "řa",  "uhel", "úhel", "uhly", "úhly",
                                      "ž",    "0",    "10",  "2",   "я"};
  const size_t count = sizeof texts / sizeof *texts;
  size_t i = 0;
  size_t j = 0;
  for (i = 0; i < count; ++i) {
    for (j = 0; j < count; ++j) expect_order(texts[i], texts[j], RAVO_ORDER_PLAIN, (i > j) - (i < j));
  }
  expect_order("c\xCC\x8C", "č", RAVO_ORDER_PLAIN, 0);
}

static void has_flags(void) {
  key made;
  int32_t order = 7;
  ravo_error error = RAVO_ERROR_INIT;
  expect_order("CHATA Ř", "chata ř", RAVO_ORDER_PLAIN, 1);
  expect_order("CHATA Ř", "chata ř", RAVO_ORDER_IGNORE_CASE, 0);
  expect_order("chátá", "CHATA", RAVO_ORDER_IGNORE_CASE, 1);
  expect_order("FV9", "FV10", RAVO_ORDER_PLAIN, 1);
  expect_order("FV9", "FV10", RAVO_ORDER_NATURAL, -1);
  expect_order("FV007", "FV7", RAVO_ORDER_NATURAL, 0);
  expect_order("FV000", "FV", RAVO_ORDER_NATURAL, 1);
  expect_order("a1", "aa", RAVO_ORDER_PLAIN, 1);
  expect_order("a1", "aa", RAVO_ORDER_DIGITS_FIRST, -1);
  expect_order("A20", "a1X", RAVO_ORDER_IGNORE_CASE | RAVO_ORDER_NATURAL | RAVO_ORDER_DIGITS_FIRST, 1);
  EXPECT(ravo_compare_czech("a", 1, "b", 1, 8, &order, &error) == RAVO_ARGUMENT && order == 7);
  EXPECT(ravo_compare_czech("a", 1, "b", 1, 0x80000000u, &order, &error) == RAVO_ARGUMENT);
  EXPECT(ravo_czech_key("a", 1, 8, made.bytes, KEY_SIZE, &made.length, &error) == RAVO_ARGUMENT);
}

/* A key that is cut would lie. */
static void writes_whole_keys_or_none(void) {
  char small[3] = "##";
  size_t length = 0;
  EXPECT(ravo_czech_key(TEXT("Žižkov"), 0, NULL, 0, &length, NULL) == RAVO_OK && length > 3);
  EXPECT(ravo_czech_key(TEXT("Žižkov"), 0, small, sizeof small, &length, NULL) == RAVO_BUFFER);
  EXPECT_TEXT(small, "##");
  EXPECT(ravo_number_key(TEXT("123456"), small, sizeof small, &length, NULL) == RAVO_BUFFER && length > 3);
  EXPECT_TEXT(small, "##");
}

static void has_numbers_by_value(void) {
  static const char* const numbers[] = {
      "Kč",      "-1 234,50", "-1234.4", "-0,5", "0",     "0,05",         ".5",
      "0.51 Kč", "1,2",       "1,25",    "+9",   "1 234", "1\u00A0234,5", "12345678901234567890123"};
  const size_t count = sizeof numbers / sizeof *numbers;
  const size_t all = RAVO_NUL_TERMINATED;
  size_t i = 0;
  size_t j = 0;
  for (i = 0; i < count; ++i) {
    for (j = 0; j < count; ++j) {
      const int expected = (i > j) - (i < j);
      key a;
      key b;
      int32_t order = 7;
      EXPECT(ravo_compare_numbers(numbers[i], all, numbers[j], all, &order, NULL) == RAVO_OK);
      EXPECT(order == expected);
      EXPECT(ravo_number_key(numbers[i], all, a.bytes, KEY_SIZE, &a.length, NULL) == RAVO_OK);
      EXPECT(ravo_number_key(numbers[j], all, b.bytes, KEY_SIZE, &b.length, NULL) == RAVO_OK);
      EXPECT(compare_keys(&a, &b) == expected);
    }
  }
}

static int64_t suite_difference(const char* a, const char* b, int32_t ignore_case) {
  int64_t difference = 7777;
  EXPECT(ravo_suite_compare_num(a, RAVO_NUL_TERMINATED, b, RAVO_NUL_TERMINATED, ignore_case, &difference,
                                NULL) == RAVO_OK);
  return difference;
}

static int64_t suite_difference_of_bytes(const char* a, const char* b, int32_t ignore_case) {
  int64_t difference = 7777;
  EXPECT(ravo_suite_compare_num_bytes(a, strlen(a), b, strlen(b), ignore_case, &difference, NULL) == RAVO_OK);
  return difference;
}

static void has_that_of_the_suite(void) {
  EXPECT(suite_difference("a9", "a10", 0) == -1);
  EXPECT(suite_difference("abc", "a", 0) == 2);
  EXPECT(suite_difference("105", "15", 0) == '0' - '5');
  EXPECT(suite_difference("A10", "a9", 0) == 'A' - 'a');
  EXPECT(suite_difference("A10", "a9", 1) == 1);
  EXPECT(suite_difference("č", "d", 0) == 0x10D - 'd');
  EXPECT(suite_difference("Č1", "č1", 1) == 0);
  /* Arabic-Indic digits: 3 and 10. */
  EXPECT(suite_difference("a\xD9\xA3", "a\xD9\xA1\xD9\xA0", 0) == -1);
  EXPECT(suite_difference_of_bytes("a\xD9\xA3", "a\xD9\xA1\xD9\xA0", 0) == 2);
  EXPECT(suite_difference_of_bytes("a9", "a10", 0) == -1);
  EXPECT(suite_difference_of_bytes("A10", "a9", 1) == 1);
  EXPECT(suite_difference_of_bytes("\xC8", "\xE8", 1) == 0xC8 - 0xE8);
}

void test_order(void) {
  is_the_czech_one();
  has_flags();
  writes_whole_keys_or_none();
  has_numbers_by_value();
  has_that_of_the_suite();
}
