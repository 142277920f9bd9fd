#pragma once

/* The C header: this file is for C compilers too. */
#include <stdint.h>  // NOLINT(modernize-deprecated-headers)

/** A text of a language module on systems without Windows resources. Such a module is a shared object that
 * exports an array of these under the name `RavoResourceTexts`, ended by a row whose text is null. */
typedef struct RavoResourceText {
  uint16_t Id;          /**< in the string table */
  const uint16_t* Text; /**< UTF-16, ended by a zero */
} RavoResourceText;
