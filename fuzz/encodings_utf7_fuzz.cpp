// Any bytes under UTF-7, written in both ways.
#include "encoding_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return ravo::fuzz::CheckEngine("Utf7", {data, size});
}
