#include <ravo/czech/ean.h>
#include <ravo/czech/reading.h>

#include <cstddef>

namespace ravo::czech {
namespace {

constexpr std::size_t kEanDigits = 14;
constexpr detail::Spelling kEanSpelling{Code::EanEmpty,
                                        Code::EanCharacter,
                                        Code::EanLength,
                                        detail::kDigit,
                                        detail::kBlank | detail::kHyphen,
                                        {"EAN8", "EAN13", "EAN14", "EAN", "GTIN", "UPC"}};

template <class Unit>
Parsed<Ean> ParseEanIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<kEanDigits>(text, kEanSpelling);
  if (kept.code != Code::Correct) return {{}, kept.code, kept.position};
  const std::string_view digits = kept.View();
  if (digits.size() != 8 && digits.size() < 12) return {{}, Code::EanLength, text.size()};
  if (detail::EanCheckDigit(digits.substr(0, digits.size() - 1)) != digits.back()) {
    return detail::Refuse<Ean>(text, kEanSpelling, kept.from, digits.size() - 1, Code::EanChecksum);
  }
  return {{kept.text}};
}

}  // namespace

Parsed<Ean> ParseEan(std::string_view text) noexcept { return ParseEanIn(text); }
Parsed<Ean> ParseEan(std::u16string_view text) noexcept { return ParseEanIn(text); }

}  // namespace ravo::czech
