#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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

 private:
  static constexpr std::size_t kPiece = 64;
  static constexpr std::size_t kPieces = 64;  // at once
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
      for (std::uint64_t bits = BitsAt(base_); bits != 0; bits &= bits - 1) {
        *found++ = base_ + static_cast<std::size_t>(std::countr_zero(bits));
      }
    }
    *found = kEnd;
    next_ = found_.data();
  }

  [[nodiscard]] std::uint64_t BitsAt(std::size_t base) const {
    if (text_.size() - base >= kPiece) return BitsOf(text_.data() + base);
    char last[kPiece] = {};
    std::memcpy(last, text_.data() + base, text_.size() - base);
    // No delimiter is zero.
    return BitsOf(last);
  }

#if defined(__SSE2__)
  [[nodiscard]] std::uint64_t BitsOf(const char* piece) const {
    std::uint64_t bits = 0;
    for (unsigned i = 0; i < kPiece; i += 16) {
      const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(piece + i));
      const __m128i ends = _mm_or_si128(Equal(bytes, '\n'), Equal(bytes, '\r'));
      const __m128i marks = _mm_or_si128(ends, _mm_or_si128(Equal(bytes, delimiter_), Equal(bytes, '"')));
      bits |= std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(marks))} << i;
    }
    return bits;
  }

  static __m128i Equal(__m128i bytes, char byte) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(byte)); }
#else
  [[nodiscard]] std::uint64_t BitsOf(const char* piece) const {
    std::uint64_t bits = 0;
    for (unsigned i = 0; i < kPiece; ++i) {
      const char byte = piece[i];
      const bool is_mark = byte == delimiter_ || byte == '"' || byte == '\n' || byte == '\r';
      bits |= std::uint64_t{is_mark} << i;
    }
    return bits;
  }
#endif

  std::string_view text_;
  char delimiter_;
  std::size_t base_ = 0;  // of the next piece
  std::vector<std::size_t> found_ = std::vector<std::size_t>(kPieces * kPiece + 1, kEnd);
  const std::size_t* next_ = found_.data();
};

}  // namespace tool
