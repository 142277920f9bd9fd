#pragma once

#include <ravo/frame/c_resource_string.h>
#include <ravo/runtime/export.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The messages of the general utilities for programs in C. */
#define RAVO_STRING(name, id, text) /** #text */ RAVO_API extern const RavoResourceString name;
#include <ravo/utils/messages.inc>
#undef RAVO_STRING

#ifdef __cplusplus
}
#endif
