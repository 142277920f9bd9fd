#pragma once

#include <ravo/codec/byte_order.h>
#include <ravo/codec/byte_spans.h>

#include <cstddef>
#include <utility>

/// The encodings of two and four bytes per unit. A unit that the end of the data truncates ends the data.
namespace ravo::codec {

template <class Order>
struct Ucs2 {
  static constexpr std::size_t kMostBytes = 2;

  template <class Source>
  static bool Decode(Source& source, char16_t& ch) {
    return Order::Next(source, ch);
  }

  template <class Target>
  static bool Encode(Target& target, char16_t ch) {
    Order::Write(target, ch);
    return true;
  }
};

template <class Order>
struct Utf16 {
  static constexpr std::size_t kMostBytes = 2;

  template <class Source>
  static bool Decode(Source& source, char16_t& ch) {
    if (!Order::Next(source, ch)) return false;
    if (!IsSurrogate(ch)) return true;
    // Kept: a low surrogate ends the data. Test: ReadUtf16.LowSurrogateEndsTheData
    if (ch >= 0xDC00) return false;
    // Kept: a high surrogate consumes the next two bytes: a pair is one U+FFFD, because the library has no
    // code point past U+FFFF. Test: ReadUtf16.SurrogatePairIsOneReplacement
    char16_t second = 0;
    static_cast<void>(Order::Next(source, second));
    ch = kReplacement;
    return true;
  }

  template <class Target>
  static bool Encode(Target& target, char16_t ch) {
    return !IsSurrogate(ch) && Ucs2<Order>::Encode(target, ch);
  }
};

template <class Order>
struct Ucs4 {
  static constexpr std::size_t kMostBytes = 4;

  template <class Source>
  static bool Decode(Source& source, char16_t& ch) {
    char16_t upper = 0;
    if (!Order::Next(source, upper) || !Order::Next(source, ch)) return false;
    if (!Order::kUpperHalfFirst) std::swap(upper, ch);
    if (upper != 0) ch = kReplacement;
    return true;
  }

  template <class Target>
  static bool Encode(Target& target, char16_t ch) {
    Order::Write(target, Order::kUpperHalfFirst ? u'\0' : ch);
    Order::Write(target, Order::kUpperHalfFirst ? ch : u'\0');
    return true;
  }
};

template <class Order>
struct Utf32 {
  static constexpr std::size_t kMostBytes = 4;

  template <class Source>
  static bool Decode(Source& source, char16_t& ch) {
    if (!Ucs4<Order>::Decode(source, ch)) return false;
    if (IsSurrogate(ch)) ch = kReplacement;
    return true;
  }

  template <class Target>
  static bool Encode(Target& target, char16_t ch) {
    // Untested: `Ucs4` refuses no character.
    return !IsSurrogate(ch) && Ucs4<Order>::Encode(target, ch);
  }
};

}  // namespace ravo::codec
