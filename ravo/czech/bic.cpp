#include <ravo/czech/bic.h>
#include <ravo/czech/reading.h>

#include <algorithm>
#include <cstddef>

namespace ravo::czech {
namespace {

constexpr detail::Spelling kBicSpelling{Code::BicEmpty,
                                        Code::BicCharacter,
                                        Code::BicLength,
                                        detail::kDigit | detail::kLetter,
                                        detail::kBlank | detail::kHyphen,
                                        {"BIC", "SWIFT"}};
constexpr std::size_t kBicLetters = 6;
constexpr std::size_t kBicShort = 8;
constexpr std::size_t kBicLong = 11;

constexpr std::size_t LetterCount(std::string_view text) noexcept {
  std::size_t count = 0;
  while (count < text.size() && text[count] >= 'A') ++count;
  return count;
}

template <class Unit>
Parsed<Bic> ParseBicIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<kBicLong>(text, kBicSpelling);
  if (kept.code != Code::Correct) return {{}, kept.code, kept.position};
  const std::size_t letters = std::min(kept.Size(), kBicLetters);
  const std::size_t odd = LetterCount(kept.View().substr(0, letters));
  if (odd < letters) return detail::Refuse<Bic>(text, kBicSpelling, kept.from, odd, Code::BicForm);
  if (kept.Size() != kBicShort && kept.Size() != kBicLong) return {{}, Code::BicLength, text.size()};
  return {{kept.text}};
}

}  // namespace

Parsed<Bic> ParseBic(std::string_view text) noexcept { return ParseBicIn(text); }
Parsed<Bic> ParseBic(std::u16string_view text) noexcept { return ParseBicIn(text); }

}  // namespace ravo::czech
