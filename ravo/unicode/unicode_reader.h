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
struct RunUntil;
class EndBytes;
enum class Lines : std::uint32_t;
}  // namespace ravo::codec

namespace ravo::DIUnicode {

class TDIUnicodeReader;

/// What a byte-order mark at the start of a source says.
enum class TDIBOM : std::uint8_t { bomUnknown, bomUtf8, bomutf16be, bomutf16le, bomutf32be, bomutf32le };

/// Which source streams the reader frees, by `delete`, when it is done with them: no stream; each stream when
/// it is left for the source below it on the stack; that, and the stream at the bottom of the stack when its
/// data ends.
enum class TAutoFreeSourceStreams : std::uint8_t { afNone, afAllButFirst, afAll };

/// What plugs an encoding into a reader. `Init` and `Finalize` may be null.
struct TDIUnicodeReadMethods {
  /// Called when the methods are plugged in.
  void (*Init)(TDIUnicodeReader& reader) = nullptr;
  /// Decodes the next character from the reader's bytes; false at the end of all data.
  bool (*ReadChar)(TDIUnicodeReader& reader, char16_t& ch) = nullptr;
  /// Called when others take their place, and at the end.
  void (*Finalize)(TDIUnicodeReader& reader) = nullptr;
};

/// Methods that stand somewhere.
using PDIUnicodeReadMethods = const TDIUnicodeReadMethods*;

/// A source that waits on the stack while another one is read.
struct TUnicodeReaderSource {
  TUnicodeReaderSource* Next = nullptr;        ///< the entry below
  std::uint32_t CharPos = 0;                   ///< as the reader has it
  std::uint32_t CharLine = 0;                  ///< as the reader has it
  std::uint32_t CharCol = 0;                   ///< as the reader has it
  TDIUnicodeReadMethods ReadMethods;           ///< without `ReadChar`: none were stored
  const std::uint8_t* SourceBuffer = nullptr;  ///< the bytes, or null
  std::uint32_t SourceBufferSize = 0;          ///< in bytes
  std::uint32_t SourceBufferPosition = 0;      ///< the next byte
  std::u16string SourceFile;                   ///< the name, for messages
  ByteStream* SourceStream = nullptr;          ///< the stream, or null
  std::int32_t UserData = 0;                   ///< free for the caller
};

/// An entry of the stack.
using PUnicodeReaderSource = TUnicodeReaderSource*;

/// Turns bytes of any supported encoding into UTF-16 characters, one at a time, and collects chosen ones in a
/// buffer, the Data. Bytes come from a buffer of the caller's, from a stream or from a file; sources can be
/// stacked. Where the reader stands is the current character: `Char`, with its location. Errors are raised as
/// `Error` whose message begins "Class TDIUnicodeReader: ". One thread uses one object at a time.
class RAVO_API TDIUnicodeReader : public TDIUnicodeBase {
 public:
  /// The published properties, in their order.
  static constexpr auto kPublishedProperties = std::to_array<std::string_view>(
      {"Char", "CharOK", "CharPos", "CharLine", "CharCol", "Data", "PeekedChars", "SourceBuffer",
       "ReadMethods", "DataSize", "PeekedCount", "SourceBufferAsStr", "SourceBufferAsStrA",
       "SourceBufferAsStrW", "SourceBufferSize", "SourceBufferPosition", "SourceFile", "SourceStream",
       "State"});

  /// Reads ISO-8859-1 until told otherwise; stands before line 1.
  explicit TDIUnicodeReader(TComponent* AOwner = nullptr);
  /// Clears the stack. A stream that is then current is left to the caller, also where all are freed by
  /// themselves: that happens when its data ends.
  ~TDIUnicodeReader() override;

  // The current character.

  /// The character that was read last.
  [[nodiscard]] char16_t Char() const noexcept { return FChar; }
  /// Whether the last read gave a character.
  [[nodiscard]] bool CharOK() const noexcept { return FCharOK; }
  /// How many characters of the source were read, the current one included.
  [[nodiscard]] std::uint32_t CharPos() const noexcept { return FCharPos; }
  /// The line of the current character, from 1. A carriage return, a line feed and the pair of both end one.
  [[nodiscard]] std::uint32_t CharLine() const noexcept { return FCharLine; }
  /// The column of the current character, from 1; 0 before the first one.
  [[nodiscard]] std::uint32_t CharCol() const noexcept { return FCharCol; }

