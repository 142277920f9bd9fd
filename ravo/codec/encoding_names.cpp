// Lookup of encodings by name.
#include <ravo/codec/encoding.h>
#include <ravo/runtime/text.h>

#include <algorithm>

namespace ravo::codec {
namespace {

// Removes the next letter or digit from a name and returns it in lower case; 0 at its end.
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

// Compares with the label, with and without its part in parentheses.
bool HasLabel(const Encoding& row, std::string_view name) {
  return SameName(row.label, name) || SameName(row.label.substr(0, row.label.find(" (")), name);
}

bool HasName(const Encoding& row, std::string_view name) {
  if (SameName(row.name, name)) return true;
  for (std::string_view rest = row.aliases; !rest.empty();) {
    const std::size_t length = std::min(rest.find(' '), rest.size());
    if (SameName(rest.substr(0, length), name)) return true;
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }
  return false;
}

template <class Test>
const Encoding* FindRow(Test test) {
  const auto rows = Encodings();
  const auto found = std::ranges::find_if(rows, test);
  return found == rows.end() ? nullptr : &*found;
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

// Returns a number without the prefix "cp", in any case, and its separator.
std::string_view WithoutCp(std::string_view name) {
  if (name.size() < 2 || (name[0] | 0x20) != 'c' || (name[1] | 0x20) != 'p') return name;
  name.remove_prefix(2);
  if (name.starts_with('-') || name.starts_with('_') || name.starts_with(' ')) name.remove_prefix(1);
  return name;
}

}  // namespace

const Encoding* FindEncoding(std::string_view name) noexcept {
  if (std::string_view rest = name; NextLetter(rest) == 0) return nullptr;
  if (const auto* const row = FindRow([name](const Encoding& each) { return HasName(each, name); }))
    return row;
  if (const auto* const row = FindEncoding(NumberOf(WithoutCp(name)))) return row;
  return FindRow([name](const Encoding& row) { return HasLabel(row, name); });
}

const Encoding* FindEncoding(std::uint32_t code_page) noexcept {
  if (code_page == 0) return nullptr;
  return FindRow([code_page](const Encoding& row) { return row.code_page == code_page; });
}

}  // namespace ravo::codec
