#include <ravo/common/stream_records.h>
#include <ravo/runtime/checked.h>
#include <ravo/runtime/little_endian.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

namespace ravo::RavoInterfaceCommon {
namespace {

using LengthBytes = std::array<std::byte, 4>;

LengthBytes ToBytes(std::int32_t length) {
  LengthBytes bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<std::byte>(static_cast<std::uint32_t>(length) >> (8 * i));
  }
  return bytes;
}

// Reads in blocks, so a malformed record allocates memory for missing bytes only after the read.
std::string ReadAvailable(ByteStream& stream, std::size_t most) {
  constexpr std::size_t kPiece = std::size_t{1} << 20;
  std::string text;
  while (text.size() < most) {
    const std::size_t had = text.size();
    text.resize(had + std::min(kPiece, most - had));
    const std::size_t got = stream.Read(std::as_writable_bytes(std::span(text).subspan(had)));
    text.resize(had + got);
    if (got == 0) break;
  }
  return text;
}

}  // namespace

void StringToStream(ByteStream* stream, std::string_view text) {
  if (!stream) return;
  stream->WriteChecked(ToBytes(CheckedCast<std::int32_t>(text.size())));
  stream->WriteChecked(std::as_bytes(std::span(text)));
  stream->WriteChecked(std::array{std::byte{0}});
}

std::string StringFromStream(ByteStream* stream) {
  if (!stream) return {};
  LengthBytes length{};
  stream->ReadChecked(length);
  const auto promised = CheckedCast<std::uint32_t>(static_cast<std::int32_t>(ReadLittle32(length, 0)));
  std::string text = ReadAvailable(*stream, promised);
  text.resize(promised);
  stream->SetPosition(CheckedAdd(stream->Position(), std::int64_t{1}));
  return text;
}

void VariantToStream(ByteStream* stream, const Variant& value) {
  if (!stream || value.IsEmptyOrNull()) return;
  const auto* bytes = std::get_if<ByteArray>(&value.Get());
  if (!bytes) throw VariantError(u"The value is no byte array");
  stream->WriteChecked(std::as_bytes(std::span(*bytes)));
}

Variant VariantFromStream(ByteStream* stream) {
  if (!stream) return NullValue{};
  stream->SetPosition(0);
  ByteArray bytes(static_cast<std::size_t>(CheckedCast<std::int32_t>(stream->Size())));
  stream->ReadChecked(std::as_writable_bytes(std::span(bytes)));
  return bytes;
}

}  // namespace ravo::RavoInterfaceCommon
