#include <ravo/unicode/encoding_of.h>
#include <ravo/unicode/encodings.h>
#include <ravo/unicode/unicode_reader.h>

#include <algorithm>

namespace ravo::DIUnicode {
TDIUnicodeReader::TDIUnicodeReader(TComponent* AOwner) : TDIUnicodeBase(AOwner) { UseReadMethods({}); }

TDIUnicodeReader::~TDIUnicodeReader() {
  ClearSourceStack();
  if (FReadMethods.Finalize != nullptr) FReadMethods.Finalize(*this);
  // Kept: the destructor does not free the first stream, whatever `AutoFreeSourceStreams` is. Test:
  // AutoFreeSourceStreams.LeavesTheFirstStreamOfAReaderThatGoes
  if (FSourceStream != nullptr) DropStreamBuffer();
}

// Methods that are complete: what is missing is put in its place.
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
  // They may be our own, which `Finalize` may still look at.
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

// A source that ended is left before the decoder is chosen, so that the one that goes on is read with its
// own.
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

// What is peeked begins at the front again, with room for `Count` in all.
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
