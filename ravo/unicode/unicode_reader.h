#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/error.h>
#include <ravo/unicode/unicode_base.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace ravo::codec {
struct Run;
struct LineStarts;
class RunUntil;
class EndBytes;
}  // namespace ravo::codec

namespace ravo::DIUnicode {

class TDIUnicodeReader;

/// The encoding that a byte-order mark names.
enum class TDIBOM : std::uint8_t { bomUnknown, bomUtf8, bomutf16be, bomutf16le, bomutf32be, bomutf32le };

/// Which source streams the reader deletes when it is done with them. `afNone`: no stream. `afAllButFirst`:
/// each stream when the reader returns from it to the source below it on the stack. `afAll`: also the stream
/// at the bottom of the stack when its data ends.
enum class TAutoFreeSourceStreams : std::uint8_t { afNone, afAllButFirst, afAll };

/// The routines with which a reader decodes an encoding. `Init` and `Finalize` may be null.
struct TDIUnicodeReadMethods {
  /// Called after the methods are set.
  void (*Init)(TDIUnicodeReader& reader) = nullptr;
  /// Decodes the next character from the reader's bytes. False at the end of all data.
  bool (*ReadChar)(TDIUnicodeReader& reader, char16_t& ch) = nullptr;
  /// Called before other methods replace them, and by the destructor.
  void (*Finalize)(TDIUnicodeReader& reader) = nullptr;
};

/// A pointer to read methods, owned by someone else.
using PDIUnicodeReadMethods = const TDIUnicodeReadMethods*;

/// A suspended source on the stack.
struct TUnicodeReaderSource {
  TUnicodeReaderSource* Next = nullptr;        ///< the entry below
  std::uint32_t CharPos = 0;                   ///< as the reader has it
  std::uint32_t CharLine = 0;                  ///< as the reader has it
  std::uint32_t CharCol = 0;                   ///< as the reader has it
  TDIUnicodeReadMethods ReadMethods;           ///< null `ReadChar` if none were stored
  const std::uint8_t* SourceBuffer = nullptr;  ///< the bytes, or null
  std::uint32_t SourceBufferSize = 0;          ///< in bytes
  std::uint32_t SourceBufferPosition = 0;      ///< the next byte
  std::u16string SourceFile;                   ///< file name for messages
  ByteStream* SourceStream = nullptr;          ///< the stream, or null
  std::int32_t UserData = 0;                   ///< free for the caller
};

/// A pointer to an entry of the stack.
using PUnicodeReaderSource = TUnicodeReaderSource*;

/// Decodes bytes of any supported encoding into UTF-16 characters, one at a time, and collects chosen ones in
/// a buffer, the Data.
///
/// Bytes come from the caller's buffer, a stream or a file; sources can be stacked. `Char` is the current
/// character, the last one read; `CharPos`, `CharLine` and `CharCol` are its location. Errors are thrown as
/// `Error` with a message that begins "Class TDIUnicodeReader: ". One thread at a time may use an object.
class RAVO_API TDIUnicodeReader : public TDIUnicodeBase {
 public:
  /// The names of the published properties, in order.
  static constexpr auto kPublishedProperties = std::to_array<std::string_view>(
      {"Char", "CharOK", "CharPos", "CharLine", "CharCol", "Data", "PeekedChars", "SourceBuffer",
       "ReadMethods", "DataSize", "PeekedCount", "SourceBufferAsStr", "SourceBufferAsStrA",
       "SourceBufferAsStrW", "SourceBufferSize", "SourceBufferPosition", "SourceFile", "SourceStream",
       "State"});

  /// Creates a reader of ISO-8859-1, without a source, positioned before line 1.
  explicit TDIUnicodeReader(TComponent* AOwner = nullptr);
  /// Clears the stack. Does not delete the current stream, not even with `afAll`, which deletes it only when
  /// its data ends.
  ~TDIUnicodeReader() override;

  // The current character.

  /// Returns the character that was read last.
  [[nodiscard]] char16_t Char() const noexcept { return FChar; }
  /// Returns whether the last read gave a character.
  [[nodiscard]] bool CharOK() const noexcept { return FCharOK; }
  /// Returns the number of characters read from the source, including the current one.
  [[nodiscard]] std::uint32_t CharPos() const noexcept { return FCharPos; }
  /// Returns the 1-based line of the current character. A carriage return, a line feed and a pair of both end
  /// a line.
  [[nodiscard]] std::uint32_t CharLine() const noexcept { return FCharLine; }
  /// Returns the 1-based column of the current character; 0 before the first one.
  [[nodiscard]] std::uint32_t CharCol() const noexcept { return FCharCol; }

