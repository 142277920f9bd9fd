#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <string_view>
#include <utility>

namespace ravo {

/// A counted UTF-16 text of the platform's automation interfaces. It is allocated by the platform (a `BSTR`
/// on Windows, the same layout elsewhere: the length in bytes in the four bytes before the first unit, a zero
/// unit behind the last), so it can be handed over to whoever frees such texts.
class RAVO_API WideString {
 public:
  WideString() noexcept = default;

  /// Copies `text`. Raises `RangeError` where its length in bytes leaves 32 bits, `std::bad_alloc` without
  /// memory.
  explicit WideString(std::u16string_view text);

  /// A copy in memory of its own. `std::bad_alloc` without memory.
  WideString(const WideString& other) : WideString(other.View()) {}
  /// Takes the text over; `other` is empty then.
  WideString(WideString&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  /// Copies or takes over, as its argument was made.
  WideString& operator=(WideString other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  ~WideString();

  /// Takes over a text that the platform allocated; null is the empty text.
  [[nodiscard]] static WideString Adopt(char16_t* text) noexcept;

  /// Hands the text over to the caller, who frees it with the platform's own call; null for the empty text.
  [[nodiscard]] char16_t* Release() noexcept { return std::exchange(text_, nullptr); }

  /// UTF-16 units.
  [[nodiscard]] std::size_t Length() const noexcept;
  /// The text; the view lasts as long as the object keeps it.
  [[nodiscard]] std::u16string_view View() const noexcept { return {text_ ? text_ : u"", Length()}; }

  /// Whether the texts are equal.
  friend bool operator==(const WideString& left, const WideString& right) noexcept {
    return left.View() == right.View();
  }

 private:
  char16_t* text_ = nullptr;
};

/// The allocator behind `WideString`. The platform provides it; `AllocateWideText` answers null without
/// memory.
[[nodiscard]] char16_t* AllocateWideText(const char16_t* text, std::size_t units) noexcept;
/// UTF-16 units of a platform's text; 0 for null.
[[nodiscard]] std::size_t WideTextLength(const char16_t* text) noexcept;
/// Frees a platform's text; nothing for null.
void FreeWideText(char16_t* text) noexcept;

}  // namespace ravo
