#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

/// The number of bytes by which the encoding of a text, and the delimiter of a table, are found out.
inline constexpr std::size_t kSampleSize = std::size_t{256} << 10;

/// The encoding that a text seems to have.
struct EncodingGuess {
  std::string encoding;  ///< the name of its row, such as "Windows_1250"
  bool certain = false;
  std::string why;  ///< for people: a clause without a capital letter and a full stop
};

/// Returns the encoding of a text by its first bytes: by the byte-order mark, by zero bytes (UTF-16 and
/// UTF-32 without a mark), by the sequences of UTF-8, or else the one of Windows-1250, ISO 8859-2 and CP 852
/// in which the text looks most like Czech.
///
/// The bytes may end inside a character. 256 KiB are more than enough. Text that several encodings read alike
/// counts as Windows-1250 and is not certain; text of ASCII alone counts as UTF-8.
[[nodiscard]] EncodingGuess GuessEncoding(std::string_view first_bytes);

}  // namespace tool
