#include <ravo/runtime/error.h>
#include <ravo/runtime/wide_string.h>

#include <cstdint>
#include <limits>
#include <new>

namespace ravo {
namespace {

// The length is stored in bytes, as a 32-bit number.
constexpr std::size_t kMostUnits = std::numeric_limits<std::uint32_t>::max() / sizeof(char16_t);

}  // namespace

WideString::WideString(std::u16string_view text) {
  if (text.empty()) return;
  if (text.size() > kMostUnits) throw RangeError(u"Range check error");
  text_ = AllocateWideText(text.data(), text.size());
  if (!text_) throw std::bad_alloc();
}

WideString::~WideString() { FreeWideText(text_); }

WideString WideString::Adopt(char16_t* text) noexcept {
  WideString adopted;
  adopted.text_ = text;
  return adopted;
}

std::size_t WideString::Length() const noexcept { return text_ ? WideTextLength(text_) : 0; }

}  // namespace ravo
