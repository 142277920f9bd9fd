#include "reasons.h"

#include "text.h"

namespace tool {
namespace {

struct ReasonRow {
  std::string_view code;
  std::string_view text;
};

// In the order of Reason.
constexpr ReasonRow kRows[kReasons] = {
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

const ReasonRow& RowOf(Reason reason) { return kRows[static_cast<std::size_t>(reason)]; }

}  // namespace

std::string_view CodeOf(Reason reason) noexcept { return RowOf(reason).code; }

std::string Described(Reason reason) { return Text(RowOf(reason).text); }

std::string DescribedRagged(std::size_t fields, std::size_t wanted) {
  return TextOf(static_cast<std::int64_t>(fields), "one field, not {1}", "{0} fields, not {1}",
                {std::to_string(wanted)});
}

}  // namespace tool
