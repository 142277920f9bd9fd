// Foreign bytes: UTF-8 with every set of kernels, web addresses.
#include <ravo/DIUtils.h>
#include <ravo/codec/kernels/kernel_set.h>

#include <cstdint>
#include <cstdlib>

namespace {

using namespace ravo::DIUtils;

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckUtf8(std::string_view bytes) {
  const auto sets = ravo::codec::KernelSets();
  std::u16string text;
  std::string back;
  // The first set is the plain one.
  for (const ravo::codec::KernelSet& kernels : sets) {
    if (!kernels.runs_here()) continue;
    const ravo::codec::ScopedKernels chosen(kernels);
    if (&kernels == sets.data()) text = StrDecodeUtf8(bytes);
    if (&kernels == sets.data()) back = StrEncodeUtf8(text);
    Require(StrDecodeUtf8(bytes) == text && StrEncodeUtf8(text) == back && StrDecodeUtf8(back) == text);
  }
  Require(StrCountUtf8Chars(bytes) == text.size());
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
