#include "convert_text.h"

#include <array>
#include <cstdio>

namespace tool {
namespace {

using namespace ravo::DIUnicode;

constexpr char16_t kUnreadable = 0xFFFD;
constexpr std::uint32_t kPace = 1 << 16;

const TDIUnicodeReadMethods& MethodsFor(TDIBOM mark) {
  switch (mark) {
    case TDIBOM::bomutf16be:
      return Read_UTF_16_BE;
    case TDIBOM::bomutf16le:
      return Read_UTF_16_LE;
    case TDIBOM::bomutf32be:
      return Read_UTF_32_BE;
    case TDIBOM::bomutf32le:
      return Read_UTF_32_LE;
    default:
      return Read_UTF_8;
  }
}

std::string CodePoint(char16_t c) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "U+%04X", static_cast<unsigned>(c));
  return text.data();
}

std::string Place(const TDIUnicodeReader& reader) {
  return std::to_string(reader.CharLine()) + ":" + std::to_string(reader.CharCol()) + ": ";
}

std::string Unreadable(const TDIUnicodeReader& reader) { return Place(reader) + "bytes that cannot be read"; }

std::string Unwritable(const TDIUnicodeReader& reader, const EncodingRow& to) {
  return Place(reader) + CodePoint(reader.Char()) + " cannot be written in " + std::string(to.name);
}

// Some encodings end at a unit that nothing can be made of, with bytes behind it.
bool EndedEarly(TDIUnicodeReader& reader) {
  std::uint8_t byte = 0;
  return reader.PeekByte(byte);
}

Refusal Transfer(const Conversion& conversion, TDIUnicodeReader& reader, TDIUnicodeWriter& writer) {
  const bool strict = !conversion.replacement;
  if (strict && reader.Char() == kUnreadable) return Unreadable(reader);
  if (strict && !writer.TryWriteCharW(reader.Char())) return Unwritable(reader, *conversion.to);
  if (!strict) writer.WriteCharW(reader.Char());
  return {};
}

}  // namespace

Refusal Convert(const Conversion& conversion, ravo::ByteStream& source, TDIUnicodeWriter& writer,
                const std::function<void(std::int64_t)>& progress) {
  TDIUnicodeReader reader;
  reader.SetSourceStream(&source);
  reader.SetReadMethods(conversion.from ? *conversion.from->read : MethodsFor(reader.ReadBOM()));
  if (conversion.replacement) writer.SetReplacementChar(*conversion.replacement);
  for (;;) {
    while (reader.ReadChar()) {
      if (Refusal refusal = Transfer(conversion, reader, writer)) return refusal;
      if (reader.CharPos() % kPace == 0) progress(source.Position());
    }
    if (!EndedEarly(reader)) return {};
    if (!conversion.replacement) return Unreadable(reader) + " after this character";
    writer.WriteCharW(kUnreadable);
  }
}

}  // namespace tool
