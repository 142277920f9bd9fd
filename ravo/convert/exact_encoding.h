#pragma once

#include <ravo/codec/encoding.h>
#include <ravo/convert/byte_buffer.h>

#include <cstddef>
#include <cstdint>

namespace ravo::convert {

/// A character of a text in bytes.
struct Character {
  enum class Reading : std::uint8_t {
    Whole,
    Malformed,  ///< `bytes` are no character
    CutShort,   ///< the bytes end before it does
    Nothing,    ///< `bytes` end the text
  };
  Reading reading = Reading::Nothing;
  char32_t code = 0;
  std::size_t bytes = 0;
};

/// An encoding as its definition has it, with what the engines of ravo/codec leave out: characters past
/// U+FFFF, U+FFFD as a character like any other, and malformed text that they read.
class ExactEncoding {
 public:
  explicit ExactEncoding(const ravo::codec::Encoding& row);

  [[nodiscard]] const ravo::codec::Encoding& Row() const { return *row_; }

  /// Returns whether a text can be divided between two characters and its parts read independently.
  [[nodiscard]] bool IsDivisible() const { return form_ != Form::Utf7 && form_ != Form::Gb18030; }
  /// Returns the length of the front of `bytes` that ends between two characters; `IsDivisible` only.
  [[nodiscard]] std::size_t LengthOfWhole(ravo::codec::ByteSpan bytes) const;

  /// Reads the first character of `bytes`. Malformed bytes are taken up to the next one that may begin a
  /// character.
  [[nodiscard]] Character Read(ravo::codec::State& state, ravo::codec::ByteSpan bytes, bool is_last) const;
  /// Appends the bytes of a character past U+FFFF; returns false if the encoding lacks it.
  [[nodiscard]] bool Write(ravo::codec::State& state, char32_t code, ByteBuffer& to) const;

 private:
  enum class Form : std::uint8_t { SingleByte, Utf8, Utf16, Ucs2, Four, Utf7, Gb18030 };

  [[nodiscard]] static Form FormOf(const ravo::codec::Encoding& row);
  [[nodiscard]] char32_t Unit(ravo::codec::ByteSpan bytes) const;
  void WriteUnit(char32_t unit, std::size_t size, ByteBuffer& to) const;
  [[nodiscard]] Character ReadUnits(ravo::codec::ByteSpan bytes) const;
  [[nodiscard]] Character ReadByEngine(ravo::codec::State& state, ravo::codec::ByteSpan bytes,
                                       bool is_last) const;

  const ravo::codec::Encoding* row_;
  Form form_;
  std::size_t unit_size_;
  bool upper_first_;
};

}  // namespace ravo::convert
