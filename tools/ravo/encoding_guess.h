#pragma once

#include <ravo/convert/detection.h>

#include <string>
#include <string_view>

namespace tool {

using ravo::convert::kSampleSize;

/// The encoding that a text seems to have.
struct EncodingGuess {
  std::string encoding;  ///< the name of its row, such as "Windows_1250"
  bool certain = false;
  std::string why;  ///< for people: a clause without a capital letter and a full stop
};

/// Returns the encoding of a text by its first bytes, as `DetectEncoding` finds it.
[[nodiscard]] EncodingGuess GuessEncoding(std::string_view first_bytes);

}  // namespace tool
