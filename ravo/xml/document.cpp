#include <ravo/platform/code_pages.h>
#include <ravo/platform/file_stream.h>
#include <ravo/runtime/text.h>
#include <ravo/xml/document.h>
#include <ravo/xml/item_writer.h>

#include <atomic>

namespace ravo::ECXMLParser {
namespace {

constexpr std::size_t kSniffedBytes = 1000;

bool HasByteOrderMark(std::string_view bytes) {
  return bytes.starts_with("\xEF\xBB\xBF") || bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE");
}

// Sets the stream back to its beginning.
// Kept: a stream whose declaration has single quotes is ignored without an error. Test:
// LoadFromStream.PassesOverSingleQuotesInSilence
// Kept: a stream with a byte-order mark is ignored without an error, unless it has "<rss" near its start.
// Test: LoadFromStream.PassesOverAMarkOfByteOrderInSilence
bool LooksLikeXml(ByteStream& stream) {
  std::string beginning(kSniffedBytes, '\0');
  std::size_t size = 0;
  while (size < kSniffedBytes) {
    const std::size_t count = stream.Read(std::as_writable_bytes(std::span(beginning).subspan(size)));
    if (count == 0) break;
    size += count;
  }
  stream.SetPosition(0);
  beginning.resize(size);
  const std::u16string text = platform::CodePages().FromCodePage(beginning);
  const bool declared = text.find(u"<?xml version=\"1.0\"") != std::u16string::npos;
  return (declared && !HasByteOrderMark(beginning)) || text.find(u"<rss") != std::u16string::npos;
}

std::u16string_view ExtensionOf(std::u16string_view name) {
  const std::size_t at = name.find_last_of(u"./\\:");
  return at != std::u16string_view::npos && name[at] == u'.' ? name.substr(at) : std::u16string_view();
}

void WriteText(ByteStream& stream, std::u16string_view text) {
  const std::string bytes = platform::CodePages().ToCodePage(text);
  stream.WriteChecked(std::as_bytes(std::span(bytes)));
}

bool Allowed(const TXMLLoadSaveEvent& event, TECXMLParser& parser) {
  bool allow = true;
  if (event) event(parser, allow);
  return allow;
}

constexpr auto kComponents = std::to_array<ComponentRegistration>({
    {u"EC Test", u"TECXMLParser"},
    {u"EC Test", u"TXMLGhost"},
});
std::atomic<bool> registered = false;

}  // namespace

IECXMLParser::~IECXMLParser() = default;

TECXMLParser::TECXMLParser(TComponent* AOwner) : OwnedComponent(AOwner), FRoot(new TXMLItem) {
  FRoot->SetParser(this);
}

TECXMLParser::~TECXMLParser() = default;

void TECXMLParser::Clear() {
  if (!Allowed(FBeforeClear, *this)) return;
  FEncoding.clear();
  FRoot->Clear();
  if (FOnCleared) FOnCleared(*this);
}

void TECXMLParser::LoadFromFile(std::u16string_view FileName) {
  FileStream stream(FileName, FileMode::Read);
  LoadFromStream(stream);
}

void TECXMLParser::LoadFromStream(ByteStream& Stream) {
  if (LooksLikeXml(Stream)) FRoot->LoadFromStream(Stream);
}

void TECXMLParser::SaveToFile(std::u16string_view FileName) {
  FileStream stream(FileName, FileMode::Create);
  SaveToStream(stream, SameAsciiText(ExtensionOf(FileName), u".xsl"));
}

// Kept: a blank precedes the end of the declaration, and none that of the style sheet. Test:
// SaveToStream.BlankBeforeTheEndOfTheDeclarationAlone
// Kept: the encoding is only a name: the bytes are in the 8-bit code page. Test:
// SaveToStream.WritesTheCodePageWhateverTheEncodingIsCalled
void TECXMLParser::SaveToStream(ByteStream& Stream, bool XSL) {
  if (!Allowed(FBeforeSave, *this)) return;
  std::u16string header = u"<?xml version=\"1.0\" encoding=\"" + FEncoding + u"\" ?>\r\n";
  if (!XSL && !Trimmed(FStyleSheet).empty()) {
    header += u"<?xml-stylesheet type=\"text/xsl\" href=\"" + FStyleSheet + u"\"?>\r\n";
  }
  WriteText(Stream, header);
  xml::WriteItem(Stream, xml::ItemObjects::StoreOf(*FRoot), {.level = 2});
  if (FOnSaved) FOnSaved(*this);
}

TXMLGhost::~TXMLGhost() = default;

TECXMLParser& TXMLGhost::Document() const {
  if (FPrimaryDocument == nullptr) throw Error(u"The primary document is missing");
  return *FPrimaryDocument;
}

void Register() { registered = true; }

std::span<const ComponentRegistration> RegisteredComponents() noexcept {
  return registered ? std::span<const ComponentRegistration>(kComponents)
                    : std::span<const ComponentRegistration>();
}

}  // namespace ravo::ECXMLParser
