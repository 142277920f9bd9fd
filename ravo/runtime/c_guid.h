#pragma once

/* The C header: this file is compiled as C too. */
#include <stdint.h>  // NOLINT(modernize-deprecated-headers)

/** A 128-bit identifier for programs in C, in the layout of the system's own type: on Windows a pointer to it
 * can be cast to `const GUID*`. */
typedef struct RavoGuid {
  uint32_t Data1;   /**< the first group of the text form, a number */
  uint16_t Data2;   /**< the second group, a number */
  uint16_t Data3;   /**< the third group, a number */
  uint8_t Data4[8]; /**< the last two groups, bytes as written */
} RavoGuid;
