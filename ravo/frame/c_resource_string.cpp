#include <ravo/frame/c_resource_string.h>
#include <ravo/frame/resource_string.h>

const uint16_t* RavoReadText(const RavoResourceString* string, int32_t* length) {
  const ravo::ResourceString text{string->Id, reinterpret_cast<const char16_t*>(string->Text)};
  const std::u16string_view view = text.View();
  *length = static_cast<std::int32_t>(view.size());
  return reinterpret_cast<const std::uint16_t*>(view.data());
}
