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

/// Cuts a stream of XML in 8-bit text into coarse tokens: whole tags, runs of text, comments, the header.
namespace ravo::ECXMLTokenizer {

/// The kinds of tokens. Symbol, string, integer and float occur in checks alone: the scanner never finds one.
inline constexpr std::uint8_t xtEndOfInput = 0;
inline constexpr std::uint8_t xtSymbol = 1;          ///< in checks alone
inline constexpr std::uint8_t xtString = 2;          ///< in checks alone
inline constexpr std::uint8_t xtInteger = 3;         ///< in checks alone
inline constexpr std::uint8_t xtFloat = 4;           ///< in checks alone
inline constexpr std::uint8_t xtComment = 6;         ///< `<!-- ... -->`
inline constexpr std::uint8_t xtHeader = 8;          ///< `<? ... ?>`
inline constexpr std::uint8_t xtText = 9;            ///< what stands between tags
inline constexpr std::uint8_t xtOpenTag = 10;        ///< `<a>`
inline constexpr std::uint8_t xtCloseTag = 11;       ///< `</a>`
inline constexpr std::uint8_t xtStandAloneTag = 12;  ///< `<a/>`

/// Walks a stream through a buffer of 64 KiB that is refilled at line boundaries. A line must be shorter than
/// the buffer; a tag or a CDATA section may be longer. A run of text that reaches the last line of the buffer
/// ends there, and the rest of it is a token of its own. A zero byte between tokens ends the input.
///
/// Errors are `EParserError` with the current line; what the stream raises passes through. After an error the
/// tokenizer is only good for being destroyed.
class RAVO_API TXMLTokenizer {
 public:
  /// Stands on the first token at once. The stream is read from its position on and must outlive the
  /// tokenizer.
  explicit TXMLTokenizer(ByteStream& Stream);
  TXMLTokenizer(const TXMLTokenizer&) = delete;
  TXMLTokenizer& operator=(const TXMLTokenizer&) = delete;
  /// Puts the stream back to the first byte of the current token.
  virtual ~TXMLTokenizer();

  /// Refills the buffer from the scanning position on.
  void ReadBuffer();
  /// Skips white space and control bytes, counting lines.
  void SkipBlanks();
  /// Scans the next token and answers its kind.
  std::uint8_t NextToken();

  /// The kind of the current token.
  [[nodiscard]] std::uint8_t Token() const noexcept { return FToken; }
  /// The line of the current token, from 1. Line feeds inside tokens are not counted.
  [[nodiscard]] std::int32_t SourceLine() const noexcept { return FSourceLine; }
  /// Where the current token begins, in bytes from where the tokenizer began to read.
  [[nodiscard]] std::int32_t SourcePos() const;

  /// The current token without line breaks of two bytes (CR LF, LF CR) and with each run of blanks as one.
  [[nodiscard]] std::string TokenString() const;
  /// The current token as it stands in the document, until the tokenizer moves on.
  [[nodiscard]] std::string_view TokenBytes() const noexcept {
    return {FTokenPtr, static_cast<std::size_t>(FSourcePtr - FTokenPtr)};
  }
  /// The current token as an integer or a float; `ConvertError` where it is none.
  [[nodiscard]] std::int32_t TokenInt() const;
  /// The current token as a float; `ConvertError` where it is none.
  [[nodiscard]] Extended TokenFloat() const;
  /// Whether the current token is that symbol, A to Z in either case.
  [[nodiscard]] bool TokenSymbolIs(std::string_view S) const;
  /// A symbol with everything that hangs on it by dots.
  std::string TokenComponentIdent();

  /// Raises unless the current token is of kind `T`.
  void CheckToken(std::uint8_t T) const;
  /// Raises unless `TokenSymbolIs(S)`.
  void CheckTokenSymbol(std::string_view S) const;
  /// Skips blanks and moves to the next token; decodes nothing and leaves `Stream` alone.
  void HexToBinary(ByteStream& Stream);

  /// Raises a message with the current line.
  [[noreturn]] void Error(std::u16string_view Ident) const;
  /// Fills the places of a message with arguments, as `FormatMessageText` does with the separators of the
  /// locale, and raises it with the current line. `ConvertError` where a place does not fit its argument.
  [[noreturn]] void ErrorFmt(std::u16string_view Ident, std::span<const MessageArgument> Args) const;
  /// Raises a message with the current line.
  [[noreturn]] void ErrorStr(std::u16string_view Message) const;

 protected:
  /// Lays out the buffer and scans nothing yet.
  TXMLTokenizer(ByteStream& Stream, std::size_t BufferSize);

 private:
  void ScanTag();
  void ScanCData();
  void ScanText();
  [[nodiscard]] std::uint8_t KindOfTag() const;
  [[nodiscard]] bool TokenStarts(std::string_view lower_case) const;
  void EndTokenAt(char* end, bool ran_over);
  bool LoadMore();
  void MakeRoom();
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
  // Part of the classic interface; the scanner never sets it.
  [[maybe_unused]] char* FStringPtr = nullptr;
  std::int32_t FSourceLine = 1;
  char FSaveChar = 0;
  std::uint8_t FToken = xtEndOfInput;
  // The size that lines must fit into, and the room that there is: a long tag makes more.
  std::size_t line_room_;
  std::size_t room_;
};

/// The same with one buffer of the stream's whole size. A stream that ends without a line feed before its
/// last line raises that the line is too long, an empty one that it is empty.
class RAVO_API TXMLLargeTokenizer final : public TXMLTokenizer {
 public:
  /// Stands on the first token at once.
  explicit TXMLLargeTokenizer(ByteStream& Stream);
  ~TXMLLargeTokenizer() override;
};

}  // namespace ravo::ECXMLTokenizer
