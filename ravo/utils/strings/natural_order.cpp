#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/utils/strings/mismatch.h>
#include <ravo/utils/strings/natural_order.h>

#include <algorithm>

namespace ravo::DIUtils {
namespace {

using strings::Buffer;
using strings::Exact;
using strings::Folded;
using strings::View;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsDigit(char16_t c) { return c < 0x80 ? c >= u'0' && c <= u'9' : DIUnicode::CharIsDigitW(c); }

template <class Char>
bool BeginsWithDigit(View<Char> text) {
  return !text.empty() && IsDigit(text.front());
}

template <class Char>
std::ptrdiff_t LengthDifference(View<Char> left, View<Char> right) {
  return static_cast<std::ptrdiff_t>(left.size()) - static_cast<std::ptrdiff_t>(right.size());
}

template <class Fold, class Char>
std::ptrdiff_t Difference(Char left, Char right) {
  return static_cast<std::ptrdiff_t>(strings::Code(Fold::Of(left))) -
         static_cast<std::ptrdiff_t>(strings::Code(Fold::Of(right)));
}

template <class Char>
void SkipZeros(View<Char>& text) {
  while (!text.empty() && text.front() == Char{'0'}) text.remove_prefix(1);
}

// Compares two numbers from their first difference on. The longer one is greater; if they have the same
// length, the first different digit decides, else the difference before the zeros.
template <class Fold, class Char>
std::ptrdiff_t CompareNumbers(View<Char> left, View<Char> right) {
  std::ptrdiff_t result = Difference<Fold>(left.front(), right.front());
  // Kept: zeros inside a number are skipped too: "105" comes before "15", and the order has cycles. Test:
  // StrCompNumW.AZeroInsideANumberIsLost
  SkipZeros(left);
  SkipZeros(right);
  bool is_decided = false;
  while (BeginsWithDigit(left) && BeginsWithDigit(right)) {
    if (!is_decided && left.front() != right.front()) {
      result = Difference<Fold>(left.front(), right.front());
      is_decided = true;
    }
    left.remove_prefix(1);
    right.remove_prefix(1);
  }
  if (BeginsWithDigit(left)) return 1;
  return BeginsWithDigit(right) ? -1 : result;
}

template <class Fold, class Char>
std::ptrdiff_t CompareNaturally(View<Char> left, View<Char> right) {
  const std::size_t common = std::min(left.size(), right.size());
  const std::size_t at = strings::Mismatch<Fold>(left.data(), right.data(), common);
  if (at == common) return LengthDifference(left, right);
  left.remove_prefix(at);
  right.remove_prefix(at);
  if (!BeginsWithDigit(left) || !BeginsWithDigit(right)) return Difference<Fold>(left.front(), right.front());
  return CompareNumbers<Fold>(left, right);
}

}  // namespace

std::ptrdiff_t BufCompNumW(const char16_t* left, std::size_t left_length, const char16_t* right,
                           std::size_t right_length) noexcept {
  return CompareNaturally<Exact>(Buffer(left, left_length), Buffer(right, right_length));
}
std::ptrdiff_t BufCompNumIW(const char16_t* left, std::size_t left_length, const char16_t* right,
                            std::size_t right_length) noexcept {
  return CompareNaturally<Folded>(Buffer(left, left_length), Buffer(right, right_length));
}

std::ptrdiff_t StrCompNumA(std::string_view left, std::string_view right) noexcept {
  return CompareNaturally<Exact>(left, right);
}
std::ptrdiff_t StrCompNumW(std::u16string_view left, std::u16string_view right) noexcept {
  return BufCompNumW(left.data(), left.size(), right.data(), right.size());
}
std::ptrdiff_t StrCompNum(std::u16string_view left, std::u16string_view right) noexcept {
  return StrCompNumW(left, right);
}
std::ptrdiff_t StrCompNumIA(std::string_view left, std::string_view right) noexcept {
  return CompareNaturally<Folded>(left, right);
}
std::ptrdiff_t StrCompNumIW(std::u16string_view left, std::u16string_view right) noexcept {
  return BufCompNumIW(left.data(), left.size(), right.data(), right.size());
}
std::ptrdiff_t StrCompNumI(std::u16string_view left, std::u16string_view right) noexcept {
  return StrCompNumIW(left, right);
}

}  // namespace ravo::DIUtils
