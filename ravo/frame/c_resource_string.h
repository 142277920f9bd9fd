#pragma once

#include <ravo/runtime/export.h>
/* The C header: this file is for C compilers too. */
#include <stdint.h>  // NOLINT(modernize-deprecated-headers)

#ifdef __cplusplus
extern "C" {
#endif

/** A text of the library for programs in C: the module and the identifier under which it is looked up. */
typedef struct RavoResourceString {
  void* const* Module;  /**< where the library's instance stands once it is loaded */
  uint16_t Id;          /**< in the string table; language modules replace the text by it */
  const uint16_t* Text; /**< what no language module has replaced: UTF-16, ended by a zero */
} RavoResourceString;

/** The text now, UTF-16 of `*length` units; no zero need follow it. What an attached language module lacks
 * reads as built in. It can be read as long as the library's current resource instance stays attached. */
RAVO_API const uint16_t* RavoReadText(const RavoResourceString* string, int32_t* length);

/** The type of the export, for a host that loads the library at run time. */
typedef const uint16_t* (*RavoTextReader)(const RavoResourceString* string, int32_t* length);

#ifdef __cplusplus
}
#endif
