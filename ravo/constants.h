#pragma once

/** The library's constants for a host in C: the identifiers of the host's object model (`IID_`, `LIBID_`,
 * `CLASS_`), the class identifiers of the modules, and the captions and messages, each under its name in the
 * suite. A host that loads the library at run time looks them up by these names, as data:
 *
 *     const RavoGuid* box = (const RavoGuid*)dlsym(library, "IID_IRavoBox");
 *
 * C++ programs have the same constants in the headers of the modules, each in its module's namespace. */
#include <ravo/catalogue/c_constants.h>
#include <ravo/hostapi/c_constants.h>
#include <ravo/sysinfo/c_constants.h>
#include <ravo/unicode/c_constants.h>
#include <ravo/utils/c_constants.h>
