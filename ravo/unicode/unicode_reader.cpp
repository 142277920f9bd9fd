#include <ravo/unicode/encoding_of.h>
#include <ravo/unicode/encodings.h>
#include <ravo/unicode/unicode_reader.h>

#include <algorithm>

namespace ravo::DIUnicode {
TDIUnicodeReader::TDIUnicodeReader(TComponent* AOwner) : TDIUnicodeBase(AOwner) { UseReadMethods({}); }

TDIUnicodeReader::~TDIUnicodeReader() {
  ClearSourceStack();
  if (FReadMethods.Finalize != nullptr) FReadMethods.Finalize(*this);
  // Kept: the destructor does not delete the first stream, whatever `AutoFreeSourceStreams` is. Test:
  // AutoFreeSourceStreams.LeavesTheFirstStreamOfAReaderThatGoes
  if (FSourceStream != nullptr) DropStreamBuffer();
}

// Sets the methods, completed with defaults.
void TDIUnicodeReader::UseReadMethods(const TDIUnicodeReadMethods& methods) {
  FReadMethods = methods;
  if (FReadMethods.ReadChar == nullptr) {
    FReadMethods.Init = nullptr;
    FReadMethods.ReadChar = Read_Iso_8859_1_ReadChar;
  }
  const codec::Encoding* const encoding = unicode::EncodingOf(FReadMethods);
  FDecodeRun = encoding != nullptr ? encoding->decode_run : nullptr;
  FDecodeUntil = encoding != nullptr ? encoding->decode_until : nullptr;
}

void TDIUnicodeReader::SetReadMethods(const TDIUnicodeReadMethods& methods) {
  // `methods` may refer to `FReadMethods`, which `Finalize` may still read.
  const TDIUnicodeReadMethods copy = methods;
  if (FReadMethods.Finalize != nullptr) FReadMethods.Finalize(*this);
  FState = 0;
  UseReadMethods(copy);
  if (FReadMethods.Init != nullptr) FReadMethods.Init(*this);
}

bool TDIUnicodeReader::AddCharReadChar() {
  AddChar();
  return ReadChar();
}

// Pops a source that ended before choosing the decoder, so that the next source is read with its own.
bool TDIUnicodeReader::Decode(char16_t& ch) {
  if (FSourceStack != nullptr && FSourceBufferPosition >= FSourceBufferSize) FillSourceBuffer(false);
  return FReadMethods.ReadChar(*this, ch);
}

bool TDIUnicodeReader::TakePeeked(char16_t& ch) noexcept {
  if (FPeekedCount == 0) return false;
  ch = FPeekedChars[FPeekedStart++];
  --FPeekedCount;
  return true;
}

bool TDIUnicodeReader::PeekChars(std::uint32_t Count) {
  if (FPeekedCount >= Count) return true;
  MakePeekRoom(Count);
  while (FPeekedCount < Count) {
    if (!Decode(FPeekedChars[FPeekedCount])) return false;
    ++FPeekedCount;
  }
  return true;
}

// Moves peeked characters to the front of an array with room for `Count`.
void TDIUnicodeReader::MakePeekRoom(std::uint32_t Count) {
  if (FPeekedCapacity >= Count) {
    std::copy_n(FPeekedChars.get() + FPeekedStart, FPeekedCount, FPeekedChars.get());
  } else {
    auto larger = std::make_unique<char16_t[]>(Count);
    std::copy_n(FPeekedChars.get() + FPeekedStart, FPeekedCount, larger.get());
    FPeekedChars = std::move(larger);
    FPeekedCapacity = Count;
  }
  FPeekedStart = 0;
}

void TDIUnicodeReader::ResetCharLocation() noexcept {
  FChar = 0;
  FCharPos = 0;
  FCharLine = 1;
  FCharCol = 0;
}

}  // namespace ravo::DIUnicode
