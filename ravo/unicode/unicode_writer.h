#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/error.h>
#include <ravo/unicode/code_pages.h>
#include <ravo/unicode/unicode_base.h>
#include <ravo/unicode/unicode_reader.h>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace ravo::DIUnicode {

class TDIUnicodeWriter;

/// What plugs an encoding into a writer. All but `WriteChar` may be null.
struct TDIUnicodeWriteMethods {
  /// Called when the methods are plugged in.
  void (*Init)(TDIUnicodeWriter& writer) = nullptr;
  /// Encodes a character; false where the encoding lacks it.
  bool (*WriteChar)(TDIUnicodeWriter& writer, char16_t ch) = nullptr;
  /// Writes what the encoder holds back.
  void (*Flush)(TDIUnicodeWriter& writer) = nullptr;
  /// Called when others take their place, and at the end.
  void (*Finalize)(TDIUnicodeWriter& writer) = nullptr;
};

/// Methods that stand somewhere.
using PDIUnicodeWriteMethods = const TDIUnicodeWriteMethods*;

/// What is to be done about a character that the encoding lacks: write the replacement; nothing, the handler
/// wrote something itself; give up.
enum class TDIInvalidCharAction : std::uint8_t { icWrite, icOwnerWrite, icAbort };

/// Decides about a character that the encoding lacks. `ReplacementChar` and `Action` may be changed.
/// `Attempt` counts from 0 how often it was asked about this character: it is asked again as long as it
/// brings another replacement that the encoding lacks too.
using TDIInvalidCharEvent =
    std::function<void(TDIUnicodeWriter& Sender, char16_t InvalidChar, char16_t& ReplacementChar,
                       std::uint32_t Attempt, TDIInvalidCharAction& Action)>;

/// Encodes UTF-16 characters, one at a time, into bytes of a chosen encoding. The bytes collect in a buffer,
/// the Data, or go on to a stream in blocks. Errors are raised as `Error` whose message begins
/// "Class TDIUnicodeWriter: ". One thread uses one object at a time.
class RAVO_API TDIUnicodeWriter : public TDIUnicodeBase {
 public:
  /// The published properties, in their order.
  static constexpr auto kPublishedProperties =
      std::to_array<std::string_view>({"ReplacementChar", "OnInvalidChar", "Data", "DataSize", "DataCapacity",
                                       "DataStream", "WriteMethods", "State"});

  /// Writes ISO-8859-1 until told otherwise.
  explicit TDIUnicodeWriter(TComponent* AOwner = nullptr);
  /// Hands what is held back to the stream, if there is one. Errors of the stream are lost here:
  /// `FlushDataBuffer` before shows them. The stream is not freed.
  ~TDIUnicodeWriter() override;

  /// Plugs another encoding in: the old `Finalize` is called, the state becomes 0, the new `Init` is called.
  /// What the old encoder holds back is lost unless flushed before. Methods without `WriteChar` mean
  /// ISO-8859-1.
  void SetWriteMethods(const TDIUnicodeWriteMethods& methods);
  [[nodiscard]] const TDIUnicodeWriteMethods& WriteMethods() const noexcept { return FWriteMethods; }
  /// The encoder's own state: a number or a pointer. 0 whenever write methods are set.
  [[nodiscard]] std::uintptr_t State() const noexcept { return FState; }
  void SetState(std::uintptr_t state) noexcept { FState = state; }

  /// What is written in the place of a character that the encoding lacks.
  [[nodiscard]] char16_t ReplacementChar() const noexcept { return FReplacementChar; }
  void SetReplacementChar(char16_t c) noexcept { FReplacementChar = c; }
  /// The handler of a character that the encoding lacks; may be empty.
  [[nodiscard]] const TDIInvalidCharEvent& OnInvalidChar() const noexcept { return FOnInvalidChar; }
  void SetOnInvalidChar(TDIInvalidCharEvent Handler) { FOnInvalidChar = std::move(Handler); }

  // Where the bytes go.

  /// Passes bytes on to a stream in blocks, or, for null, collects them again. Bytes that wait for the stream
  /// before are written to it; collected ones go to the new stream. The caller keeps the
  /// stream, frees it, and keeps it at least as long as the writer uses it.
  void SetDataStream(ByteStream* AStream);
  [[nodiscard]] ByteStream* DataStream() const noexcept { return FDataStream; }
  /// Flushes, then frees the stream, whoever made it, by `delete`.
  void FreeDataStream();
  /// Writes what the encoder holds back, and to the stream, if there is one, what waits for it.
  void FlushDataBuffer();
  /// Makes room: hands the bytes to the stream, or grows the Data by a quarter and four.
  void RequestData();

  /// The bytes so far; with a stream, those that wait for it.
  [[nodiscard]] std::span<const std::uint8_t> Data() const noexcept { return {FData.get(), FDataSize}; }
  /// In bytes.
  [[nodiscard]] std::uint32_t DataSize() const noexcept { return FDataSize; }
  /// How many bytes fit without more memory.
  [[nodiscard]] std::uint32_t DataCapacity() const noexcept { return FDataCapacity; }
  /// Adds the next byte of the buffer as it is. Raises without a buffer ("Data is not assigned") and where it
  /// is full ("DataSize out of bounds").
  void IncDataSize();
  /// Shortens the Data, or lengthens it by zeros. With a stream, raises beyond the capacity ("DataSize out of
  /// bounds").
  void SetDataSize(std::uint32_t Size);
  /// Forgets all bytes and what the encoder holds back, and starts that anew. Without a stream the memory is
  /// freed.
  void Clear();

