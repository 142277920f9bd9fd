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

/// A small, forgiving model of XML documents: close tags are not matched by name, comments are dropped,
/// attribute values end at blanks outside double quotes.
namespace ravo::ECXMLParser {

class TECXMLParser;

/// An element: name, attributes, text and children. An item owns its children and frees them when it is
/// cleared or freed; `delete` frees any item, wherever it came from, and takes it out of its parent.
///
/// Texts are kept in the 8-bit code page as they stood in the document and widened when they are asked for.
class RAVO_API TXMLItem {
 public:
  /// An empty item without parent and document.
  TXMLItem() noexcept = default;
  TXMLItem(const TXMLItem&) = delete;
  TXMLItem& operator=(const TXMLItem&) = delete;
  ~TXMLItem();
  /// Memory of an item that is made alone. `std::bad_alloc` without memory.
  static void* operator new(std::size_t size);
  /// For an item whose constructor raised.
  static void operator delete(void* memory) noexcept;
  /// Takes the item out of its parent and gives its memory back.
  static void operator delete(TXMLItem* item, std::destroying_delete_t);

  /// Frees the children and empties name, attributes and text. Reports nothing.
  void Clear();
  /// A new last child of the same document. Reports a change of this item.
  TXMLItem* New();
  /// Frees a child; `RangeError` for an index that there is not. Reports a change of this item.
  void Delete(std::int32_t Index);
  /// Moves a child to another index; `RangeError` for one that is no child or an index that there is not.
  void Move(TXMLItem* Item, std::int32_t ToPosition);
  /// The index of a child, -1 where it is none.
  [[nodiscard]] std::int32_t IndexOf(const TXMLItem* Item) const noexcept;
  /// The first child of that name in either case from an index on, -1 where there is none. `RangeError` for a
  /// negative index.
  [[nodiscard]] std::int32_t IndexOfName(std::u16string_view ItemName, std::int32_t IndexFrom) const;
  /// The first child of that name; a new one where there is none: a look-up never fails.
  TXMLItem* GetNamedItem(std::u16string_view Name);

  /// Loads this item from XML. The item must belong to a document, whose events are called.
  void LoadFromStream(ByteStream& Stream);
  /// The same with a buffer of the stream's size.
  void LoadFromLargeStream(ByteStream& Stream);
  /// Builds this item and what is below it from tokens. Reports each change as it happens.
  void LoadFromTokenizer(ECXMLTokenizer::TXMLTokenizer& Tokenizer);

  /// This item and what is below it as XML, behind `Level` blanks. The flag `CrLfInAsString` of this item
  /// becomes that of everything below it.
  [[nodiscard]] std::u16string XMLItemAsString(std::int32_t Level);
  /// Name and attributes as they stand in the opening tag.
  [[nodiscard]] std::u16string XMLItemName() const;

  /// This item and what is below it as XML.
  [[nodiscard]] std::u16string AsString() { return XMLItemAsString(0); }
  /// Loads this item from XML, as `LoadFromStream` does.
  void SetAsString(std::u16string_view Value);

  /// Calls the document's `XMLItemChanged` with this item.
  void DoChanged();

  /// The name, as it stands in the document.
  [[nodiscard]] std::u16string Name() const;
  /// Without blanks and control characters at both ends. Reports a change.
  void SetName(std::u16string_view Value);
  /// What stands between the tags, without what belongs to children.
  [[nodiscard]] std::u16string Text() const;
  /// Reports a change.
  void SetText(std::u16string_view Value);
  /// The attributes as lines of the form name=value. What is done to the list itself is not reported.
  [[nodiscard]] StringList& Params();
  /// A copy of the attributes.
  [[nodiscard]] StringList Params() const;
  /// Copies a list. Reports a change.
  void SetParams(const StringList& Value);
  /// The child at an index; `RangeError` for an index that there is not.
  [[nodiscard]] TXMLItem* SubItems(std::int32_t Index) const;
  /// How many children there are.
  [[nodiscard]] std::int32_t SubItemCount() const noexcept {
    return static_cast<std::int32_t>(store_.Children().Count());
  }
  /// The item that this one is a child of; null for none.
  [[nodiscard]] TXMLItem* Parent() const noexcept;
  /// Takes the item out of its parent's children if another one is given, and appends it to those of the new
  /// one, even where it is there already. Raises `Error` for an item below this one.
  void SetParent(TXMLItem* Value);
  /// What `SetData` stored; null at first.
  [[nodiscard]] void* Data() const;
  /// Free for the caller.
  void SetData(void* Value);
  /// The document that it belongs to; null for none.
  [[nodiscard]] TECXMLParser* Parser() const noexcept { return store_.Document(); }
  /// For this item and everything below it.
  void SetParser(TECXMLParser* Value);
  /// Whether the item is written with line breaks and indents.
  [[nodiscard]] bool CrLfInAsString() const noexcept { return !store_.OnOneLine(); }
  void SetCrLfInAsString(bool Value) noexcept { store_.SetOnOneLine(!Value); }

 private:
  friend struct xml::ItemObjects;

  TXMLItem(xml::ItemStore& owner, xml::ItemPool& pool) noexcept;
  [[nodiscard]] std::uint32_t CheckedIndex(std::int32_t index) const;

  // The only member.
  xml::ItemStore store_;
};

}  // namespace ravo::ECXMLParser
