#include <ravo/platform/code_pages.h>
#include <ravo/utils/strings/narrow.h>
#include <ravo/utils/strings/text_kind.h>

namespace ravo::DIUtils {

std::string WBufToAStr(const char16_t* buffer, std::size_t length) {
  return WStrToAStr(strings::Buffer(buffer, length));
}

std::string WStrToAStr(std::u16string_view text) { return platform::CodePages().ToCodePage(text); }

}  // namespace ravo::DIUtils
