#include <ravo/czech/account.h>
#include <ravo/czech/bic.h>
#include <ravo/czech/birth_number.h>
#include <ravo/czech/dic.h>
#include <ravo/czech/ean.h>
#include <ravo/czech/iban.h>
#include <ravo/czech/ico.h>
#include <ravo/czech/isbn.h>
#include <ravo/czech/kinds.h>
#include <ravo/czech/post_code.h>
#include <ravo/czech/symbols.h>
#include <ravo/czech/vat_number.h>

#include <algorithm>
#include <iterator>

namespace ravo::czech {
namespace {

constexpr Kind kKinds[] = {
#define RAVO_KIND(number, name, text, parse, czech, english) Kind::name,
#include "kinds.inc"
#undef RAVO_KIND
};

struct KindRow {
  Kind kind;
  std::string_view text;
  std::string_view czech;
  std::string_view english;
};
constexpr KindRow kKindRows[] = {
#define RAVO_KIND(number, name, text, parse, czech, english) {Kind::name, text, czech, english},
#include "kinds.inc"
#undef RAVO_KIND
};

const KindRow* RowOf(Kind kind) noexcept {
  const auto* const found = std::ranges::find(kKindRows, kind, &KindRow::kind);
  return found == std::end(kKindRows) ? nullptr : found;
}

template <class Value>
FixedText<34> Canonical(const Value& value) noexcept {
  return Resized<34>(value.text);
}
FixedText<34> Canonical(const Account& account) noexcept { return detail::AccountText<34>(account); }

// `spell` makes the text of a value that is correct in form.
template <class Text, class Value, class Spell>
Parsed<Text> Spelled(const Parsed<Value>& parsed, Spell spell) noexcept {
  if (!parsed) return {{}, parsed.code, parsed.position};
  return {spell(parsed.value)};
}

template <class Text, class Unit, class Spell>
Parsed<Text> CheckAs(Kind kind, std::basic_string_view<Unit> text, Spell spell) noexcept {
  switch (kind) {
#define RAVO_KIND(number, name, id, parse, czech, english) \
  case Kind::name:                                         \
    return Spelled<Text>(parse(text), spell);
#include "kinds.inc"
#undef RAVO_KIND
  }
  return {};
}

template <class Unit>
Parsed<FixedText<34>> CheckIn(Kind kind, std::basic_string_view<Unit> text) noexcept {
  return CheckAs<FixedText<34>>(kind, text, [](const auto& value) { return Canonical(value); });
}

// Most accounts come in the usual spelling, which needs no second one.
Parsed<FixedText<34>> CheckAccount(std::string_view text) noexcept {
  const detail::ReadAccount read = detail::ReadAccountText(text);
  if (read.usual) return {Fixed<34>(text)};
  return Spelled<FixedText<34>>(read.parsed, [](const Account& account) { return Canonical(account); });
}

template <class Unit>
Parsed<FixedText<42>> RespellIn(Kind kind, std::basic_string_view<Unit> text) noexcept {
  return CheckAs<FixedText<42>>(kind, text, [](const auto& value) { return Resized<42>(Format(value)); });
}

}  // namespace

std::span<const Kind> AllKinds() noexcept { return kKinds; }

std::string_view KindText(Kind kind) noexcept {
  const KindRow* const row = RowOf(kind);
  return row ? row->text : std::string_view();
}

std::optional<Kind> KindOf(std::string_view text) noexcept {
  const auto* const found = std::ranges::find(kKindRows, text, &KindRow::text);
  if (found == std::end(kKindRows)) return std::nullopt;
  return found->kind;
}

std::string_view KindName(Kind kind, Language language) noexcept {
  const KindRow* const row = RowOf(kind);
  if (!row) return {};
  return language == Language::Czech ? row->czech : row->english;
}

Parsed<FixedText<34>> Check(Kind kind, std::string_view text) noexcept {
  return kind == Kind::Account ? CheckAccount(text) : CheckIn(kind, text);
}
Parsed<FixedText<34>> Check(Kind kind, std::u16string_view text) noexcept { return CheckIn(kind, text); }
Code Refusal(Kind kind, std::string_view text) noexcept {
  switch (kind) {
#define RAVO_KIND(number, name, id, parse, czech, english) \
  case Kind::name:                                         \
    return parse(text).code;
#include "kinds.inc"
#undef RAVO_KIND
  }
  return Code::Correct;
}
Parsed<FixedText<42>> Respell(Kind kind, std::string_view text) noexcept { return RespellIn(kind, text); }
Parsed<FixedText<42>> Respell(Kind kind, std::u16string_view text) noexcept { return RespellIn(kind, text); }

}  // namespace ravo::czech