  /// Makes the next character the current one. False at the end of all data; the location stays then.
  bool ReadChar() {
    FLastChar = FChar;
    FCharOK = false;
    FCharOK = TakePlainByte() || TakePeeked(FChar) || Decode(FChar);
    if (FCharOK) CountLocation();
    return FCharOK;
  }
  /// Adds the current character to the Data, then reads the next one.
  bool AddCharReadChar();
  /// Looks ahead until `Count` characters are decoded and unread; the location stays. False if the data ends
  /// before.
  bool PeekChars(std::uint32_t Count);
  /// Returns the characters that are decoded and not yet read.
  [[nodiscard]] std::u16string_view PeekedChars() const noexcept {
    return {FPeekedChars.get() + FPeekedStart, FPeekedCount};
  }
  /// Returns the number of peeked characters.
  [[nodiscard]] std::uint32_t PeekedCount() const noexcept { return FPeekedCount; }
  /// Discards peeked characters; their bytes are not read again.
  void ClearPeekedChars() noexcept { FPeekedCount = 0; }
  /// Resets the location to before the first character of line 1.
  void ResetCharLocation() noexcept;

  // Encodings.

  /// Sets the encoding: calls the old `Finalize`, sets the state to 0 and calls the new `Init`. Methods
  /// without `ReadChar` mean ISO-8859-1.
  void SetReadMethods(const TDIUnicodeReadMethods& methods);
  [[nodiscard]] const TDIUnicodeReadMethods& ReadMethods() const noexcept { return FReadMethods; }
  /// Returns the decoder's own state, a number or a pointer. Setting read methods resets it to 0.
  [[nodiscard]] std::uintptr_t State() const noexcept { return FState; }
  void SetState(std::uintptr_t state) noexcept { FState = state; }
  /// Skips a byte-order mark at the current byte and returns which one it is; the read methods stay. Reads
  /// more of the current stream first if fewer than four bytes are buffered.
  [[nodiscard]] TDIBOM ReadBOM();

  // Sources. File names are used in messages only, except in `SetSourceFile`.

  /// Reads from the caller's bytes, which must stay valid while they are read. Throws `Error` if a stream is
  /// set ("Operation not allowed in Source Stream Mode") and `RangeError` for 2^32 bytes or more.
  void SetSourceBuffer(std::span<const std::uint8_t> buffer, std::u16string_view AFileName = {});
  void SetSourceBuffer(const void* Buffer, std::uint32_t BufferSize, std::u16string_view AFileName = {});
  /// Reads from the text's own memory, two bytes per character in the machine's byte order. The text must
  /// stay valid and unchanged while it is read.
  void SetSourceBufferAsStr(std::u16string_view ASourceStr, std::u16string_view AFileName = {});
  void SetSourceBufferAsStrW(std::u16string_view ASourceStr, std::u16string_view AFileName = {});
  /// Reads from the bytes themselves, which must stay valid while they are read.
  void SetSourceBufferAsStrA(std::string_view ASourceStr, std::u16string_view AFileName = {});
  /// Returns a copy of the whole source buffer, as UTF-16 units (without an odd last byte) or as bytes.
  [[nodiscard]] std::u16string SourceBufferAsStr() const { return SourceBufferAsStrW(); }
  [[nodiscard]] std::u16string SourceBufferAsStrW() const;
  [[nodiscard]] std::string SourceBufferAsStrA() const;
  /// Returns the source buffer; null if there is no buffer.
  [[nodiscard]] const std::uint8_t* SourceBuffer() const noexcept { return FSourceBuffer; }
  /// Returns the size of the source buffer in bytes.
  [[nodiscard]] std::uint32_t SourceBufferSize() const noexcept { return FSourceBufferSize; }
  /// Returns the 0-based index of the byte to decode next.
  [[nodiscard]] std::uint32_t SourceBufferPosition() const noexcept { return FSourceBufferPosition; }
  /// Sets the size in bytes of the caller's buffer. A position past the new end moves to the end; peeked
  /// characters are discarded and no character is current. Throws `Error` if a stream is set or there is no
  /// buffer.
  void SetSourceBufferSize(std::uint32_t Size);
  /// Continues at byte `Position` of the buffer, at most its size. Peeked characters are discarded, no
  /// character is current, the location stays. Throws `Error` if there is no buffer or `Position` exceeds its
  /// size.
  void SetSourceBufferPosition(std::uint32_t Position);
  /// Advances the position by one byte. Throws as `SetSourceBufferPosition` does.
  void IncSourceBufferPosition();

