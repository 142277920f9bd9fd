// Any bytes under the single-byte encodings.
#include "encoding_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return ravo::fuzz::CheckEngine("SingleByte", {data, size});
}