  // Bytes, for encoders.

  /// One byte.
  void WriteByte(std::uint8_t byte) {
    if (FDataSize == FDataCapacity) RequestData();
    if (FDataSize < FDataCapacity) FData[FDataSize++] = byte;
  }
  /// `Size` bytes as they are.
  void WriteBufDirect(const void* Buffer, std::uint32_t Size);
  /// The bytes as they are.
  void WriteStrRaw(std::string_view Value);

  // Characters. False if one could be encoded in no way; those after it are not written.

  /// Encodes a character; what the encoding lacks goes to `WriteInvalidChar`.
  bool WriteCharW(char16_t c) { return FWriteMethods.WriteChar(*this, c) || WriteInvalidChar(c); }
  /// Calls the encoder; nothing else.
  bool TryWriteCharW(char16_t c) { return FWriteMethods.WriteChar(*this, c); }
  /// Writes something in the place of a character that the encoding lacks: what the handler decides, else the
  /// replacement character, as a last resort "?". False where none of it can be encoded or the handler gives
  /// up.
  bool WriteInvalidChar(char16_t c);
  /// The same character `Count` times.
  bool WriteCharsW(char16_t c, std::uint32_t Count);
  /// The characters of a buffer.
  bool WriteBufW(const char16_t* Buffer, std::uint32_t CharCount);
  /// The characters of a text.
  bool WriteStrW(std::u16string_view Value);
  /// A text, and carriage return and line feed.
  bool WriteStrLineBreakW(std::u16string_view Value);
  /// 8-bit text of a code page; 0 means the system's. Nothing for an unknown code page.
  bool WriteBufA(const char* Buffer, std::uint32_t CharCount, std::uint32_t CodePage = 0);
  /// A text of a code page; 0 means the system's.
  bool WriteStrA(std::string_view Value, std::uint32_t CodePage = 0);
  /// A text of a code page, and carriage return and line feed.
  bool WriteStrLineBreakA(std::string_view Value, std::uint32_t CodePage = 0);
  /// Carriage return and line feed, straight to the encoder.
  bool WriteLineBreak();
  /// The number of the character in decimal digits, or in upper-case hexadecimal ones, without leading zeros.
  bool WriteDecimalCodePoint(char16_t c);
  /// The number of the character in upper-case hexadecimal digits, without leading zeros.
  bool WriteHexCodePoint(char16_t c);
  /// A number in decimal digits, "-" in front of a negative one; with `StartDiv`, a power of ten, with zeros
  /// in front up to the digit that it stands for: 7 with 100 gives 007.
  bool WriteDecimalNumber(std::int32_t Number);
  bool WriteDecimalNumber(std::int32_t Number, std::int64_t StartDiv);
  bool WriteDecimalNumber(std::int64_t Number);
  bool WriteDecimalNumber(std::int64_t Number, std::int64_t StartDiv);

  /// Every character of a file, or of a stream from its position on; nothing for null. A byte-order mark is a
  /// character too. Raises `StreamError` where the file cannot be opened.
  bool WriteFile(std::u16string_view AFileName, const TDIUnicodeReadMethods& AReadMethods);
  /// Every character of a stream from its position on; nothing for null.
  bool WriteStream(ByteStream* AStream, const TDIUnicodeReadMethods& AReadMethods);

  /// The Data as UTF-16 text, for what was written so: two bytes a character in the machine's order, an odd
  /// last byte left out.
  [[nodiscard]] std::u16string DataToStr() const { return DataToStrW(); }
  [[nodiscard]] std::u16string DataToStrW() const;
  /// The same text in the 8-bit text of a code page; 0 means the system's.
  [[nodiscard]] std::string DataToStrA(std::uint32_t CodePage = 0) const;
  /// The bytes of the Data as they are.
  [[nodiscard]] std::string DataToStrRaw() const;

  /// Writes the Data to another stream. Raises "Destination stream is not assigned" for null, and
  /// `StreamError` where the stream does not take it all. What the encoder holds back is not in the Data
  /// before it is flushed.
  void SaveDataToStream(ByteStream* Stream) const;
  /// Makes or replaces the file.
  void SaveDataToFile(std::u16string_view FileName) const;

 private:
  [[noreturn]] static void Raise(const ResourceString& message);
  [[noreturn]] static void Raise(const ResourceString& message, std::uint64_t number);

  void UseWriteMethods(const TDIUnicodeWriteMethods& methods);
  bool AskAboutChar(char16_t c, bool& answer);
  std::size_t WriteRun(std::u16string_view text);
  void WriteOut();
  void GrowData(std::uint64_t needed);
  void FreeData() noexcept;
  bool WriteFrom(TDIUnicodeReader& reader);
  bool WriteDigits(std::uint64_t number, std::uint64_t start_div);

  std::unique_ptr<std::uint8_t[]> FData;
  TDIUnicodeWriteMethods FWriteMethods;
  std::uintptr_t FState = 0;
  std::uint32_t FDataCapacity = 0;
  std::uint32_t FDataSize = 0;
  ByteStream* FDataStream = nullptr;
  char16_t FReplacementChar = u'?';
  TDIInvalidCharEvent FOnInvalidChar;

  /// The run beside the write methods in force, or null.
  codec::Run (*FEncodeRun)(std::span<const char16_t> text, std::span<std::uint8_t> bytes) = nullptr;
};

}  // namespace ravo::DIUnicode
