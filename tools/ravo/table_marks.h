#pragma once

#include <ravo/codec/kernels/block.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

namespace tool {

/// Finds the bytes of a text that may end a field or a row: delimiter, quote, line feed and carriage return.
/// Each byte is looked at once, 64 at a time.
class TableMarks {
 public:
  TableMarks(std::string_view text, char delimiter) : text_(text), delimiter_(delimiter) {}
  TableMarks(TableMarks&&) = default;
  TableMarks& operator=(TableMarks&&) = default;
  TableMarks(const TableMarks&) = delete;
  TableMarks& operator=(const TableMarks&) = delete;
  ~TableMarks() = default;

  /// Returns the index of the first mark from `from` on, or the size. `from` never gets smaller.
  [[nodiscard]] std::size_t Next(std::size_t from) {
    while (*next_ < from) ++next_;
    return *next_ != kEnd ? *next_ : NextLoaded(from);
  }

  /// Returns the marks from `from` on up to the first one that is not the delimiter, that one included; none
  /// if not all of them are found yet.
  [[nodiscard]] std::span<const std::size_t> FieldsFrom(std::size_t from) {
    while (*next_ < from) ++next_;
    const std::size_t* last = next_;
    while (*last != kEnd && text_[*last] == delimiter_) ++last;
    if (*last == kEnd) return {};
    return {next_, last + 1};
  }

 private:
  static constexpr std::size_t kPiece = 64;
  static constexpr std::size_t kPieces = 64;  // at once
  static constexpr std::size_t kAtOnce = 8;
  static constexpr std::size_t kEnd = ~std::size_t{0};

  std::size_t NextLoaded(std::size_t from) {
    if (from > base_) base_ = from / kPiece * kPiece;
    if (base_ >= text_.size()) return text_.size();
    Load();
    return Next(from);
  }

  // Finds the marks of the next pieces.
  void Load() {
    std::size_t* found = found_.data();
    for (std::size_t i = 0; i < kPieces && base_ < text_.size(); ++i, base_ += kPiece) {
      found = Add(BitsAt(base_), found);
    }
    *found = kEnd;
    next_ = found_.data();
  }

  // Stores the indices of the bits, eight at a time, so that their number costs few branches.
  std::size_t* Add(std::uint64_t bits, std::size_t* found) const {
    std::size_t* const end = found + Count(bits);
    while (found < end) {
      for (unsigned i = 0; i < kAtOnce; ++i, bits &= bits - 1) {
        *found++ = base_ + static_cast<std::size_t>(std::countr_zero(bits));
      }
    }
    return end;
  }

  // `std::popcount` is a call on processors that may lack the instruction.
  static std::size_t Count(std::uint64_t bits) {
    bits -= bits >> 1 & 0x5555555555555555U;
    bits = (bits & 0x3333333333333333U) + (bits >> 2 & 0x3333333333333333U);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0FU;
    return static_cast<std::size_t>(bits * 0x0101010101010101U >> 56);
  }

  [[nodiscard]] std::uint64_t BitsAt(std::size_t base) const {
    if (text_.size() - base >= kPiece) return BitsOf(text_.data() + base);
    char last[kPiece] = {};
    std::memcpy(last, text_.data() + base, text_.size() - base);
    // No delimiter is zero.
    return BitsOf(last);
  }

  [[nodiscard]] std::uint64_t BitsOf(const char* piece) const {
    using Block = ravo::codec::Block<char>;
    std::uint64_t bits = 0;
    for (unsigned i = 0; i < kPiece; i += ravo::codec::kBlockBytes) {
      const Block bytes = Block::Load(piece + i);
      const Block ends = bytes.EqualTo('\n') | bytes.EqualTo('\r');
      const Block marks = ends | bytes.EqualTo(delimiter_) | bytes.EqualTo('"');
      bits |= std::uint64_t{marks.AsHits().Bits()} << i;
    }
    return bits;
  }

  std::string_view text_;
  char delimiter_;
  std::size_t base_ = 0;  // of the next piece
  std::vector<std::size_t> found_ = std::vector<std::size_t>(kPieces * kPiece + kAtOnce, kEnd);
  const std::size_t* next_ = found_.data();
};

}  // namespace tool
