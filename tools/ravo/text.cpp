#include "text.h"

#include "language.h"
#include "translation.h"

#include <vector>

namespace tool {
namespace {

bool IsPlace(std::string_view text, std::size_t at, std::size_t values) {
  return text[at] == '{' && at + 2 < text.size() && text[at + 2] == '}' && text[at + 1] >= '0' &&
         static_cast<std::size_t>(text[at + 1] - '0') < values;
}

template <class Values>
std::string Filled(std::string_view text, const Values& values) {
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!IsPlace(text, at, values.size())) {
      filled += text[at];
      continue;
    }
    filled += values.begin()[text[at + 1] - '0'];
    at += 2;
  }
  return filled;
}

const Translation* Translated(std::string_view english) {
  return CurrentLanguage() == Language::Czech ? CzechOf(english) : nullptr;
}

// 1 řádek, 2 řádky, 5 řádků; 21 řádků.
std::size_t CzechForm(std::int64_t count) {
  if (count == 1) return 0;
  return count >= 2 && count <= 4 ? 1 : 2;
}

}  // namespace

std::string Text(std::string_view english, std::initializer_list<std::string_view> values) {
  const Translation* const translated = Translated(english);
  return Filled(translated ? translated->forms[0] : english, values);
}

std::string TextOf(std::int64_t count, std::string_view one, std::string_view many,
                   std::initializer_list<std::string_view> values) {
  const std::string number = std::to_string(count);
  std::vector<std::string_view> all{number};
  all.insert(all.end(), values.begin(), values.end());
  if (const Translation* const translated = Translated(one))
    return Filled(translated->forms[CzechForm(count)], all);
  return Filled(count == 1 ? one : many, all);
}

}  // namespace tool