  /// Reads from a stream, from its position on, in blocks of 4096 bytes; from no stream if it is null.
  ///
  /// The previous stream is not deleted. The location continues unless sources are stacked. The decoder state
  /// continues, as it does with every new source: if a text in UTF-7 was left inside base 64, the next one
  /// begins inside base 64. Set the read methods again to reset it.
  void SetSourceStream(ByteStream* AStream, std::u16string_view AFileName = {});
  /// Opens a file and reads from it. `FreeSourceStream` closes it, unless the reader deletes its streams
  /// itself. Throws `StreamError` if it cannot be opened; nothing changes then.
  void SetSourceFile(std::u16string_view AFileName);
  /// Deletes the current stream, also one of the caller's; the reader then has no source.
  void FreeSourceStream();
  /// Returns the current stream; null without one.
  [[nodiscard]] ByteStream* SourceStream() const noexcept { return FSourceStream; }
  /// Returns the name of the current source; may be empty.
  [[nodiscard]] const std::u16string& SourceFile() const noexcept { return FSourceFile; }
  /// Returns the name of the source at the bottom of the stack.
  [[nodiscard]] const std::u16string& FirstSourceFile() const noexcept;
  /// Returns which streams the reader deletes; `afNone` at first.
  [[nodiscard]] TAutoFreeSourceStreams AutoFreeSourceStreams() const noexcept {
    return FAutoFreeSourceStreams;
  }
  /// Sets which streams the reader deletes.
  void SetAutoFreeSourceStreams(TAutoFreeSourceStreams Mode) noexcept { FAutoFreeSourceStreams = Mode; }

  /// Pushes the current source on the stack, with its location and, if `StoreReadMethods`, its read methods.
  /// The reader has no source until the next one is set.
  ///
  /// Peeked characters and the state are not saved: after a push inside base 64 of UTF-7, the next source
  /// begins inside base 64, and the pushed one resumes in the state that the next one left. Push outside base
  /// 64.
  void PushSource(bool StoreReadMethods);
  /// Returns to the source on top of the stack; false if the stack is empty. Called automatically when a
  /// source ends. Read methods come back without calls of `Init` or `Finalize`.
  bool PopSource();
  /// Discards all suspended sources, and deletes their streams if `AutoFreeSourceStreams` says so.
  void ClearSourceStack();
  /// Returns the top entry of the stack; null if it is empty.
  [[nodiscard]] PUnicodeReaderSource SourceStack() const noexcept { return FSourceStack; }
  /// Returns to the start of the source; in a stream, to its first byte. The state stays: inside base 64 of
  /// UTF-7, the first bytes are read as base 64 unless the read methods are set again.
  void RewindSource();
  /// Reads the buffered bytes again, as if from the start of the source.
  void SourceStreamModified() noexcept;
  /// Refills the buffer and returns the number of new bytes. At the end of the source it pops the stack and
  /// returns the number of unread bytes there; 0 at the end of all data. Unread bytes of a stream move to the
  /// front of the buffer if `MoveEndToFront`, else they are discarded; those of a source that ends are
  /// discarded.
  std::uint32_t FillSourceBuffer(bool MoveEndToFront);

  // The bytes, for decoders.

  /// Reads the next byte without advancing. False at the end of all data. May refill the source buffer.
  [[nodiscard]] bool PeekByte(std::uint8_t& byte) {
    if (FSourceBufferPosition >= FSourceBufferSize && FillSourceBuffer(false) == 0) return false;
    byte = FSourceBuffer[FSourceBufferPosition];
    return true;
  }
  /// Advances past the byte that `PeekByte` gave.
  void SkipByte() noexcept { ++FSourceBufferPosition; }
  /// Reads the next byte and advances past it. False at the end of all data.
  [[nodiscard]] bool NextByte(std::uint8_t& byte) {
    if (!PeekByte(byte)) return false;
    SkipByte();
    return true;
  }

  // Reading and skipping. They start at the current character and stop at the first one that does not match,
  // which becomes the current one; `CharOK` is false at the end of all data. Reading adds the characters to
  // the Data. Encodings that decode whole runs do so here; results are the same.

