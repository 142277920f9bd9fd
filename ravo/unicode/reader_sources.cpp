// The sources of a reader: buffers, streams, files.
#include <ravo/platform/file_stream.h>
#include <ravo/runtime/checked.h>
#include <ravo/unicode/messages.h>
#include <ravo/unicode/source_buffer.h>
#include <ravo/unicode/unicode_reader.h>

#include <algorithm>
#include <cstring>

namespace ravo::DIUnicode {

void TDIUnicodeReader::Raise(const ResourceString& message) { RaiseError(u"TDIUnicodeReader", message); }

void TDIUnicodeReader::Raise(const ResourceString& message, std::uint32_t number) {
  RaiseError(u"TDIUnicodeReader", message, number);
}

// Discards decoded characters.
void TDIUnicodeReader::ForgetChars() noexcept {
  FPeekedCount = 0;
  FCharOK = false;
}

void TDIUnicodeReader::SetNewSource() noexcept {
  // Kept: a new source begins in the decoder state of the previous one; `SetReadMethods` resets it. Test:
  // Utf7State.ANewSourceBeginsInsideTheRunThatWasLeft, Utf7State.SetReadMethodsBeginsOutsideARun
  ForgetChars();
  FSourceBufferPosition = 0;
}

void TDIUnicodeReader::SetSourceBuffer(const void* Buffer, std::uint32_t BufferSize,
                                       std::u16string_view AFileName) {
  if (FSourceStream != nullptr) Raise(SSourceStreamModeError);
  FSourceFile = AFileName;
  FSourceBuffer = static_cast<const std::uint8_t*>(Buffer);
  FSourceBufferSize = Buffer == nullptr ? 0 : BufferSize;
  SetNewSource();
  ResetCharLocation();
}

void TDIUnicodeReader::SetSourceBuffer(std::span<const std::uint8_t> buffer, std::u16string_view AFileName) {
  SetSourceBuffer(buffer.data(), CheckedCast<std::uint32_t>(buffer.size()), AFileName);
}

void TDIUnicodeReader::SetSourceBufferAsStr(std::u16string_view ASourceStr, std::u16string_view AFileName) {
  SetSourceBufferAsStrW(ASourceStr, AFileName);
}

void TDIUnicodeReader::SetSourceBufferAsStrW(std::u16string_view ASourceStr, std::u16string_view AFileName) {
  const auto size = CheckedMultiply<std::uint32_t>(CheckedCast<std::uint32_t>(ASourceStr.size()), 2);
  SetSourceBuffer(ASourceStr.data(), size, AFileName);
}

void TDIUnicodeReader::SetSourceBufferAsStrA(std::string_view ASourceStr, std::u16string_view AFileName) {
  SetSourceBuffer(ASourceStr.data(), CheckedCast<std::uint32_t>(ASourceStr.size()), AFileName);
}

std::u16string TDIUnicodeReader::SourceBufferAsStrW() const {
  std::u16string text(FSourceBufferSize / 2, u'\0');
  if (!text.empty()) std::memcpy(text.data(), FSourceBuffer, 2 * text.size());
  return text;
}

std::string TDIUnicodeReader::SourceBufferAsStrA() const {
  return {FSourceBuffer, FSourceBuffer + FSourceBufferSize};
}

void TDIUnicodeReader::SetSourceBufferSize(std::uint32_t Size) {
  if (FSourceStream != nullptr) Raise(SSourceStreamModeError);
  if (FSourceBuffer == nullptr) Raise(SNoSourceBufferError);
  FSourceBufferSize = Size;
  FSourceBufferPosition = std::min(FSourceBufferPosition, Size);
  ForgetChars();
}

void TDIUnicodeReader::CheckPosition(std::uint64_t position) const {
  if (FSourceBuffer == nullptr) Raise(SNoSourceBufferError);
  if (position > FSourceBufferSize) Raise(SSourceBufferPositionError, static_cast<std::uint32_t>(position));
}

void TDIUnicodeReader::SetSourceBufferPosition(std::uint32_t Position) {
  CheckPosition(Position);
  FSourceBufferPosition = Position;
  ForgetChars();
}

void TDIUnicodeReader::IncSourceBufferPosition() {
  CheckPosition(std::uint64_t{FSourceBufferPosition} + 1);
  ++FSourceBufferPosition;
}

void TDIUnicodeReader::SetSourceStream(ByteStream* AStream, std::u16string_view AFileName) {
  FSourceFile = AFileName;
  if (AStream != nullptr && FSourceStream == nullptr) FSourceBuffer = unicode::NewSourceBuffer();
  if (AStream == nullptr && FSourceStream != nullptr) DropStreamBuffer();
  FSourceStream = AStream;
  FSourceBufferSize = 0;
  SetNewSource();
  // Kept: a new stream continues the line numbers of the previous one; `RewindSource` and `ResetCharLocation`
  // reset them. Test: SetSourceStream.ANewStreamContinuesTheLocation
  if (FSourceStack != nullptr) ResetCharLocation();
}

void TDIUnicodeReader::SetSourceFile(std::u16string_view AFileName) {
  auto stream = std::make_unique<FileStream>(AFileName, FileMode::Read);
  SetSourceStream(stream.get(), AFileName);
  static_cast<void>(stream.release());
}

void TDIUnicodeReader::DropStreamBuffer() noexcept {
  unicode::DeleteSourceBuffer(FSourceBuffer);
  FSourceBuffer = nullptr;
  FSourceBufferSize = 0;
  FSourceBufferPosition = 0;
}

void TDIUnicodeReader::DeleteStream() noexcept {
  if (FSourceStream == nullptr) return;
  DropStreamBuffer();
  delete FSourceStream;
  FSourceStream = nullptr;
}

void TDIUnicodeReader::FreeSourceStream() {
  DeleteStream();
  ForgetChars();
}

void TDIUnicodeReader::RewindSource() {
  if (FSourceStream != nullptr) {
    FSourceStream->SetPosition(0);
    FSourceBufferSize = 0;
  }
  SetNewSource();
  ResetCharLocation();
}

void TDIUnicodeReader::SourceStreamModified() noexcept {
  // Kept: `SourceStreamModified` reads the buffered bytes again; only `RewindSource` drops them and moves the
  // stream. Test: SourceStreamModified.GoesOverTheBufferedBytesAgain
  SetNewSource();
  ResetCharLocation();
}

}  // namespace ravo::DIUnicode
