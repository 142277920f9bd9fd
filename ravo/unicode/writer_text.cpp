// Texts, numbers, files and streams for a writer. If the encoding encodes whole runs, they are written run by
// run; a character that needs a decision is written singly.
#include <ravo/codec/kernels/run.h>
#include <ravo/platform/file_stream.h>
#include <ravo/runtime/checked.h>
#include <ravo/runtime/text.h>
#include <ravo/unicode/unicode_writer.h>

#include <algorithm>

namespace ravo::DIUnicode {
namespace {

constexpr std::size_t kPiece = 4096;

// Returns `start_div` as a power of ten with at least as many digits as `number`.
std::uint64_t LargestPower(std::uint64_t number, std::uint64_t start_div) {
  std::uint64_t power = 1;
  while (start_div / power >= 10 || number / power >= 10) power *= 10;
  return power;
}

std::uint64_t Magnitude(std::int64_t number) {
  return number < 0 ? 0 - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
}

}  // namespace

// Encodes a run that fits into the buffer and returns its length in characters.
std::size_t TDIUnicodeWriter::WriteRun(std::u16string_view text) {
  if (FEncodeRun == nullptr) return 0;
  const std::span room(FData.get() + FDataSize, FDataCapacity - FDataSize);
  const codec::Run run = FEncodeRun(text, room);
  FDataSize += static_cast<std::uint32_t>(run.made);
  return run.taken;
}

bool TDIUnicodeWriter::WriteStrW(std::u16string_view Value) {
  while (!Value.empty()) {
    std::size_t count = WriteRun(Value);
    if (count == 0) {
      if (!WriteCharW(Value.front())) return false;
      count = 1;
    }
    Value.remove_prefix(count);
  }
  return true;
}

bool TDIUnicodeWriter::WriteBufW(const char16_t* Buffer, std::uint32_t CharCount) {
  return WriteStrW({Buffer, CharCount});
}

bool TDIUnicodeWriter::WriteCharsW(char16_t c, std::uint32_t Count) {
  for (; Count != 0; --Count) {
    if (!WriteCharW(c)) return false;
  }
  return true;
}

bool TDIUnicodeWriter::WriteStrLineBreakW(std::u16string_view Value) {
  return WriteStrW(Value) && WriteLineBreak();
}

bool TDIUnicodeWriter::WriteStrA(std::string_view Value, std::uint32_t CodePage) {
  return WriteStrW(FromCodePage(Value, CodePage));
}

bool TDIUnicodeWriter::WriteBufA(const char* Buffer, std::uint32_t CharCount, std::uint32_t CodePage) {
  return WriteStrA({Buffer, CharCount}, CodePage);
}

bool TDIUnicodeWriter::WriteStrLineBreakA(std::string_view Value, std::uint32_t CodePage) {
  return WriteStrA(Value, CodePage) && WriteLineBreak();
}

bool TDIUnicodeWriter::WriteLineBreak() { return TryWriteCharW(u'\r') && TryWriteCharW(u'\n'); }

bool TDIUnicodeWriter::WriteDecimalCodePoint(char16_t c) { return WriteStrW(ToText(std::uint64_t{c})); }

bool TDIUnicodeWriter::WriteHexCodePoint(char16_t c) { return WriteStrW(ToHex(c, 1)); }

bool TDIUnicodeWriter::WriteDigits(std::uint64_t number, std::uint64_t start_div) {
  for (std::uint64_t power = LargestPower(number, start_div); power != 0; power /= 10) {
    if (!WriteCharW(static_cast<char16_t>(u'0' + number / power % 10))) return false;
  }
  return true;
}

bool TDIUnicodeWriter::WriteDecimalNumber(std::int64_t Number, std::int64_t StartDiv) {
  if (Number < 0 && !WriteCharW(u'-')) return false;
  return WriteDigits(Magnitude(Number), Magnitude(std::max<std::int64_t>(StartDiv, 1)));
}

bool TDIUnicodeWriter::WriteDecimalNumber(std::int64_t Number) { return WriteDecimalNumber(Number, 1); }

bool TDIUnicodeWriter::WriteDecimalNumber(std::int32_t Number, std::int64_t StartDiv) {
  return WriteDecimalNumber(std::int64_t{Number}, StartDiv);
}

bool TDIUnicodeWriter::WriteDecimalNumber(std::int32_t Number) {
  return WriteDecimalNumber(std::int64_t{Number}, 1);
}

bool TDIUnicodeWriter::WriteFrom(TDIUnicodeReader& reader) {
  std::array<char16_t, kPiece> piece;
  while (const std::size_t count = reader.ReadRun(piece)) {
    if (!WriteStrW({piece.data(), count})) return false;
  }
  return true;
}

bool TDIUnicodeWriter::WriteStream(ByteStream* AStream, const TDIUnicodeReadMethods& AReadMethods) {
  TDIUnicodeReader reader;
  reader.SetReadMethods(AReadMethods);
  reader.SetSourceStream(AStream);
  return WriteFrom(reader);
}

bool TDIUnicodeWriter::WriteFile(std::u16string_view AFileName, const TDIUnicodeReadMethods& AReadMethods) {
  FileStream file(AFileName, FileMode::Read);
  return WriteStream(&file, AReadMethods);
}

}  // namespace ravo::DIUnicode
