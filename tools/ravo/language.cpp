#include "language.h"

#include <algorithm>
#include <string>

namespace tool {
namespace {

Language current = Language::English;

std::string_view ValueOf(const Variable& variable, const char* name) {
  const char* const value = variable(name);
  return value ? value : std::string_view();
}

std::string_view Locale(const Variable& variable) {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
    if (const std::string_view value = ValueOf(variable, name); !value.empty()) return value;
  return {};
}

std::optional<Language> FirstNamed(std::string_view list) {
  while (!list.empty()) {
    const std::size_t end = std::min(list.find(':'), list.size());
    if (const auto language = LanguageNamed(list.substr(0, end))) return language;
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return {};
}

}  // namespace

std::optional<Language> LanguageNamed(std::string_view name) {
  const std::string_view code = name.substr(0, std::min(name.find_first_of("_-.@"), name.size()));
  std::string lower(code);
  for (char& letter : lower)
    letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
  if (lower == "cs") return Language::Czech;
  if (lower == "en") return Language::English;
  return {};
}

Language UsersLanguage(const Variable& variable, std::string_view system) {
  if (const auto own = LanguageNamed(ValueOf(variable, "RAVO_LANG"))) return *own;
  const std::string_view locale = Locale(variable);
  const std::string_view list = ValueOf(variable, "LANGUAGE");
  if (!list.empty() && locale != "C" && locale != "POSIX")
    return FirstNamed(list).value_or(Language::English);
  return LanguageNamed(locale.empty() ? system : locale).value_or(Language::English);
}

Language CurrentLanguage() { return current; }

void SetLanguage(Language language) { current = language; }

}  // namespace tool
