#include <ravo/czech/ico.h>
#include <ravo/czech/reading.h>
#include <ravo/czech/weights.h>

namespace ravo::czech {
namespace {

constexpr detail::Spelling kIcoSpelling{Code::IcoEmpty, Code::IcoCharacter, Code::IcoLength,
                                        detail::kDigit, detail::kBlank,     {"ICO", "IC"}};

template <class Unit>
Parsed<Ico> ParseIcoIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<8>(text, kIcoSpelling);
  if (kept.code != Code::Correct) return {{}, kept.code, kept.position};
  if (kept.Size() < 8) return {{}, Code::IcoLength, text.size()};
  if (detail::IcoCheckDigit(kept.text.characters.data()) != kept.At(7)) {
    return detail::Refuse<Ico>(text, kIcoSpelling, kept.from, 7, Code::IcoChecksum);
  }
  return {{kept.text}};
}

}  // namespace

Parsed<Ico> ParseIco(std::string_view text) noexcept { return ParseIcoIn(text); }
Parsed<Ico> ParseIco(std::u16string_view text) noexcept { return ParseIcoIn(text); }

}  // namespace ravo::czech
