#include "amount.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <span>
#include <vector>

namespace tool {
namespace {

constexpr std::size_t kMostDecimals = ravo::Currency::kPlaces;
constexpr std::string_view kDecimalDigits = "0123456789";
constexpr std::string_view kWideMinus = "\u2212";
// Blank, no-break, narrow no-break, thin.
constexpr std::array<std::string_view, 4> kBlanks = {" ", "\u00A0", "\u202F", "\u2009"};
constexpr std::array<std::string_view, 6> kCurrencies = {"Kč", "kč", "KČ", "€", "$", "£"};
// After a comma in place of decimals.
constexpr std::array<std::string_view, 4> kDashes = {"--", "-", "–", "—"};

template <class Choices>
std::string_view LeadingOf(std::string_view text, const Choices& choices) {
  const auto found = std::ranges::find_if(choices, [&](auto choice) { return text.starts_with(choice); });
  return found == choices.end() ? std::string_view() : *found;
}

bool IsCode(std::string_view text) {
  return text.size() == 3 && std::ranges::all_of(text, [](char c) { return c >= 'A' && c <= 'Z'; });
}

std::string WithoutBlanks(std::string_view text) {
  std::string without;
  while (!text.empty()) {
    const std::string_view blank = LeadingOf(text, kBlanks);
    if (blank.empty()) without += text.front();
    text.remove_prefix(std::max<std::size_t>(blank.size(), 1));
  }
  return without;
}

// Whether a text is nothing but blanks and at most one currency.
bool IsUnit(std::string_view text) {
  const std::string unit = WithoutBlanks(text);
  return unit.empty() || IsCode(unit) || std::ranges::find(kCurrencies, unit) != kCurrencies.end();
}

bool IsCrowns(std::string_view unit) {
  return unit.find("CZK") != std::string_view::npos ||
         std::ranges::any_of(std::span(kCurrencies).first(3),
                             [&](auto name) { return unit.find(name) != std::string_view::npos; });
}

// The parts of a text around its digits and separators.
struct AmountParts {
  Notation notation;
  bool is_negative = false;
  bool has_dash = false;  // ",-" in place of decimals
  std::string_view body;
};

void TakeSign(std::string_view& text, AmountParts& parts) {
  const bool is_wide = text.starts_with(kWideMinus);
  parts.is_negative = is_wide || text.starts_with('-');
  if (is_wide) parts.notation.minus = kWideMinus;
  if (is_wide) return text.remove_prefix(kWideMinus.size());
  if (parts.is_negative || text.starts_with('+')) text.remove_prefix(1);
}

// Takes the dash of "12,-".
void TakeDash(std::string_view& after, AmountParts& parts) {
  const std::string_view dash = after.starts_with(',') ? LeadingOf(after.substr(1), kDashes) : "";
  parts.has_dash = !dash.empty();
  if (parts.has_dash) after.remove_prefix(1 + dash.size());
}

std::optional<AmountParts> SplitAmount(std::string_view text) {
  const std::size_t first = std::min(text.find_first_of("0123456789.,+-"), text.find(kWideMinus));
  const std::size_t last = text.find_last_of(kDecimalDigits);
  if (last == std::string_view::npos || first > last) return {};
  AmountParts parts;
  std::string_view after = text.substr(last + 1);
  parts.notation.before = text.substr(0, first);
  parts.body = text.substr(first, last + 1 - first);
  TakeSign(parts.body, parts);
  TakeDash(after, parts);
  parts.notation.after = after;
  if (!IsUnit(parts.notation.before) || !IsUnit(after)) return {};
  return parts;
}

// A body split at its separators.
struct AmountPieces {
  std::vector<std::string_view> digits;
  std::vector<std::string_view> separators;
};

std::optional<AmountPieces> SplitDigits(std::string_view body) {
  AmountPieces pieces;
  for (;;) {
    const std::size_t length = std::min(body.find_first_not_of(kDecimalDigits), body.size());
    pieces.digits.push_back(body.substr(0, length));
    body.remove_prefix(length);
    if (body.empty()) return pieces;
    const std::string_view blank = LeadingOf(body, kBlanks);
    const bool is_point = body.front() == '.' || body.front() == ',';
    if (blank.empty() && !is_point) return {};
    pieces.separators.push_back(is_point ? body.substr(0, 1) : blank);
    body.remove_prefix(pieces.separators.back().size());
  }
}

// The pieces of an amount; a dash stands for decimals, so that what separates before it separates groups.
std::optional<AmountPieces> PiecesOf(const AmountParts& parts) {
  std::optional<AmountPieces> pieces = SplitDigits(parts.body);
  if (!pieces || !parts.has_dash) return pieces;
  pieces->digits.emplace_back();
  pieces->separators.emplace_back(",");
  return pieces;
}

bool IsDecimalPoint(std::string_view separator) { return separator == "." || separator == ","; }

// The last separator is the decimal one unless it is a blank or one of several of its kind.
bool HasDecimals(const AmountPieces& pieces) {
  return !pieces.separators.empty() && IsDecimalPoint(pieces.separators.back()) &&
         std::ranges::count(pieces.separators, pieces.separators.back()) == 1;
}

bool AreGroups(std::span<const std::string_view> digits, std::span<const std::string_view> separators) {
  if (separators.empty()) return true;
  const bool same = std::ranges::all_of(separators, [&](auto each) { return each == separators.front(); });
  return same && !digits.front().empty() && digits.front().size() <= 3 && digits.front() != "0" &&
         std::ranges::all_of(digits.subspan(1), [](auto group) { return group.size() == 3; });
}

char DecimalOf(const AmountPieces& pieces, const Notation& notation, bool has_decimals) {
  if (has_decimals) return pieces.separators.back().front();
  if (!notation.group.empty()) return notation.group == "," ? '.' : ',';
  return IsCrowns(notation.before) || IsCrowns(notation.after) ? ',' : '.';
}

bool HasUnit(const Notation& notation) {
  return !WithoutBlanks(notation.before).empty() || !WithoutBlanks(notation.after).empty();
}

// Amounts of money have two decimals, so three digits look like a group of thousands. A comma before crowns
// is a decimal one all the same: in crowns it does not separate thousands.
bool IsAmbiguous(const AmountPieces& pieces, const Notation& notation) {
  if (pieces.separators.size() != 1 || !IsDecimalPoint(pieces.separators.front())) return false;
  const std::string_view whole = pieces.digits[0];
  const bool is_group = pieces.digits[1].size() == 3 && !whole.empty() && whole.size() <= 3 && whole != "0";
  const bool is_crowns = IsCrowns(notation.before) || IsCrowns(notation.after);
  return is_group && HasUnit(notation) && (pieces.separators.front() == "." || !is_crowns);
}

std::string_view WithoutTrailingZeros(std::string_view digits) {
  return digits.substr(0, digits.find_last_not_of('0') + 1);
}

std::variant<Amount, AmountFault> AmountOf(AmountParts parts, std::string digits) {
  // The digits keep their sign, so the smallest amount is read within 64 bits.
  if (parts.is_negative) digits.insert(0, 1, '-');
  std::int64_t raw = 0;
  if (std::from_chars(digits.data(), digits.data() + digits.size(), raw).ec != std::errc())
    return AmountFault::Range;
  return Amount{{raw}, std::move(parts.notation)};
}

}  // namespace

std::variant<Amount, AmountFault> ReadAmount(std::string_view utf8) {
  std::optional<AmountParts> parts = SplitAmount(utf8);
  const std::optional<AmountPieces> pieces = parts ? PiecesOf(*parts) : std::nullopt;
  if (!pieces) return AmountFault::NotAnAmount;
  const bool has_decimals = HasDecimals(*pieces);
  const std::span digits(pieces->digits);
  const auto whole = digits.first(digits.size() - (has_decimals ? 1 : 0));
  const auto separators = std::span(pieces->separators).first(whole.size() - 1);
  if (!AreGroups(whole, separators)) return AmountFault::Groups;
  const std::string_view decimals = WithoutTrailingZeros(has_decimals ? digits.back() : std::string_view());
  if (decimals.size() > kMostDecimals) return AmountFault::Decimals;
  if (IsAmbiguous(*pieces, parts->notation)) return AmountFault::Ambiguous;
  if (!separators.empty()) parts->notation.group = separators.front();
  parts->notation.decimal = DecimalOf(*pieces, parts->notation, has_decimals);
  std::string all;
  for (const std::string_view group : whole) all += group;
  return AmountOf(std::move(*parts), all.append(decimals).append(kMostDecimals - decimals.size(), '0'));
}

std::optional<ravo::Currency> ParseAmount(std::string_view utf8) {
  const auto read = ReadAmount(utf8);
  const Amount* const amount = std::get_if<Amount>(&read);
  return amount ? std::optional(amount->value) : std::nullopt;
}

Notation NotationAsked(const Notation& input, std::string_view name) {
  if (name == "plain") return {};
  Notation notation = input;
  if (name == "input") return notation;
  const bool is_czech = name == "cs";
  notation.group = is_czech ? "\u00A0" : ",";
  notation.decimal = is_czech ? ',' : '.';
  return notation;
}

std::string AmountText(ravo::Currency amount, const Notation& notation) {
  const auto bits = static_cast<std::uint64_t>(amount.raw);
  std::string digits = std::to_string(amount.raw < 0 ? 0 - bits : bits);
  if (digits.size() <= kMostDecimals) digits.insert(0, kMostDecimals + 1 - digits.size(), '0');
  const std::size_t whole = digits.size() - kMostDecimals;
  digits.insert(whole, 1, notation.decimal);
  for (int i = 0; i < 2 && digits.back() == '0'; ++i) digits.pop_back();
  for (std::size_t at = whole; at > 3;) digits.insert(at -= 3, notation.group);
  return notation.before + (amount.raw < 0 ? notation.minus : "") + digits + notation.after;
}

}  // namespace tool
