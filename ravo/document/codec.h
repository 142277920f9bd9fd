#pragma once

#include <ravo/convert/exact_encoding.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace ravo::document {

/// An encoding in which the bytes of a character do not depend on those before them.
class DocumentCodec {
 public:
  struct Character {
    char32_t value = 0;
    std::size_t size = 0;  ///< in bytes; 0 for malformed bytes
  };

  explicit DocumentCodec(const codec::Encoding& row) : encoding_(row) {}

  /// Returns whether every character is one byte.
  [[nodiscard]] bool IsSingleByte() const { return encoding_.Row().engine == "SingleByte"; }

  /// Returns the character at `at`, which is less than the size of `bytes`.
  [[nodiscard]] Character DecodeOne(std::string_view bytes, std::size_t at) const;

  /// Appends the characters from `at` on in UTF-8, up to the first malformed bytes; returns their position,
  /// or the size of `bytes`.
  [[nodiscard]] std::size_t Decode(std::string_view bytes, std::size_t at, std::string& utf8) const;

  /// Appends the bytes of a character; returns false if the encoding lacks it.
  [[nodiscard]] bool Encode(char32_t c, std::string& to) const;

 private:
  convert::ExactEncoding encoding_;
};

/// Returns the codec of an encoding; null if its bytes depend on those before them (UTF-7).
[[nodiscard]] std::shared_ptr<const DocumentCodec> CodecOf(const codec::Encoding& row);

}  // namespace ravo::document
