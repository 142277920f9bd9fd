#pragma once

#include <ravo/RavoManager_TLB.h>

/// What this module knows of the host's portal box: its operations, in the order of the host's operation
/// table. One operation more or less than `IRavoBox` declares, and this file does not compile.
#define BOX_OPERATIONS(OPERATION)                \
  OPERATION(get_Name, (char16_t** name))         \
  OPERATION(put_Name, (const char16_t* name))    \
  OPERATION(get_Count, (std::int32_t * count))   \
  OPERATION(get_Unread, (std::int32_t * count))  \
  OPERATION(Receive, (std::int32_t messages))    \
  OPERATION(MarkAsRead, (std::int32_t messages)) \
  OPERATION(Remove, (std::int32_t messages))     \
  OPERATION(Clear, ())                           \
  OPERATION(Refresh, ())

RAVO_OPERATIONS(HostBox, ravo::RavoManager_TLB::IRavoBox, BOX_OPERATIONS);

/// The dispatch identifiers under which a late-binding client finds some of them.
inline constexpr std::int32_t kBoxCount = 3;
inline constexpr std::int32_t kBoxReceive = 5;
