// Any bytes under the encodings of two and four bytes.
#include "encoding_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static constexpr std::string_view kEngines[] = {"Utf16", "Ucs2", "Utf32", "Ucs4"};
  if (size == 0) return 0;
  return ravo::fuzz::CheckEngine(kEngines[data[0] % std::size(kEngines)], {data + 1, size - 1});
}
