#pragma once

#include <ravo/runtime/c_guid.h>
#include <ravo/runtime/export.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The identifiers of the host's object model for programs in C. */
#define RAVO_TYPE_LIBRARY(library, identifier)                 \
  /** Identifier of the type library #library: #identifier. */ \
  RAVO_API extern const RavoGuid LIBID_##library;
#define RAVO_HOST_INTERFACE(library, name, base, identifier, operations) \
  /** Identifier of `#name`: #identifier. */                             \
  RAVO_API extern const RavoGuid IID_##name;
#define RAVO_HOST_CLASS(library, name, returned, identifier) \
  /** Identifier of the class #name: #identifier. */         \
  RAVO_API extern const RavoGuid CLASS_##name;
#include <ravo/hostapi/interfaces.inc>

#ifdef __cplusplus
}
#endif
