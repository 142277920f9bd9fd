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

namespace ravo::ECXMLParser {

/// Kinds of pieces of a document. Loading works on the tokenizer's own kinds and makes none of these.
enum TXMLTagItemType : std::uint8_t { xitText, xitOpen, xitClose, xitStandAlone, xitHeader, xitComment };

/// A piece of a document.
struct TXMLTagItem {
  std::u16string Value;               ///< as it stands there
  TXMLTagItemType TagType = xitText;  ///< what it is
};

/// Pieces in their order.
using TXMLTagItemList = std::vector<TXMLTagItem>;

/// Events; an empty one is not called.
using TXMLItemChanged = std::function<void(TECXMLParser& Sender, TXMLItem& XMLItem)>;
/// A handler that sets `Allow` to false stops what is about to happen.
using TXMLLoadSaveEvent = std::function<void(TECXMLParser& Sender, bool& Allow)>;
/// Something has happened.
using TNotifyEvent = std::function<void(TComponent& Sender)>;

/// What the interface is known by.
inline constexpr Guid IID_IECXMLParser{"{6388C6AB-6393-4AD2-A4AF-22E2BC3F97BF}"};

/// A document, however it is held. Objects that have this interface give it to whoever asks for
/// `IID_IECXMLParser`.
class RAVO_API IECXMLParser : public IUnknown {
 public:
  /// What `QueryInterface` finds it by.
  static constexpr Guid kInterfaceId = IID_IECXMLParser;

  IECXMLParser() = default;
  IECXMLParser(const IECXMLParser&) = delete;
  IECXMLParser& operator=(const IECXMLParser&) = delete;

  /// The root item; never null.
  [[nodiscard]] virtual TXMLItem* GetRoot() = 0;
  /// Empties the document.
  virtual void Clear() = 0;
  /// Loads a file; `StreamError` where it cannot be read, `EParserError` for what is no XML.
  virtual void LoadFromFile(std::u16string_view FileName) = 0;
  /// Makes or replaces a file; `StreamError` where that fails.
  virtual void SaveToFile(std::u16string_view FileName) = 0;
  /// Loads a stream; `EParserError` for what is no XML.
  virtual void LoadFromStream(ByteStream& Stream) = 0;
  /// Writes the document at the stream's position; `StreamError` where the stream does not take it all.
  virtual void SaveToStream(ByteStream& Stream, bool XSL) = 0;

  // Last, so that the operations directly follow those of the base interface.
  virtual ~IECXMLParser();
};

/// An XML document: the root item, which is the document's own for its whole life, and the names of encoding
/// and style sheet. The encoding is a name alone: bytes are always those of the system's 8-bit code page.
class RAVO_API TECXMLParser final : public OwnedComponent<IECXMLParser> {
 public:
  /// The published properties in their order.
  static constexpr auto kPublished = std::to_array<std::string_view>(
      {"StyleSheet", "Encoding", "XMLItemChanged", "OnLoaded", "OnCleared", "OnSaved", "BeforeLoad",
       "BeforeSave", "BeforeClear", "CrLfInAsString"});

  /// An empty document; `AOwner` frees it, null means the caller does.
  explicit TECXMLParser(TComponent* AOwner = nullptr);
  ~TECXMLParser() override;

  /// Empties encoding and root, if `BeforeClear` allows it.
  void Clear() override;
  /// `StreamError` for a file that cannot be read.
  void LoadFromFile(std::u16string_view FileName) override;
  /// Loads the document from the stream's beginning. A stream whose next 1000 bytes contain neither
  /// `<?xml version="1.0"`, without a byte-order mark at the front, nor `<rss` is passed over in silence.
  /// `EParserError` for what cannot be read; what was built before it stays.
  void LoadFromStream(ByteStream& Stream) override;
  /// A file whose extension is ".xsl" gets no reference to a style sheet.
  void SaveToFile(std::u16string_view FileName) override;
  /// With `XSL` the reference to the style sheet is left out.
  void SaveToStream(ByteStream& Stream, bool XSL) override;
  /// The root item, which lives as long as the document.
  [[nodiscard]] TXMLItem* GetRoot() override { return FRoot.get(); }
  /// The root item, which lives as long as the document.
  [[nodiscard]] TXMLItem* Root() const noexcept { return FRoot.get(); }

