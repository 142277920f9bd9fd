#include "support.h"
#include <ravo/runtime/text.h>
#include <ravo/sysinfo/system_info.h>

using ravo::c::FailArgument;
using ravo::c::Guarded;
using ravo::c::WriteText;
namespace sysinfo = ravo::RavoInterfaceInfo;

static_assert(RAVO_MACHINE_CLIENT == static_cast<int>(sysinfo::siVisual));
static_assert(RAVO_MACHINE_BUSINESS == static_cast<int>(sysinfo::siBusiness));

ravo_status ravo_machine_report(ravo_machine_layer layer, char* buffer, size_t size, size_t* length,
                                ravo_error* error) {
  if (layer < RAVO_MACHINE_CLIENT || layer > RAVO_MACHINE_BUSINESS)
    return FailArgument(error, "the layer is unknown");
  return Guarded(error, [&] {
    sysinfo::TRavoSystemInfo info;
    const std::u16string report = info.AsText(static_cast<sysinfo::TRavoSystemInfoTyp>(layer));
    return WriteText({buffer, size, length}, ravo::ToUtf8(report), error);
  });
}
