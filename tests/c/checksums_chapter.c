#include "chapters.h"
#include "expect.h"

static void crc_goes_in_steps(void) {
  uint32_t crc = 0;
  EXPECT(ravo_crc32("123456789", 9, &crc, NULL) == RAVO_OK && crc == 0xCBF43926u);
  crc = 0;
  EXPECT(ravo_crc32("1234", 4, &crc, NULL) == RAVO_OK);
  EXPECT(ravo_crc32("56789", 5, &crc, NULL) == RAVO_OK && crc == 0xCBF43926u);
  EXPECT(ravo_crc32(NULL, 0, &crc, NULL) == RAVO_OK && crc == 0xCBF43926u);
  EXPECT(ravo_crc32("1", RAVO_NUL_TERMINATED, &crc, NULL) == RAVO_ARGUMENT);
}

static void hashes_are_those_of_the_suite(void) {
  uint32_t hash = 0;
  uint32_t other = 0;
  /* The hash of nothing is known of the algorithm. */
  EXPECT(ravo_suite_hash(RAVO_SUITE_HASH_BYTES, NULL, 0, 0, &hash, NULL) == RAVO_OK && hash == 0xBD49D10Du);
  EXPECT(ravo_suite_hash(RAVO_SUITE_HASH_TEXT, "AČ", 3, 3, &hash, NULL) == RAVO_OK);
  EXPECT(ravo_suite_hash(RAVO_SUITE_HASH_BYTES, "A\0\x0C\x01", 4, 3, &other, NULL) == RAVO_OK);
  EXPECT(hash == other);
  EXPECT(ravo_suite_hash(RAVO_SUITE_HASH_FOLDED_TEXT, "PŘÍLIŠ", 9, 1, &hash, NULL) == RAVO_OK);
  EXPECT(ravo_suite_hash(RAVO_SUITE_HASH_FOLDED_TEXT, "příliš", 9, 1, &other, NULL) == RAVO_OK);
  EXPECT(hash == other);
  EXPECT(ravo_suite_hash(RAVO_SUITE_HASH_UPPER_BYTES, "abc\xE8", 4, 9, &hash, NULL) == RAVO_OK);
  EXPECT(ravo_suite_hash(RAVO_SUITE_HASH_BYTES, "ABC\xC8", 4, 9, &other, NULL) == RAVO_OK);
  EXPECT(hash == other);
  EXPECT(ravo_suite_hash(RAVO_SUITE_HASH_TEXT, "\xE8", 1, 0, &hash, NULL) == RAVO_UTF8);
}

void test_checksums(void) {
  crc_goes_in_steps();
  hashes_are_those_of_the_suite();
}
