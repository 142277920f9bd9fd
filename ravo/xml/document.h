#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>
#include <ravo/runtime/owned_component.h>
#include <ravo/xml/item.h>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// XML documents as trees of items.
///
/// A document is loaded into a tree of items, edited and saved again in the suite's own form. The model is
/// small and forgiving: any close tag closes the innermost element, comments are dropped, attribute values
/// end at blanks outside double quotes. Each piece of the room knows only those before it:
///
///     tokenizer.h     TXMLTokenizer cuts a stream of bytes into tags and texts
///     loader.h        ReadTokens tells a TokenListener of each token
///     item_store.h    ItemStore holds an item: owner, children, name, attributes, text
///     item_pool.h     ItemPool: the memory that the items of one load share (arena.h) and their code page
///     tree_builder.h  TreeBuilder, the listener of every load, builds stores
///     item_writer.h   WriteItem writes a store as XML
///     item.h          TXMLItem: what callers hold, an object around one store
///     document.h      TECXMLParser owns the root item, has the events, loads and saves
///
/// tag_parts.h, escape.h, code_page.h and byte_scan.h are the rules of tags, entities and bytes that these
/// share. Start at ItemStore; docs/xml-items.md shows how it keeps its bytes.
///
/// The room never checks that a document is well formed, never resolves numeric entities, never converts to
/// the encoding that a header names, and never locks: a document and its items belong to one thread at a
/// time.
namespace ravo::ECXMLParser {

/// Kinds of parts of a document. Loading works on the tokenizer's own kinds and makes none of these.
enum TXMLTagItemType : std::uint8_t { xitText, xitOpen, xitClose, xitStandAlone, xitHeader, xitComment };

/// A part of a document.
struct TXMLTagItem {
  std::u16string Value;               ///< its text in the document
  TXMLTagItemType TagType = xitText;  ///< its kind
};

/// Parts in document order.
using TXMLTagItemList = std::vector<TXMLTagItem>;

/// Receives each item that changes. An empty event is not called.
using TXMLItemChanged = std::function<void(TECXMLParser& Sender, TXMLItem& XMLItem)>;
/// Called before an operation, which a handler cancels by setting `Allow` to false.
using TXMLLoadSaveEvent = std::function<void(TECXMLParser& Sender, bool& Allow)>;
/// Called after an operation.
using TNotifyEvent = std::function<void(TComponent& Sender)>;

/// The identifier of `IECXMLParser`.
inline constexpr Guid IID_IECXMLParser{"{6388C6AB-6393-4AD2-A4AF-22E2BC3F97BF}"};

/// The interface of documents, which `TECXMLParser` and `TXMLGhost` implement.
class RAVO_API IECXMLParser : public IUnknown {
 public:
  /// The identifier that `QueryInterface` takes.
  static constexpr Guid kInterfaceId = IID_IECXMLParser;

  IECXMLParser() = default;
  IECXMLParser(const IECXMLParser&) = delete;
  IECXMLParser& operator=(const IECXMLParser&) = delete;

  /// Returns the root item; never null.
  [[nodiscard]] virtual TXMLItem* GetRoot() = 0;
  /// Empties the document.
  virtual void Clear() = 0;
  /// Loads a file. Throws `StreamError` if it cannot be read and `EParserError` if it cannot be read as XML.
  virtual void LoadFromFile(std::u16string_view FileName) = 0;
  /// Makes or replaces a file. Throws `StreamError` if that fails.
  virtual void SaveToFile(std::u16string_view FileName) = 0;
  /// Loads a stream. Throws `EParserError` if it cannot be read as XML.
  virtual void LoadFromStream(ByteStream& Stream) = 0;
  /// Writes the document at the stream's position. Throws `StreamError` if the stream does not take all of
  /// it.
  virtual void SaveToStream(ByteStream& Stream, bool XSL) = 0;

  // Last, so that the operations directly follow those of the base interface.
  virtual ~IECXMLParser();
};

/// An XML document: the root item, which the document owns for its whole life, and the names of encoding and
/// style sheet.
///
/// The encoding is only a name: bytes are always in the system's 8-bit code page.
class RAVO_API TECXMLParser final : public OwnedComponent<IECXMLParser> {
 public:
  /// The published properties in their order.
  static constexpr auto kPublished = std::to_array<std::string_view>(
      {"StyleSheet", "Encoding", "XMLItemChanged", "OnLoaded", "OnCleared", "OnSaved", "BeforeLoad",
       "BeforeSave", "BeforeClear", "CrLfInAsString"});

  /// Makes an empty document. `AOwner` frees it, or the caller if that is null.
  explicit TECXMLParser(TComponent* AOwner = nullptr);
  ~TECXMLParser() override;

  /// Empties encoding and root, if `BeforeClear` allows it.
  void Clear() override;
  /// Loads a file as `LoadFromStream` does. Throws `StreamError` if it cannot be read.
  void LoadFromFile(std::u16string_view FileName) override;
  /// Loads the document from the stream's beginning.
  ///
  /// Throws `EParserError` if the XML cannot be read; items built before the error stay. Does nothing,
  /// without an error, unless the next 1000 bytes contain `<rss`, or `<?xml version="1.0"` without a
  /// byte-order mark at the stream's position.
  void LoadFromStream(ByteStream& Stream) override;
  /// Saves to a file as `SaveToStream` does. Throws `StreamError` if that fails.
  ///
  /// A file whose extension is ".xsl", in either case, gets no reference to a style sheet.
  void SaveToFile(std::u16string_view FileName) override;
  /// Writes the document at the stream's position; without the reference to the style sheet if `XSL` is set.
  ///
  /// Throws `StreamError` if the stream does not take all of it.
  void SaveToStream(ByteStream& Stream, bool XSL) override;
  /// Returns the root item, which lives as long as the document.
  [[nodiscard]] TXMLItem* GetRoot() override { return FRoot.get(); }
  /// Returns the root item, which lives as long as the document.
  [[nodiscard]] TXMLItem* Root() const noexcept { return FRoot.get(); }

