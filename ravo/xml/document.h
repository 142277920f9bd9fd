#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>
#include <ravo/runtime/owned_object.h>
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

struct TXMLTagItem {
  std::u16string Value;
  TXMLTagItemType TagType = xitText;
};

using TXMLTagItemList = std::vector<TXMLTagItem>;

/// Events; an empty one is not called.
using TXMLItemChanged = std::function<void(TECXMLParser& Sender, TXMLItem& XMLItem)>;
/// A handler that sets `Allow` to false stops what is about to happen.
using TXMLLoadSaveEvent = std::function<void(TECXMLParser& Sender, bool& Allow)>;
using TNotifyEvent = std::function<void(TComponent& Sender)>;

inline constexpr Guid IID_IECXMLParser{"{6388C6AB-6393-4AD2-A4AF-22E2BC3F97BF}"};

/// A document, however it is held.
class RAVO_API IECXMLParser {
 public:
  IECXMLParser() = default;
  IECXMLParser(const IECXMLParser&) = delete;
  IECXMLParser& operator=(const IECXMLParser&) = delete;
  virtual ~IECXMLParser();

  [[nodiscard]] virtual TXMLItem* GetRoot() = 0;
  virtual void Clear() = 0;
  virtual void LoadFromFile(std::u16string_view FileName) = 0;
  virtual void SaveToFile(std::u16string_view FileName) = 0;
  virtual void LoadFromStream(ByteStream& Stream) = 0;
  virtual void SaveToStream(ByteStream& Stream, bool XSL) = 0;
};

/// An XML document: the root item, which is the document's own for its whole life, and the names of encoding
/// and style sheet. The encoding is a name alone: bytes are always those of the system's 8-bit code page.
class RAVO_API TECXMLParser final : public TComponent, public IECXMLParser {
 public:
  /// The published properties in their order.
  static constexpr auto kPublished = std::to_array<std::string_view>(
      {"StyleSheet", "Encoding", "XMLItemChanged", "OnLoaded", "OnCleared", "OnSaved", "BeforeLoad",
       "BeforeSave", "BeforeClear", "CrLfInAsString"});

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
  [[nodiscard]] TXMLItem* GetRoot() override { return FRoot.get(); }
  [[nodiscard]] TXMLItem* Root() const noexcept { return FRoot.get(); }

  [[nodiscard]] bool CrLfInAsString() const noexcept { return FRoot->CrLfInAsString(); }
  void SetCrLfInAsString(bool Value) noexcept { FRoot->SetCrLfInAsString(Value); }
  [[nodiscard]] const std::u16string& Encoding() const noexcept { return FEncoding; }
  void SetEncoding(std::u16string_view Value) { FEncoding = Value; }
  [[nodiscard]] const std::u16string& StyleSheet() const noexcept { return FStyleSheet; }
  void SetStyleSheet(std::u16string_view Value) { FStyleSheet = Value; }

  [[nodiscard]] const TXMLItemChanged& XMLItemChanged() const noexcept { return FXMLItemChanged; }
  void SetXMLItemChanged(TXMLItemChanged Value) { FXMLItemChanged = std::move(Value); }
  [[nodiscard]] const TNotifyEvent& OnLoaded() const noexcept { return FOnLoaded; }
  void SetOnLoaded(TNotifyEvent Value) { FOnLoaded = std::move(Value); }
  [[nodiscard]] const TNotifyEvent& OnSaved() const noexcept { return FOnSaved; }
  void SetOnSaved(TNotifyEvent Value) { FOnSaved = std::move(Value); }
  [[nodiscard]] const TNotifyEvent& OnCleared() const noexcept { return FOnCleared; }
  void SetOnCleared(TNotifyEvent Value) { FOnCleared = std::move(Value); }
  [[nodiscard]] const TXMLLoadSaveEvent& BeforeLoad() const noexcept { return FBeforeLoad; }
  void SetBeforeLoad(TXMLLoadSaveEvent Value) { FBeforeLoad = std::move(Value); }
  [[nodiscard]] const TXMLLoadSaveEvent& BeforeSave() const noexcept { return FBeforeSave; }
  void SetBeforeSave(TXMLLoadSaveEvent Value) { FBeforeSave = std::move(Value); }
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
class RAVO_API TXMLGhost final : public TComponent, public IECXMLParser {
 public:
  static constexpr auto kPublished = std::to_array<std::string_view>({"PrimaryDocument"});

  explicit TXMLGhost(TComponent* AOwner = nullptr) : TComponent(AOwner) {}
  ~TXMLGhost() override;

  void Clear() override { Document().Clear(); }
  void LoadFromFile(std::u16string_view FileName) override { Document().LoadFromFile(FileName); }
  void SaveToFile(std::u16string_view FileName) override { Document().SaveToFile(FileName); }
  void LoadFromStream(ByteStream& Stream) override { Document().LoadFromStream(Stream); }
  void SaveToStream(ByteStream& Stream, bool XSL) override { Document().SaveToStream(Stream, XSL); }
  [[nodiscard]] TXMLItem* GetRoot() override { return Document().Root(); }
  [[nodiscard]] TXMLItem* Root() const { return Document().Root(); }

  [[nodiscard]] TECXMLParser* PrimaryDocument() const noexcept { return FPrimaryDocument; }
  void SetPrimaryDocument(TECXMLParser* Value) noexcept { FPrimaryDocument = Value; }

 private:
  [[nodiscard]] TECXMLParser& Document() const;

  TECXMLParser* FPrimaryDocument = nullptr;
};

/// A component class and the palette page of a designer that offers it.
struct ComponentRegistration {
  std::u16string_view page;
  std::u16string_view class_name;
};

/// Offers `TECXMLParser` and `TXMLGhost` on the page "EC Test".
RAVO_API void Register();
/// What `Register` has offered so far.
[[nodiscard]] RAVO_API std::span<const ComponentRegistration> RegisteredComponents() noexcept;

}  // namespace ravo::ECXMLParser
