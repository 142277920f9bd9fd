#include <ravo/czech/reason.h>

#include <algorithm>
#include <iterator>

namespace ravo::czech {
namespace {

struct Reason {
  Code code;
  std::string_view text;
  std::string_view czech;
  std::string_view english;
};

// By code, ascending.
constexpr Reason kReasons[] = {
    {Code::Correct, "correct", "správně utvořeno", "correct in form"},
#define RAVO_REASON(number, name, text, czech, english) \
  {Code::name, text, "chybně: " czech, "wrong: " english},
#include "reasons.inc"
#undef RAVO_REASON
};
static_assert(std::ranges::is_sorted(kReasons, {}, &Reason::code));

const Reason* Find(Code code) noexcept {
  const auto* const found = std::ranges::lower_bound(kReasons, code, {}, &Reason::code);
  return found != std::end(kReasons) && found->code == code ? found : nullptr;
}

}  // namespace

std::string_view CodeText(Code code) noexcept {
  const Reason* const reason = Find(code);
  return reason ? reason->text : std::string_view();
}

std::optional<Code> CodeOf(std::string_view text) noexcept {
  const auto* const found = std::ranges::find(kReasons, text, &Reason::text);
  if (found == std::end(kReasons)) return std::nullopt;
  return found->code;
}

std::string_view Sentence(Code code, Language language) noexcept {
  const Reason* const reason = Find(code);
  if (!reason) return {};
  return language == Language::Czech ? reason->czech : reason->english;
}

}  // namespace ravo::czech
