#include <stdint.h>

// Links to a module of resources and has none of its own.

extern const uint16_t RavoResourceTexts[];
const void* RavoTestResources(void);
__attribute__((visibility("default"))) const void* RavoTestResources(void) { return RavoResourceTexts; }
