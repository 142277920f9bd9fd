#ifndef RAVO_TESTS_RANDOM_KEYS_H
#define RAVO_TESTS_RANDOM_KEYS_H

#include <stdint.h>

/* The keys of the example that the authors of the generator publish with its results. */
static const uint32_t random_keys[4] = {0x123, 0x234, 0x345, 0x456};

#endif
