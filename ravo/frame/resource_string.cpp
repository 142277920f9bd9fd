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