  /// Returns the flag of the root: true if items are written with line breaks and indents.
  [[nodiscard]] bool CrLfInAsString() const noexcept { return FRoot->CrLfInAsString(); }
  void SetCrLfInAsString(bool Value) noexcept { FRoot->SetCrLfInAsString(Value); }
  /// Returns the name of the encoding in the header, which has no effect on the bytes.
  [[nodiscard]] const std::u16string& Encoding() const noexcept { return FEncoding; }
  void SetEncoding(std::u16string_view Value) { FEncoding = Value; }
  /// Returns the style sheet that the document refers to, or an empty text.
  [[nodiscard]] const std::u16string& StyleSheet() const noexcept { return FStyleSheet; }
  void SetStyleSheet(std::u16string_view Value) { FStyleSheet = Value; }

  /// Called with each item that changes.
  [[nodiscard]] const TXMLItemChanged& XMLItemChanged() const noexcept { return FXMLItemChanged; }
  void SetXMLItemChanged(TXMLItemChanged Value) { FXMLItemChanged = std::move(Value); }
  /// Called after the document is loaded.
  [[nodiscard]] const TNotifyEvent& OnLoaded() const noexcept { return FOnLoaded; }
  void SetOnLoaded(TNotifyEvent Value) { FOnLoaded = std::move(Value); }
  /// Called after the document is saved.
  [[nodiscard]] const TNotifyEvent& OnSaved() const noexcept { return FOnSaved; }
  void SetOnSaved(TNotifyEvent Value) { FOnSaved = std::move(Value); }
  /// Called after the document is emptied.
  [[nodiscard]] const TNotifyEvent& OnCleared() const noexcept { return FOnCleared; }
  void SetOnCleared(TNotifyEvent Value) { FOnCleared = std::move(Value); }
  /// Called before the document is loaded.
  [[nodiscard]] const TXMLLoadSaveEvent& BeforeLoad() const noexcept { return FBeforeLoad; }
  void SetBeforeLoad(TXMLLoadSaveEvent Value) { FBeforeLoad = std::move(Value); }
  /// Called before the document is saved.
  [[nodiscard]] const TXMLLoadSaveEvent& BeforeSave() const noexcept { return FBeforeSave; }
  void SetBeforeSave(TXMLLoadSaveEvent Value) { FBeforeSave = std::move(Value); }
  /// Called before the document is emptied.
  [[nodiscard]] const TXMLLoadSaveEvent& BeforeClear() const noexcept { return FBeforeClear; }
  void SetBeforeClear(TXMLLoadSaveEvent Value) { FBeforeClear = std::move(Value); }

 private:
  std::unique_ptr<TXMLItem> FRoot;
  TNotifyEvent FOnSaved;
  TNotifyEvent FOnLoaded;
  TXMLItemChanged FXMLItemChanged;
  TXMLLoadSaveEvent FBeforeLoad;
  TXMLLoadSaveEvent FBeforeSave;
  TNotifyEvent FOnCleared;
  TXMLLoadSaveEvent FBeforeClear;
  std::u16string FStyleSheet;
  std::u16string FEncoding;
};

/// A component that passes each operation on to a document, so that several forms can share it.
///
/// Every operation without a document throws `Error`. The reference is a plain one: the document must outlive
/// its use.
class RAVO_API TXMLGhost final : public OwnedComponent<IECXMLParser> {
 public:
  /// The published properties in their order.
  static constexpr auto kPublished = std::to_array<std::string_view>({"PrimaryDocument"});

  /// Makes a component without a document. `AOwner` frees it, or the caller if that is null.
  explicit TXMLGhost(TComponent* AOwner = nullptr) : OwnedComponent(AOwner) {}
  ~TXMLGhost() override;

  /// Does the same as the document.
  void Clear() override { Document().Clear(); }
  /// Does the same as the document.
  void LoadFromFile(std::u16string_view FileName) override { Document().LoadFromFile(FileName); }
  /// Does the same as the document.
  void SaveToFile(std::u16string_view FileName) override { Document().SaveToFile(FileName); }
  /// Does the same as the document.
  void LoadFromStream(ByteStream& Stream) override { Document().LoadFromStream(Stream); }
  /// Does the same as the document.
  void SaveToStream(ByteStream& Stream, bool XSL) override { Document().SaveToStream(Stream, XSL); }
  /// Returns the document's root.
  [[nodiscard]] TXMLItem* GetRoot() override { return Document().Root(); }
  /// Returns the document's root.
  [[nodiscard]] TXMLItem* Root() const { return Document().Root(); }

  /// Returns the document that operations are passed on to; null at first.
  [[nodiscard]] TECXMLParser* PrimaryDocument() const noexcept { return FPrimaryDocument; }
  void SetPrimaryDocument(TECXMLParser* Value) noexcept { FPrimaryDocument = Value; }

 private:
  [[nodiscard]] TECXMLParser& Document() const;

  TECXMLParser* FPrimaryDocument = nullptr;
};

/// A component class and the palette page that offers it.
struct ComponentRegistration {
  std::u16string_view page;        ///< the page of the designer
  std::u16string_view class_name;  ///< the class of the component
};

/// Registers `TECXMLParser` and `TXMLGhost` for the page "EC Test".
RAVO_API void Register();
/// Returns the components that `Register` registered so far.
[[nodiscard]] RAVO_API std::span<const ComponentRegistration> RegisteredComponents() noexcept;

}  // namespace ravo::ECXMLParser
