#include "uri.h"

#include <algorithm>
#include <cstddef>

namespace ravo::isdoc::schema {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";
constexpr std::string_view kDecimalDigits = "0123456789";
constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

// Takes and returns the text before the first of the dividers.
std::string_view TakeUntil(std::string_view& text, std::string_view dividers) {
  const std::string_view taken = text.substr(0, text.find_first_of(dividers));
  text.remove_prefix(taken.size());
  return taken;
}

bool Has(std::string_view text, std::string_view characters) {
  return text.find_first_of(characters) != std::string_view::npos;
}

bool HasOnly(std::string_view text, std::string_view characters) {
  return text.find_first_not_of(characters) == std::string_view::npos;
}

bool EscapesAreWhole(std::string_view text) {
  for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1)) {
    const std::string_view digits = text.substr(at + 1, 2);
    if (digits.size() < 2 || !HasOnly(digits, kHexDigits)) return false;
  }
  return true;
}

// Takes a scheme with its colon. False for a colon in the first part of the path that no scheme precedes.
bool TakeScheme(std::string_view& text) {
  const std::size_t end = text.find_first_of(":/?#");
  if (end == std::string_view::npos || text[end] != ':') return true;
  const std::string_view scheme = text.substr(0, end);
  text.remove_prefix(end + 1);
  if (scheme.empty() || !Has(scheme.substr(0, 1), kLetters)) return false;
  return std::ranges::all_of(scheme, [](char character) {
    return Has({&character, 1}, kLetters) || Has({&character, 1}, kDecimalDigits) ||
           Has({&character, 1}, "+-.");
  });
}

bool IsHost(std::string_view& rest) {
  if (!rest.starts_with('[')) return !Has(TakeUntil(rest, ":"), "[]@");
  const std::size_t end = rest.find(']');
  if (end == std::string_view::npos) return false;
  rest.remove_prefix(end + 1);
  return true;
}

bool IsAuthority(std::string_view text) {
  const std::size_t at = text.find('@');
  if (at != std::string_view::npos) {
    if (Has(text.substr(0, at), "[]")) return false;
    text.remove_prefix(at + 1);
  }
  if (!IsHost(text)) return false;
  return text.empty() || (text[0] == ':' && HasOnly(text.substr(1), kDecimalDigits));
}

}  // namespace

bool IsUriReference(std::string_view text) noexcept {
  if (!EscapesAreWhole(text) || !TakeScheme(text)) return false;
  if (text.starts_with("//")) {
    text.remove_prefix(2);
    if (!IsAuthority(TakeUntil(text, "/?#"))) return false;
  }
  const std::size_t fragment = text.find('#');
  return !Has(text, "[]") && (fragment == std::string_view::npos || !Has(text.substr(fragment + 1), "#"));
}

}  // namespace ravo::isdoc::schema
