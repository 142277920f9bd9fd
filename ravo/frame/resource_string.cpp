#include <ravo/frame/c_resource_string.h>
#include <ravo/frame/module_record.h>
#include <ravo/frame/resource_string.h>

namespace ravo {

std::u16string_view ResourceString::View() const {
  const auto [own, in_force] = frame::CurrentResourcePlaces();
  const platform::ResourceCalls& resources = platform::Resources();
  if (in_force && in_force != own) {
    if (const auto text = resources.ResourceText(in_force, id)) return *text;
  }
  return resources.ResourceText(own, id).value_or(built_in);
}

std::u16string PlainCaption(std::u16string_view caption) {
  std::u16string plain(caption);
  std::erase(plain, u'&');
  return plain;
}

}  // namespace ravo

const uint16_t* RavoReadText(const RavoResourceString* string, int32_t* length) {
  const ravo::ResourceString text{string->Id, reinterpret_cast<const char16_t*>(string->Text)};
  const std::u16string_view view = text.View();
  *length = static_cast<std::int32_t>(view.size());
  return reinterpret_cast<const std::uint16_t*>(view.data());
}
