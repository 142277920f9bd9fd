// The stack of sources, and refilling the buffer from it.
#include <ravo/unicode/encodings.h>
#include <ravo/unicode/source_buffer.h>
#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/utf7_state.h>

#include <algorithm>
#include <cstring>

namespace ravo::DIUnicode {

void TDIUnicodeReader::PushSource(bool StoreReadMethods) {
  auto entry = std::make_unique<TUnicodeReaderSource>(TUnicodeReaderSource{
      FSourceStack, FCharPos, FCharLine, FCharCol, StoreReadMethods ? FReadMethods : TDIUnicodeReadMethods{},
      FSourceBuffer, FSourceBufferSize, FSourceBufferPosition, std::move(FSourceFile), FSourceStream, 0});
  FSourceStack = entry.release();
  FSourceBuffer = nullptr;
  FSourceBufferSize = 0;
  FSourceBufferPosition = 0;
  FSourceStream = nullptr;
  FSourceFile.clear();
  ResetCharLocation();
}

bool TDIUnicodeReader::PopSource() {
  if (FSourceStack == nullptr) return false;
  if (FSourceStream != nullptr) DropStreamBuffer();
  if (FAutoFreeSourceStreams != TAutoFreeSourceStreams::afNone) delete FSourceStream;
  const std::unique_ptr<TUnicodeReaderSource> entry(FSourceStack);
  FSourceStack = entry->Next;
  // Kept: the location continues from the last character of a popped source: a line feed at its end starts a
  // new line in the source below. Test: PushSource.TheLastCharacterOfASourceCountsForTheNext
  FCharPos = entry->CharPos;
  FCharLine = entry->CharLine;
  FCharCol = entry->CharCol;
  FSourceBuffer = entry->SourceBuffer;
  FSourceBufferSize = entry->SourceBufferSize;
  FSourceBufferPosition = entry->SourceBufferPosition;
  FSourceFile = std::move(entry->SourceFile);
  FSourceStream = entry->SourceStream;
  if (entry->ReadMethods.ReadChar != nullptr) {
    // Frees the library's own record, which is no longer used. State of other decoders is theirs to free.
    if (FReadMethods.Finalize == Read_UTF_7_Finalize && entry->ReadMethods.Finalize != Read_UTF_7_Finalize)
      unicode::FreeUtf7State(*this);
    UseReadMethods(entry->ReadMethods);
  }
  return true;
}

void TDIUnicodeReader::ClearSourceStack() {
  while (PopSource()) {
  }
}

const std::u16string& TDIUnicodeReader::FirstSourceFile() const noexcept {
  const std::u16string* name = &FSourceFile;
  for (const TUnicodeReaderSource* entry = FSourceStack; entry != nullptr; entry = entry->Next)
    name = &entry->SourceFile;
  return *name;
}

std::uint32_t TDIUnicodeReader::FillSourceBuffer(bool MoveEndToFront) {
  // A full buffer is not the end of the stream.
  if (FSourceStream != nullptr && MoveEndToFront && UnreadBytes().size() == unicode::kSourceBufferSize)
    return unicode::kSourceBufferSize;
  const std::uint32_t count = FillFromStream(MoveEndToFront);
  return count != 0 ? count : FillFromStack();
}

std::uint32_t TDIUnicodeReader::FillFromStream(bool move_end_to_front) {
  if (FSourceStream == nullptr) return 0;
  std::uint8_t* const buffer = unicode::Writable(FSourceBuffer);
  const auto unread = UnreadBytes();
  const auto rest = move_end_to_front ? static_cast<std::uint32_t>(unread.size()) : 0;
  if (rest != 0) std::memmove(buffer, unread.data(), rest);
  FSourceBufferPosition = 0;
  FSourceBufferSize = rest;
  const std::span room(buffer + rest, unicode::kSourceBufferSize - rest);
  const auto count = static_cast<std::uint32_t>(FSourceStream->Read(std::as_writable_bytes(room)));
  FSourceBufferSize += count;
  return count;
}

std::uint32_t TDIUnicodeReader::FillFromStack() {
  while (PopSource()) {
    if (const auto count = UnreadBytes().size(); count != 0) return static_cast<std::uint32_t>(count);
    if (const std::uint32_t count = FillFromStream(false); count != 0) return count;
  }
  if (FAutoFreeSourceStreams == TAutoFreeSourceStreams::afAll) DeleteStream();
  return 0;
}

}  // namespace ravo::DIUnicode
