#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/extended.h>
#include <ravo/runtime/message_text.h>
#include <ravo/xml/parser_error.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

/// Cuts a stream of 8-bit XML into coarse tokens: whole tags, runs of text, comments, headers.
namespace ravo::ECXMLTokenizer {

/// The kinds of tokens. Symbol, string, integer and float are only for checks: no token has these kinds.
inline constexpr std::uint8_t xtEndOfInput = 0;
inline constexpr std::uint8_t xtSymbol = 1;          ///< only for checks
inline constexpr std::uint8_t xtString = 2;          ///< only for checks
inline constexpr std::uint8_t xtInteger = 3;         ///< only for checks
inline constexpr std::uint8_t xtFloat = 4;           ///< only for checks
inline constexpr std::uint8_t xtComment = 6;         ///< `<!-- ... -->`
inline constexpr std::uint8_t xtHeader = 8;          ///< `<? ... ?>`
inline constexpr std::uint8_t xtText = 9;            ///< text between tags, or a CDATA section
inline constexpr std::uint8_t xtOpenTag = 10;        ///< `<a>`
inline constexpr std::uint8_t xtCloseTag = 11;       ///< `</a>`
inline constexpr std::uint8_t xtStandAloneTag = 12;  ///< `<a/>`

/// Reads a stream through a buffer of 64 KiB that is refilled at line boundaries.
///
/// A line must be shorter than the buffer; a tag or a CDATA section may be longer. Errors are `EParserError`
/// with the current line; errors of the stream pass through. After an error a tokenizer can only be
/// destroyed. A text that reaches the last line of the buffer ends there; the rest of it is a token of its
/// own. A zero byte between tokens ends the input.
class RAVO_API TXMLTokenizer {
 public:
  /// Reads the stream from its position on; the first token is current at once. The stream must outlive the
  /// tokenizer.
  explicit TXMLTokenizer(ByteStream& Stream);
  TXMLTokenizer(const TXMLTokenizer&) = delete;
  TXMLTokenizer& operator=(const TXMLTokenizer&) = delete;
  /// Sets the stream back to the first byte of the current token.
  virtual ~TXMLTokenizer();

  /// Refills the buffer from the scanning position on.
  void ReadBuffer();
  /// Skips white space and control bytes, counting lines.
  void SkipBlanks();
  /// Makes the next token current and returns its kind.
  std::uint8_t NextToken();

  /// Returns the kind of the current token.
  [[nodiscard]] std::uint8_t Token() const noexcept { return FToken; }
  /// Returns the 1-based line of the current token. Line feeds inside tokens are not counted.
  [[nodiscard]] std::int32_t SourceLine() const noexcept { return FSourceLine; }
  /// Returns the offset of the current token in bytes from the stream's first position.
  ///
  /// Throws `RangeError` or `OverflowError` beyond 2 GiB.
  [[nodiscard]] std::int32_t SourcePos() const;

  /// Returns the current token without line breaks of two bytes (CR LF, LF CR) and with each run of blanks as
  /// one.
  [[nodiscard]] std::string TokenString() const;
  /// Returns the bytes of the current token in the source, valid until the next token is read.
  [[nodiscard]] std::string_view TokenBytes() const noexcept {
    return {FTokenPtr, static_cast<std::size_t>(FSourcePtr - FTokenPtr)};
  }
  /// Returns the current token as an integer. Throws `ConvertError` if it is not an integer.
  [[nodiscard]] std::int32_t TokenInt() const;
  /// Returns the current token as a float. Throws `ConvertError` if it is not a number.
  [[nodiscard]] Extended TokenFloat() const;
  /// Returns whether the current token is the symbol `S`, ignoring the case of A to Z.
  [[nodiscard]] bool TokenSymbolIs(std::string_view S) const;
  /// Returns the current symbol with all further identifiers that dots join to it.
  ///
  /// Throws `EParserError` if the current token is not a symbol or an identifier is missing after a dot.
  std::string TokenComponentIdent();

  /// Throws `EParserError` unless the current token is of kind `T`.
  void CheckToken(std::uint8_t T) const;
  /// Throws `EParserError` unless `TokenSymbolIs(S)`.
  void CheckTokenSymbol(std::string_view S) const;
  /// Skips blanks and makes the next token current; decodes nothing and does not use `Stream`.
  void HexToBinary(ByteStream& Stream);

  /// Throws `EParserError` with a message and the current line.
  [[noreturn]] void Error(std::u16string_view Ident) const;
  /// Throws `EParserError` with a message formatted by `FormatMessageText` and the current line.
  ///
  /// Numbers take the separators of the locale. Throws `ConvertError` if an argument does not fit its place.
  [[noreturn]] void ErrorFmt(std::u16string_view Ident, std::span<const MessageArgument> Args) const;
  /// Throws `EParserError` with a message and the current line.
  [[noreturn]] void ErrorStr(std::u16string_view Message) const;

 protected:
  /// Allocates the buffer and reads nothing yet.
  TXMLTokenizer(ByteStream& Stream, std::size_t BufferSize);

 private:
  void ScanTag();
  void ScanCData();
  void ScanText();
  [[nodiscard]] std::uint8_t KindOfTag() const;
  [[nodiscard]] bool TokenStarts(std::string_view lower_case) const;
  void EndTokenAt(char* end, bool loaded_more);
  bool LoadMore();
  void MakeSpace();
  void ReadToEndOfBuffer();
  void MoveToFront(char* from);
  void GrowBuffer();
  void MarkSourceEnd(char* end);
  void Unmark();

  ByteStream& FStream;
  std::int32_t FOrigin = 0;
  std::unique_ptr<char[]> FBuffer;
  char* FBufPtr;
  char* FBufEnd;
  char* FSourcePtr;
  char* FSourceEnd;
  char* FTokenPtr;
  // Part of the classic interface, never set.
  [[maybe_unused]] char* FStringPtr = nullptr;
  std::int32_t FSourceLine = 1;
  char FSaveChar = 0;
  std::uint8_t FToken = xtEndOfInput;
  // The size that lines must fit into, and the size of the buffer, which a long tag increases.
  std::size_t line_capacity_;
  std::size_t capacity_;
};

/// Reads a stream through one buffer of the stream's size.
///
/// Throws `EParserError` for an empty stream, and as a line too long for a stream without a line feed before
/// its last line.
class RAVO_API TXMLLargeTokenizer final : public TXMLTokenizer {
 public:
  /// Reads the whole stream; the first token is current at once.
  explicit TXMLLargeTokenizer(ByteStream& Stream);
  ~TXMLLargeTokenizer() override;
};

}  // namespace ravo::ECXMLTokenizer
