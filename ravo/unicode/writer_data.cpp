// The collected bytes of a writer, and its stream.
#include <ravo/platform/file_stream.h>
#include <ravo/runtime/checked.h>
#include <ravo/unicode/growth.h>
#include <ravo/unicode/messages.h>
#include <ravo/unicode/unicode_writer.h>

#include <algorithm>
#include <cstring>

namespace ravo::DIUnicode {
namespace {

constexpr std::uint32_t kStreamBlock = 4096;

}  // namespace

void TDIUnicodeWriter::GrowData(std::uint64_t needed) {
  const std::uint32_t capacity = unicode::CapacityFor(needed, FDataCapacity);
  unicode::Reallocate(FData, FDataSize, capacity);
  FDataCapacity = capacity;
}

void TDIUnicodeWriter::FreeData() noexcept {
  FData.reset();
  FDataCapacity = 0;
  FDataSize = 0;
}

void TDIUnicodeWriter::WriteOut() {
  FDataStream->WriteChecked(std::as_bytes(Data()));
  FDataSize = 0;
}

void TDIUnicodeWriter::RequestData() {
  if (FDataStream != nullptr)
    WriteOut();
  else
    GrowData(std::uint64_t{FDataCapacity} + 1);
}

void TDIUnicodeWriter::FlushDataBuffer() {
  if (FWriteMethods.Flush != nullptr) FWriteMethods.Flush(*this);
  if (FDataStream != nullptr) WriteOut();
}

void TDIUnicodeWriter::SetDataStream(ByteStream* AStream) {
  if (FDataStream != nullptr) WriteOut();
  if (AStream != nullptr && FDataCapacity < kStreamBlock) {
    unicode::Reallocate(FData, FDataSize, kStreamBlock);
    FDataCapacity = kStreamBlock;
  }
  FDataStream = AStream;
}

void TDIUnicodeWriter::FreeDataStream() {
  if (FDataStream == nullptr) return;
  const std::unique_ptr<ByteStream> stream(FDataStream);
  // Deletes the stream also if the flush throws.
  try {
    FlushDataBuffer();
  } catch (...) {
    FDataStream = nullptr;
    throw;
  }
  FDataStream = nullptr;
}

void TDIUnicodeWriter::IncDataSize() {
  if (FData == nullptr) Raise(SNoDataError);
  if (FDataSize >= FDataCapacity) Raise(SDataSizeError, std::uint64_t{FDataSize} + 1);
  ++FDataSize;
}

void TDIUnicodeWriter::SetDataSize(std::uint32_t Size) {
  if (Size > FDataCapacity) {
    if (FDataStream != nullptr) Raise(SDataSizeError, Size);
    GrowData(Size);
  }
  if (Size > FDataSize) std::fill(FData.get() + FDataSize, FData.get() + Size, std::uint8_t{0});
  FDataSize = Size;
}

void TDIUnicodeWriter::Clear() {
  if (FDataStream == nullptr) FreeData();
  FDataSize = 0;
  SetWriteMethods(FWriteMethods);
}

// Fills the buffer piece by piece, to the same block sizes as single bytes would.
void TDIUnicodeWriter::WriteBufDirect(const void* Buffer, std::uint32_t Size) {
  const auto* bytes = static_cast<const std::uint8_t*>(Buffer);
  if (FDataStream == nullptr && Size > FDataCapacity - FDataSize) GrowData(std::uint64_t{FDataSize} + Size);
  while (Size != 0) {
    if (FDataSize == FDataCapacity) RequestData();
    const std::uint32_t count = std::min(Size, FDataCapacity - FDataSize);
    std::memcpy(FData.get() + FDataSize, bytes, count);
    FDataSize += count;
    bytes += count;
    Size -= count;
  }
}

void TDIUnicodeWriter::WriteStrRaw(std::string_view Value) {
  WriteBufDirect(Value.data(), CheckedCast<std::uint32_t>(Value.size()));
}

std::u16string TDIUnicodeWriter::DataToStrW() const {
  std::u16string text(FDataSize / 2, u'\0');
  if (!text.empty()) std::memcpy(text.data(), FData.get(), 2 * text.size());
  return text;
}

std::string TDIUnicodeWriter::DataToStrA(std::uint32_t CodePage) const {
  return ToCodePage(DataToStrW(), CodePage);
}

std::string TDIUnicodeWriter::DataToStrRaw() const { return {FData.get(), FData.get() + FDataSize}; }

void TDIUnicodeWriter::SaveDataToStream(ByteStream* Stream) const {
  if (Stream == nullptr) Raise(SNoDestStreamError);
  Stream->WriteChecked(std::as_bytes(Data()));
}

void TDIUnicodeWriter::SaveDataToFile(std::u16string_view FileName) const {
  FileStream file(FileName, FileMode::Create);
  SaveDataToStream(&file);
}

}  // namespace ravo::DIUnicode
