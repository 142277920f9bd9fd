#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/string_list.h>
#include <ravo/xml/item_store.h>
#include <ravo/xml/tokenizer.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <string_view>

/// Items of XML documents; document.h tells how the room's pieces fit.
namespace ravo::ECXMLParser {

class TECXMLParser;

/// An element: its name, attributes, text and children.
///
/// An item owns its children and frees them when it is cleared or freed. `delete` frees any item, however it
/// was made, and removes it from its parent. An item and its document are used by one thread at a time.
///
/// Reading a text widens bytes of the 8-bit code page each time; keep the result rather than asking twice.
class RAVO_API TXMLItem {
 public:
  /// Makes an empty item without parent and document.
  TXMLItem() noexcept = default;
  TXMLItem(const TXMLItem&) = delete;
  TXMLItem& operator=(const TXMLItem&) = delete;
  ~TXMLItem();
  /// Returns memory for an item on the heap. Throws `std::bad_alloc`.
  static void* operator new(std::size_t size);
  /// Frees the memory of an item whose constructor throws.
  static void operator delete(void* memory) noexcept;
  /// Removes the item from its parent, frees its children and its memory.
  static void operator delete(TXMLItem* item, std::destroying_delete_t);

  /// Frees the children and empties name, attributes and text. Reports nothing.
  void Clear();
  /// Makes and returns a last child of the same document. Reports a change of this item.
  TXMLItem* New();
  /// Frees the child at a 0-based index and reports a change of this item.
  ///
  /// Throws `RangeError` if `Index` is out of range. A child that is listed twice is freed with its last
  /// listing.
  void Delete(std::int32_t Index);
  /// Moves a child to another 0-based index. Reports nothing.
  ///
  /// Throws `RangeError` if `Item` is not a child or `ToPosition` is out of range.
  void Move(TXMLItem* Item, std::int32_t ToPosition);
  /// Returns the 0-based index of a child, or -1 if `Item` is not a child.
  [[nodiscard]] std::int32_t IndexOf(const TXMLItem* Item) const noexcept;
  /// Returns the index of the first child named `ItemName`, ignoring case, from `IndexFrom` on, or -1.
  ///
  /// Throws `RangeError` if `IndexFrom` is negative; beyond the last child the result is -1.
  [[nodiscard]] std::int32_t IndexOfName(std::u16string_view ItemName, std::int32_t IndexFrom) const;
  /// Returns the first child named `Name`, ignoring case.
  ///
  /// A lookup never fails: a missing child is made, which reports the changes of `New` and `SetName`.
  TXMLItem* GetNamedItem(std::u16string_view Name);

  /// Clears this item and loads it from XML, from the position of `Stream` on.
  ///
  /// Calls `BeforeLoad` and `OnLoaded` of the document and reports no change. Throws `Error` if the item has
  /// no document and `EParserError` if the XML cannot be read; items built before the error stay. Tags that
  /// close this item go on in its parent.
  void LoadFromStream(ByteStream& Stream);
  /// Does the same with a buffer of the stream's size, as `TXMLLargeTokenizer` reads it.
  void LoadFromLargeStream(ByteStream& Stream);
  /// Clears this item and builds it from tokens; reports each change as it happens.
  ///
  /// Throws `EParserError` as `LoadFromStream` does.
  void LoadFromTokenizer(ECXMLTokenizer::TXMLTokenizer& Tokenizer);

  /// Returns this item and everything below it as XML, its tags indented by `Level` blanks.
  ///
  /// Everything below takes over the flag `CrLfInAsString` of this item.
  [[nodiscard]] std::u16string XMLItemAsString(std::int32_t Level);
  /// Returns name and attributes as in the opening tag.
  [[nodiscard]] std::u16string XMLItemName() const;

  /// Returns `XMLItemAsString(0)`.
  [[nodiscard]] std::u16string AsString() { return XMLItemAsString(0); }
  /// Loads this item from XML as `LoadFromStream` does; `Value` passes through the 8-bit code page.
  void SetAsString(std::u16string_view Value);

  /// Calls `XMLItemChanged` of the document with this item, if there is a handler.
  void DoChanged();

  /// Returns the name.
  [[nodiscard]] std::u16string Name() const;
  /// Sets the name, without blanks and control characters at both ends. Reports a change.
  void SetName(std::u16string_view Value);
  /// Returns the text, unescaped, without that of children.
  [[nodiscard]] std::u16string Text() const;
  /// Sets the text. Reports a change.
  void SetText(std::u16string_view Value);
  /// Returns the attributes to edit, as lines of the form name=value. Edits of the list are not reported.
  [[nodiscard]] StringList& Params();
  /// Returns a copy of the attributes.
  [[nodiscard]] StringList Params() const;
  /// Copies the attributes from a list. Reports a change.
  void SetParams(const StringList& Value);
  /// Returns the child at a 0-based index. Throws `RangeError` if `Index` is out of range.
  [[nodiscard]] TXMLItem* SubItems(std::int32_t Index) const;
  /// Returns the number of children.
  [[nodiscard]] std::int32_t SubItemCount() const noexcept {
    return static_cast<std::int32_t>(store_.Children().Count());
  }
  /// Returns the owner of this item, or null.
  [[nodiscard]] TXMLItem* Parent() const noexcept;
  /// Appends the item to the children of `Value` and removes it from another parent; null only removes it.
  ///
  /// Throws `Error` if `Value` is this item or below it. The parent that the item has already lists it once
  /// more.
  void SetParent(TXMLItem* Value);
  /// Returns the pointer that `SetData` stored; null at first.
  [[nodiscard]] void* Data() const;
  /// Stores a pointer for the caller's own use; `Clear` keeps it.
  void SetData(void* Value);
  /// Returns the document of the item, or null.
  [[nodiscard]] TECXMLParser* Parser() const noexcept { return store_.Document(); }
  /// Sets the document of this item and of everything below it.
  void SetParser(TECXMLParser* Value);
  /// Returns whether the item is written with line breaks and indents; true at first.
  [[nodiscard]] bool CrLfInAsString() const noexcept { return !store_.OnOneLine(); }
  void SetCrLfInAsString(bool Value) noexcept { store_.SetOnOneLine(!Value); }

 private:
  friend struct xml::ItemObjects;

  TXMLItem(xml::ItemStore& owner, xml::ItemPool& pool) noexcept;
  [[nodiscard]] std::uint32_t CheckedIndex(std::int32_t index) const;

  // The only member: see xml::ItemObjects.
  xml::ItemStore store_;
};

}  // namespace ravo::ECXMLParser
