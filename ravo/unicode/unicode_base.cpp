#include <ravo/runtime/error.h>
#include <ravo/unicode/unicode_base.h>

#include <string>

namespace ravo::DIUnicode {

TDIUnicodeBase::~TDIUnicodeBase() = default;

void TDIUnicodeBase::RaiseError(std::u16string_view class_name, std::u16string_view text) {
  throw Error(std::u16string(u"Class ").append(class_name).append(u": ").append(text));
}

}  // namespace ravo::DIUnicode
