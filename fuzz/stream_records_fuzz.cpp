// Records in streams: any bytes give texts or one of the library's errors, and every text is written back
// identically.
#include <ravo/common/stream_records.h>
#include <ravo/runtime/error.h>

#include <cstdint>
#include <cstdlib>

namespace {

using namespace ravo::RavoInterfaceCommon;

void Require(bool condition) {
  if (!condition) std::abort();
}

// Returns the length that the record at the position of the stream declares; the position is unchanged.
std::int64_t Promised(ravo::MemoryStream& stream) {
  const std::int64_t at = stream.Position();
  std::int64_t length = 0;
  for (std::int64_t i = 0; i < 4 && at + i < stream.Size(); ++i) {
    length |= std::to_integer<std::int64_t>(stream.Bytes()[static_cast<std::size_t>(at + i)]) << (8 * i);
  }
  return length;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // A declared length of gigabytes is filled with zeros: correct, but too slow for fuzzing.
  constexpr std::int64_t kMostPromised = 1 << 20;
  ravo::MemoryStream stream(std::as_bytes(std::span(data, size)));
  ravo::MemoryStream copy;
  try {
    while (stream.Position() < stream.Size() &&
           (Promised(stream) <= kMostPromised || Promised(stream) > INT32_MAX)) {
      const std::string text = StringFromStream(&stream);
      const std::int64_t start = copy.Position();
      StringToStream(&copy, text);
      copy.SetPosition(start);
      Require(StringFromStream(&copy) == text);
    }
  } catch (const ravo::StreamError&) {
  } catch (const ravo::RangeError&) {
  }
  const ravo::Variant blob = VariantFromStream(&stream);
  ravo::MemoryStream again;
  VariantToStream(&again, blob);
  Require(VariantFromStream(&again) == blob);
  return 0;
}
