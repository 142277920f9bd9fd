#pragma once

#include <ravo/runtime/owned_object.h>

#include <string_view>

namespace ravo::DIUnicode {

/// What reader and writer share: an owner, and how they report errors.
class RAVO_API TDIUnicodeBase : public TComponent {
 public:
  using TComponent::TComponent;
  ~TDIUnicodeBase() override;

 protected:
  /// Raises `Error` with "Class ", the name, ": " and the text.
  [[noreturn]] static void RaiseError(std::u16string_view class_name, std::u16string_view text);
};

}  // namespace ravo::DIUnicode
