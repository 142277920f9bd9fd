#pragma once

#include <ravo/convert/text_converter.h>

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string>

namespace tool {

using ravo::convert::ByteBuffer;
using ravo::convert::Conversion;
using ravo::convert::Converted;
using ravo::convert::ExactEncoding;
using ravo::convert::Fault;
using ravo::convert::Following;
using ravo::convert::TextConverter;
using ravo::convert::TextExtent;

namespace test {

/// What a conversion gives: its bytes, the place after them, and why it ended.
struct Outcome {
  std::string bytes;
  std::uint64_t line = 0;
  std::uint64_t column = 0;
  std::string fault;

  bool operator==(const Outcome&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << outcome.line << ":" << outcome.column << " " << outcome.fault << " after " << outcome.bytes;
  }
};

inline Outcome OutcomeOf(Converted& converted, TextConverter& converter) {
  if (!converted.fault) converter.Finish(converted.bytes);
  Outcome outcome{
      std::string(converted.bytes.Text()), converted.extent.Line(), converted.extent.Column(), {}};
  if (converted.fault)
    outcome.fault = std::to_string(static_cast<int>(converted.fault->kind)) + " " +
                    std::to_string(static_cast<unsigned>(converted.fault->code)) + " " +
                    converted.fault->bytes;
  return outcome;
}

/// Converts pieces of `size` bytes one after another, as from a pipe.
inline Outcome InPieces(const Conversion& conversion, ravo::codec::ByteSpan text, std::size_t size) {
  TextConverter converter(conversion);
  Converted converted;
  std::size_t begin = 0;
  std::size_t end = 0;
  while (!converted.fault) {
    const std::size_t before = end;
    end = std::min(end + size, text.size());
    begin += converter.Convert(text.subspan(begin, end - begin),
                               end == before ? Following::Nothing : Following::Bytes, converted);
    if (end == before) break;
  }
  return OutcomeOf(converted, converter);
}

/// Converts blocks of about `size` bytes each by itself, as several threads do; `size` holds a character.
inline Outcome InBlocks(const Conversion& conversion, ravo::codec::ByteSpan text, std::size_t size) {
  TextConverter last(conversion);
  Converted all;
  while (!all.fault) {
    const bool is_last = text.size() <= size;
    const std::size_t length =
        is_last ? text.size() : ExactEncoding(*conversion.from).LengthOfWhole(text.first(size));
    TextConverter converter(conversion);
    Converted block;
    static_cast<void>(
        converter.Convert(text.first(length), is_last ? Following::Nothing : Following::Character, block));
    const std::string bytes(block.bytes.Text());
    all.bytes.Append({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
    all.extent += block.extent;
    all.fault = block.fault;
    text = text.subspan(length);
    if (is_last) break;
  }
  return OutcomeOf(all, last);
}

}  // namespace test
}  // namespace tool
