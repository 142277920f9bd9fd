// Foreign bytes: UTF-8 with every set of kernels, web addresses.
#include <ravo/DIUtils.h>
#include <ravo/utils/strings/kernels.h>
#include <ravo/utils/strings/utf8_kernels.h>

#include <cstdint>
#include <cstdlib>

namespace {

using namespace ravo::DIUtils;
using ravo::strings::StringKernel;

void Require(bool holds) {
  if (!holds) std::abort();
}

using Decode = decltype(StringKernel::decode_utf8);
using Encode = decltype(StringKernel::encode_utf8);

std::u16string Decoded(Decode decode, std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  text.resize(static_cast<std::size_t>(decode(bytes, text.data()) - text.data()));
  return text;
}

std::string Encoded(Encode encode, std::u16string_view text) {
  std::string bytes(3 * text.size(), '\0');
  bytes.resize(static_cast<std::size_t>(encode(text, bytes.data()) - bytes.data()));
  return bytes;
}

void CheckUtf8(std::string_view bytes) {
  const std::u16string text = Decoded(ravo::strings::DecodeUtf8Plainly, bytes);
  const std::string back = Encoded(ravo::strings::EncodeUtf8Plainly, text);
  for (const StringKernel& kernel : ravo::strings::StringKernels()) {
    if (!kernel.runs_here()) continue;
    Require(Decoded(kernel.decode_utf8, bytes) == text && Encoded(kernel.encode_utf8, text) == back);
  }
  Require(StrDecodeUtf8(bytes) == text && StrCountUtf8Chars(bytes) == text.size());
  Require(StrEncodeUtf8(text) == back && StrDecodeUtf8(back) == text);
}

// The bytes as UTF-16 units, unpaired surrogates included.
void CheckUnits(std::string_view bytes) {
  std::u16string text(bytes.size() / 2, u'\0');
  for (std::size_t i = 0; i < text.size(); ++i)
    text[i] = static_cast<char16_t>(static_cast<unsigned char>(bytes[2 * i]) << 8 |
                                    static_cast<unsigned char>(bytes[2 * i + 1]));
  Require(StrDecodeUtf8(StrEncodeUtf8(text)) == text);
}

void CheckUrl(std::string_view bytes) {
  const std::string decoded = StrDecodeUrlA(bytes);
  Require(decoded.size() <= bytes.size());
  Require(StrDecodeUrlA(StrEncodeUrlA(bytes)) == bytes && StrDecodeUrlA(StrEncodeUrlA(decoded)) == decoded);
  Require(StrTimUriFragmentA(bytes).size() <= bytes.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  CheckUtf8(bytes);
  CheckUnits(bytes);
  CheckUrl(bytes);
  return 0;
}
