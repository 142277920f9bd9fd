#include <ravo/convert/utf8_reader.h>

#include <cstdint>
#include <cstring>

namespace ravo::convert {
namespace {

struct LeadByte {
  std::size_t size;
  char32_t bits;
  char32_t least;  // a smaller code in that many bytes is malformed
};

LeadByte LeadByteOf(unsigned char byte) {
  if (byte >= 0xC2 && byte < 0xE0) return {2, byte & 0x1FU, 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return {3, byte & 0x0FU, 0x800};
  if (byte >= 0xF0 && byte < 0xF5) return {4, byte & 0x07U, 0x10000};
  return {0, 0, 0};
}

bool IsSurrogateCode(char32_t code) { return code >= 0xD800 && code < 0xE000; }

// Eight bytes at once, as long as they are ASCII.
std::size_t AsciiLength(std::string_view text) {
  std::size_t at = 0;
  for (std::uint64_t eight = 0; at + sizeof eight <= text.size(); at += sizeof eight) {
    std::memcpy(&eight, text.data() + at, sizeof eight);
    if ((eight & 0x8080808080808080) != 0) break;
  }
  return at;
}

}  // namespace

Utf8Character FirstCharacter(std::string_view utf8) {
  const auto first = static_cast<unsigned char>(utf8[0]);
  if (first < 0x80) return {first, 1};
  const LeadByte lead = LeadByteOf(first);
  if (lead.size == 0 || lead.size > utf8.size()) return {};
  char32_t code = lead.bits;
  for (const char next : utf8.substr(1, lead.size - 1)) {
    const auto byte = static_cast<unsigned char>(next);
    if ((byte & 0xC0) != 0x80) return {};
    code = code << 6 | (byte & 0x3F);
  }
  if (code < lead.least || code > 0x10FFFF || IsSurrogateCode(code)) return {};
  return {code, lead.size};
}

std::size_t ValidUtf8Length(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    at += AsciiLength(text.substr(at));
    if (at == text.size()) break;
    const Utf8Character character = FirstCharacter(text.substr(at));
    if (character.size == 0) break;
    at += character.size;
  }
  return at;
}

}  // namespace ravo::convert
