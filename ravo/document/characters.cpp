#include "characters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <utility>

namespace ravo::document {
namespace {

struct CharacterRange {
  char32_t first;
  char32_t last;
};

// Past ASCII.
constexpr auto kNameStarts = std::to_array<CharacterRange>({{0xC0, 0xD6},
                                                            {0xD8, 0xF6},
                                                            {0xF8, 0x2FF},
                                                            {0x370, 0x37D},
                                                            {0x37F, 0x1FFF},
                                                            {0x200C, 0x200D},
                                                            {0x2070, 0x218F},
                                                            {0x2C00, 0x2FEF},
                                                            {0x3001, 0xD7FF},
                                                            {0xF900, 0xFDCF},
                                                            {0xFDF0, 0xFFFD},
                                                            {0x10000, 0xEFFFF}});
constexpr auto kNameOthers = std::to_array<CharacterRange>({{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}});

enum class NameUse : std::uint8_t { None, Later, Start };

constexpr auto kAsciiNames = [] {
  std::array<NameUse, 0x80> uses{};
  for (const char ch : std::string_view("-.0123456789"))
    uses[static_cast<unsigned char>(ch)] = NameUse::Later;
  for (std::size_t ch = 'A'; ch <= 'Z'; ++ch) uses[ch] = uses[ch + 0x20] = NameUse::Start;
  uses[':'] = uses['_'] = NameUse::Start;
  return uses;
}();

template <std::size_t kCount>
bool IsIn(const std::array<CharacterRange, kCount>& ranges, char32_t c) {
  for (const auto [first, last] : ranges) {
    if (c >= first && c <= last) return true;
  }
  return false;
}

constexpr auto kFive = std::to_array<std::pair<std::string_view, char32_t>>(
    {{"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}, {"&apos;", '\''}});

char32_t CharacterOfNumber(std::string_view digits) {
  const int base = digits.starts_with('x') ? 16 : 10;
  if (base == 16) digits.remove_prefix(1);
  std::uint32_t value = 0;
  const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  const bool whole = error == std::errc() && stop == digits.data() + digits.size() && !digits.empty();
  return whole && IsXmlCharacter(value) ? value : 0;
}

// Returns the length of the characters that are accepted, as are all of ASCII from `least` on.
template <class Accepts>
std::size_t LengthOf(std::string_view text, unsigned char least, Accepts accepts) {
  std::size_t at = 0;
  while (at < text.size()) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte >= least && byte < 0x80) {
      ++at;
      continue;
    }
    const auto [c, size] = FirstCharacter(text.substr(at));
    if (size == 0 || !accepts(c)) break;
    at += size;
  }
  return at;
}

NameUse NameUseOf(char32_t c) {
  if (c < kAsciiNames.size()) return kAsciiNames[c];
  if (IsIn(kNameStarts, c)) return NameUse::Start;
  return IsIn(kNameOthers, c) ? NameUse::Later : NameUse::None;
}

}  // namespace

bool IsXmlCharacter(char32_t c) {
  if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
  return c < 0xD800 || (c >= 0xE000 && c < 0xFFFE) || (c >= 0x10000 && c <= 0x10FFFF);
}

void AppendUtf8(char32_t c, std::string& to) {
  if (c < 0x80) {
    to += static_cast<char>(c);
    return;
  }
  const std::size_t size = c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
  to += static_cast<char>((0xF00U >> size & 0xFFU) | c >> 6 * (size - 1));
  for (std::size_t i = size - 1; i > 0; --i) to += static_cast<char>(0x80U | (c >> 6 * (i - 1) & 0x3FU));
}

std::size_t FindBadCharacter(std::string_view text) { return LengthOf(text, 0x20, IsXmlCharacter); }

std::size_t EndOfXmlName(std::string_view text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size()) {
    const auto [c, size] = FirstCharacter(text.substr(end));
    const NameUse use = size == 0 ? NameUse::None : NameUseOf(c);
    if (use == NameUse::None || (use == NameUse::Later && end == at)) break;
    end += size;
  }
  return end;
}

bool IsXmlName(std::string_view text) { return !text.empty() && EndOfXmlName(text, 0) == text.size(); }

std::string CodePointName(char32_t c) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "U+%04X", static_cast<unsigned>(c));
  return text.data();
}

// The next ";" may be far away: only a reference is scanned.
std::string_view ReferenceAt(std::string_view text, std::size_t at) {
  constexpr std::string_view kDigits = "0123456789abcdefABCDEFx";
  const bool is_number = text.substr(at + 1).starts_with('#');
  const std::size_t end =
      is_number ? std::min(text.find_first_not_of(kDigits, at + 2), text.size()) : EndOfXmlName(text, at + 1);
  return end > at + 1 && text.substr(end).starts_with(';') ? text.substr(at, end + 1 - at)
                                                           : std::string_view();
}

std::string_view NameOfReference(std::string_view reference) {
  return reference.empty() ? reference : reference.substr(1, reference.size() - 2);
}

char32_t CharacterOfReference(std::string_view reference) {
  for (const auto& [name, c] : kFive) {
    if (name == reference) return c;
  }
  return reference.starts_with("&#") ? CharacterOfNumber(NameOfReference(reference).substr(1)) : 0;
}

}  // namespace ravo::document
