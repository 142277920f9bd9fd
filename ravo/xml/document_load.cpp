#include <ravo/platform/code_pages.h>
#include <ravo/runtime/error.h>
#include <ravo/xml/document.h>
#include <ravo/xml/tree_builder.h>

#include <utility>

// The members of an item that call its document: how it reports changes, and how it is loaded.
namespace ravo::ECXMLParser {
namespace {

using xml::ItemObjects;

// Passes the names in the header and the changes of items on to the document.
class ItemLoader final : public xml::TreeBuilder {
 public:
  ItemLoader(TXMLItem& top, bool reports_changes)
      : TreeBuilder(ItemObjects::StoreOf(top), reports_changes), top_(top) {}

  void Encoding(std::u16string_view name) override {
    if (top_.Parser() != nullptr) top_.Parser()->SetEncoding(name);
  }
  void StyleSheet(std::u16string_view name) override {
    if (top_.Parser() != nullptr) top_.Parser()->SetStyleSheet(name);
  }

 private:
  void Changed(xml::ItemStore& item) override { ItemObjects::ItemOf(&item)->DoChanged(); }

  TXMLItem& top_;
};

// Unassigns the handler of changes during its lifetime.
class ChangesUnreported {
 public:
  explicit ChangesUnreported(TECXMLParser& parser) : parser_(parser), handler_(parser.XMLItemChanged()) {
    parser_.SetXMLItemChanged(nullptr);
  }
  ChangesUnreported(const ChangesUnreported&) = delete;
  ChangesUnreported& operator=(const ChangesUnreported&) = delete;
  ~ChangesUnreported() { parser_.SetXMLItemChanged(std::move(handler_)); }

 private:
  TECXMLParser& parser_;
  TXMLItemChanged handler_;
};

template <class Tokenizer>
void LoadFrom(TXMLItem& item, ByteStream& stream) {
  TECXMLParser* const parser = item.Parser();
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

bool ReportsChanges(const TXMLItem& item) {
  return item.Parser() != nullptr && item.Parser()->XMLItemChanged() != nullptr;
}

}  // namespace

void TXMLItem::DoChanged() {
  if (!ReportsChanges(*this)) return;
  // A copy: the handler may assign another one.
  const TXMLItemChanged handler = Parser()->XMLItemChanged();
  handler(*Parser(), *this);
}

void TXMLItem::LoadFromStream(ByteStream& Stream) { LoadFrom<ECXMLTokenizer::TXMLTokenizer>(*this, Stream); }

void TXMLItem::LoadFromLargeStream(ByteStream& Stream) {
  LoadFrom<ECXMLTokenizer::TXMLLargeTokenizer>(*this, Stream);
}

void TXMLItem::LoadFromTokenizer(ECXMLTokenizer::TXMLTokenizer& Tokenizer) {
  const bool reports_changes = ReportsChanges(*this);
  Clear();
  if (reports_changes) SetName(u"");
  ItemLoader loader(*this, reports_changes);
  xml::ReadTokens(Tokenizer, loader);
  loader.Finish();
}

void TXMLItem::SetAsString(std::u16string_view Value) {
  const std::string bytes = platform::CodePages().ToCodePage(Value);
  MemoryStream stream(std::as_bytes(std::span(bytes)));
  LoadFromStream(stream);
}

}  // namespace ravo::ECXMLParser
