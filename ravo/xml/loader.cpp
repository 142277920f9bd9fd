#include <ravo/platform/code_pages.h>
#include <ravo/runtime/text.h>
#include <ravo/xml/byte_scan.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/loader.h>

#include <algorithm>
#include <optional>
#include <string>

namespace ravo::xml {
namespace {

using namespace ECXMLTokenizer;

// The text between `before`, A to Z in either case, and the next `quote`.
std::optional<std::u16string_view> Quoted(std::u16string_view text, std::u16string_view before,
                                          char16_t quote) {
  for (std::size_t at = 0; at + before.size() <= text.size(); ++at) {
    if (!SameAsciiText(text.substr(at, before.size()), before)) continue;
    text.remove_prefix(at + before.size());
    const std::size_t end = text.find(quote);
    return end == std::u16string_view::npos ? std::u16string_view() : text.substr(0, end);
  }
  return std::nullopt;
}

// Of the two ways to quote the encoding the single quotes win.
void ReadHeader(std::u16string_view header, TokenListener& listener) {
  if (Quoted(header, u"xml-stylesheet", u'"')) {
    if (const auto name = Quoted(header, u"href=\"", u'"')) listener.StyleSheet(*name);
  }
  if (const auto name = Quoted(header, u"encoding=\"", u'"')) listener.Encoding(*name);
  if (const auto name = Quoted(header, u"encoding='", u'\'')) listener.Encoding(*name);
}

// The text of a token; of a CDATA section the part between its markers.
// Kept: a CDATA section in lower case keeps its markers; only the tokenizer ignores their case. Test:
// LoadFromStream.CDataInSmallLettersKeepsItsMarkers
std::string_view WithoutMarkers(std::string_view token) {
  constexpr std::string_view kMarker = "<![CDATA[";
  constexpr std::size_t kEnd = 3;
  if (!token.starts_with(kMarker)) return token;
  // The byte after the brackets may have been a blank.
  token = TrimmedBytes(token).substr(kMarker.size());
  return token.substr(0, token.size() - std::min(token.size(), kEnd));
}

// Most texts are in the source as they will be saved.
bool ReadText(const TXMLTokenizer& tokenizer, TokenListener& listener) {
  const std::string_view bytes = tokenizer.TokenBytes();
  const char* const end = bytes.data() + bytes.size();
  if (EndOfPlainText(bytes.data(), end) == end) return listener.SavedText(bytes);
  if (IsNormalised(bytes)) return listener.OtherText(WithoutMarkers(bytes));
  return listener.OtherText(WithoutMarkers(tokenizer.TokenString()));
}

// False if no element is open.
bool ReadToken(const TXMLTokenizer& tokenizer, TokenListener& listener) {
  switch (tokenizer.Token()) {
    case xtHeader:
      ReadHeader(platform::CodePages().FromCodePage(tokenizer.TokenString()), listener);
      return true;
    case xtText:
      return ReadText(tokenizer, listener);
    case xtOpenTag:
      return listener.OpenTag(tokenizer.TokenBytes());
    case xtCloseTag:
      return listener.CloseTag();
    case xtStandAloneTag:
      return listener.StandAloneTag(tokenizer.TokenBytes());
    default:
      return true;
  }
}

}  // namespace

void ReadTokens(TXMLTokenizer& tokenizer, TokenListener& listener) {
  for (; tokenizer.Token() != xtEndOfInput; tokenizer.NextToken()) {
    if (ReadToken(tokenizer, listener)) continue;
    tokenizer.Error(tokenizer.Token() == xtCloseTag ? u"Close tag without an open tag"
                                                    : u"Content behind the end of the document");
  }
}

}  // namespace ravo::xml
