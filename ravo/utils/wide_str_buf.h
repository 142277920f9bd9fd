#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/wide_string.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace ravo::DIUtils {

/// Builds a long UTF-16 text from many small pieces. Appending grows the capacity by the required units plus
/// 4096. It throws `std::bad_alloc` if memory runs out and `OverflowError` if the capacity does not fit 32
/// bits; the content is then unchanged.
class RAVO_API TWideStrBuf {
 public:
  TWideStrBuf() noexcept = default;
  TWideStrBuf(const TWideStrBuf&) = delete;
  TWideStrBuf& operator=(const TWideStrBuf&) = delete;
  ~TWideStrBuf();

  /// Appends one unit.
  void AddChar(char16_t unit) {
    if (position_ == end_) GrowBuffer(1);
    *position_++ = unit;
  }

  /// Appends a text. The capacity grows also if the text would fill it exactly.
  void AddStr(std::u16string_view text) {
    // Kept: the buffer grows also if the text just fits. Test:
    // TWideStrBuf.AddStrGrowsAlsoWhereTheTextJustFits
    if (Free() <= text.size()) GrowBuffer(text.size());
    Append(text.data(), text.size());
  }
  /// Appends a platform's text.
  void AddStr(const WideString& text) { AddStr(text.View()); }

  /// Appends `count` units; does nothing for a null pointer.
  void AddBuf(const char16_t* units, std::uint32_t count) {
    if (units) AddStr({units, count});
  }

  /// Appends carriage return and line feed.
  void AddCrLf() {
    if (Free() < 3) GrowBuffer(2);
    *position_++ = u'\r';
    *position_++ = u'\n';
  }

  /// Removes `count` units from a 0-based `index` on, or all from there if there are fewer. Does nothing if
  /// `index` is past the end.
  void Delete(std::uint32_t index, std::uint32_t count) noexcept;

  /// Removes the content and keeps the memory.
  void Reset() noexcept { position_ = start_; }

  /// Removes the content and frees the memory.
  void Clear() noexcept;

  /// Returns the length of the content in UTF-16 units.
  [[nodiscard]] std::uint32_t GetCount() const noexcept {
    return static_cast<std::uint32_t>(position_ - start_);
  }
  /// Returns whether the content is empty.
  [[nodiscard]] bool IsEmpty() const noexcept { return position_ == start_; }
  /// Returns whether the content is not empty.
  [[nodiscard]] bool IsNotEmpty() const noexcept { return position_ > start_; }

  /// Returns a copy of the content. Throws `RangeError` from 2^31 units on.
  [[nodiscard]] WideString GetAsStr() const;

  /// Returns a copy of the content without trailing units below 33.
  [[nodiscard]] WideString GetAsStrTrimRight() const;

 protected:
  /// Grows the capacity by `count` plus 4096 units.
  void GrowBuffer(std::size_t count);

  /// Returns the capacity in UTF-16 units.
  [[nodiscard]] std::uint32_t Capacity() const noexcept { return static_cast<std::uint32_t>(end_ - start_); }

 private:
  [[nodiscard]] std::size_t Free() const noexcept { return static_cast<std::size_t>(end_ - position_); }

  void Append(const char16_t* units, std::size_t count) {
    if (count == 0) return;
    std::memcpy(position_, units, count * sizeof(char16_t));
    position_ += count;
  }

  char16_t* start_ = nullptr;
  char16_t* position_ = nullptr;
  char16_t* end_ = nullptr;
};

}  // namespace ravo::DIUtils
