#pragma once

/* The C header: this file is compiled as C too. */
#include <stdint.h>  // NOLINT(modernize-deprecated-headers)

/** A 128-bit identifier for programs in C. Its 16 bytes are those of the system's own type: on Windows a
 * pointer to it is cast to `const GUID*`. */
typedef struct RavoGuid {
  uint32_t Data1;   /**< the first group of the text form, a number */
  uint16_t Data2;   /**< the second one, a number */
  uint16_t Data3;   /**< the third one, a number */
  uint8_t Data4[8]; /**< the last two groups, bytes as written */
} RavoGuid;
