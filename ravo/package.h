#pragma once

/** The package frame of RavoInterface for a host in C or C++: the module table, the module record and the
 * procedures that start and stop the library's modules. All names are plain C: undecorated, with the C
 * calling convention.
 *
 * On Windows the package description is also a resource of the library, so a host can read it without loading
 * the library: RCDATA `PACKAGEINFO`, little-endian and without padding,
 *
 *   uint32  flags (RAVO_PACKAGE_...)
 *   uint16  number of required run-time libraries
 *   uint16  number of contained modules
 *   then for each required library: its name, ASCII, ended by a zero byte
 *   then for each contained module: one byte of flags (RAVO_MODULE_...), its name, ASCII, ended by a zero
 * byte
 *
 * as well as RCDATA `DESCRIPTION` (UTF-16 text ended by a zero), the version record, the string table and an
 * empty type library (`TYPELIB`). On other systems `RavoPackageInfoTable.Description` has the same facts. */

/** The package is used at run time only, not in a designer. */
#define RAVO_PACKAGE_RUN_ONLY 0x1
/** The package is never rebuilt on demand. */
#define RAVO_PACKAGE_NEVER_BUILD 0x2
/** The module is a package, not an executable or a plain library. */
#define RAVO_PACKAGE_MODULE 0x4
/** The flags of this package. */
#define RAVO_PACKAGE_FLAGS (RAVO_PACKAGE_RUN_ONLY | RAVO_PACKAGE_NEVER_BUILD | RAVO_PACKAGE_MODULE)

/** The contained module is the main one. */
#define RAVO_MODULE_MAIN 0x1

#ifndef RC_INVOKED

#include <ravo/runtime/c_resource_text.h>
#include <ravo/runtime/export.h>
/* The C header: this file is compiled as C too. */
#include <stdint.h>  // NOLINT(modernize-deprecated-headers)

#ifdef __cplusplus
extern "C" {
#endif

/** A slot of the module table: the procedures that start and stop a module. Either may be null. */
typedef struct RavoPackageUnit {
  void (*Initialize)(void); /**< starts the module */
  void (*Finalize)(void);   /**< stops it */
} RavoPackageUnit;

/** The type information of the package. This build has no look-up of types at run time: `TypeCount` is 0 and
 * `TypeTable` null. `UnitNames` are the contained modules without the main one. */
typedef struct RavoPackageTypeInfo {
  int32_t TypeCount;            /**< 0 */
  const void* const* TypeTable; /**< null */
  int32_t UnitCount;            /**< names in `UnitNames` */
  const char* const* UnitNames; /**< ASCII, ended by a zero */
} RavoPackageTypeInfo;

/** A contained module. */
typedef struct RavoPackageModule {
  uint8_t Flags;    /**< RAVO_MODULE_... */
  const char* Name; /**< ASCII, ended by a zero */
} RavoPackageModule;

/** A string of the version record; texts are UTF-16, ended by a zero. */
typedef struct RavoVersionString {
  const char* Key;      /**< ASCII, ended by a zero */
  const uint16_t* Text; /**< its value */
} RavoVersionString;

/** The package description; texts are UTF-16, ended by a zero. */
typedef struct RavoPackageDescription {
  uint32_t Flags;                          /**< RAVO_PACKAGE_... */
  int32_t RequiredCount;                   /**< required run-time libraries */
  const char* const* RequiredNames;        /**< ASCII */
  int32_t ContainedCount;                  /**< contained modules */
  const RavoPackageModule* Contained;      /**< in the order of the package description */
  const uint16_t* Text;                    /**< title of the package */
  const uint16_t* TypeLibraryName;         /**< name of the empty type library */
  const uint16_t* TypeLibraryHelp;         /**< its help text */
  uint32_t TypeLibraryLocale;              /**< its language */
  int32_t VersionStringCount;              /**< strings of the version record */
  const RavoVersionString* VersionStrings; /**< in the order of the record */
} RavoPackageDescription;

/** A record of the process-wide list of loaded modules. Resource strings are looked up in `ResInstance`
 * first: the module itself, or a language module attached to it. The record owns a language module that a
 * host stores there: it is unloaded with the library, or when another one replaces it. At the end of a
 * process on Windows both are left to the system. */
typedef struct RavoModule {
  struct RavoModule* Next; /**< the module loaded before it, or null */
  void* Instance;          /**< the module itself */
  void* CodeInstance;      /**< null: the entry point clears it */
  void* DataInstance;      /**< null: the entry point clears it */
  void* ResInstance;       /**< first place to look up resource strings */
} RavoModule;

/** The module table. The slots are in dependency order: a module's slot comes after those of all modules that
 * it uses. The first slots belong to the required run-time libraries and are empty in this build. */
typedef struct RavoPackageInfoTable {
  int32_t UnitCount;                         /**< number of slots */
  const RavoPackageUnit* UnitInfo;           /**< the slots */
  RavoPackageTypeInfo TypeInfo;              /**< the type information */
  const RavoPackageDescription* Description; /**< the package description */
  RavoModule* Module;                        /**< the entry in the list of modules */
} RavoPackageInfoTable;

/** The types of the exported functions, for a host that loads the library at run time. */
typedef const RavoPackageInfoTable* (*RavoGetPackageInfoTable)(void);
typedef void (*RavoPackageProcedure)(void);

/** Returns the module table, which is valid as long as the library is loaded. */
RAVO_API const RavoPackageInfoTable* GetPackageInfoTable(void);

/** Starts all modules, from the first slot to the last; allocates no memory and cannot fail. Starts are
 * counted per module: only the first of nested starts does any work. The counters have no lock: start and
 * stop from one thread at a time. */
RAVO_API void Initialize(void);

/** Stops all modules, from the last slot to the first; only the stop that matches the first start does any
 * work. */
RAVO_API void Finalize(void);

/** `<Module>_Initialize` and `<Module>_Finalize` start and stop one module, counted in the same way. */
#define RAVO_MODULE(name, flags, uses)   \
  /** Starts the module #name. */        \
  RAVO_API void name##_Initialize(void); \
  /** Stops the module #name. */         \
  RAVO_API void name##_Finalize(void);
#include <ravo/frame/modules.inc>
#undef RAVO_MODULE

#ifdef __cplusplus
}
#endif

#endif /* RC_INVOKED */
