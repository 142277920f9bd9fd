// The collected characters of a reader.
#include <ravo/platform/file_stream.h>
#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/unicode/growth.h>
#include <ravo/unicode/messages.h>
#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/utils_messages.h>

#include <algorithm>
#include <array>
#include <bit>

namespace ravo::DIUnicode {

// Makes room for `needed` characters and keeps the first `filled`, which may exceed `FDataSize`.
void TDIUnicodeReader::GrowData(std::uint64_t needed, std::uint32_t filled) {
  const std::uint32_t capacity = unicode::CapacityFor(needed, FDataCapacity);
  unicode::Reallocate(FData, filled, capacity, kRoomBeyondData);
  FDataCapacity = capacity;
}

void TDIUnicodeReader::AddCharCompact(char16_t c) {
  const bool ends_in_blank = FDataSize != 0 && FData[FDataSize - 1] == u' ';
  if (!CharIsWhiteSpaceW(c))
    AddChar(c);
  else if (!ends_in_blank)
    AddChar(u' ');
}

void TDIUnicodeReader::AddCrLf() {
  AddChar(u'\r');
  AddChar(u'\n');
}

// Adds `count` characters to the Data and returns them for the caller to fill.
std::span<char16_t> TDIUnicodeReader::ExtendData(std::size_t count) {
  const std::uint64_t needed = FDataSize + std::uint64_t{count};
  if (needed > FDataCapacity) GrowData(needed, FDataSize);
  const std::span added(FData.get() + FDataSize, count);
  FDataSize = static_cast<std::uint32_t>(needed);
  return added;
}

void TDIUnicodeReader::AddStrW(std::u16string_view Value) {
  std::ranges::copy(Value, ExtendData(Value.size()).begin());
}

void TDIUnicodeReader::AddStrCompactW(std::u16string_view Value) {
  for (const char16_t c : Value) AddCharCompact(c);
}

void TDIUnicodeReader::ClearData() noexcept {
  FData.reset();
  FDataSize = 0;
  FDataCapacity = 0;
}

void TDIUnicodeReader::SetDataSize(std::uint32_t Size) {
  if (FData == nullptr) Raise(SNoDataError);
  if (Size > FDataSize) Raise(SDataSizeError, Size);
  FDataSize = Size;
}

void TDIUnicodeReader::DeleteFromDataStart(std::uint32_t ACharCount) noexcept {
  const std::uint32_t count = std::min(ACharCount, FDataSize);
  std::copy(FData.get() + count, FData.get() + FDataSize, FData.get());
  FDataSize -= count;
}

void TDIUnicodeReader::SaveDataToStream(ByteStream* Stream, bool WriteByteOrderMark) const {
  if (Stream == nullptr) Raise(unicode::SStreamNilError);
  constexpr std::array mark{std::byte{0xFF}, std::byte{0xFE}};
  if (WriteByteOrderMark) Stream->WriteChecked(mark);
  static_assert(std::endian::native == std::endian::little);
  Stream->WriteChecked(std::as_bytes(std::span(Data())));
}

void TDIUnicodeReader::SaveDataToFile(std::u16string_view FileName, bool WriteByteOrderMark) const {
  FileStream file(FileName, FileMode::Create);
  SaveDataToStream(&file, WriteByteOrderMark);
}

}  // namespace ravo::DIUnicode
