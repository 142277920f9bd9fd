#pragma once

#include "encoding_guess.h"
#include <ravo/codec/encoding.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tool {

/// The bytes of a file, the first ones of which can be looked at before they are read.
class ByteSource {
 public:
  /// Reads bytes into a room; returns how many, 0 at the end.
  using ReadBytes = std::function<std::size_t(std::span<std::uint8_t>)>;

  /// `size` is 0 if it is unknown.
  ByteSource(ReadBytes read, std::int64_t size) : read_(std::move(read)), size_(size) {}

  [[nodiscard]] std::int64_t Size() const { return size_; }
  /// Returns the next bytes, at most `size`; fewer only at the end.
  [[nodiscard]] ravo::codec::ByteSpan Peek(std::size_t size);
  void Skip(std::size_t size) { begin_ += size; }
  /// Reads some bytes; returns how many, 0 at the end.
  [[nodiscard]] std::size_t ReadSome(std::span<std::uint8_t> to);
  /// Reads until `to` is full; returns how many, fewer at the end.
  [[nodiscard]] std::size_t ReadFully(std::span<std::uint8_t> to);

 private:
  ReadBytes read_;
  std::int64_t size_;
  std::vector<std::uint8_t> ahead_;
  std::size_t begin_ = 0;  // of the bytes ahead
};

/// The encoding that a user names for reading.
struct SourceEncoding {
  const ravo::codec::Encoding* row = nullptr;  ///< null: found out by the text
  bool order_is_open = false;                  ///< the name tells no byte order
};

/// Returns the encoding of a name, of which "auto" and the empty one mean that the text decides; no value if
/// its encoding does not exist.
[[nodiscard]] std::optional<SourceEncoding> SourceEncodingOf(const std::string& name);

/// What a text turned out to be in.
struct FoundEncoding {
  const ravo::codec::Encoding* row = nullptr;
  std::string note;  ///< what was found out, for people; empty if nothing was left open
};

/// Returns the number of bytes before the first zero or byte past ASCII, which tell no encoding.
[[nodiscard]] std::size_t LengthOfPlain(ravo::codec::ByteSpan bytes);

/// Finds out what `encoding` leaves open and skips a byte-order mark that answers it.
[[nodiscard]] FoundEncoding FindOut(const SourceEncoding& encoding, ByteSource& source);

}  // namespace tool
