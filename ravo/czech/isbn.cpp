#include <ravo/czech/ean.h>
#include <ravo/czech/isbn.h>
#include <ravo/czech/isbn_ranges.h>
#include <ravo/czech/reading.h>

#include <cstddef>

namespace ravo::czech {
namespace {

constexpr std::size_t kShortIsbn = 10;
constexpr std::size_t kLongIsbn = 13;
constexpr detail::Spelling kIsbnSpelling{Code::IsbnEmpty,
                                         Code::IsbnCharacter,
                                         Code::IsbnLength,
                                         detail::kDigit | detail::kLetter,
                                         detail::kBlank | detail::kHyphen,
                                         {"ISBN10", "ISBN13", "ISBN"}};

// Of nine digits, with weights 1 to 9.
constexpr char IsbnCheckDigit(std::string_view digits) noexcept {
  int sum = 0;
  for (std::size_t i = 0; i < 9; ++i) sum += (digits[i] - '0') * static_cast<int>(i + 1);
  return sum % 11 == 10 ? 'X' : static_cast<char>('0' + sum % 11);
}

struct IsbnFault {
  Code code = Code::Correct;
  std::size_t index = 0;
};

constexpr IsbnFault CheckShort(std::string_view isbn) noexcept {
  if (IsbnCheckDigit(isbn) != isbn[9]) return {Code::IsbnChecksum, 9};
  return {};
}

constexpr IsbnFault CheckLong(std::string_view isbn) noexcept {
  if (!isbn.starts_with("978") && !isbn.starts_with("979")) return {Code::IsbnPrefix, 0};
  if (isbn.starts_with("9790")) return {Code::IsbnPrefix, 3};
  if (detail::EanCheckDigit(isbn.substr(0, 12)) != isbn[12]) return {Code::IsbnChecksum, 12};
  return {};
}

// The first letter that is no X in the tenth and last place; the length otherwise.
constexpr std::size_t OddLetter(std::string_view isbn) noexcept {
  const std::size_t odd = detail::FirstNoDigit(isbn);
  return odd == 9 && isbn.size() == kShortIsbn && isbn[9] == 'X' ? isbn.size() : odd;
}

template <class Unit>
Parsed<Isbn> ParseIsbnIn(std::basic_string_view<Unit> text) noexcept {
  const auto kept = detail::Read<kLongIsbn>(text, kIsbnSpelling);
  if (kept.code != Code::Correct) return {{}, kept.code, kept.position};
  const auto refuse = [&](std::size_t index, Code code) {
    return detail::Refuse<Isbn>(text, kIsbnSpelling, kept.from, index, code);
  };
  const std::size_t odd = OddLetter(kept.View());
  if (odd < kept.Size()) return refuse(odd, Code::IsbnCharacter);
  if (kept.Size() != kShortIsbn && kept.Size() != kLongIsbn) return {{}, Code::IsbnLength, text.size()};
  const IsbnFault fault = kept.Size() == kShortIsbn ? CheckShort(kept.View()) : CheckLong(kept.View());
  if (fault.code != Code::Correct) return refuse(fault.index, fault.code);
  return {{kept.text}};
}

}  // namespace

Parsed<Isbn> ParseIsbn(std::string_view text) noexcept { return ParseIsbnIn(text); }
Parsed<Isbn> ParseIsbn(std::u16string_view text) noexcept { return ParseIsbnIn(text); }

Isbn ToIsbn13(const Isbn& isbn) noexcept {
  if (isbn.text.size == kLongIsbn) return isbn;
  Isbn result{Fixed<kLongIsbn>("978")};
  result.text.Append(isbn.text.View().substr(0, 9));
  result.text.Append(detail::EanCheckDigit(result.text.View()));
  return result;
}

FixedText<17> Format(const Isbn& isbn) noexcept {
  const bool is_long = isbn.text.size == kLongIsbn;
  const Isbn full = ToIsbn13(isbn);
  const detail::IsbnParts parts = detail::IsbnPartsOf(full.text.View());
  if (parts.group == 0) return Fixed<17>(isbn.text.View());
  const std::string_view digits = full.text.View().substr(3);
  auto text = Fixed<17>(is_long ? full.text.View().substr(0, 3) : std::string_view());
  if (is_long) text.Append('-');
  text.Append(digits.substr(0, parts.group));
  text.Append('-');
  text.Append(digits.substr(parts.group, parts.publisher));
  text.Append('-');
  text.Append(digits.substr(parts.group + parts.publisher, 9 - parts.group - parts.publisher));
  text.Append('-');
  text.Append(isbn.text.View().back());
  return text;
}

}  // namespace ravo::czech
