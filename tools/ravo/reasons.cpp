#include "reasons.h"

#include "text.h"
#include "user_language.h"

#include <algorithm>
#include <iterator>

namespace tool {
namespace {

struct ReasonRow {
  std::string_view code;
  std::string_view text;
};

// In the order of Reason.
constexpr ReasonRow kRows[kOwnReasons] = {
    {"invalid", ToTranslate("not valid")},
    {"empty", ToTranslate("empty")},
    {"too-long", ToTranslate("too long")},
    {"no-check-digit", ToTranslate("without check digit")},
    {"wrong-check-digit", ToTranslate("wrong check digit")},
    {"ragged", ToTranslate("another number of fields")},
    {"open-quote", ToTranslate("a quote is never closed")},
    {"text-after-quote", ToTranslate("text after a closing quote")},
    {"wrong-byte", ToTranslate("a byte that is not of the encoding")},
};

constexpr ravo::czech::Code kCzechCodes[] = {
#define RAVO_REASON(number, name, text, sentence, english) ravo::czech::Code::name,
#include <ravo/czech/reasons.inc>
#undef RAVO_REASON
};

std::size_t PlaceOf(Reason reason) { return static_cast<std::size_t>(reason); }

}  // namespace

Reason ReasonOf(ravo::czech::Code code) noexcept {
  const auto* const found = std::ranges::lower_bound(kCzechCodes, code);
  return static_cast<Reason>(kOwnReasons + static_cast<std::size_t>(found - std::begin(kCzechCodes)));
}

std::string_view CodeOf(Reason reason) noexcept {
  const std::size_t place = PlaceOf(reason);
  return place < kOwnReasons ? kRows[place].code : ravo::czech::CodeText(kCzechCodes[place - kOwnReasons]);
}

std::string Described(Reason reason) {
  const std::size_t place = PlaceOf(reason);
  if (place < kOwnReasons) return Text(kRows[place].text);
  return std::string(ravo::czech::Sentence(kCzechCodes[place - kOwnReasons], UserLanguage()));
}

std::string DescribedRagged(std::size_t fields, std::size_t wanted) {
  return TextOf(static_cast<std::int64_t>(fields), "one field, not {1}", "{0} fields, not {1}",
                {std::to_string(wanted)});
}

}  // namespace tool
