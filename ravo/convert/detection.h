#pragma once

#include <ravo/codec/encoding.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// Detection of the encoding of a text.
namespace ravo::convert {

/// The number of bytes by which an encoding is found out; more tell no more.
inline constexpr std::size_t kSampleSize = std::size_t{256} << 10;

/// What an answer rests on. The answer is sure up to `Czech`.
enum class Evidence : std::uint8_t {
  Mark = 1,  ///< it begins with a byte-order mark
  Zeros,     ///< it has the zero bytes of UTF-16 or UTF-32
  Ascii,     ///< it has ASCII characters only
  Utf8,      ///< its bytes are valid UTF-8, too many for chance
  Czech,     ///< it looks most like Czech in this encoding
  Alike,     ///< several encodings read it alike
  Close,     ///< several encodings are possible
  Foreign,   ///< it does not look like Czech in any encoding
  Binary,    ///< it has zero bytes and may not be text
};

/// The encoding that a text seems to have.
struct Detection {
  Evidence evidence = Evidence::Binary;
  /// Those that cannot be told apart, from the most likely one on; one if the answer is sure. Never empty.
  std::vector<const codec::Encoding*> candidates;

  [[nodiscard]] const codec::Encoding& Encoding() const { return *candidates[0]; }
  [[nodiscard]] bool IsSure() const { return evidence <= Evidence::Czech; }
};

enum class MacTexts : std::uint8_t { Never, Possible };

/// Returns the encoding of a text by its first bytes: by the byte-order mark, by zero bytes (UTF-16 and
/// UTF-32 without a mark), by the sequences of UTF-8, or else the one of Windows-1250, ISO 8859-2 and CP 852,
/// and on request Mac Central European, in which the text looks most like Czech.
///
/// The bytes may end inside a character. Text that several encodings read alike counts as Windows-1250 and is
/// not sure; text of ASCII alone counts as UTF-8.
[[nodiscard]] Detection DetectEncoding(std::string_view first_bytes, MacTexts mac_texts = MacTexts::Never);

}  // namespace ravo::convert
