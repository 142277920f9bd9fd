// Any bytes under GB 18030.
#include "encoding_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return ravo::fuzz::CheckEngine("Gb18030", {data, size});
}
