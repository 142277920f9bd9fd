#include <ravo/runtime/wide_string.h>

#include <limits>

#include <ole2.h>

// Automation texts are `wchar_t` text, which has the same 16-bit units as ours.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

namespace ravo {

char16_t* AllocateWideText(const char16_t* text, std::size_t units) noexcept {
  if (units > std::numeric_limits<UINT>::max() / sizeof(wchar_t)) return nullptr;
  return reinterpret_cast<char16_t*>(
      SysAllocStringLen(reinterpret_cast<const wchar_t*>(text), static_cast<UINT>(units)));
}

std::size_t WideTextLength(const char16_t* text) noexcept {
  return SysStringLen(reinterpret_cast<wchar_t*>(const_cast<char16_t*>(text)));
}

void FreeWideText(char16_t* text) noexcept { SysFreeString(reinterpret_cast<wchar_t*>(text)); }

}  // namespace ravo