  /// Characters that equal one of the arguments.
  void ReadChars(char16_t c);
  void ReadChars(char16_t c, char16_t c2);
  void SkipChars(char16_t c);
  void SkipChars(char16_t c, char16_t c2);
  /// Characters that pass the test; if `c` is given, only up to the first `c`.
  void ReadChars(CharPredicate Validate);
  void ReadChars(CharPredicate Validate, char16_t c);
  void SkipChars(CharPredicate Validate);
  void SkipChars(CharPredicate Validate, char16_t c);
  /// Characters up to the first that equals one of the arguments or passes the test.
  void ReadCharsTill(char16_t c);
  void ReadCharsTill(char16_t c, char16_t c2);
  void ReadCharsTill(char16_t c, char16_t c2, char16_t c3);
  void ReadCharsTill(CharPredicate Validate);
  void SkipCharsTill(char16_t c);
  void SkipCharsTill(char16_t c, char16_t c2);
  void SkipCharsTill(char16_t c, char16_t c2, char16_t c3);
  void SkipCharsTill(CharPredicate Validate);
  /// Decimal digits of any script.
  void ReadDigits();
  void SkipDigits();
  /// Hexadecimal digits, in either case.
  void ReadHexDigits();
  void SkipHexDigits();
  /// Characters that pass `CharIsWhiteSpaceW`.
  void ReadWhiteSpace();
  void SkipWhiteSpace();
  /// Characters up to the first white space.
  void ReadCharsTillWhiteSpace();
  /// Advances to the start of the next line: past everything up to a carriage return or line feed, and past
  /// that line break, which is not added to the Data. Reads a character first if none is current.
  void ReadTillEndOfLine();
  void SkipTillEndOfLine();
  /// Clears the Data, then does as `ReadTillEndOfLine`: the Data is then the line.
  void ReadLine();
  /// Does as `SkipTillEndOfLine`: the Data stays as it is.
  void SkipLine();
  /// Skips lines whose characters all pass the test. It collects characters and clears the Data at each line
  /// break, so the Data ends up with the skipped start of the first line that is not empty.
  void SkipEmptyLines(CharPredicate Validate = nullptr);

  // The Data: the collected characters.

  /// Returns the collected characters; the view is valid until a character is added.
  [[nodiscard]] std::u16string_view Data() const noexcept { return {FData.get(), FDataSize}; }
  /// Returns the size of the Data in characters.
  [[nodiscard]] std::uint32_t DataSize() const noexcept { return FDataSize; }
  /// Returns how many characters fit before the Data is reallocated.
  [[nodiscard]] std::uint32_t DataCapacity() const noexcept { return FDataCapacity; }
  /// Returns whether the Data is empty.
  [[nodiscard]] bool DataIsEmpty() const noexcept { return FDataSize == 0; }
  /// Returns whether the Data is not empty.
  [[nodiscard]] bool DataIsNotEmpty() const noexcept { return FDataSize != 0; }

  /// Adds the current character, or `c`.
  void AddChar() { AddChar(FChar); }
  void AddChar(char16_t c) {
    if (FDataSize == FDataCapacity) GrowData(std::uint64_t{FDataSize} + 1, FDataSize);
    FData[FDataSize++] = c;
  }
  /// Adds a blank if `c` is white space, but nothing if the Data already ends in a blank; adds any other
  /// character as it is.
  void AddCharCompact(char16_t c);
  /// Adds carriage return and line feed.
  void AddCrLf();
  /// Adds a blank.
  void AddSpace() { AddChar(u' '); }
  /// Adds a blank unless the Data already ends in one.
  void AddSpaceCompact() { AddCharCompact(u' '); }
  /// Adds a text.
  void AddStrW(std::u16string_view Value);
  /// Adds a text in which each run of white space becomes one blank.
  void AddStrCompactW(std::u16string_view Value);
  /// Clears the Data and frees its memory.
  void ClearData() noexcept;
  /// Clears the Data and keeps its memory.
  void ZeroDataSize() noexcept { FDataSize = 0; }
  /// Shortens the Data to `Size` characters. Throws `Error` if there is no Data ("Data is not assigned") or
  /// `Size` exceeds its size ("DataSize out of bounds").
  void SetDataSize(std::uint32_t Size);
  /// Removes the first `ACharCount` characters; all of them if there are not more.
  void DeleteFromDataStart(std::uint32_t ACharCount) noexcept;