  /// Makes the next character the current one; false at the end of all data, where the location stays.
  bool ReadChar() {
    FLastChar = FChar;
    FCharOK = false;
    FCharOK = TakePlainByte() || TakePeeked(FChar) || Decode(FChar);
    if (FCharOK) CountLocation();
    return FCharOK;
  }
  /// Adds the current character to the Data, then reads the next one.
  bool AddCharReadChar();
  /// Decodes ahead until `Count` characters are peeked; false where the data ends before. Moves no location.
  bool PeekChars(std::uint32_t Count);
  /// The characters that are decoded and not yet read.
  [[nodiscard]] std::u16string_view PeekedChars() const noexcept {
    return {FPeekedChars.get() + FPeekedStart, FPeekedCount};
  }
  /// How many they are.
  [[nodiscard]] std::uint32_t PeekedCount() const noexcept { return FPeekedCount; }
  /// Forgets peeked characters; their bytes are not read again.
  void ClearPeekedChars() noexcept { FPeekedCount = 0; }
  /// To before the first character of line 1.
  void ResetCharLocation() noexcept;

  // Encodings.

  /// Plugs another encoding in: the old `Finalize` is called, the state becomes 0, the new `Init` is called.
  /// Methods without `ReadChar` mean ISO-8859-1.
  void SetReadMethods(const TDIUnicodeReadMethods& methods);
  [[nodiscard]] const TDIUnicodeReadMethods& ReadMethods() const noexcept { return FReadMethods; }
  /// The decoder's own state: a number or a pointer. 0 whenever read methods are set.
  [[nodiscard]] std::uintptr_t State() const noexcept { return FState; }
  void SetState(std::uintptr_t state) noexcept { FState = state; }
  /// Steps over a byte-order mark at the current byte and says which; the read methods stay. Where fewer than
  /// four bytes are at hand, more of the current stream are read first.
  [[nodiscard]] TDIBOM ReadBOM();

  // Sources. Names of files are for messages, but for `SetSourceFile`.

  /// Reads from the caller's bytes, which stay where they are as long as they are read. Raises where a stream
  /// is set ("Operation not allowed in Source Stream Mode") and, as `RangeError`, for 2^32 bytes or more.
  void SetSourceBuffer(std::span<const std::uint8_t> buffer, std::u16string_view AFileName = {});
  void SetSourceBuffer(const void* Buffer, std::uint32_t BufferSize, std::u16string_view AFileName = {});
  /// The text's own memory becomes the buffer, two bytes a character in the machine's order: the caller keeps
  /// the text alive and unchanged.
  void SetSourceBufferAsStr(std::u16string_view ASourceStr, std::u16string_view AFileName = {});
  void SetSourceBufferAsStrW(std::u16string_view ASourceStr, std::u16string_view AFileName = {});
  /// The bytes themselves become the buffer: the caller keeps them.
  void SetSourceBufferAsStrA(std::string_view ASourceStr, std::u16string_view AFileName = {});
  /// The whole source buffer as pairs of bytes (an odd last byte left out), or as bytes.
  [[nodiscard]] std::u16string SourceBufferAsStr() const { return SourceBufferAsStrW(); }
  [[nodiscard]] std::u16string SourceBufferAsStrW() const;
  [[nodiscard]] std::string SourceBufferAsStrA() const;
  /// Null without a buffer.
  [[nodiscard]] const std::uint8_t* SourceBuffer() const noexcept { return FSourceBuffer; }
  /// In bytes.
  [[nodiscard]] std::uint32_t SourceBufferSize() const noexcept { return FSourceBufferSize; }
  /// The byte that is decoded next, from 0.
  [[nodiscard]] std::uint32_t SourceBufferPosition() const noexcept { return FSourceBufferPosition; }
  /// Changes the size of the caller's buffer. A position past it becomes its end; peeked characters are
  /// forgotten and no character is current. Raises in stream mode and without a buffer.
  void SetSourceBufferSize(std::uint32_t Size);
  /// Goes on at another byte of the buffer, whose size is the largest position. Peeked characters are
  /// forgotten, no character is current, the location stays. Raises without a buffer or beyond its size.
  void SetSourceBufferPosition(std::uint32_t Position);
  /// One byte further. Raises as `SetSourceBufferPosition`.
  void IncSourceBufferPosition();

