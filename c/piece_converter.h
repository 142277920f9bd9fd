#pragma once

#include "support.h"
#include <ravo/convert/text_converter.h>

namespace ravo::c {

[[nodiscard]] inline codec::ByteSpan BytesOf(std::string_view bytes) noexcept {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

/// The failure of a conversion at a byte of its text.
[[gnu::cold]] inline ravo_status FailFault(ravo_error* error, convert::Fault::Kind kind,
                                           std::size_t position) {
  if (kind == convert::Fault::Kind::Lacking)
    return Fail(error, {RAVO_LACKING, 0, position, "the encoding lacks the character"});
  return Fail(error, {RAVO_MALFORMED, 0, position, "the bytes are no character of the encoding"});
}

/// A text that comes in pieces: converts what is whole, and keeps the beginning of a character.
class PieceConverter {
 public:
  explicit PieceConverter(const convert::Conversion& conversion) : converter_(conversion) {}

  [[nodiscard]] ravo_status Convert(std::string_view bytes, bool is_last, ravo_error* error) {
    if (!rest_.empty()) {
      rest_.append(bytes);
      bytes = rest_;
    }
    const auto following = is_last ? convert::Following::Nothing : convert::Following::Bytes;
    const std::size_t taken = converter_.Convert(BytesOf(bytes), following, converted_);
    if (converted_.fault) return FailFault(error, converted_.fault->kind, done_ + converted_.fault->position);
    if (is_last) converter_.Finish(converted_.bytes);
    done_ += taken;
    rest_ = std::string(bytes.substr(taken));
    return RAVO_OK;
  }

  /// Begins the next bytes in memory of the caller, where they stay if there is room for them.
  void BeginIn(std::span<std::uint8_t> memory) { converted_.bytes.BeginIn(memory); }
  /// What was converted since `BeginIn` or `Clear`.
  [[nodiscard]] std::string_view Made() const { return converted_.bytes.Text(); }
  void Clear() { converted_.bytes.Clear(); }

 private:
  convert::TextConverter converter_;
  convert::Converted converted_;
  std::string rest_;
  std::size_t done_ = 0;
};

}  // namespace ravo::c
