#pragma once

#include <ravo/codec/encoding.h>
#include <ravo/convert/byte_buffer.h>
#include <ravo/convert/exact_encoding.h>
#include <ravo/convert/text_extent.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::convert {

/// How a text is converted.
struct Conversion {
  const ravo::codec::Encoding* from = nullptr;
  const ravo::codec::Encoding* to = nullptr;
  /// Spells a character that the target lacks with others, as `SpellingOf` does; may be null.
  std::u16string (*spelling)(char32_t code, const std::function<bool(char16_t)>& has) = nullptr;
  /// What is written for a character that cannot be; none: the conversion ends there.
  std::optional<char32_t> replacement;
  /// Whether `Converted::extent` is wanted: to count lines takes as long as to convert.
  bool measures = true;
};

/// Why a conversion ends before the text does, at the character after what was converted.
struct Fault {
  enum class Kind : std::uint8_t { Malformed, CutShort, Lacking };
  Kind kind;
  char32_t code;             ///< of the character that the target lacks
  std::string bytes;         ///< those that are no character
  std::size_t position = 0;  ///< where the character begins in the bytes of the call
};

/// What follows the bytes of a piece.
enum class Following : std::uint8_t {
  Bytes,      ///< which may complete its last character
  Character,  ///< so that an incomplete one before it is malformed
  Nothing,
};

/// A converted piece of a text.
struct Converted {
  ByteBuffer bytes;
  TextExtent extent;
  std::optional<Fault> fault;
};

/// Converts the pieces of a text in order, or, if both encodings allow it, any of them.
class TextConverter {
 public:
  explicit TextConverter(const Conversion& conversion);

  /// Reads from now on in `from`, from the start of a text.
  void Restart(const ravo::codec::Encoding& from);
  /// Reads from the start of another text in the same encoding.
  void Restart();
  /// Converts the characters in `bytes` up to a fault and returns how many bytes it took: all of the last
  /// ones of a text, and all but a character that is cut short of others. Appends to `converted`.
  std::size_t Convert(ravo::codec::ByteSpan bytes, Following following, Converted& converted);
  /// Converts a whole short text of characters that both encodings have, faster than `Convert` and without
  /// its extent. Returns false, with nothing appended, if `Convert` must do it.
  [[nodiscard]] bool ConvertAtOnce(ravo::codec::ByteSpan bytes, ByteBuffer& to);
  /// Appends what the encoder holds back.
  void Finish(ByteBuffer& bytes);

 private:
  struct Run;

  [[nodiscard]] Run DecodeRun(ravo::codec::ByteSpan bytes);
  bool ConvertNext(ravo::codec::ByteSpan bytes, Following following, std::size_t& taken,
                   Converted& converted);
  [[nodiscard]] std::size_t LengthOf(const Run& run, ravo::codec::ByteSpan bytes, std::size_t count);
  void Transfer(const Run& run, ravo::codec::ByteSpan bytes, Converted& converted);
  bool WriteCharacter(char32_t code, ByteBuffer& to);
  [[nodiscard]] std::size_t Encode(std::u16string_view text, ByteBuffer& to);
  bool Substitute(char32_t code, ByteBuffer& to);
  bool Spell(char32_t code, ByteBuffer& to);
  [[nodiscard]] bool Has(char16_t unit) const;

  Conversion conversion_;
  ExactEncoding from_;
  ExactEncoding to_;
  ravo::codec::State decoder_;
  ravo::codec::State encoder_;
  std::vector<char16_t> units_;
  /// How many units are decoded at once: few after a character that the engines leave out, because others may
  /// follow.
  std::size_t room_;
  std::map<char32_t, std::u16string> spellings_;
};

}  // namespace ravo::convert