  /// Reads from a stream, from its position on, in blocks of 4096 bytes; null: from no stream. The stream
  /// before is not freed. The location goes on unless sources are stacked. So does the state, as with every
  /// new source: after a text in UTF-7 that was left inside base 64 the next one begins inside base 64. Set
  /// the read methods anew before it.
  void SetSourceStream(ByteStream* AStream, std::u16string_view AFileName = {});
  /// Opens a file and reads from it. Unless the reader frees its streams by itself, `FreeSourceStream` closes
  /// it. Raises `StreamError` where it cannot be opened; all is as before then.
  void SetSourceFile(std::u16string_view AFileName);
  /// Frees the current stream, whoever made it, by `delete`, and reads from nothing then.
  void FreeSourceStream();
  /// The current stream; null for none.
  [[nodiscard]] ByteStream* SourceStream() const noexcept { return FSourceStream; }
  /// The name of the current source; may be empty.
  [[nodiscard]] const std::u16string& SourceFile() const noexcept { return FSourceFile; }
  /// The name of the source at the bottom of the stack.
  [[nodiscard]] const std::u16string& FirstSourceFile() const noexcept;
  /// Which streams the reader frees; none at first.
  [[nodiscard]] TAutoFreeSourceStreams AutoFreeSourceStreams() const noexcept {
    return FAutoFreeSourceStreams;
  }
  /// Chooses which streams the reader frees.
  void SetAutoFreeSourceStreams(TAutoFreeSourceStreams Mode) noexcept { FAutoFreeSourceStreams = Mode; }

  /// Puts the current source on the stack, with its location and, if told to, its read methods, and reads
  /// from nothing until another source is set. Peeked characters and the state are not saved: pushed inside
  /// base 64 of UTF-7, the next source begins inside it, and the one on the stack goes on as that one was
  /// left. Push where the text is outside of base 64.
  void PushSource(bool StoreReadMethods);
  /// Goes on with the source on top of the stack; false if the stack is empty. Happens by itself when a
  /// source ends. Read methods come back without `Init` or `Finalize`.
  bool PopSource();
  /// Forgets all waiting sources, and frees their streams where it is told to.
  void ClearSourceStack();
  /// The source that waits on top; null for none.
  [[nodiscard]] PUnicodeReaderSource SourceStack() const noexcept { return FSourceStack; }
  /// To the start of the source, of the stream from its first byte on. The state stays: inside base 64 of
  /// UTF-7 the first bytes are read as base 64 unless the read methods are set anew.
  void RewindSource();
  /// Goes over the buffered bytes again, as from the start of the source.
  void SourceStreamModified() noexcept;
  /// Reads more bytes and says how many are new; at the end of the source goes on with those on the stack and
  /// says how many bytes are there. 0 at the end of all data. Unread bytes of a stream are kept in front
  /// if `MoveEndToFront`, given up otherwise; those of a source that ends are given up.
  std::uint32_t FillSourceBuffer(bool MoveEndToFront);

  // The bytes, for decoders.

  /// The next byte without stepping over it; false at the end of all data. May refill the source buffer.
  [[nodiscard]] bool PeekByte(std::uint8_t& byte) {
    if (FSourceBufferPosition >= FSourceBufferSize && FillSourceBuffer(false) == 0) return false;
    byte = FSourceBuffer[FSourceBufferPosition];
    return true;
  }
  /// Steps over the byte that `PeekByte` gave.
  void SkipByte() noexcept { ++FSourceBufferPosition; }
  /// The next byte, stepped over; false at the end of all data.
  [[nodiscard]] bool NextByte(std::uint8_t& byte) {
    if (!PeekByte(byte)) return false;
    SkipByte();
    return true;
  }

  // Reading and skipping. They start at the current character and stop on the first that does not belong,
  // which stays current; `CharOK` is false at the end of all data. Reading adds what is passed over to the
  // Data. Whole runs go at once where the encoding can do that; nothing else changes by it.

  /// Characters equal to one of those given.
  void ReadChars(char16_t c);
  void ReadChars(char16_t c, char16_t c2);
  void SkipChars(char16_t c);
  void SkipChars(char16_t c, char16_t c2);
  /// Characters that pass the test; with `c`, up to the first `c`.
  void ReadChars(CharPredicate Validate);
  void ReadChars(CharPredicate Validate, char16_t c);
  void SkipChars(CharPredicate Validate);
  void SkipChars(CharPredicate Validate, char16_t c);
  /// Characters up to the first that is one of those given or passes the test.
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
  /// Digits 0 to 9 and A to F of either case.
  void ReadHexDigits();
  void SkipHexDigits();
  /// Characters that `CharIsWhiteSpaceW` calls so.
  void ReadWhiteSpace();
  void SkipWhiteSpace();
  /// Characters up to the first white space.
  void ReadCharsTillWhiteSpace();
  /// To the start of the next line: everything up to a carriage return or line feed, then that break itself,
  /// which is not collected. Reads a character first where none is current.
  void ReadTillEndOfLine();
  void SkipTillEndOfLine();
  /// As `ReadTillEndOfLine` with emptied Data: the Data is the line then.
  void ReadLine();
  /// As `SkipTillEndOfLine`: the Data stays as it is.
  void SkipLine();
  /// Passes over lines that have nothing but characters that pass the test. Collects characters, and empties
  /// the Data at each line break: in the end it has the front of the line that is not empty.
  void SkipEmptyLines(CharPredicate Validate = nullptr);

