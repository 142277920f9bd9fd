#include <ravo/platform/pe_file.h>
#include <ravo/platform/version_resource_block.h>

#include <cstdint>
#include <span>

namespace {

using ravo::platform::FirstTranslationOf;
using ravo::platform::VersionStringOf;

void AskBlock(std::span<const std::byte> block) {
  static_cast<void>(FirstTranslationOf(block));
  static_cast<void>(VersionStringOf(block, u"040504E2", u"FileVersion"));
}

}  // namespace

// Parses the input as an image, and as the version resource of one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto bytes = std::as_bytes(std::span(data, size));
  ravo::MemoryStream file(bytes);
  if (const auto resource = ravo::platform::ReadVersionResource(file)) AskBlock(*resource);
  AskBlock(bytes);
  return 0;
}
