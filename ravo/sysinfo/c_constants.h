#pragma once

#include <ravo/frame/c_resource_string.h>
#include <ravo/runtime/export.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Their names begin as the suite has them. */
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif

/* The captions of the support report for programs in C. */
#define RAVO_STRING(name, id, text) /** #text */ RAVO_API extern const RavoResourceString name;
#include <ravo/sysinfo/captions.inc>
#undef RAVO_STRING

#ifdef __clang__
#pragma clang diagnostic pop
#endif

#ifdef __cplusplus
}
#endif
