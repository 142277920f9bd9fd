#include "text.h"

#include "language.h"
#include "translation.h"
#include <ravo/document/message.h>

#include <vector>

namespace tool {
namespace {

using ravo::document::FilledIn;

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
  return FilledIn(translated ? translated->forms[0] : english, values);
}

std::string TextOf(std::int64_t count, std::string_view one, std::string_view many,
                   std::initializer_list<std::string_view> values) {
  const std::string number = std::to_string(count);
  std::vector<std::string_view> all{number};
  all.insert(all.end(), values.begin(), values.end());
  if (const Translation* const translated = Translated(one))
    return FilledIn(translated->forms[CzechForm(count)], all);
  return FilledIn(count == 1 ? one : many, all);
}

}  // namespace tool
