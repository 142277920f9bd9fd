/* The English texts as a shared object, for systems without Windows resources. */
#include <ravo/package.h>

#include <stddef.h>

#define RAVO_STRING(name, id, text) {id, u##text},
__attribute__((visibility("default"))) const RavoResourceText RavoResourceTexts[] = {
#include "captions_en.inc"
    {0, NULL}};
