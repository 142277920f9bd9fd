#include <ravo/codec/codecs.h>
#include <ravo/runtime/text.h>
#include <ravo/unicode/encodings.h>

#include <algorithm>
#include <array>

namespace ravo::DIUnicode {
namespace {

namespace codecs = codec::codecs;
using codec::SpanTarget;

#define RAVO_METHODS_Both(name) &Read_##name, &Write_##name
#define RAVO_METHODS_ReadOnly(name) &Read_##name, nullptr
#define RAVO_METHODS_WriteOnly(name) nullptr, &Write_##name
#define RAVO_ENCODING(name, label, code_page, aliases, engine, ways, table, sources, notes) \
  {#name, label, code_page, aliases, #engine, notes, RAVO_METHODS_##ways(name)},
constexpr EncodingRow kRows[] = {
#include <ravo/codec/rows.inc>
};
#undef RAVO_ENCODING

// The next letter or digit of a name, lower case; 0 at its end.
char NextLetter(std::string_view& name) {
  while (!name.empty()) {
    const auto ch = static_cast<unsigned char>(name.front());
    name.remove_prefix(1);
    if (IsAsciiLetter(ch) || (ch >= '0' && ch <= '9')) return static_cast<char>(AsciiLower(ch));
  }
  return 0;
}

bool SameName(std::string_view left, std::string_view right) {
  for (;;) {
    const char ch = NextLetter(left);
    if (ch != NextLetter(right)) return false;
    if (ch == 0) return true;
  }
}

// A label with or without what it says in parentheses.
bool HasLabel(const EncodingRow& row, std::string_view name) {
  return SameName(row.label, name) || SameName(row.label.substr(0, row.label.find(" (")), name);
}

bool HasName(const EncodingRow& row, std::string_view name) {
  if (SameName(row.name, name)) return true;
  for (std::string_view rest = row.aliases; !rest.empty();) {
    const std::size_t length = std::min(rest.find(' '), rest.size());
    if (SameName(rest.substr(0, length), name)) return true;
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }
  return false;
}

template <class Test>
const EncodingRow* FindRow(Test test) {
  const auto* const found = std::ranges::find_if(kRows, test);
  return found == std::end(kRows) ? nullptr : found;
}

std::uint32_t NumberOf(std::string_view digits) {
  // Untested: a name without a letter or digit is refused before.
  if (digits.empty() || digits.size() > 6) return 0;
  std::uint32_t number = 0;
  for (const char ch : digits) {
    if (ch < '0' || ch > '9') return 0;
    number = number * 10 + static_cast<std::uint32_t>(ch - '0');
  }
  return number;
}

// "cp" in any case and a separator, if there are any, taken off a number.
std::string_view WithoutCp(std::string_view name) {
  if (name.size() < 2 || (name[0] | 0x20) != 'c' || (name[1] | 0x20) != 'p') return name;
  name.remove_prefix(2);
  if (name.starts_with('-') || name.starts_with('_') || name.starts_with(' ')) name.remove_prefix(1);
  return name;
}

using EncodeAlone = bool (*)(SpanTarget& target, char16_t ch);

// Untested: runs at compile time only.
template <class Codec>
constexpr EncodeAlone EncodeAloneBy() {
  if constexpr (codecs::HasState<Codec>) {
    return [](SpanTarget& target, char16_t ch) {
      codec::Utf7State state;
      Codec::Encode(target, state, ch);
      Codec::Flush(target, state);
      return true;
    };
  } else {
    return [](SpanTarget& target, char16_t ch) { return Codec::Encode(target, ch); };
  }
}

#define RAVO_ALONE_Both(name) EncodeAloneBy<codecs::name>(),
#define RAVO_ALONE_ReadOnly(name) nullptr,
#define RAVO_ALONE_WriteOnly RAVO_ALONE_Both
#define RAVO_ENCODING(name, label, code_page, aliases, engine, ways, table, sources, notes) \
  RAVO_ALONE_##ways(name)
constexpr EncodeAlone kEncodeAlone[] = {
#include <ravo/codec/rows.inc>
};
#undef RAVO_ENCODING

}  // namespace

std::span<const EncodingRow> EncodingRows() noexcept { return kRows; }

const EncodingRow* FindEncoding(std::string_view name) noexcept {
  if (std::string_view rest = name; NextLetter(rest) == 0) return nullptr;
  if (const auto* const row = FindRow([name](const EncodingRow& each) { return HasName(each, name); }))
    return row;
  if (const auto* const row = FindEncodingByCodePage(NumberOf(WithoutCp(name)))) return row;
  return FindRow([name](const EncodingRow& row) { return HasLabel(row, name); });
}

const EncodingRow* FindEncodingByCodePage(std::uint32_t code_page) noexcept {
  if (code_page == 0) return nullptr;
  return FindRow([code_page](const EncodingRow& row) { return row.code_page == code_page; });
}

std::vector<std::uint8_t> EncodedCharacter(const EncodingRow& encoding, char16_t ch) {
  // "+", three bytes of base 64 and "-" are the most.
  std::array<std::uint8_t, 8> bytes{};
  SpanTarget target(bytes);
  const auto row = FindRow([&](const EncodingRow& each) { return each.write == encoding.write; });
  if (encoding.write == nullptr || row == nullptr) return {};
  if (!kEncodeAlone[row - kRows](target, ch)) return {};
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(target.Count())};
}

}  // namespace ravo::DIUnicode
