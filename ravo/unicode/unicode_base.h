#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/owned_object.h>

#include <cstdint>
#include <string_view>

namespace ravo {
struct ResourceString;
}

namespace ravo::DIUnicode {

/// A test of one character. Functions that take one use white space if it is null.
using CharPredicate = bool (*)(char16_t c);

/// The base of reader and writer: owner and error reporting.
class RAVO_API TDIUnicodeBase : public TComponent {
 public:
  using TComponent::TComponent;
  ~TDIUnicodeBase() override;

 protected:
  /// Throws `Error` with a message of "Class ", `class_name`, ": " and `text`.
  [[noreturn]] static void RaiseError(std::u16string_view class_name, std::u16string_view text);
  /// Throws `Error` with a message of the library.
  [[noreturn]] static void RaiseError(std::u16string_view class_name, const ResourceString& message);
  /// Throws `Error` with a message of the library in which `number` replaces "%d".
  [[noreturn]] static void RaiseError(std::u16string_view class_name, const ResourceString& message,
                                      std::uint64_t number);
};

}  // namespace ravo::DIUnicode
