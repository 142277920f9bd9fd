#include <ravo/utils/strings/compare.h>
#include <ravo/utils/strings/mismatch.h>
#include <ravo/utils/strings/text_kind.h>

#include <algorithm>

namespace ravo::DIUtils {
namespace {

using strings::Buffer;
using strings::Exact;
using strings::Folded;
using strings::View;
using ViewA = std::string_view;
using ViewW = std::u16string_view;

template <class Fold, class Char>
bool Same(View<Char> left, View<Char> right) {
  return left.size() == right.size() &&
         strings::Mismatch<Fold>(left.data(), right.data(), left.size()) == left.size();
}

template <class Fold, class Char>
bool Starts(View<Char> text, View<Char> start) {
  return Same<Fold>(text.substr(0, start.size()), start);
}

template <class Fold, class Char>
std::ptrdiff_t Compare(View<Char> left, View<Char> right) {
  const std::size_t common = std::min(left.size(), right.size());
  const std::size_t at = strings::Mismatch<Fold>(left.data(), right.data(), common);
  if (at == common)
    return static_cast<std::ptrdiff_t>(left.size()) - static_cast<std::ptrdiff_t>(right.size());
  return static_cast<std::ptrdiff_t>(strings::Code(Fold::Of(left[at]))) -
         static_cast<std::ptrdiff_t>(strings::Code(Fold::Of(right[at])));
}

}  // namespace

bool StrSameA(ViewA left, ViewA right) noexcept { return Same<Exact>(left, right); }
bool StrSameW(ViewW left, ViewW right) noexcept { return Same<Exact>(left, right); }
bool StrSame(ViewW left, ViewW right) noexcept { return StrSameW(left, right); }
bool StrSameIA(ViewA left, ViewA right) noexcept { return Same<Folded>(left, right); }
bool StrSameIW(ViewW left, ViewW right) noexcept { return Same<Folded>(left, right); }
bool StrSameI(ViewW left, ViewW right) noexcept { return StrSameIW(left, right); }

bool BufSameA(const char* left, std::size_t left_length, const char* right,
              std::size_t right_length) noexcept {
  return StrSameA(Buffer(left, left_length), Buffer(right, right_length));
}
bool BufSameW(const char16_t* left, std::size_t left_length, const char16_t* right,
              std::size_t right_length) noexcept {
  return StrSameW(Buffer(left, left_length), Buffer(right, right_length));
}
bool BufSameIA(const char* left, std::size_t left_length, const char* right,
               std::size_t right_length) noexcept {
  return StrSameIA(Buffer(left, left_length), Buffer(right, right_length));
}
bool BufSameIW(const char16_t* left, std::size_t left_length, const char16_t* right,
               std::size_t right_length) noexcept {
  return StrSameIW(Buffer(left, left_length), Buffer(right, right_length));
}

bool BufStrSameA(const char* buffer, std::size_t length, ViewA text) noexcept {
  return StrSameA(Buffer(buffer, length), text);
}
bool BufStrSameW(const char16_t* buffer, std::size_t length, ViewW text) noexcept {
  return StrSameW(Buffer(buffer, length), text);
}
bool BufStrSame(const char16_t* buffer, std::size_t length, ViewW text) noexcept {
  return BufStrSameW(buffer, length, text);
}
bool BufStrSameIA(const char* buffer, std::size_t length, ViewA text) noexcept {
  return StrSameIA(Buffer(buffer, length), text);
}
bool BufStrSameIW(const char16_t* buffer, std::size_t length, ViewW text) noexcept {
  return StrSameIW(Buffer(buffer, length), text);
}
bool BufStrSameI(const char16_t* buffer, std::size_t length, ViewW text) noexcept {
  return BufStrSameIW(buffer, length, text);
}

bool StrSameStartA(ViewA text, ViewA start) noexcept { return Starts<Exact>(text, start); }
bool StrSameStartW(ViewW text, ViewW start) noexcept { return Starts<Exact>(text, start); }
bool StrSameStart(ViewW text, ViewW start) noexcept { return StrSameStartW(text, start); }
bool StrSameStartIA(ViewA text, ViewA start) noexcept { return Starts<Folded>(text, start); }
bool StrSameStartIW(ViewW text, ViewW start) noexcept { return Starts<Folded>(text, start); }
bool StrSameStartI(ViewW text, ViewW start) noexcept { return StrSameStartIW(text, start); }

std::ptrdiff_t StrCompA(ViewA left, ViewA right) noexcept { return Compare<Exact>(left, right); }
std::ptrdiff_t StrCompW(ViewW left, ViewW right) noexcept { return Compare<Exact>(left, right); }
std::ptrdiff_t StrComp(ViewW left, ViewW right) noexcept { return StrCompW(left, right); }
std::ptrdiff_t StrCompIA(ViewA left, ViewA right) noexcept { return Compare<Folded>(left, right); }
std::ptrdiff_t StrCompIW(ViewW left, ViewW right) noexcept { return Compare<Folded>(left, right); }
std::ptrdiff_t StrCompI(ViewW left, ViewW right) noexcept { return StrCompIW(left, right); }

}  // namespace ravo::DIUtils
