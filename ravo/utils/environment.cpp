#include <ravo/platform/diagnostics.h>
#include <ravo/platform/registry.h>
#include <ravo/platform/system.h>
#include <ravo/utils/ansi_text.h>
#include <ravo/utils/environment.h>
#include <ravo/utils/strings/narrow.h>

namespace ravo::DIUtils {
namespace {

using platform::RegistryRoot;
using utils::Wide;

constexpr std::u16string_view kCurrentVersion = u"Software\\Microsoft\\Windows NT\\CurrentVersion";

bool EndsSentence(char16_t unit) { return unit < 33 || unit == u'.'; }

}  // namespace

std::u16string RegReadStrDef(RegistryRoot root, std::u16string_view key, std::u16string_view value,
                             std::u16string_view fallback) {
  return RegReadStrDefW(root, key, value, fallback);
}
std::string RegReadStrDefA(RegistryRoot root, std::string_view key, std::string_view value,
                           std::string_view fallback) {
  return WStrToAStr(RegReadStrDefW(root, Wide(key), Wide(value), Wide(fallback)));
}
std::u16string RegReadStrDefW(RegistryRoot root, std::u16string_view key, std::u16string_view value,
                              std::u16string_view fallback) {
  const auto open = platform::Registry().OpenKey(root, key);
  auto text = open ? open->StoredText(value) : std::nullopt;
  if (!text) return std::u16string(fallback);
  // Kept: the last unit of the stored text is cut off unseen; it is the terminating zero of a text that the
  // system stored. Test: RegReadStrDef.CutsTheLastUnitOffWhateverItIs
  if (!text->empty()) text->pop_back();
  return std::move(*text);
}

std::string RegReadRegisteredOwnerA() { return WStrToAStr(RegReadRegisteredOwnerW()); }
std::u16string RegReadRegisteredOwnerW() {
  return RegReadStrDefW(RegistryRoot::LocalMachine, kCurrentVersion, u"RegisteredOwner", u"");
}

std::string RegReadRegisteredOrganizationA() { return WStrToAStr(RegReadRegisteredOrganizationW()); }
std::u16string RegReadRegisteredOrganizationW() {
  return RegReadStrDefW(RegistryRoot::LocalMachine, kCurrentVersion, u"RegisteredOrganization", u"");
}

std::u16string SysErrorMessage(std::uint32_t code) { return SysErrorMessageW(code); }
std::string SysErrorMessageA(std::uint32_t code) { return WStrToAStr(SysErrorMessageW(code)); }
std::u16string SysErrorMessageW(std::uint32_t code) {
  std::u16string text = platform::Diagnostics().ErrorText(code);
  while (!text.empty() && EndsSentence(text.back())) text.pop_back();
  return text;
}

std::u16string LastSysErrorMessage() { return LastSysErrorMessageW(); }
std::string LastSysErrorMessageA() { return SysErrorMessageA(platform::Diagnostics().LastErrorCode()); }
std::u16string LastSysErrorMessageW() { return SysErrorMessageW(platform::Diagnostics().LastErrorCode()); }

bool GetUserNameA(std::string& name) {
  std::u16string wide;
  const bool known = GetUserNameW(wide);
  name = WStrToAStr(wide);
  return known;
}
bool GetUserNameW(std::u16string& name) {
  name = platform::System().UserName();
  return !name.empty();
}

platform::TextSize TextExtentW(platform::DeviceContext device, std::u16string_view text) {
  return platform::System().TextExtent(device, text).value_or(platform::TextSize{});
}
std::int32_t TextWidthW(platform::DeviceContext device, std::u16string_view text) {
  return TextExtentW(device, text).width;
}
std::int32_t TextHeightW(platform::DeviceContext device, std::u16string_view text) {
  return TextExtentW(device, text).height;
}

}  // namespace ravo::DIUtils
