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

/// The routines with which a writer encodes an encoding. All but `WriteChar` may be null.
struct TDIUnicodeWriteMethods {
  /// Called after the methods are set.
  void (*Init)(TDIUnicodeWriter& writer) = nullptr;
  /// Encodes a character. False if the encoding lacks it.
  bool (*WriteChar)(TDIUnicodeWriter& writer, char16_t ch) = nullptr;
  /// Writes pending output of the encoder.
  void (*Flush)(TDIUnicodeWriter& writer) = nullptr;
  /// Called before other methods replace them, and by the destructor.
  void (*Finalize)(TDIUnicodeWriter& writer) = nullptr;
};

/// A pointer to write methods, owned by someone else.
using PDIUnicodeWriteMethods = const TDIUnicodeWriteMethods*;

/// What the writer does about a character that the encoding lacks. `icWrite`: writes the replacement.
/// `icOwnerWrite`: nothing; the handler wrote something itself. `icAbort`: gives up.
enum class TDIInvalidCharAction : std::uint8_t { icWrite, icOwnerWrite, icAbort };

/// Decides about a character that the encoding lacks. It may change `ReplacementChar` and `Action`. `Attempt`
/// counts its calls for this character from 0: it is called again as long as it gives a different replacement
/// that the encoding lacks too.
using TDIInvalidCharEvent =
    std::function<void(TDIUnicodeWriter& Sender, char16_t InvalidChar, char16_t& ReplacementChar,
                       std::uint32_t Attempt, TDIInvalidCharAction& Action)>;

/// Encodes UTF-16 characters, one at a time, into bytes of a chosen encoding.
///
/// The bytes collect in a buffer, the Data, or are written to a stream in blocks. Errors are thrown as
/// `Error` with a message that begins "Class TDIUnicodeWriter: ". One thread at a time may use an object.
class RAVO_API TDIUnicodeWriter : public TDIUnicodeBase {
 public:
  /// The names of the published properties, in order.
  static constexpr auto kPublishedProperties =
      std::to_array<std::string_view>({"ReplacementChar", "OnInvalidChar", "Data", "DataSize", "DataCapacity",
                                       "DataStream", "WriteMethods", "State"});

  /// Creates a writer of ISO-8859-1, without a stream.
  explicit TDIUnicodeWriter(TComponent* AOwner = nullptr);
  /// Flushes to the stream, if there is one, and does not delete it. Errors of the stream are lost here; call
  /// `FlushDataBuffer` before to see them.
  ~TDIUnicodeWriter() override;

  /// Sets the encoding: calls the old `Finalize`, sets the state to 0 and calls the new `Init`. Pending
  /// output of the old encoder is lost unless it is flushed before. Methods without `WriteChar` mean
  /// ISO-8859-1.
  void SetWriteMethods(const TDIUnicodeWriteMethods& methods);
  [[nodiscard]] const TDIUnicodeWriteMethods& WriteMethods() const noexcept { return FWriteMethods; }
  /// Returns the encoder's own state, a number or a pointer. Setting write methods resets it to 0.
  [[nodiscard]] std::uintptr_t State() const noexcept { return FState; }
  void SetState(std::uintptr_t state) noexcept { FState = state; }

  /// Returns the replacement for characters that the encoding lacks.
  [[nodiscard]] char16_t ReplacementChar() const noexcept { return FReplacementChar; }
  void SetReplacementChar(char16_t c) noexcept { FReplacementChar = c; }
  /// Returns the handler of characters that the encoding lacks; may be empty.
  [[nodiscard]] const TDIInvalidCharEvent& OnInvalidChar() const noexcept { return FOnInvalidChar; }
  void SetOnInvalidChar(TDIInvalidCharEvent Handler) { FOnInvalidChar = std::move(Handler); }

  // The output.

  /// Writes bytes to a stream in blocks, or collects them if it is null. Bytes buffered for the previous
  /// stream are written to it; collected ones go to the new stream. The caller owns the stream and keeps it
  /// at least as long as the writer uses it.
  void SetDataStream(ByteStream* AStream);
  [[nodiscard]] ByteStream* DataStream() const noexcept { return FDataStream; }
  /// Flushes, then deletes the stream, also one of the caller's.
  void FreeDataStream();
  /// Writes pending output of the encoder, and all buffered bytes to the stream, if there is one.
  void FlushDataBuffer();
  /// Makes room: writes the buffered bytes to the stream or, without one, grows the Data by a quarter plus
  /// four bytes.
  void RequestData();

