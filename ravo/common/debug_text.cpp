#include <ravo/common/debug_text.h>
#include <ravo/platform/machine.h>

namespace ravo::RavoInterfaceCommon {

void DebugStr(std::u16string_view text) { platform::CurrentMachine().DebugOutput(text); }

}  // namespace ravo::RavoInterfaceCommon
