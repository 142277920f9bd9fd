#include <ravo/formout/form_fields.h>
#include <ravo/formout/machine_free.h>
#include <ravo/platform/code_pages.h>
#include <ravo/runtime/text.h>
#include <ravo/unicode/encodings.h>
#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/unicode_writer.h>

#include <span>
#include <string>

namespace ravo::formout {
namespace {

constexpr char16_t kSmallCWithCaron = u'\u010D';

void Write(ByteStream& stream, std::string_view bytes) {
  stream.WriteChecked(std::as_bytes(std::span(bytes)));
}

void WriteByteOrderMark(DIUnicode::TDIUnicodeWriter& writer) { writer.WriteCharW(u'\uFEFF'); }

// Kept: the low byte 0D of č is written as `\r`, because readers of PDF would change it to a line feed.
// Nothing else is escaped: parentheses, backslashes and carriage returns are the caller's to keep out. Test:
// Win1250ToPDFDocEncoding.EscapesOneByteOfOneCharacter, Win1250ToPDFDocEncoding.EscapesNothingElse,
// FillPDFField.EscapesNeitherNameNorValue
void WriteCharacter(DIUnicode::TDIUnicodeWriter& writer, char16_t ch) {
  if (ch != kSmallCWithCaron) {
    writer.WriteCharW(ch);
    return;
  }
  for (const char byte : {'\x01', '\\', 'r'}) writer.WriteByte(static_cast<std::uint8_t>(byte));
}

}  // namespace

// The bytes are interpreted as Windows-1250, even if the system has another code page.
void WriteTextString(ByteStream& stream, std::string_view bytes) {
  DIUnicode::TDIUnicodeReader reader(nullptr);
  reader.SetReadMethods(DIUnicode::Read_Windows_1250);
  reader.SetSourceBufferAsStrA(bytes);
  DIUnicode::TDIUnicodeWriter writer(nullptr);
  writer.SetWriteMethods(DIUnicode::Write_UTF_16_BE);
  writer.SetDataStream(&stream);
  WriteByteOrderMark(writer);
  while (reader.ReadChar()) WriteCharacter(writer, reader.Char());
  writer.FlushDataBuffer();
}

void WriteField(ByteStream& stream, std::string_view name, std::string_view value, bool as_unicode) {
  const std::string start = "<</T(" + std::string(name) + ")/V(";
  if (!as_unicode) return Write(stream, start + std::string(value) + ")>>");
  Write(stream, start);
  WriteTextString(stream, value);
  Write(stream, ")>>");
}

void WriteIntegerField(ByteStream& stream, std::string_view name, std::int32_t value) {
  Write(stream, "<</T(" + std::string(name) + ")/V/" + std::to_string(value) + ">>");
}

}  // namespace ravo::formout

namespace ravo::RavoFileCommon {
namespace {

std::string EightBit(std::u16string_view text) { return platform::CodePages().ToCodePage(text); }

}  // namespace

void Win1250ToPDFDocEncoding(ByteStream& stream, std::u16string_view text) {
  formout::WriteTextString(stream, EightBit(text));
}

void FillPDFField(ByteStream& stream, std::u16string_view name, std::u16string_view value, bool AsUnicode) {
  formout::WriteField(stream, EightBit(name), EightBit(value), AsUnicode);
}

void FillPDFFieldAsInteger(ByteStream& stream, std::u16string_view name, std::int32_t value) {
  formout::WriteIntegerField(stream, EightBit(name), value);
}

}  // namespace ravo::RavoFileCommon
