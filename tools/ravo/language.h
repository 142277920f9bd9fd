#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

/// The language of what the program says to people.
namespace tool {

enum class Language : std::uint8_t { English, Czech };

/// Returns the language of a name such as "cs", "cs_CZ.UTF-8" or "en-GB"; no value for any other language.
[[nodiscard]] std::optional<Language> LanguageNamed(std::string_view name);

/// The value of an environment variable, or null.
using Variable = std::function<const char*(const char* name)>;

/// Returns the user's language: that of the first of RAVO_LANG, LANGUAGE, LC_ALL, LC_MESSAGES and LANG that
/// is set, otherwise that of the system (`system`, empty if unknown). LANGUAGE is a list, separated by ":";
/// as everywhere, it does not count in the locale "C". English for any language without a translation.
[[nodiscard]] Language UsersLanguage(const Variable& variable, std::string_view system);

/// The language in which `Text` answers; English until it is set.
[[nodiscard]] Language CurrentLanguage();
void SetLanguage(Language language);

}  // namespace tool
