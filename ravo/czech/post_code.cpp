#include <ravo/czech/post_code.h>
#include <ravo/czech/reading.h>

namespace ravo::czech {
namespace {

constexpr detail::Spelling kPostCodeSpelling{Code::PostCodeEmpty,  Code::PostCodeCharacter,
                                             Code::PostCodeLength, detail::kDigit,
                                             detail::kBlank,       {"PSC"}};

template <class Unit>
Parsed<PostCode> ParsePostCodeIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<5>(text, kPostCodeSpelling);
  if (kept.code != Code::Correct) return {{}, kept.code, kept.position};
  if (kept.Size() < 5) return {{}, Code::PostCodeLength, text.size()};
  if (kept.At(0) < '1' || kept.At(0) > '7') {
    return detail::Refuse<PostCode>(text, kPostCodeSpelling, kept.from, 0, Code::PostCodeFirst);
  }
  return {{kept.text}};
}

}  // namespace

Parsed<PostCode> ParsePostCode(std::string_view text) noexcept { return ParsePostCodeIn(text); }
Parsed<PostCode> ParsePostCode(std::u16string_view text) noexcept { return ParsePostCodeIn(text); }

FixedText<6> Format(const PostCode& code) noexcept {
  auto text = Fixed<6>(code.text.View().substr(0, 3));
  text.Append(' ');
  text.Append(code.text.View().substr(3));
  return text;
}

}  // namespace ravo::czech