  // The Data: the collected characters.

  /// The collected characters; the view lasts until one is added.
  [[nodiscard]] std::u16string_view Data() const noexcept { return {FData.get(), FDataSize}; }
  /// In characters.
  [[nodiscard]] std::uint32_t DataSize() const noexcept { return FDataSize; }
  /// How many fit without more memory.
  [[nodiscard]] std::uint32_t DataCapacity() const noexcept { return FDataCapacity; }
  /// True without collected characters.
  [[nodiscard]] bool DataIsEmpty() const noexcept { return FDataSize == 0; }
  /// True with collected characters.
  [[nodiscard]] bool DataIsNotEmpty() const noexcept { return FDataSize != 0; }

  /// Adds the current character, or the given one.
  void AddChar() { AddChar(FChar); }
  void AddChar(char16_t c) {
    if (FDataSize == FDataCapacity) GrowData(std::uint64_t{FDataSize} + 1, FDataSize);
    FData[FDataSize++] = c;
  }
  /// Adds a blank for white space, and nothing where the Data ends in a blank already; other characters as
  /// they are.
  void AddCharCompact(char16_t c);
  /// Adds carriage return and line feed.
  void AddCrLf();
  /// Adds a blank.
  void AddSpace() { AddChar(u' '); }
  /// Adds a blank, and nothing where the Data ends in one already.
  void AddSpaceCompact() { AddCharCompact(u' '); }
  /// Adds a text.
  void AddStrW(std::u16string_view Value);
  /// Adds a text, each run of white space as one blank.
  void AddStrCompactW(std::u16string_view Value);
  /// Empties the Data and frees its memory, or keeps that.
  void ClearData() noexcept;
  /// Empties the Data and keeps its memory.
  void ZeroDataSize() noexcept { FDataSize = 0; }
  /// Shortens the Data. Raises without Data ("Data is not assigned") and for more than there is ("DataSize
  /// out of bounds").
  void SetDataSize(std::uint32_t Size);
  /// Takes characters off the front; all where there are not more.
  void DeleteFromDataStart(std::uint32_t ACharCount) noexcept;

  /// Takes characters that pass the test off the end.
  void TrimDataRight(CharPredicate Validate = nullptr);
  /// The length of the Data without characters that pass the test at both ends.
  [[nodiscard]] std::uint32_t TrimmedDataLength(CharPredicate Validate = nullptr) const;
  /// How long the Data is without characters that pass the test at its end.
  [[nodiscard]] std::uint32_t TrimmedRightDataLength(CharPredicate Validate = nullptr) const;
  /// The Data without characters that pass the test at both ends.
  [[nodiscard]] std::u16string_view TrimmedDataStartAndLength(CharPredicate Validate = nullptr) const;
  /// The Data without characters that pass the test at its front.
  [[nodiscard]] std::u16string_view TrimmedLeftDataStartAndLength(CharPredicate Validate = nullptr) const;

  /// Copies of the Data, whole or trimmed.
  [[nodiscard]] std::u16string DataAsStr() const { return DataAsStrW(); }
  [[nodiscard]] std::u16string DataAsStrW() const { return std::u16string(Data()); }
  /// A copy without characters that pass the test (white space for null) at both ends.
  [[nodiscard]] std::u16string DataAsStrTrimW(CharPredicate Validate = nullptr) const;
  /// A copy without characters that pass the test (white space for null) at its front.
  [[nodiscard]] std::u16string DataAsStrTrimLeftW(CharPredicate Validate = nullptr) const;
  /// In UTF-8, with pairs of surrogates joined and U+FFFD for lone ones.
  [[nodiscard]] std::string DataAsStr8() const;
  /// In the 8-bit text of a code page; 0 means the system's. What the code page lacks becomes what the system
  /// puts in its place, "?" at the latest; empty for an unknown code page.
  [[nodiscard]] std::string DataAsStrA(std::uint32_t CodePage = 0) const;
  /// The same, trimmed at both ends.
  [[nodiscard]] std::string DataAsStrTrimA(std::uint32_t CodePage, CharPredicate Validate = nullptr) const;
  /// In the system's code page.
  [[nodiscard]] std::string DataToStrA() const;
  /// The same, trimmed at both ends.
  [[nodiscard]] std::string DataToStrTrimA(CharPredicate Validate = nullptr) const;