  /// Removes trailing characters that pass the test.
  void TrimDataRight(CharPredicate Validate = nullptr);
  /// Returns the length of the Data without leading and trailing characters that pass the test.
  [[nodiscard]] std::uint32_t TrimmedDataLength(CharPredicate Validate = nullptr) const;
  /// Returns the length of the Data without trailing characters that pass the test.
  [[nodiscard]] std::uint32_t TrimmedRightDataLength(CharPredicate Validate = nullptr) const;
  /// Returns the Data without leading and trailing characters that pass the test.
  [[nodiscard]] std::u16string_view TrimmedDataStartAndLength(CharPredicate Validate = nullptr) const;
  /// Returns the Data without leading characters that pass the test.
  [[nodiscard]] std::u16string_view TrimmedLeftDataStartAndLength(CharPredicate Validate = nullptr) const;

  /// Returns a copy of the Data.
  [[nodiscard]] std::u16string DataAsStr() const { return DataAsStrW(); }
  [[nodiscard]] std::u16string DataAsStrW() const { return std::u16string(Data()); }
  /// Returns a copy without leading and trailing characters that pass the test (white space if it is null).
  [[nodiscard]] std::u16string DataAsStrTrimW(CharPredicate Validate = nullptr) const;
  /// Returns a copy without leading characters that pass the test (white space if it is null).
  [[nodiscard]] std::u16string DataAsStrTrimLeftW(CharPredicate Validate = nullptr) const;
  /// Returns the Data in UTF-8; each surrogate pair is one sequence, an unpaired surrogate is U+FFFD.
  [[nodiscard]] std::string DataAsStr8() const;
  /// Returns the Data in a code page; 0 means the system's. The system replaces characters that the code page
  /// lacks, by "?" as a last resort. Empty if the code page is unknown.
  [[nodiscard]] std::string DataAsStrA(std::uint32_t CodePage = 0) const;
  /// Returns the Data in a code page, without leading and trailing characters that pass the test.
  [[nodiscard]] std::string DataAsStrTrimA(std::uint32_t CodePage, CharPredicate Validate = nullptr) const;
  /// Returns the Data in the system's code page.
  [[nodiscard]] std::string DataToStrA() const;
  /// Returns the Data in the system's code page, without leading and trailing characters that pass the test.
  [[nodiscard]] std::string DataToStrTrimA(CharPredicate Validate = nullptr) const;

  /// Returns whether all characters of the Data pass the test. True for empty Data.
  [[nodiscard]] bool DataIsChars(CharPredicate Validate) const;
  /// Returns whether any character of the Data passes the test.
  [[nodiscard]] bool DataHasChars(CharPredicate Validate) const;
  /// Returns whether the Data equals a text; `I` ignores case.
  [[nodiscard]] bool DataIsStrW(std::u16string_view AString) const noexcept { return Data() == AString; }
  [[nodiscard]] bool DataIsStrIW(std::u16string_view AString) const noexcept;

  /// Writes the Data as UTF-16, low byte first, after FF FE if `WriteByteOrderMark`. Throws `Error` if the
  /// stream is null ("Stream is nil") and `StreamError` if it does not take all of it.
  void SaveDataToStream(ByteStream* Stream, bool WriteByteOrderMark) const;
  /// Creates or replaces the file.
  void SaveDataToFile(std::u16string_view FileName, bool WriteByteOrderMark) const;

 private:
  friend class TDIUnicodeWriter;

  [[noreturn]] static void Raise(const ResourceString& message);
  [[noreturn]] static void Raise(const ResourceString& message, std::uint32_t number);

  /// Decodes a byte of ASCII without the decoder.
  bool TakePlainByte() noexcept {
    if (FDecodeUntil == nullptr || FPeekedCount != 0 || FSourceBufferPosition >= FSourceBufferSize)
      return false;
    const std::uint8_t byte = FSourceBuffer[FSourceBufferPosition];
    if (byte >= 0x80) return false;
    FChar = byte;
    ++FSourceBufferPosition;
    return true;
  }
  bool Decode(char16_t& ch);
  bool TakePeeked(char16_t& ch) noexcept;
  void MakePeekRoom(std::uint32_t Count);
  /// Updates the location for `FChar`, which follows `FLastChar`.
  void CountLocation() noexcept {
    ++FCharPos;
    if (FLastChar != u'\r' && FLastChar != u'\n') {
      ++FCharCol;
    } else if (FLastChar == u'\n' || FChar != u'\n') {
      ++FCharLine;
      FCharCol = 1;
    }
  }
  void UseReadMethods(const TDIUnicodeReadMethods& methods);

  void SetNewSource() noexcept;
  void ForgetChars() noexcept;
  void CheckPosition(std::uint64_t position) const;
  void DropStreamBuffer() noexcept;
  void DeleteStream() noexcept;
  [[nodiscard]] std::uint32_t FillFromStream(bool move_end_to_front);
  [[nodiscard]] std::uint32_t FillFromStack();

