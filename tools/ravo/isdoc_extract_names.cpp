#include "isdoc_extract.h"
#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>

namespace tool {
namespace {

constexpr std::size_t kLongestName = 120;

std::u16string LastComponent(std::u16string_view name) {
  const std::size_t slash = name.find_last_of(u"/\\");
  return std::u16string(slash == std::u16string_view::npos ? name : name.substr(slash + 1));
}

// Characters that a file system refuses, or that a reader cannot see.
bool MayStand(char16_t c) {
  constexpr std::u16string_view kRefused = u"<>:\"/\\|?*";
  const bool invisible = c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0xAD || (c >= 0x200B && c <= 0x200F) ||
                         (c >= 0x2028 && c <= 0x202E) || (c >= 0x2060 && c <= 0x206F) || c == 0xFEFF ||
                         c >= 0xFFF0;
  return !invisible && kRefused.find(c) == std::u16string_view::npos;
}

std::u16string Folded(std::u16string text) {
  for (char16_t& c : text) c = ravo::DIUnicode::CharToCaseFoldW(c);
  return text;
}

// Names of devices on Windows, whatever their extension.
bool IsReserved(std::u16string_view name) {
  std::u16string stem = Folded(std::u16string(name.substr(0, name.find(u'.'))));
  while (stem.ends_with(u' ')) stem.pop_back();
  static const std::set<std::u16string> kDevices{u"con", u"prn", u"aux", u"nul", u"conin$", u"conout$"};
  const bool numbered = (stem.starts_with(u"com") || stem.starts_with(u"lpt")) && stem.size() == 4 &&
                        std::u16string_view(u"0123456789¹²³").find(stem[3]) != std::u16string_view::npos;
  return numbered || kDevices.contains(stem);
}

bool IsLowSurrogate(char16_t c) { return c >= 0xDC00 && c < 0xE000; }

struct StemAndExtension {
  std::u16string stem;
  std::u16string extension;
};

StemAndExtension Divided(const std::u16string& name) {
  constexpr std::size_t kLongestExtension = 16;
  const std::size_t dot = name.rfind(u'.');
  if (dot == std::u16string::npos || dot == 0 || name.size() - dot > kLongestExtension) return {name, {}};
  return {name.substr(0, dot), name.substr(dot)};
}

// Windows drops blanks and dots at the end of a name.
void TrimEnd(std::u16string& name) {
  while (name.ends_with(u' ') || name.ends_with(u'.')) name.pop_back();
}

// Shortens the stem, between two characters, so that `mark` has room too.
std::u16string Joined(StemAndExtension parts, const std::u16string& mark) {
  const std::size_t room = kLongestName - parts.extension.size() - mark.size();
  if (parts.stem.size() > room) parts.stem.resize(IsLowSurrogate(parts.stem[room]) ? room - 1 : room);
  TrimEnd(parts.stem);
  return parts.stem + mark + parts.extension;
}

std::u16string Safe(const std::string& name) {
  std::u16string safe = LastComponent(ravo::FromUtf8(name));
  for (char16_t& c : safe) c = MayStand(c) ? c : u'_';
  TrimEnd(safe);
  while (safe.starts_with(u' ')) safe.erase(0, 1);
  if (safe.empty()) return u"part";
  if (safe[0] == u'.' || safe[0] == u'-') safe[0] = u'_';
  if (IsReserved(safe)) safe.insert(0, 1, u'_');
  return Joined(Divided(safe), {});
}

}  // namespace

std::vector<std::string> SafeNames(const std::vector<ContainerPart>& parts) {
  std::set<std::u16string> taken;
  std::vector<std::string> names;
  for (const ContainerPart& part : parts) {
    const std::u16string safe = Safe(part.name);
    std::u16string name = safe;
    for (std::size_t number = 2; !taken.insert(Folded(name)).second; ++number)
      name = Joined(Divided(safe), ravo::FromUtf8("-" + std::to_string(number)));
    names.push_back(ravo::ToUtf8(name));
  }
  return names;
}

}  // namespace tool
