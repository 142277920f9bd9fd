#include "printable.h"

namespace tool {
namespace {

unsigned ByteAt(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

bool IsLineEnd(std::string_view text, std::size_t at) {
  return text[at] == '\n' || (text[at] == '\r' && ByteAt(text, at + 1) == '\n');
}

bool IsControl(std::string_view text, std::size_t at) {
  const unsigned byte = ByteAt(text, at);
  return byte < 0x20 || byte == 0x7F;
}

bool IsLayout(std::string_view text, std::size_t at) { return text[at] == '\t' || IsLineEnd(text, at); }

// The pictures of the control characters begin at U+2400.
std::string PictureOf(unsigned control) {
  const unsigned code = control == 0x7F ? 0x21 : control;
  return {'\xE2', '\x90', static_cast<char>(0x80 + code)};
}

// U+0080 to U+009F are C2 80 to C2 9F in UTF-8.
bool IsControlPair(std::string_view text, std::size_t at) {
  return ByteAt(text, at) == 0xC2 && ByteAt(text, at + 1) >= 0x80 && ByteAt(text, at + 1) < 0xA0;
}

// U+202A to U+202E and U+2066 to U+2069.
bool IsDirection(std::string_view text, std::size_t at) {
  if (ByteAt(text, at) != 0xE2) return false;
  const unsigned second = ByteAt(text, at + 1);
  const unsigned third = ByteAt(text, at + 2);
  return (second == 0x80 && third >= 0xAA && third <= 0xAE) ||
         (second == 0x81 && third >= 0xA6 && third <= 0xA9);
}

std::string CodeText(unsigned code) {
  std::string text = "<U+0000>";
  for (std::size_t digit = 6; digit > 2; --digit, code >>= 4) text[digit] = "0123456789ABCDEF"[code & 15];
  return text;
}

unsigned DirectionCode(std::string_view text, std::size_t at) {
  return 0x2000 + ((ByteAt(text, at + 1) & 63) << 6) + (ByteAt(text, at + 2) & 63);
}

std::string Visible(std::string_view utf8, bool keeps_layout) {
  std::string shown;
  for (std::size_t at = 0; at < utf8.size(); ++at) {
    if (IsControl(utf8, at) && !(keeps_layout && IsLayout(utf8, at))) {
      shown += PictureOf(ByteAt(utf8, at));
    } else if (IsControlPair(utf8, at)) {
      shown += CodeText(ByteAt(utf8, ++at));
    } else if (IsDirection(utf8, at)) {
      shown += CodeText(DirectionCode(utf8, at));
      at += 2;
    } else {
      shown += utf8[at];
    }
  }
  return shown;
}

}  // namespace

std::string Printable(std::string_view utf8) { return Visible(utf8, true); }

std::string OnOneLine(std::string_view utf8) { return Visible(utf8, false); }

}  // namespace tool
