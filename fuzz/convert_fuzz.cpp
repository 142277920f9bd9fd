// Conversions: any bytes give a text or an end with a place, independent of how they are divided; a guess is
// an encoding that reads.
#include "../tests/tool/text_divisions.h"
#include "../tools/ravo/encoding_guess.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace codec = ravo::codec;
  if (size < 3) return 0;
  const auto row = [](std::uint8_t number) {
    return &codec::Encodings()[number % codec::Encodings().size()];
  };
  tool::Conversion conversion;
  conversion.from = row(data[0]);
  conversion.to = row(data[1]);
  if (data[2] % 2 != 0) conversion.replacement = U'?';
  const codec::ByteSpan text(data + 3, size - 3);
  const auto guess = tool::GuessEncoding({reinterpret_cast<const char*>(text.data()), text.size()});
  const codec::Encoding* const guessed = codec::FindEncoding(std::string_view(guess.encoding));
  if (guessed == nullptr || guessed->decode_one == nullptr || guess.why.empty()) std::abort();
  if (conversion.from->decode_one == nullptr || conversion.to->encode_one == nullptr) return 0;
  const auto whole = tool::test::InPieces(conversion, text, size);
  if (tool::test::InPieces(conversion, text, 1) != whole ||
      tool::test::InPieces(conversion, text, 13) != whole)
    std::abort();
  const bool divisible = tool::ExactEncoding(*conversion.from).IsDivisible() &&
                         tool::ExactEncoding(*conversion.to).IsDivisible();
  if (divisible && tool::test::InBlocks(conversion, text, 8) != whole) std::abort();
  return 0;
}
