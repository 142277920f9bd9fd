#include "support.h"
#include <ravo/czech/kinds.h>

#include <iterator>

using ravo::c::CheckUtf8;
using ravo::c::Fail;
using ravo::c::FailArgument;
using ravo::c::FailWrong;
using ravo::c::ReadAnyText;
using ravo::c::ReadText;
using ravo::c::WriteFixed;
namespace czech = ravo::czech;

namespace {

czech::Language LanguageOf(ravo_language language) {
  return language == RAVO_LANGUAGE_CZECH ? czech::Language::Czech : czech::Language::English;
}

bool IsLanguage(ravo_language language) {
  return language == RAVO_LANGUAGE_CZECH || language == RAVO_LANGUAGE_ENGLISH;
}

// Texts of rows are literals, which end with NUL.
const char* Literal(std::string_view text) { return text.empty() ? nullptr : text.data(); }

// Every number outside of the codes becomes 0xFFFF, which no code has.
czech::Code CodeOf(std::int32_t code) {
  return static_cast<czech::Code>(code > 0 && code <= 0xFFFF ? code : 0xFFFF);
}

czech::Kind KindOf(ravo_kind kind) { return static_cast<czech::Kind>(kind > 0 && kind <= 0xFF ? kind : 0); }

// Kinds are numbered from 1, without gaps.
#define RAVO_KIND(number, name, text, parse, in_czech, in_english) czech::Kind::name,
constexpr czech::Kind kKindList[] = {
#include <ravo/czech/kinds.inc>
};
#undef RAVO_KIND
constexpr auto kKinds = static_cast<ravo_kind>(std::size(kKindList));
static_assert(static_cast<ravo_kind>(kKindList[kKinds - 1]) == kKinds);

[[gnu::cold]] ravo_status FailCheck(std::string_view text, czech::Code code, std::size_t position,
                                    ravo_error* error) noexcept {
  const ravo_status status = CheckUtf8(text, error);
  return status != RAVO_OK ? status : FailWrong(error, code, position);
}

template <class Check>
ravo_status Checked(ravo_kind kind, const char* text, std::size_t text_length, const ravo::c::TextOut& out,
                    ravo_error* error, Check check) noexcept {
  if (kind < 1 || kind > kKinds) return FailArgument(error, "the kind is unknown");
  const czech::Kind known = KindOf(kind);
  const auto [input, status] = ReadAnyText(text, text_length, error);
  if (status != RAVO_OK) return status;
  const auto answer = check(known, input);
  // A text that is correct in form is UTF-8: only refused ones are looked at.
  if (!answer) return FailCheck(input, answer.code, answer.position, error);
  return WriteFixed(out, answer.value, error);
}

}  // namespace

const char* ravo_reason_name(int32_t code) { return Literal(czech::CodeText(CodeOf(code))); }

const char* ravo_reason_sentence(int32_t code, ravo_language language) {
  if (!IsLanguage(language)) return nullptr;
  return Literal(czech::Sentence(CodeOf(code), LanguageOf(language)));
}

ravo_status ravo_reason_of(const char* name, size_t name_length, int32_t* code, ravo_error* error) {
  if (code == nullptr) return FailArgument(error, "the result is null");
  const auto [input, status] = ReadText(name, name_length, error);
  if (status != RAVO_OK) return status;
  const auto found = czech::CodeOf(input);
  if (!found) return Fail(error, {RAVO_UNKNOWN, 0, 0, "there is no reason of that name"});
  *code = static_cast<int32_t>(*found);
  return RAVO_OK;
}

const char* ravo_kind_name(ravo_kind kind) { return Literal(czech::KindText(KindOf(kind))); }

const char* ravo_kind_title(ravo_kind kind, ravo_language language) {
  if (!IsLanguage(language)) return nullptr;
  return Literal(czech::KindName(KindOf(kind), LanguageOf(language)));
}

ravo_status ravo_kind_of(const char* name, size_t name_length, ravo_kind* kind, ravo_error* error) {
  if (kind == nullptr) return FailArgument(error, "the result is null");
  const auto [input, status] = ReadText(name, name_length, error);
  if (status != RAVO_OK) return status;
  const auto found = czech::KindOf(input);
  if (!found) return Fail(error, {RAVO_UNKNOWN, 0, 0, "there is no kind of that name"});
  *kind = static_cast<ravo_kind>(*found);
  return RAVO_OK;
}

ravo_status ravo_check(ravo_kind kind, const char* text, size_t text_length, char* buffer, size_t size,
                       size_t* length, ravo_error* error) {
  return Checked(kind, text, text_length, {buffer, size, length}, error,
                 [](czech::Kind known, std::string_view input) { return czech::Check(known, input); });
}

ravo_status ravo_respell(ravo_kind kind, const char* text, size_t text_length, char* buffer, size_t size,
                         size_t* length, ravo_error* error) {
  return Checked(kind, text, text_length, {buffer, size, length}, error,
                 [](czech::Kind known, std::string_view input) { return czech::Respell(known, input); });
}
