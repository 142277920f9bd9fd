#include <ravo/frame/module_record.h>
#include <ravo/frame/resource_string.h>

namespace ravo {

std::u16string_view ResourceString::View() const {
  const platform::Machine& machine = platform::CurrentMachine();
  const auto [own, in_force] = frame::CurrentResourcePlaces();
  if (in_force && in_force != own) {
    if (const auto text = machine.ResourceText(in_force, id)) return *text;
  }
  return machine.ResourceText(own, id).value_or(built_in);
}

std::u16string PlainCaption(std::u16string_view caption) {
  std::u16string plain(caption);
  std::erase(plain, u'&');
  return plain;
}

}  // namespace ravo
