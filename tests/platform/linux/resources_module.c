#include <stdint.h>

// A module of resources as a translator would write it.

typedef struct {
  uint16_t id;
  const uint16_t* text;
} Row;

static const uint16_t greeting[] = {'A', 'h', 'o', 'j', 0};
static const uint16_t empty[] = {0};

extern const Row RavoResourceTexts[];
__attribute__((visibility("default"))) const Row RavoResourceTexts[] = {
    {65408, greeting},
    {65535, empty},
    {0, 0},
};
