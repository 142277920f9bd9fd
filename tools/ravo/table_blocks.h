#pragma once

#include "table_rows.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace tool {

/// Bytes of whole rows.
struct TableBlock {
  /// The number of bytes past the text that may be read too.
  static constexpr std::size_t kPadding = 32;

  std::vector<char> buffer;
  std::size_t size = 0;
  std::size_t first_line = 1;  // 1-based line of the file on which it begins
  std::uint64_t offset = 0;    // in the file, of its first byte

  [[nodiscard]] std::string_view Text() const { return {buffer.data(), size}; }
};

/// Cuts a table into blocks of whole rows, quoted line ends included, so that the rows of each can be read
/// apart from the others. Looks only at quotes and what surrounds them. Memory is linear in the block and in
/// the longest row.
class BlockReader {
 public:
  /// A function that fills the span with the next bytes and returns their number; 0 at the end.
  using Source = std::function<std::size_t(std::span<char>)>;

  static constexpr std::size_t kBlock = std::size_t{256} << 10;

  /// `block` is the size of most blocks in bytes, at least 1.
  explicit BlockReader(Source source, std::size_t block = kBlock);

  /// Returns the first `size` bytes, or fewer if the table has fewer, without consuming them. To be called
  /// before the first `Next`.
  [[nodiscard]] std::string_view Peek(std::size_t size);

  /// Sets the delimiter and skips the first `skipped` bytes, a byte-order mark. To be called once before
  /// `Next`.
  void Begin(char delimiter, std::size_t skipped);

  /// Stores the next block; returns false at the end.
  [[nodiscard]] bool Next(TableBlock& block);

  /// Whether the source has no more bytes than those already read.
  [[nodiscard]] bool IsAtEnd() const noexcept { return at_end_; }
  /// Returns the number of bytes read from the source.
  [[nodiscard]] std::uint64_t BytesRead() const noexcept { return bytes_read_; }

 private:
  [[nodiscard]] std::size_t Fill(std::vector<char>& buffer, std::size_t filled, std::size_t wanted);

  Source source_;
  std::size_t block_;
  char delimiter_ = ';';
  bool at_end_ = false;
  std::vector<char> rest_;  // bytes that were read and belong to the next block
  std::size_t next_line_ = 1;
  std::uint64_t offset_ = 0;
  std::uint64_t bytes_read_ = 0;
};

}  // namespace tool
