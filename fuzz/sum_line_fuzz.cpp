// Lines of a list of sums: every parsed line survives a round trip through text.
#include "../tools/ravo/file_hash.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto line = tool::ParseSumLine({reinterpret_cast<const char*>(data), size});
  if (!line) return 0;
  std::string text = tool::SumLineText(*line);
  text.pop_back();
  const auto again = tool::ParseSumLine(text);
  if (!again || again->label != line->label || again->sum != line->sum || again->name != line->name)
    std::abort();
  return 0;
}
