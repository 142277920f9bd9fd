#pragma once

#include <ravo/codec/encoding.h>
#include <ravo/codec/place.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// How a text is converted.
struct Conversion {
  /// Null: by the byte-order mark, which is left out; without one, UTF-8.
  const ravo::codec::Encoding* from = nullptr;
  const ravo::codec::Encoding* to = nullptr;
  /// What is written for a character that cannot be; none: the conversion ends there.
  std::optional<char16_t> replacement;
};

/// Where a conversion ended before the end, and why: "3:14: U+4E00 cannot be written in Windows_1250".
using Refusal = std::optional<std::string>;

/// Converts several texts into one, block by block: the memory does not grow with them.
class Converter {
 public:
  /// Reads bytes into a block; gives how many, 0 at the end.
  using Read = std::function<std::size_t(std::span<std::byte>)>;
  using Write = std::function<void(std::string_view)>;
  /// Hears how many bytes of the text are converted.
  using Progress = std::function<void(std::int64_t)>;

  Converter(const Conversion& conversion, Write write);

  /// Converts a text. Without a replacement ends at the first character that cannot be read or written; what
  /// is before it is written.
  [[nodiscard]] Refusal Convert(const Read& read, const Progress& progress);
  /// Writes what the encoder holds back.
  void Finish();

 private:
  struct Input;

  [[nodiscard]] Refusal Transfer(std::u16string_view text);
  [[nodiscard]] std::size_t Encode(std::u16string_view text);
  void Replace();
  [[nodiscard]] std::string At(std::u16string_view text);

  Conversion conversion_;
  Write write_;
  ravo::codec::State state_;
  /// Of the text that is being converted.
  ravo::codec::Place place_;
  std::vector<char16_t> units_;
  std::vector<std::uint8_t> made_;
};

}  // namespace tool
