#include <ravo/platform/code_pages.h>
#include <ravo/runtime/text.h>
#include <ravo/xml/byte_scan.h>
#include <ravo/xml/document.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/tree_loader.h>

#include <algorithm>
#include <optional>

namespace ravo {
namespace xml {
namespace {

using namespace ECXMLTokenizer;
using ECXMLParser::TXMLItem;

// What stands between `before`, A to Z in either case, and the next `quote`; no value where there is no
// `before`.
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

void JoinReporting(TXMLItem& item, std::u16string_view text) {
  const std::u16string old = item.Text();
  if (Trimmed(old).empty()) return item.SetText(ECXMLParser::XMLToStr(text));
  item.SetText(ECXMLParser::XMLToStr(old + u"\r\n" + std::u16string(text)));
}

void TagReporting(TXMLItem& item, const std::string& tag) {
  const TagParts parts = ReadTag(tag);
  const platform::CodePageCalls& code_pages = platform::CodePages();
  item.SetName(code_pages.FromCodePage(parts.name));
  StringList params;
  for (const std::string& line : parts.lines) params.Add(code_pages.FromCodePage(line));
  item.SetParams(params);
}

// The item that is current behind the token; null above the topmost one.
TXMLItem* TakeReporting(TXMLItem* current, TXMLTokenizer& tokenizer) {
  if (current == nullptr) RaiseOutside(tokenizer);
  const std::string token = tokenizer.TokenString();
  switch (tokenizer.Token()) {
    case xtText:
      JoinReporting(*current, platform::CodePages().FromCodePage(TextOfToken(token)));
      return current;
    case xtOpenTag:
      if (!Trimmed(current->Name()).empty()) current = current->New();
      TagReporting(*current, token);
      return current;
    case xtStandAloneTag:
      TagReporting(*current->New(), token);
      return current;
    default:
      return current->Parent();
  }
}

bool IsContent(std::uint8_t kind) {
  return kind == xtText || kind == xtOpenTag || kind == xtCloseTag || kind == xtStandAloneTag;
}

// Takes the handler of changes away for as long as this object lives.
class ChangesUnreported {
 public:
  explicit ChangesUnreported(ECXMLParser::TECXMLParser& parser)
      : parser_(parser), handler_(parser.XMLItemChanged()) {
    parser_.SetXMLItemChanged(nullptr);
  }
  ChangesUnreported(const ChangesUnreported&) = delete;
  ChangesUnreported& operator=(const ChangesUnreported&) = delete;
  ~ChangesUnreported() { parser_.SetXMLItemChanged(std::move(handler_)); }

 private:
  ECXMLParser::TECXMLParser& parser_;
  ECXMLParser::TXMLItemChanged handler_;
};

template <class Tokenizer>
void LoadFrom(TXMLItem& item, ByteStream& stream) {
  ECXMLParser::TECXMLParser* const parser = item.Parser();
  if (parser == nullptr) throw Error(u"An item without a document cannot be loaded");
  bool allow = true;
  if (parser->BeforeLoad()) parser->BeforeLoad()(*parser, allow);
  if (!allow) return;
  {
    const ChangesUnreported unreported(*parser);
    Tokenizer tokenizer(stream);
    item.LoadFromTokenizer(tokenizer);
  }
  if (parser->OnLoaded()) parser->OnLoaded()(*parser);
}

}  // namespace

// Of the two ways to quote the encoding the single quotes win.
void TakeHeader(ECXMLParser::TECXMLParser* parser, std::u16string_view header) {
  if (parser == nullptr) return;
  if (Quoted(header, u"xml-stylesheet", u'"')) {
    if (const auto name = Quoted(header, u"href=\"", u'"')) parser->SetStyleSheet(*name);
  }
  if (const auto name = Quoted(header, u"encoding=\"", u'"')) parser->SetEncoding(*name);
  if (const auto name = Quoted(header, u"encoding='", u'\'')) parser->SetEncoding(*name);
}

// Kept: a CDATA section in lower case keeps its markers; only the tokenizer ignores their case. Test:
// LoadFromStream.CDataInSmallLettersKeepsItsMarkers
std::string_view TextOfToken(std::string_view token) noexcept {
  constexpr std::string_view kMarker = "<![CDATA[";
  constexpr std::size_t kEnd = 3;
  if (!token.starts_with(kMarker)) return token;
  // The byte behind the brackets may have been a blank.
  token = TrimmedBytes(token).substr(kMarker.size());
  return token.substr(0, token.size() - std::min(token.size(), kEnd));
}

void RaiseOutside(const TXMLTokenizer& tokenizer) {
  tokenizer.Error(tokenizer.Token() == xtCloseTag ? u"Close tag without an open tag"
                                                  : u"Content behind the end of the document");
}

void LoadReporting(TXMLItem& top, TXMLTokenizer& tokenizer) {
  top.SetName(u"");
  TXMLItem* current = &top;
  while (tokenizer.Token() != xtEndOfInput) {
    if (tokenizer.Token() == xtHeader) {
      TakeHeader(top.Parser(), platform::CodePages().FromCodePage(tokenizer.TokenString()));
    } else if (IsContent(tokenizer.Token())) {
      current = TakeReporting(current, tokenizer);
    }
    tokenizer.NextToken();
  }
}

}  // namespace xml

namespace ECXMLParser {

void TXMLItem::LoadFromStream(ByteStream& Stream) {
  xml::LoadFrom<ECXMLTokenizer::TXMLTokenizer>(*this, Stream);
}

void TXMLItem::LoadFromLargeStream(ByteStream& Stream) {
  xml::LoadFrom<ECXMLTokenizer::TXMLLargeTokenizer>(*this, Stream);
}

void TXMLItem::LoadFromTokenizer(ECXMLTokenizer::TXMLTokenizer& Tokenizer) {
  Clear();
  if (FParser != nullptr && FParser->XMLItemChanged()) return xml::LoadReporting(*this, Tokenizer);
  xml::TreeLoader(*this, Tokenizer).Run();
}

void TXMLItem::SetAsString(std::u16string_view Value) {
  const std::string bytes = platform::CodePages().ToCodePage(Value);
  MemoryStream stream(std::as_bytes(std::span(bytes)));
  LoadFromStream(stream);
}

}  // namespace ECXMLParser
}  // namespace ravo
