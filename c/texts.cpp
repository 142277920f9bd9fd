#include "support.h"
#include <ravo/runtime/text.h>
#include <ravo/unicode/characters/mappings.h>
#include <ravo/utils/strings/letter_case.h>
#include <ravo/utils/strings/url.h>
#include <ravo/utils/strings/wildcards.h>

using ravo::c::Fail;
using ravo::c::FailNullResult;
using ravo::c::Guarded;
using ravo::c::ReadText;
using ravo::c::TextIn;
using ravo::c::TextOut;
using ravo::c::Units;
using ravo::c::WellFormedLength;
using ravo::c::WriteText;

namespace {

// Writes a text with each of its units mapped.
ravo_status Mapped(const TextIn& text, const TextOut& out, ravo_error* error, char16_t (*map)(char16_t)) {
  if (text.status != RAVO_OK) return text.status;
  return Guarded(error, [&] {
    std::u16string units(Units(text.text).View());
    std::ranges::transform(units, units.begin(), map);
    return WriteText(out, ravo::ToUtf8(units), error);
  });
}

// Writes the UTF-16 text that is made of a text.
ravo_status Made(const TextIn& text, const TextOut& out, ravo_error* error,
                 std::u16string (*make)(std::u16string_view)) {
  if (text.status != RAVO_OK) return text.status;
  return Guarded(error, [&] { return WriteText(out, ravo::ToUtf8(make(Units(text.text))), error); });
}

}  // namespace

ravo_status ravo_text_upper(const char* text, size_t text_length, char* buffer, size_t size, size_t* length,
                            ravo_error* error) {
  return Mapped(ReadText(text, text_length, error), {buffer, size, length}, error,
                [](char16_t unit) { return ravo::DIUnicode::CharToUpperW(unit); });
}

ravo_status ravo_text_lower(const char* text, size_t text_length, char* buffer, size_t size, size_t* length,
                            ravo_error* error) {
  return Mapped(ReadText(text, text_length, error), {buffer, size, length}, error,
                [](char16_t unit) { return ravo::DIUnicode::CharToLowerW(unit); });
}

ravo_status ravo_text_fold(const char* text, size_t text_length, char* buffer, size_t size, size_t* length,
                           ravo_error* error) {
  return Mapped(ReadText(text, text_length, error), {buffer, size, length}, error,
                [](char16_t unit) { return ravo::DIUnicode::CharToCaseFoldW(unit); });
}

ravo_status ravo_text_proper(const char* text, size_t text_length, char* buffer, size_t size, size_t* length,
                             ravo_error* error) {
  return Made(ReadText(text, text_length, error), {buffer, size, length}, error, ravo::DIUtils::ProperCaseW);
}

ravo_status ravo_text_match(const char* text, size_t text_length, const char* mask, size_t mask_length,
                            int32_t ignore_case, int32_t* answer, ravo_error* error) {
  return ravo_text_match_with(text, text_length, mask, mask_length, u'*', u'?', ignore_case, answer, error);
}

ravo_status ravo_text_match_with(const char* text, size_t text_length, const char* mask, size_t mask_length,
                                 uint16_t wild, uint16_t one, int32_t ignore_case, int32_t* answer,
                                 ravo_error* error) {
  if (answer == nullptr) return FailNullResult(error);
  const TextIn whole = ReadText(text, text_length, error);
  if (whole.status != RAVO_OK) return whole.status;
  const TextIn pattern = ReadText(mask, mask_length, error);
  if (pattern.status != RAVO_OK) return pattern.status;
  return Guarded(error, [&] {
    const auto match = ignore_case != 0 ? ravo::DIUtils::StrMatchWildIW : ravo::DIUtils::StrMatchWildW;
    *answer = match(Units(whole.text), Units(pattern.text), wild, one);
    return RAVO_OK;
  });
}

ravo_status ravo_url_encode(const char* text, size_t text_length, char* buffer, size_t size, size_t* length,
                            ravo_error* error) {
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &plain = input] {
    return WriteText({buffer, size, length}, ravo::DIUtils::StrEncodeUrlA(plain), error);
  });
}

ravo_status ravo_url_decode(const char* text, size_t text_length, char* buffer, size_t size, size_t* length,
                            ravo_error* error) {
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &encoded = input] {
    const std::string decoded = ravo::DIUtils::StrDecodeUrlA(encoded);
    const std::size_t good = WellFormedLength(decoded);
    if (good != decoded.size()) return Fail(error, {RAVO_UTF8, 0, good, "the decoded text is not UTF-8"});
    return WriteText({buffer, size, length}, decoded, error);
  });
}

ravo_status ravo_uri_without_fragment(const char* uri, size_t uri_length, char* buffer, size_t size,
                                      size_t* length, ravo_error* error) {
  return Made(ReadText(uri, uri_length, error), {buffer, size, length}, error,
              ravo::DIUtils::StrTrimUriFragmentW);
}

ravo_status ravo_uri_fragment(const char* uri, size_t uri_length, char* buffer, size_t size, size_t* length,
                              ravo_error* error) {
  return Made(ReadText(uri, uri_length, error), {buffer, size, length}, error,
              ravo::DIUtils::StrExtractUriFragmentW);
}
