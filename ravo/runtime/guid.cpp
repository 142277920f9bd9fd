#include <ravo/runtime/guid.h>

namespace ravo {

std::u16string Guid::ToText() const {
  std::u16string text = u"{00000000-0000-0000-0000-000000000000}";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    text.replace(1 + detail::kGuidDigitPlaces[i], 2, ToHex(bytes[i], 2));
  }
  return text;
}

}  // namespace ravo
