#include "chapters.h"
#include "expect.h"
#include "random_keys.h"

/* Expected numbers are those that the generator's authors publish, and those of the same generator in the C++
   standard library and in Python. */

static ravo_random* by_number(uint32_t seed) {
  ravo_random* random = NULL;
  EXPECT(ravo_random_open(seed, &random, NULL) == RAVO_OK);
  return random;
}

static ravo_random* by_keys(void) {
  ravo_random* random = NULL;
  EXPECT(ravo_random_open_array(random_keys, 4, &random, NULL) == RAVO_OK);
  return random;
}

static ravo_random* by_bytes(const void* bytes, size_t bytes_length) {
  ravo_random* random = NULL;
  EXPECT(ravo_random_open_bytes(bytes, bytes_length, &random, NULL) == RAVO_OK);
  return random;
}

static uint32_t next_32(ravo_random* random) {
  uint32_t number = 0;
  EXPECT(ravo_random_int32(random, &number, NULL) == RAVO_OK);
  return number;
}

static void seeds_by_a_number(void) {
  ravo_random* random = by_number(5489);
  int i = 0;
  EXPECT(next_32(random) == 3499211612u);
  EXPECT(next_32(random) == 581869302u);
  for (i = 2; i < 9999; ++i) (void)next_32(random);
  EXPECT(next_32(random) == 4123659995u);
  ravo_random_close(random);
}

static void seeds_by_an_array(void) {
  static const uint32_t first[] = {1067595299u, 955945823u, 477289528u, 4107218783u, 4228976476u};
  static const uint32_t later[] = {3276005344u, 4252045284u, 4237864172u, 435643333u, 1199718579u};
  ravo_random* random = by_keys();
  int i = 0;
  for (i = 0; i < 5; ++i) EXPECT(next_32(random) == first[i]);
  for (i = 5; i < 1000; ++i) (void)next_32(random);
  for (i = 0; i < 5; ++i) EXPECT(next_32(random) == later[i]);
  ravo_random_close(random);
  random = NULL;
  EXPECT(ravo_random_open_array(random_keys, 0, &random, NULL) == RAVO_RANGE && random == NULL);
  EXPECT(ravo_random_open_array(NULL, 0, &random, NULL) == RAVO_RANGE && random == NULL);
}

static void seeds_by_bytes(void) {
  char many[624];
  ravo_random* random = by_bytes(TEXT("seed"));
  EXPECT(next_32(random) == 1115494375u);
  ravo_random_close(random);
  /* One step more than the array of the same keys, which gives 3585093674. */
  memset(many, 'a', sizeof many);
  random = by_bytes(many, sizeof many);
  EXPECT(next_32(random) == 2038408856u);
  ravo_random_close(random);
  random = NULL;
  EXPECT(ravo_random_open_bytes("", 0, &random, NULL) == RAVO_RANGE && random == NULL);
}

static void draws_integers(void) {
  ravo_random* random = by_keys();
  uint32_t number = 0;
  int64_t wide = 7;
  EXPECT(ravo_random_int31(random, &number, NULL) == RAVO_OK && number == 533797649u);
  ravo_random_close(random);
  /* The first two draws are 1872583848 and 794921487. */
  random = by_number(2);
  EXPECT(ravo_random_int64(random, &wide, NULL) == RAVO_OK && wide == INT64_C(3414161791425273000));
  ravo_random_close(random);
  random = by_number(2);
  EXPECT(ravo_random_int63(random, &wide, NULL) == RAVO_OK && wide == INT64_C(1707080894501444776));
  ravo_random_close(random);
}

static void refuses_integers_as_the_suite_does(void) {
  ravo_random* random = by_number(5489);
  int64_t wide = 7;
  /* The first draw is 3499211612, which is gone. */
  EXPECT(ravo_random_int63(random, &wide, NULL) == RAVO_RANGE && wide == 7);
  EXPECT(next_32(random) == 581869302u);
  ravo_random_close(random);
  /* Here the second one is too large: 1791095845, 4282876139, 3093770124. */
  random = by_number(1);
  EXPECT(ravo_random_int64(random, &wide, NULL) == RAVO_RANGE && wide == 7);
  EXPECT(next_32(random) == 3093770124u);
  ravo_random_close(random);
}

typedef ravo_status(RAVO_CALL* real_draw)(ravo_random* random, double* number, ravo_error* error);

static void expect_reals(real_draw draw, const double* expected) {
  ravo_random* random = by_keys();
  volatile double number = 0;
  int i = 0;
  for (i = 0; i < 2; ++i) {
    double drawn = -1;
    EXPECT(draw(random, &drawn, NULL) == RAVO_OK);
    number = drawn;
    EXPECT(number == expected[i]);
  }
  ravo_random_close(random);
}

static void draws_reals(void) {
  static const double real1[] = {0.24856890068588985, 0.22257348131914007};
  static const double real2[] = {0.2485689006280154, 0.22257348126731813};
  static const double real3[] = {0.24856890074443072, 0.22257348138373345};
  static const double res53[] = {0.24856890158782508, 0.11112762955044497};
  expect_reals(ravo_random_real1, real1);
  expect_reals(ravo_random_real2, real2);
  expect_reals(ravo_random_real3, real3);
  expect_reals(ravo_random_res53, res53);
}

static void draws_texts(void) {
  char text[32];
  size_t length = 0;
  ravo_random* random = by_bytes(TEXT("seed"));
  EXPECT(ravo_random_text(random, TEXT("abc"), 12, text, sizeof text, &length, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "baaccbcacaaa");
  EXPECT(length == 12);
  ravo_random_close(random);
  /* "Účetní" in Windows-1250. */
  random = by_bytes(
      "\xDA\xE8"
      "etn\xED",
      6);
  EXPECT(ravo_random_text(random, TEXT("ěščřž€"), 12, text, sizeof text, &length, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "šřě€řě€ěěšěř");
  ravo_random_close(random);
}

/* Who asks for the length, or has too little room, asks again for the same text. */
static void moves_on_with_a_whole_text(void) {
  char text[8];
  size_t length = 0;
  ravo_random* random = by_bytes(TEXT("seed"));
  EXPECT(ravo_random_text(random, TEXT("abc"), 6, NULL, 0, &length, NULL) == RAVO_OK && length == 6);
  EXPECT(ravo_random_text(random, TEXT("abc"), 6, text, 6, &length, NULL) == RAVO_BUFFER && length == 6);
  EXPECT(ravo_random_text(random, TEXT("abc"), 6, text, sizeof text, &length, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "baaccb");
  EXPECT(ravo_random_text(random, TEXT("abc"), 6, text, sizeof text, &length, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "cacaaa");
  EXPECT(ravo_random_text(random, "", 0, 0, text, sizeof text, &length, NULL) == RAVO_OK && length == 0);
  EXPECT(ravo_random_text(random, "", 0, 1, text, sizeof text, &length, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_random_text(random, "a", 1, (size_t)-1, text, sizeof text, &length, NULL) == RAVO_RANGE);
  ravo_random_close(random);
}

void test_random(void) {
  seeds_by_a_number();
  seeds_by_an_array();
  seeds_by_bytes();
  draws_integers();
  refuses_integers_as_the_suite_does();
  draws_reals();
  draws_texts();
  moves_on_with_a_whole_text();
}