  [[nodiscard]] std::span<const std::uint8_t> UnreadBytes() const noexcept {
    return {FSourceBuffer + FSourceBufferPosition, FSourceBufferSize - FSourceBufferPosition};
  }
  template <class Unit>
  RAVO_LOCAL void AddRun(std::span<Unit> run);
  template <class Unit>
  RAVO_LOCAL void CountRun(std::span<const Unit> run, const codec::LineStarts& starts) noexcept;
  RAVO_LOCAL void CountLines(std::uint32_t size, const codec::LineStarts& starts) noexcept;
  template <class Belongs>
  RAVO_LOCAL bool TakeAscii(const Belongs& belongs, bool store);
  RAVO_LOCAL bool TakeUntil(codec::EndBytes ends, bool store);
  RAVO_LOCAL void TakeTill(codec::EndBytes ends, bool store);
  template <class... Chars>
  RAVO_LOCAL void TakeWhileNot(bool store, Chars... ends);
  template <class Belongs>
  RAVO_LOCAL std::size_t TakeDecoded(std::span<char16_t> room, const Belongs& belongs, bool store);
  template <class Belongs>
  RAVO_LOCAL void TakeRuns(const Belongs& belongs, bool store);
  template <class Belongs>
  RAVO_LOCAL void TakeWhile(const Belongs& belongs, bool store);
  bool TakeBufferedBreak() noexcept;
  bool BeginLine(std::uint8_t first, std::uint32_t count) noexcept;
  void TakeLine(bool store);
  /// Reads the next run of characters and returns its length; 0 at the end of all data.
  std::size_t ReadRun(std::span<char16_t> room);

  /// Slack past the capacity of the Data, so that whole blocks can be stored at its end.
  static constexpr std::size_t kRoomBeyondData = 256;

  void GrowData(std::uint64_t needed, std::uint32_t filled);
  std::span<char16_t> ExtendData(std::size_t count);
  /// Returns the room past the Data: the unused capacity and the slack.
  [[nodiscard]] std::span<char16_t> RoomInData() const noexcept {
    return {FData.get() + FDataSize, FDataCapacity - FDataSize + kRoomBeyondData};
  }
  /// Makes the first `count` characters of `RoomInData` part of the Data.
  void CountAsData(std::uint32_t count) {
    const std::uint64_t size = std::uint64_t{FDataSize} + count;
    if (size > FDataCapacity) GrowData(size, static_cast<std::uint32_t>(size));
    FDataSize = static_cast<std::uint32_t>(size);
  }

  bool FCharOK = false;
  char16_t FChar = 0;
  /// The character before `FChar`, for `CountLocation` only; not updated by runs.
  char16_t FLastChar = 0;
  std::uint32_t FCharPos = 0;
  std::uint32_t FCharLine = 1;
  std::uint32_t FCharCol = 0;
  const std::uint8_t* FSourceBuffer = nullptr;
  std::uint32_t FSourceBufferSize = 0;
  std::uint32_t FSourceBufferPosition = 0;
  std::unique_ptr<char16_t[]> FPeekedChars;
  std::uint32_t FPeekedCount = 0;
  std::uint32_t FPeekedCapacity = 0;
  std::u16string FSourceFile;
  PUnicodeReaderSource FSourceStack = nullptr;
  TDIUnicodeReadMethods FReadMethods;
  std::uintptr_t FState = 0;
  ByteStream* FSourceStream = nullptr;
  TAutoFreeSourceStreams FAutoFreeSourceStreams = TAutoFreeSourceStreams::afNone;
  std::unique_ptr<char16_t[]> FData;
  std::uint32_t FDataSize = 0;
  std::uint32_t FDataCapacity = 0;

  /// Index of the first peeked character: reading one moves no others.
  std::uint32_t FPeekedStart = 0;
  /// Decodes a run in the encoding of `FReadMethods`; null if it cannot.
  codec::Run (*FDecodeRun)(std::span<const std::uint8_t> bytes, std::span<char16_t> text) = nullptr;
  /// As `FDecodeRun`, up to a byte of ASCII; null also if bytes below 0x80 are not exactly ASCII.
  codec::RunUntil (*FDecodeUntil)(std::span<const std::uint8_t> bytes, std::span<char16_t> text,
                                  codec::EndBytes ends) = nullptr;
};

}  // namespace ravo::DIUnicode
