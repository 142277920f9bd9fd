// XML in any form: the tokenizer, with a buffer as small as the input demands, splits it by the plain rules.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <tests/xml/plain_tokens.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const std::size_t window = std::size_t{data[0]} + 1;
  const std::size_t piece = std::size_t{data[1]} + 1;
  const std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);
  ravo::test::SplitStream stream(text, piece);
  if (ravo::test::SmallTokens(stream, window) != ravo::test::PlainTokens(text, window)) std::abort();
  return 0;
}
