#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/owned_object.h>

#include <cstdint>
#include <string_view>

namespace ravo {
struct ResourceString;
}

namespace ravo::DIUnicode {

/// A test of one character. Where one is asked for, a null one means white space.
using CharPredicate = bool (*)(char16_t c);

/// What reader and writer share: an owner, and how they report errors.
class RAVO_API TDIUnicodeBase : public TComponent {
 public:
  using TComponent::TComponent;
  ~TDIUnicodeBase() override;

 protected:
  /// Raises `Error` with "Class ", the name, ": " and the text.
  [[noreturn]] static void RaiseError(std::u16string_view class_name, std::u16string_view text);
  /// The same with a message of the library.
  [[noreturn]] static void RaiseError(std::u16string_view class_name, const ResourceString& message);
  /// The same with `number` in the place of the message's "%d".
  [[noreturn]] static void RaiseError(std::u16string_view class_name, const ResourceString& message,
                                      std::uint64_t number);
};

}  // namespace ravo::DIUnicode
