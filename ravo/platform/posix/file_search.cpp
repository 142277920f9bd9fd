#include <ravo/platform/posix/file_search.h>
#include <ravo/platform/posix/open_folder.h>
#include <ravo/runtime/text.h>

#include <algorithm>

#include <sys/stat.h>

namespace ravo::platform::posix {
namespace {

bool Exists(const std::string& path) {
  struct stat facts {};
  return stat(path.c_str(), &facts) == 0;
}

// Returns the smallest of the matching names; empty if none matches.
std::string FirstMatch(const std::string& folder, std::u16string_view pattern) {
  const OpenFolder open(opendir(folder.empty() ? "." : folder.c_str()));
  std::string first;
  while (const dirent* entry = open ? readdir(open.get()) : nullptr) {
    const std::string_view name = entry->d_name;
    if ((first.empty() || name < first) && MatchesPattern(FromUtf8(name), pattern)) first = name;
  }
  return first;
}

}  // namespace

bool MatchesPattern(std::u16string_view name, std::u16string_view pattern) noexcept {
  if (pattern == u"*.*") return true;
  std::size_t at = 0;
  std::size_t in_pattern = 0;
  // The positions to resume at if the text of the last "*" must be longer.
  std::size_t behind_star = pattern.npos;
  std::size_t star_end = 0;
  while (at < name.size()) {
    if (in_pattern < pattern.size() && pattern[in_pattern] == u'*') {
      behind_star = ++in_pattern;
      star_end = at;
    } else if (in_pattern < pattern.size() &&
               (pattern[in_pattern] == u'?' || pattern[in_pattern] == name[at])) {
      ++in_pattern;
      ++at;
    } else if (behind_star != pattern.npos) {
      in_pattern = behind_star;
      at = ++star_end;
    } else {
      return false;
    }
  }
  return std::ranges::all_of(pattern.substr(in_pattern), [](char16_t unit) { return unit == u'*'; });
}

std::optional<std::string> FirstFound(const std::string& path) {
  if (path.ends_with('/')) return std::nullopt;
  if (Exists(path)) return path;
  const std::size_t name = path.rfind('/') + 1;
  if (path.find_first_of("*?", name) == std::string::npos) return std::nullopt;
  const std::string folder = path.substr(0, name);
  const std::string found = FirstMatch(folder, FromUtf8(std::string_view(path).substr(name)));
  return found.empty() ? std::nullopt : std::optional(folder + found);
}

}  // namespace ravo::platform::posix
