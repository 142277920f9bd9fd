// Any bytes through the checksum and the hashes: every kernel agrees with the plain one, in one block and in
// two, and texts that differ only in case have the same hash if case is ignored.
#include <ravo/DIUtils.h>
#include <ravo/utils/crc32_kernels.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

void Require(bool condition) {
  if (!condition) std::abort();
}

void CheckKernels(std::uint32_t start, const Bytes& bytes) {
  const auto span = std::as_bytes(std::span(bytes));
  const std::size_t cut = bytes.empty() ? 0 : start % bytes.size();
  const std::uint32_t expected = ravo::utils::UpdateCrc32Bytewise(start, span);
  for (const ravo::utils::Crc32Kernel& kernel : ravo::utils::Crc32Kernels()) {
    if (!kernel.runs_here()) continue;
    Require(kernel.update(start, span) == expected);
    Require(kernel.update(kernel.update(start, span.first(cut)), span.subspan(cut)) == expected);
  }
}

// Repeats the bytes, so that kernels take their path for long texts.
void CheckLongText(std::uint32_t start, const Bytes& bytes) {
  constexpr std::size_t longest = 48 << 10;
  if (bytes.empty()) return;
  Bytes text;
  for (std::size_t count = start % longest; count > 0; count -= std::min(count, bytes.size())) {
    text.insert(text.end(), bytes.begin(),
                bytes.begin() + static_cast<std::ptrdiff_t>(std::min(count, bytes.size())));
  }
  CheckKernels(start, text);
}

void CheckCase(std::uint32_t start, const Bytes& bytes) {
  Bytes upper = bytes;
  for (std::uint8_t& byte : upper) byte = ravo::DIUtils::ANSI_UPPER_CHAR_TABLE[byte];
  Require(ravo::DIUtils::HashBufIA(bytes.data(), bytes.size(), start) ==
          ravo::DIUtils::HashBuf(upper.data(), upper.size(), start));
}

// Changes the case of ASCII letters; other units stay.
void CheckFolding(std::uint32_t start, const Bytes& bytes) {
  std::u16string text(bytes.size() / 2, u'\0');
  if (!text.empty()) std::memcpy(text.data(), bytes.data(), 2 * text.size());
  const std::uint32_t hash = ravo::DIUtils::HashStrIW(text, start);
  for (char16_t& unit : text) {
    if (unit >= u'a' && unit <= u'z') unit = static_cast<char16_t>(unit - 32);
  }
  Require(ravo::DIUtils::HashStrIW(text, start) == hash);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::uint32_t start = 0;
  if (size < sizeof(start)) return 0;
  std::memcpy(&start, data, sizeof(start));
  // A separate block, so that an out-of-bounds read is detected.
  const Bytes bytes(data + sizeof(start), data + size);
  CheckKernels(start, bytes);
  CheckLongText(start, bytes);
  CheckCase(start, bytes);
  CheckFolding(start, bytes);
  return 0;
}
