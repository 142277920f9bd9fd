#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/wide_string.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace ravo::DIUtils {

/// Builds a long UTF-16 text from many small pieces. Appending grows the capacity by what is asked for and
/// 4096 units more. It raises `std::bad_alloc` without memory and `OverflowError` where the capacity would
/// leave 32 bits; the content is then as it was.
class RAVO_API TWideStrBuf {
 public:
  TWideStrBuf() noexcept = default;
  TWideStrBuf(const TWideStrBuf&) = delete;
  TWideStrBuf& operator=(const TWideStrBuf&) = delete;
  ~TWideStrBuf();

  /// One unit more.
  void AddChar(char16_t unit) {
    if (position_ == end_) GrowBuffer(1);
    *position_++ = unit;
  }

  /// Grows also where the text would fill the capacity to the last unit.
  void AddStr(std::u16string_view text) {
    // Kept: the buffer grows also if the text just fits. Test:
    // TWideStrBuf.AddStrGrowsAlsoWhereTheTextJustFits
    if (Free() <= text.size()) GrowBuffer(text.size());
    Append(text.data(), text.size());
  }
  /// The same with a platform's text.
  void AddStr(const WideString& text) { AddStr(text.View()); }

  /// As `AddStr`; nothing for a null pointer.
  void AddBuf(const char16_t* units, std::uint32_t count) {
    if (units) AddStr({units, count});
  }

  /// Appends carriage return and line feed.
  void AddCrLf() {
    if (Free() < 3) GrowBuffer(2);
    *position_++ = u'\r';
    *position_++ = u'\n';
  }

  /// Takes `count` units out from a 0-based index on, or all from there where there are not more. Nothing for
  /// an index behind the last unit.
  void Delete(std::uint32_t index, std::uint32_t count) noexcept;

  /// Empties the content and keeps the memory.
  void Reset() noexcept { position_ = start_; }

  /// Empties the content and frees the memory.
  void Clear() noexcept;

  /// UTF-16 units.
  [[nodiscard]] std::uint32_t GetCount() const noexcept {
    return static_cast<std::uint32_t>(position_ - start_);
  }
  /// Whether there is no unit.
  [[nodiscard]] bool IsEmpty() const noexcept { return position_ == start_; }
  /// Whether there are units.
  [[nodiscard]] bool IsNotEmpty() const noexcept { return position_ > start_; }

  /// A copy of the content. `RangeError` from 2^31 units on.
  [[nodiscard]] WideString GetAsStr() const;

  /// A copy of the content without the units below 33 at its end.
  [[nodiscard]] WideString GetAsStrTrimRight() const;

 protected:
  /// Makes the capacity larger by `count` and 4096 units.
  void GrowBuffer(std::size_t count);

  /// UTF-16 units that fit without growing again.
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
