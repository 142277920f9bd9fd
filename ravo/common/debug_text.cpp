#include <ravo/common/debug_text.h>
#include <ravo/platform/diagnostics.h>

namespace ravo::RavoInterfaceCommon {

void DebugStr(std::u16string_view text) { platform::Diagnostics().DebugOutput(text); }

}  // namespace ravo::RavoInterfaceCommon
