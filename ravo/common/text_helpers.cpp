#include <ravo/common/text_helpers.h>
#include <ravo/platform/diagnostics.h>
#include <ravo/runtime/checked.h>

namespace ravo::RavoInterfaceCommon {

std::int32_t CharPosition(std::u16string_view text, char16_t ch, std::int32_t n) {
  std::int32_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == ch && ++count == n) return CheckedCast<std::int32_t>(i + 1);
  }
  return 0;
}

void DebugStr(std::u16string_view text) { platform::Diagnostics().DebugOutput(text); }

}  // namespace ravo::RavoInterfaceCommon
