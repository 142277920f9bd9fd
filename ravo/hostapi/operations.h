#pragma once

#include <ravo/runtime/component.h>

/* Adds the host's own operations to a declared interface. A module writes its list of operations once, in the
 * order of the host's operation table:
 *
 *     #define BOX_OPERATIONS(OPERATION)           \
 *       OPERATION(get_Name, (char16_t** name))    \
 *       OPERATION(put_Name, (const char16_t* name)) ...
 *
 *     RAVO_OPERATIONS(HostBox, ravo::RavoManager_TLB::IRavoBox, BOX_OPERATIONS);
 *
 * `HostBox` is then an abstract class below `IRavoBox` with these operations. It answers to the identifier of
 * `IRavoBox`, so that `pointer.Query<HostBox>()` gives it. A list that is longer or shorter than the
 * interface says does not compile. */
#define RAVO_OPERATIONS(Name, Interface, LIST)                               \
  struct Name : Interface {                                                  \
    LIST(RAVO_DECLARE_OPERATION)                                             \
                                                                             \
   protected:                                                                \
    ~Name() = default;                                                       \
  };                                                                         \
  static_assert((0 LIST(RAVO_COUNT_OPERATION)) == Interface::kOwnOperations, \
                #Name " has not as many operations as " #Interface " declares")

/// One operation of a list: returns a `ResultCode` and throws nothing.
#define RAVO_DECLARE_OPERATION(name, parameters) \
  virtual ravo::ResultCode RAVO_STDCALL name parameters noexcept = 0;

#define RAVO_COUNT_OPERATION(name, parameters) +1
