#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <string_view>
#include <utility>

namespace ravo {

/// A counted UTF-16 text of the platform's automation interfaces. The platform allocates it (a `BSTR` on
/// Windows, the same layout elsewhere: the length in bytes in the four bytes before the first unit, a zero
/// unit after the last), so any component that frees such texts can own it.
class RAVO_API WideString {
 public:
  WideString() noexcept = default;

  /// Copies `text`. Throws `RangeError` if its length in bytes does not fit 32 bits, and `std::bad_alloc` if
  /// memory runs out.
  explicit WideString(std::u16string_view text);

  /// Copies the text. Throws `std::bad_alloc` if memory runs out.
  WideString(const WideString& other) : WideString(other.View()) {}
  /// Moves the text; `other` becomes empty.
  WideString(WideString&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  /// Copies or moves, depending on how its argument was constructed.
  WideString& operator=(WideString other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  ~WideString();

  /// Returns an object that owns a text allocated by the platform; null is the empty text.
  [[nodiscard]] static WideString Adopt(char16_t* text) noexcept;

  /// Releases ownership and returns the text, which the caller frees with the platform's own call; null for
  /// the empty text.
  [[nodiscard]] char16_t* Release() noexcept { return std::exchange(text_, nullptr); }

  /// Returns the length in UTF-16 units.
  [[nodiscard]] std::size_t Length() const noexcept;
  /// Returns a view of the text, valid as long as the object holds it.
  [[nodiscard]] std::u16string_view View() const noexcept { return {text_ ? text_ : u"", Length()}; }

  /// Returns whether the texts are equal.
  friend bool operator==(const WideString& left, const WideString& right) noexcept {
    return left.View() == right.View();
  }

 private:
  char16_t* text_ = nullptr;
};

/// Allocates a copy of `units` units of text, or returns null if memory runs out. The platform implements
/// this and the two functions below for `WideString`.
[[nodiscard]] char16_t* AllocateWideText(const char16_t* text, std::size_t units) noexcept;
/// Returns the length of a platform's text in UTF-16 units; 0 for null.
[[nodiscard]] std::size_t WideTextLength(const char16_t* text) noexcept;
/// Frees a platform's text; does nothing for null.
void FreeWideText(char16_t* text) noexcept;

}  // namespace ravo
