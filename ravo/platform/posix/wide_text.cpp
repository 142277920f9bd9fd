#include <ravo/runtime/wide_string.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace ravo {
namespace {

using ByteLength = std::uint32_t;

constexpr std::size_t kMostUnits =
    (std::numeric_limits<ByteLength>::max() - sizeof(ByteLength)) / sizeof(char16_t) - 1;

// Returns the block that holds a text; it begins with the length.
char* BlockOf(const char16_t* text) {
  return const_cast<char*>(reinterpret_cast<const char*>(text)) - sizeof(ByteLength);
}

}  // namespace

char16_t* AllocateWideText(const char16_t* text, std::size_t units) noexcept {
  // Untested: needs a text of two gigabytes.
  if (units > kMostUnits) return nullptr;
  const auto bytes = static_cast<ByteLength>(units * sizeof(char16_t));
  auto* block = static_cast<char*>(std::malloc(sizeof(ByteLength) + bytes + sizeof(char16_t)));
  if (!block) return nullptr;
  std::memcpy(block, &bytes, sizeof bytes);
  auto* first = reinterpret_cast<char16_t*>(block + sizeof(ByteLength));
  if (units != 0) std::memcpy(first, text, bytes);
  first[units] = u'\0';
  return first;
}

std::size_t WideTextLength(const char16_t* text) noexcept {
  ByteLength bytes = 0;
  if (text) std::memcpy(&bytes, BlockOf(text), sizeof bytes);
  return bytes / sizeof(char16_t);
}

void FreeWideText(char16_t* text) noexcept {
  if (text) std::free(BlockOf(text));
}

}  // namespace ravo
