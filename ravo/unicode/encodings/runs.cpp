#include <ravo/unicode/encodings/runs.h>

namespace ravo::DIUnicode {

DecodeRun DecodeRunOf(const TDIUnicodeReadMethods&) noexcept { return nullptr; }
EncodeRun EncodeRunOf(const TDIUnicodeWriteMethods&) noexcept { return nullptr; }

}  // namespace ravo::DIUnicode
