#pragma once

#include <ravo/unicode/encodings.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace ravo::document {

/// An encoding in which the bytes of a character do not depend on those before them. Unlike the library's
/// readers it tells malformed bytes from U+FFFD and takes a character past U+FFFF as one.
class DocumentCodec {
 public:
  struct Character {
    char32_t value = 0;
    std::size_t size = 0;  ///< in bytes; 0 for malformed bytes
  };

  DocumentCodec() = default;
  DocumentCodec(const DocumentCodec&) = delete;
  DocumentCodec& operator=(const DocumentCodec&) = delete;
  virtual ~DocumentCodec() = default;

  /// Returns the character at `at`, which is less than the size of `bytes`.
  [[nodiscard]] virtual Character DecodeOne(std::string_view bytes, std::size_t at) const = 0;

  /// Appends the characters from `at` on in UTF-8, up to the first malformed bytes; returns their position,
  /// or the size of `bytes`.
  [[nodiscard]] virtual std::size_t Decode(std::string_view bytes, std::size_t at, std::string& utf8) const;

  /// Appends the bytes of a character; returns false if the encoding lacks it.
  [[nodiscard]] virtual bool Encode(char32_t c, std::string& to) const = 0;
};

/// Returns the codec of an encoding; null if its bytes depend on those before them (UTF-7).
[[nodiscard]] std::shared_ptr<const DocumentCodec> CodecOf(const DIUnicode::EncodingRow& row);

}  // namespace ravo::document
