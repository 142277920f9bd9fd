#pragma once

#include <ravo/frame/c_resource_string.h>
#include <ravo/runtime/c_guid.h>
#include <ravo/runtime/export.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The class identifiers of the modules and the captions of the suite for programs in C. */
#define RAVO_CLASS_IDENTIFIER(module, name, identifier, what) \
  /** Class identifier of #what: #identifier. */              \
  RAVO_API extern const RavoGuid name;
#include <ravo/catalogue/class_identifiers.inc>
#undef RAVO_CLASS_IDENTIFIER

#define RAVO_STRING(name, id, text) /** #text */ RAVO_API extern const RavoResourceString name;
#include <ravo/catalogue/captions.inc>
#undef RAVO_STRING

#ifdef __cplusplus
}
#endif
