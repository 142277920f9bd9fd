#pragma once

#include <ravo/RavoManager_TLB.h>

/// The host's portal box as this module declares it: its operations, in the order of the host's operation
/// table. If their number differs from that of `IRavoBox`, this file does not compile.
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

/// The dispatch identifiers of some operations, for late-bound clients.
inline constexpr std::int32_t kBoxCount = 3;
inline constexpr std::int32_t kBoxReceive = 5;
