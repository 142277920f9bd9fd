#include "codec.h"

#include <ravo/convert/text_converter.h>
#include <ravo/document/characters.h>
#include <ravo/document/gb18030_writing.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

namespace ravo::document {
namespace {

codec::ByteSpan BytesOf(std::string_view text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

// Appends the bytes of a character up to U+FFFF.
bool EncodeUnit(const codec::Encoding& row, char16_t unit, std::string& to) {
  std::array<std::uint8_t, codec::kMostBytesAtOnce> room{};
  codec::State state;
  const codec::Step step = codec::Encode(row, state, std::span(&unit, 1), room);
  to.append(room.begin(), room.begin() + static_cast<std::ptrdiff_t>(step.made));
  return step.taken == 1;
}

}  // namespace

DocumentCodec::Character DocumentCodec::DecodeOne(std::string_view bytes, std::size_t at) const {
  codec::State state;
  const convert::Character read = encoding_.Read(state, BytesOf(bytes.substr(at)), true);
  return read.reading == convert::Character::Reading::Whole ? Character{read.code, read.bytes} : Character{};
}

std::size_t DocumentCodec::Decode(std::string_view bytes, std::size_t at, std::string& utf8) const {
  if (encoding_.Row().engine == "Utf8") {
    const std::string_view valid = bytes.substr(at, ValidUtf8Length(bytes.substr(at)));
    utf8 += valid;
    return at + valid.size();
  }
  constexpr std::size_t kPiece = std::size_t{1} << 16;
  convert::TextConverter converter(
      {.from = &encoding_.Row(), .to = codec::FindEncoding("UTF_8"), .replacement = {}, .measures = false});
  convert::Converted made;
  while (at < bytes.size() && !made.fault) {
    const std::string_view piece = bytes.substr(at, kPiece);
    const bool is_last = at + piece.size() == bytes.size();
    const std::size_t taken = converter.Convert(
        BytesOf(piece), is_last ? convert::Following::Nothing : convert::Following::Bytes, made);
    at += made.fault ? made.fault->position : taken;
    utf8 += made.bytes.Text();
    made.bytes.Clear();
  }
  return at;
}

bool DocumentCodec::Encode(char32_t c, std::string& to) const {
  const codec::Encoding& row = encoding_.Row();
  if (row.engine == "Gb18030") return AppendGb18030(row, c, to);
  if (c < 0x10000) return EncodeUnit(row, static_cast<char16_t>(c), to);
  codec::State state;
  convert::ByteBuffer bytes;
  const bool has = encoding_.Write(state, c, bytes);
  to += bytes.Text();
  return has;
}

std::shared_ptr<const DocumentCodec> CodecOf(const codec::Encoding& row) {
  if (row.engine.starts_with("Utf7")) return nullptr;
  return std::make_shared<const DocumentCodec>(row);
}

}  // namespace ravo::document