  /// Whether items are written with line breaks and indents; the root's.
  [[nodiscard]] bool CrLfInAsString() const noexcept { return FRoot->CrLfInAsString(); }
  void SetCrLfInAsString(bool Value) noexcept { FRoot->SetCrLfInAsString(Value); }
  /// The name in the header; says nothing of the bytes.
  [[nodiscard]] const std::u16string& Encoding() const noexcept { return FEncoding; }
  void SetEncoding(std::u16string_view Value) { FEncoding = Value; }
  /// The style sheet that the document refers to; empty for none.
  [[nodiscard]] const std::u16string& StyleSheet() const noexcept { return FStyleSheet; }
  void SetStyleSheet(std::u16string_view Value) { FStyleSheet = Value; }

  /// Called with each item that changes.
  [[nodiscard]] const TXMLItemChanged& XMLItemChanged() const noexcept { return FXMLItemChanged; }
  void SetXMLItemChanged(TXMLItemChanged Value) { FXMLItemChanged = std::move(Value); }
  /// Called when the document was loaded.
  [[nodiscard]] const TNotifyEvent& OnLoaded() const noexcept { return FOnLoaded; }
  void SetOnLoaded(TNotifyEvent Value) { FOnLoaded = std::move(Value); }
  /// Called when the document was saved.
  [[nodiscard]] const TNotifyEvent& OnSaved() const noexcept { return FOnSaved; }
  void SetOnSaved(TNotifyEvent Value) { FOnSaved = std::move(Value); }
  /// Called when the document was emptied.
  [[nodiscard]] const TNotifyEvent& OnCleared() const noexcept { return FOnCleared; }
  void SetOnCleared(TNotifyEvent Value) { FOnCleared = std::move(Value); }
  /// Asked before the document is loaded.
  [[nodiscard]] const TXMLLoadSaveEvent& BeforeLoad() const noexcept { return FBeforeLoad; }
  void SetBeforeLoad(TXMLLoadSaveEvent Value) { FBeforeLoad = std::move(Value); }
  /// Asked before the document is saved.
  [[nodiscard]] const TXMLLoadSaveEvent& BeforeSave() const noexcept { return FBeforeSave; }
  void SetBeforeSave(TXMLLoadSaveEvent Value) { FBeforeSave = std::move(Value); }
  /// Asked before the document is emptied.
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

/// Another face of a document, so that several forms can share it. It holds a plain reference: the document
/// must outlive its use. Every use without a document raises `Error`.
class RAVO_API TXMLGhost final : public OwnedComponent<IECXMLParser> {
 public:
  /// The published properties in their order.
  static constexpr auto kPublished = std::to_array<std::string_view>({"PrimaryDocument"});

  /// Without a document; `AOwner` frees it, null means the caller does.
  explicit TXMLGhost(TComponent* AOwner = nullptr) : OwnedComponent(AOwner) {}
  ~TXMLGhost() override;

  /// As the document does.
  void Clear() override { Document().Clear(); }
  /// As the document does.
  void LoadFromFile(std::u16string_view FileName) override { Document().LoadFromFile(FileName); }
  /// As the document does.
  void SaveToFile(std::u16string_view FileName) override { Document().SaveToFile(FileName); }
  /// As the document does.
  void LoadFromStream(ByteStream& Stream) override { Document().LoadFromStream(Stream); }
  /// As the document does.
  void SaveToStream(ByteStream& Stream, bool XSL) override { Document().SaveToStream(Stream, XSL); }
  /// The document's root.
  [[nodiscard]] TXMLItem* GetRoot() override { return Document().Root(); }
  /// The document's root.
  [[nodiscard]] TXMLItem* Root() const { return Document().Root(); }

  /// The document that it stands for; null at first.
  [[nodiscard]] TECXMLParser* PrimaryDocument() const noexcept { return FPrimaryDocument; }
  void SetPrimaryDocument(TECXMLParser* Value) noexcept { FPrimaryDocument = Value; }

 private:
  [[nodiscard]] TECXMLParser& Document() const;

  TECXMLParser* FPrimaryDocument = nullptr;
};

/// A component class and the palette page of a designer that offers it.
struct ComponentRegistration {
  std::u16string_view page;        ///< of the designer
  std::u16string_view class_name;  ///< of the component
};

/// Offers `TECXMLParser` and `TXMLGhost` on the page "EC Test".
RAVO_API void Register();
/// What `Register` has offered so far.
[[nodiscard]] RAVO_API std::span<const ComponentRegistration> RegisteredComponents() noexcept;

}  // namespace ravo::ECXMLParser
