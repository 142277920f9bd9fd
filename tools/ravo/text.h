#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

/// The program's texts for people. The English text in the source is the key of its translation
/// in po/cs.po; tools/generate/texts.py collects the keys and compiles the translations in. "{0}" to "{9}"
/// stand for values. Nothing that a script reads (JSON keys, codes, kinds) goes through here.
namespace tool {

/// The text in the user's language, with the values in their places.
std::string Text(std::string_view english, std::initializer_list<std::string_view> values = {});

/// The text for a count in the plural form that the user's language has for it. "{0}" is the count, "{1}" the
/// first value.
std::string TextOf(std::int64_t count, std::string_view one, std::string_view many,
                   std::initializer_list<std::string_view> values = {});

/// A text in a table of constants, for `Text` to translate where it is shown.
constexpr const char* ToTranslate(const char* english) { return english; }

}  // namespace tool
