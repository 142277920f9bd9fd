// Foreign bytes: UTF-8 by every set of kernels, addresses of the web.
#include <ravo/DIUtils.h>
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/utils/strings/utf8_kernels.h>

#include <cstdint>
#include <cstdlib>

namespace {

using namespace ravo::DIUtils;

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckUtf8(std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  text.resize(static_cast<std::size_t>(ravo::strings::DecodeUtf8Plainly(bytes, text.data()) - text.data()));
  std::string back(3 * text.size(), '\0');
  back.resize(static_cast<std::size_t>(ravo::strings::EncodeUtf8Plainly(text, back.data()) - back.data()));
  for (const ravo::codec::KernelSet& kernels : ravo::codec::KernelSets()) {
    if (!kernels.runs_here()) continue;
    const ravo::codec::ScopedKernels chosen(kernels);
    Require(StrDecodeUtf8(bytes) == text && StrCountUtf8Chars(bytes) == text.size());
    Require(StrEncodeUtf8(text) == back && StrDecodeUtf8(back) == text);
  }
}

// The bytes as units of UTF-16, halves of pairs among them.
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
