#include <ravo/frame/resource_string.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/text.h>
#include <ravo/unicode/unicode_base.h>

#include <string>

namespace ravo::DIUnicode {

TDIUnicodeBase::~TDIUnicodeBase() = default;

void TDIUnicodeBase::RaiseError(std::u16string_view class_name, std::u16string_view text) {
  throw Error(std::u16string(u"Class ").append(class_name).append(u": ").append(text));
}

void TDIUnicodeBase::RaiseError(std::u16string_view class_name, const ResourceString& message) {
  RaiseError(class_name, message.View());
}

void TDIUnicodeBase::RaiseError(std::u16string_view class_name, const ResourceString& message,
                                std::uint64_t number) {
  RaiseError(class_name, ReplaceFirst(message.View(), u"%d", ToText(number)));
}

}  // namespace ravo::DIUnicode
