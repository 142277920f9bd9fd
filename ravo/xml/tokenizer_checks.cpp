#include <ravo/platform/code_pages.h>
#include <ravo/platform/locale.h>
#include <ravo/runtime/checked.h>
#include <ravo/runtime/number_parse.h>
#include <ravo/runtime/text.h>
#include <ravo/xml/byte_scan.h>
#include <ravo/xml/tokenizer.h>

#include <array>

namespace ravo::ECXMLTokenizer {
namespace {

constexpr std::u16string_view kIdentifierExpected = u"Identifier expected";
constexpr std::u16string_view kNumberExpected = u"Number expected";
constexpr std::u16string_view kCharExpected = u"'%s' expected";
constexpr std::u16string_view kSymbolExpected = u"%s expected";
constexpr std::u16string_view kParseError = u"%s on line %d";

// Untested: no token is a symbol.
bool IsLetter(char ch) {
  const char lower = xml::LowerByte(ch);
  return (lower >= 'a' && lower <= 'z') || ch == '_';
}

// Untested: no token is a symbol.
bool IsLetterOrDigit(char ch) { return IsLetter(ch) || (ch >= '0' && ch <= '9'); }

std::u16string Widened(std::string_view bytes) { return platform::CodePages().FromCodePage(bytes); }

}  // namespace

std::int32_t TXMLTokenizer::SourcePos() const {
  return CheckedAdd(FOrigin, CheckedCast<std::int32_t>(FTokenPtr - FBuffer.get()));
}

std::string TXMLTokenizer::TokenString() const {
  std::string text(TokenBytes());
  if (!xml::IsNormalised(text)) xml::Normalise(text);
  return text;
}

std::int32_t TXMLTokenizer::TokenInt() const { return ParseInteger(Widened(TokenString())); }

Extended TXMLTokenizer::TokenFloat() const {
  return ParseFloat(Widened(TokenString()), platform::Locale().Settings().decimal_separator);
}

bool TXMLTokenizer::TokenSymbolIs(std::string_view S) const {
  // Untested: no token is a symbol.
  return FToken == xtSymbol && SameAsciiText(Widened(TokenString()), Widened(S));
}

std::string TXMLTokenizer::TokenComponentIdent() {
  CheckToken(xtSymbol);
  char* at = FSourcePtr;
  // Untested: no token is a symbol.
  while (*at == '.') {
    if (!IsLetter(*++at)) Error(kIdentifierExpected);
    while (IsLetterOrDigit(*at)) ++at;
  }
  FSourcePtr = at;
  return TokenString();
}

void TXMLTokenizer::CheckToken(std::uint8_t T) const {
  if (FToken == T) return;
  if (T == xtSymbol) Error(kIdentifierExpected);
  if (T == xtInteger || T == xtFloat) Error(kNumberExpected);
  // Kept: a missing string is reported by the number of its kind. Test: CheckToken.NamesAStringByItsNumber
  const std::array<MessageArgument, 1> kind = {std::u16string(1, char16_t{T})};
  ErrorFmt(kCharExpected, kind);
}

void TXMLTokenizer::CheckTokenSymbol(std::string_view S) const {
  // Untested: no token is a symbol.
  if (TokenSymbolIs(S)) return;
  const std::array<MessageArgument, 1> symbol = {Widened(S)};
  ErrorFmt(kSymbolExpected, symbol);
}

// Kept: hexadecimal text is skipped and not decoded: the member only keeps its place in the interface. Test:
// HexToBinary.SkipsAndDecodesNothing
void TXMLTokenizer::HexToBinary(ByteStream& /*Stream*/) {
  SkipBlanks();
  NextToken();
}

void TXMLTokenizer::Error(std::u16string_view Ident) const { ErrorStr(Ident); }

void TXMLTokenizer::ErrorFmt(std::u16string_view Ident, std::span<const MessageArgument> Args) const {
  ErrorStr(FormatMessageText(Ident, Args, platform::Locale().Settings()));
}

void TXMLTokenizer::ErrorStr(std::u16string_view Message) const {
  const std::array<MessageArgument, 2> parts = {std::u16string(Message), std::int64_t{FSourceLine}};
  throw EParserError(FormatMessageText(kParseError, parts, {}));
}

}  // namespace ravo::ECXMLTokenizer
