#include <ravo/czech/reading.h>
#include <ravo/czech/symbols.h>

#include <algorithm>
#include <cstddef>

namespace ravo::czech {
namespace {

constexpr std::size_t kSymbolDigits = 10;

constexpr detail::Spelling kVsSpelling{Code::VsEmpty,  Code::VsCharacter,
                                       Code::VsLength, detail::kDigit,
                                       detail::kBlank, {"VARIABILNISYMBOL", "VARSYMBOL", "VARSYM", "VS"}};
constexpr detail::Spelling kKsSpelling{Code::KsEmpty,  Code::KsCharacter,
                                       Code::KsLength, detail::kDigit,
                                       detail::kBlank, {"KONSTANTNISYMBOL", "KONSTSYMBOL", "KONSTSYM", "KS"}};
constexpr detail::Spelling kSsSpelling{Code::SsEmpty,  Code::SsCharacter,
                                       Code::SsLength, detail::kDigit,
                                       detail::kBlank, {"SPECIFICKYSYMBOL", "SPECSYMBOL", "SPECSYM", "SS"}};

// A symbol with no more leading zeros than make it `least` digits long.
template <class Symbol, class Unit>
Parsed<Symbol> ParseSymbol(std::basic_string_view<Unit> text, const detail::Spelling& spelling,
                           std::size_t least) noexcept {
  const auto kept = detail::Read<kSymbolDigits>(text, spelling);
  if (kept.code != Code::Correct) return {{}, kept.code, kept.position};
  if (kept.At(0) != '0' && kept.Size() >= least) return {Symbol{kept.text}};
  const std::string_view digits = kept.View();
  const std::string_view significant = digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
  Symbol symbol;
  for (std::size_t size = significant.size(); size < least; ++size) symbol.text.Append('0');
  symbol.text.Append(significant);
  return {symbol};
}

}  // namespace

#define RAVO_SYMBOL(name, spelling, least)                      \
  Parsed<name> Parse##name(std::string_view text) noexcept {    \
    return ParseSymbol<name>(text, spelling, least);            \
  }                                                             \
  Parsed<name> Parse##name(std::u16string_view text) noexcept { \
    return ParseSymbol<name>(text, spelling, least);            \
  }
RAVO_SYMBOL(VariableSymbol, kVsSpelling, 1)
RAVO_SYMBOL(ConstantSymbol, kKsSpelling, 4)
RAVO_SYMBOL(SpecificSymbol, kSsSpelling, 1)
#undef RAVO_SYMBOL

}  // namespace ravo::czech
