// Any bytes under UTF-8.
#include "encoding_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return ravo::fuzz::CheckEngine("Utf8", {data, size});
}