  /// Returns the collected bytes; with a stream, those that are not yet written to it.
  [[nodiscard]] std::span<const std::uint8_t> Data() const noexcept { return {FData.get(), FDataSize}; }
  /// Returns the size of the Data in bytes.
  [[nodiscard]] std::uint32_t DataSize() const noexcept { return FDataSize; }
  /// Returns how many bytes fit before the Data is reallocated.
  [[nodiscard]] std::uint32_t DataCapacity() const noexcept { return FDataCapacity; }
  /// Adds the next byte of the buffer as it is. Throws `Error` if there is no buffer ("Data is not assigned")
  /// or it is full ("DataSize out of bounds").
  void IncDataSize();
  /// Sets the size of the Data in bytes; added bytes are zero. With a stream, throws `Error` if `Size`
  /// exceeds the capacity ("DataSize out of bounds").
  void SetDataSize(std::uint32_t Size);
  /// Discards all bytes and pending output of the encoder, and resets its state. Without a stream the memory
  /// is freed.
  void Clear();

  // Bytes, for encoders.

  /// Writes one byte.
  void WriteByte(std::uint8_t byte) {
    if (FDataSize == FDataCapacity) RequestData();
    if (FDataSize < FDataCapacity) FData[FDataSize++] = byte;
  }
  /// Writes `Size` bytes as they are.
  void WriteBufDirect(const void* Buffer, std::uint32_t Size);
  /// Writes bytes as they are.
  void WriteStrRaw(std::string_view Value);

  // Characters. These return false if a character cannot be encoded at all; those after it are not written.

  /// Encodes a character; calls `WriteInvalidChar` if the encoding lacks it.
  bool WriteCharW(char16_t c) { return FWriteMethods.WriteChar(*this, c) || WriteInvalidChar(c); }
  /// Encodes a character; false if the encoding lacks it.
  bool TryWriteCharW(char16_t c) { return FWriteMethods.WriteChar(*this, c); }
  /// Writes a replacement for a character that the encoding lacks: the handler's, else the replacement
  /// character, else "?". False if the encoding lacks all of them or the handler gives up.
  bool WriteInvalidChar(char16_t c);
  /// Writes the same character `Count` times.
  bool WriteCharsW(char16_t c, std::uint32_t Count);
  /// Writes the characters of a buffer.
  bool WriteBufW(const char16_t* Buffer, std::uint32_t CharCount);
  /// Writes the characters of a text.
  bool WriteStrW(std::u16string_view Value);
  /// Writes a text, then carriage return and line feed.
  bool WriteStrLineBreakW(std::u16string_view Value);
  /// Writes text given in a code page; 0 means the system's. Writes nothing if the code page is unknown.
  bool WriteBufA(const char* Buffer, std::uint32_t CharCount, std::uint32_t CodePage = 0);
  /// Writes text given in a code page; 0 means the system's.
  bool WriteStrA(std::string_view Value, std::uint32_t CodePage = 0);
  /// Writes text given in a code page, then carriage return and line feed.
  bool WriteStrLineBreakA(std::string_view Value, std::uint32_t CodePage = 0);
  /// Writes carriage return and line feed by the encoder alone, without a replacement.
  bool WriteLineBreak();
  /// Writes the code of a character in decimal digits, without leading zeros.
  bool WriteDecimalCodePoint(char16_t c);
  /// Writes the code of a character in upper-case hexadecimal digits, without leading zeros.
  bool WriteHexCodePoint(char16_t c);
  /// Writes a number in decimal digits, with "-" if it is negative. `StartDiv`, a power of ten, adds leading
  /// zeros up to its own digit: 7 with 100 gives 007.
  bool WriteDecimalNumber(std::int32_t Number);
  bool WriteDecimalNumber(std::int32_t Number, std::int64_t StartDiv);
  bool WriteDecimalNumber(std::int64_t Number);
  bool WriteDecimalNumber(std::int64_t Number, std::int64_t StartDiv);

  /// Writes every character of a file, including a byte-order mark. Throws `StreamError` if the file cannot
  /// be opened.
  bool WriteFile(std::u16string_view AFileName, const TDIUnicodeReadMethods& AReadMethods);
  /// Writes every character of a stream from its position on, including a byte-order mark; nothing if it is
  /// null.
  bool WriteStream(ByteStream* AStream, const TDIUnicodeReadMethods& AReadMethods);

  /// Returns the Data as UTF-16 text, if it was written in UTF-16: two bytes per character in the machine's
  /// byte order, without an odd last byte.
  [[nodiscard]] std::u16string DataToStr() const { return DataToStrW(); }
  [[nodiscard]] std::u16string DataToStrW() const;
  /// Returns `DataToStrW` in a code page; 0 means the system's.
  [[nodiscard]] std::string DataToStrA(std::uint32_t CodePage = 0) const;
  /// Returns the bytes of the Data as they are.
  [[nodiscard]] std::string DataToStrRaw() const;

  /// Writes the Data to a stream. Throws `Error` if it is null ("Destination stream is not assigned") and
  /// `StreamError` if it does not take all of it. The Data lacks pending output of the encoder until it is
  /// flushed.
  void SaveDataToStream(ByteStream* Stream) const;
  /// Creates or replaces the file.
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

  /// Encodes a run in the encoding of `FWriteMethods`; null if it cannot.
  codec::Run (*FEncodeRun)(std::span<const char16_t> text, std::span<std::uint8_t> bytes) = nullptr;
};

}  // namespace ravo::DIUnicode