  /// Whether all characters of the Data pass the test (also where there are none), or any.
  [[nodiscard]] bool DataIsChars(CharPredicate Validate) const;
  /// Whether any character of the Data passes the test.
  [[nodiscard]] bool DataHasChars(CharPredicate Validate) const;
  /// Whether the Data is that text; in the second, when the case of letters does not count.
  [[nodiscard]] bool DataIsStrW(std::u16string_view AString) const noexcept { return Data() == AString; }
  [[nodiscard]] bool DataIsStrIW(std::u16string_view AString) const noexcept;

  /// Writes the Data as UTF-16, low byte first, after FF FE if told to. Raises "Stream is nil" for null, and
  /// `StreamError` where the stream does not take it all.
  void SaveDataToStream(ByteStream* Stream, bool WriteByteOrderMark) const;
  /// Makes or replaces the file.
  void SaveDataToFile(std::u16string_view FileName, bool WriteByteOrderMark) const;

 private:
  friend class TDIUnicodeWriter;

  [[noreturn]] static void Raise(const ResourceString& message);
  [[noreturn]] static void Raise(const ResourceString& message, std::uint32_t number);

  /// A byte that is its own character needs no decoder.
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
  /// Where `FChar` stands, after `FLastChar`.
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
  enum class Taken : std::uint8_t { Nothing, Some, All };

  template <class Unit>
  RAVO_LOCAL void AddRun(std::span<Unit> run);
  template <class Unit>
  RAVO_LOCAL void CountRun(std::span<const Unit> run, codec::Lines lines) noexcept;
  template <class Belongs>
  RAVO_LOCAL bool TakeAscii(const Belongs& belongs, bool store);
  template <class Belongs>
  RAVO_LOCAL Taken TakeUntil(std::span<char16_t> room, const Belongs& belongs, bool store);
  template <class Belongs>
  RAVO_LOCAL std::size_t TakeDecoded(std::span<char16_t> room, const Belongs& belongs, bool store);
  template <class Belongs>
  RAVO_LOCAL bool TakeRuns(const Belongs& belongs, bool store);
  template <class Belongs>
  RAVO_LOCAL void TakeWhile(const Belongs& belongs, bool store);
  bool TakeBufferedBreak();
  void BeginLine(std::uint8_t first, std::uint32_t count, char16_t before);
  void TakeLine(bool store);
  /// The next characters, as many as come at once; 0 at the end of all data.
  std::size_t ReadRun(std::span<char16_t> room);

  /// Characters past the capacity of the Data, so that whole blocks can be written at its end.
  static constexpr std::size_t kRoomBeyondData = 256;

  void GrowData(std::uint64_t needed, std::uint32_t filled);
  std::span<char16_t> ExtendData(std::size_t count);
  /// The room for characters that do not count yet: what is left of the Data, and the room beyond it.
  [[nodiscard]] std::span<char16_t> RoomInData() const noexcept {
    return {FData.get() + FDataSize, FDataCapacity - FDataSize + kRoomBeyondData};
  }
  /// So many of them count now.
  void CountAsData(std::uint32_t count) {
    const std::uint64_t size = std::uint64_t{FDataSize} + count;
    if (size > FDataCapacity) GrowData(size, static_cast<std::uint32_t>(size));
    FDataSize = static_cast<std::uint32_t>(size);
  }

  bool FCharOK = false;
  char16_t FChar = 0;
  /// The character before `FChar`, for `CountLocation` alone: what goes in runs leaves it.
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

  /// Where the peeked characters begin in their array: taking one moves none.
  std::uint32_t FPeekedStart = 0;
  /// The run beside the read methods in force, or null.
  codec::Run (*FDecodeRun)(std::span<const std::uint8_t> bytes, std::span<char16_t> text) = nullptr;
  /// The same up to a byte of ASCII; null also where bytes below 0x80 are more or less than ASCII.
  codec::RunUntil (*FDecodeUntil)(std::span<const std::uint8_t> bytes, std::span<char16_t> text,
                                  codec::EndBytes ends) = nullptr;
};

}  // namespace ravo::DIUnicode
