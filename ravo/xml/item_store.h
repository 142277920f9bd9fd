#pragma once

#include <ravo/runtime/string_list.h>
#include <ravo/xml/child_list.h>
#include <ravo/xml/item_extras.h>
#include <ravo/xml/kept_bytes.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace ravo::ECXMLParser {
class TECXMLParser;
class TXMLItem;
}  // namespace ravo::ECXMLParser

namespace ravo::xml {

class CodePage;
class ItemPool;

/// The content of an item and its place in the tree: owner and children, name, attributes and text.
///
/// Name and attributes are kept as the bytes between "<" and ">" of a saved opening tag, text as the escaped
/// bytes of the saved document, both in the code page of the item's pool. Loading copies them from the source
/// where they read alike, saving copies them back; reading widens them. Text that the code page lacks and
/// edited attributes are in the item's extras. Nothing here reports a change.
class ItemStore {
 public:
  ItemStore() noexcept = default;
  /// A child of `owner`, in memory of `pool`, that `owner` does not list yet.
  ItemStore(ItemStore& owner, ItemPool& pool) noexcept;
  ItemStore(const ItemStore&) = delete;
  ItemStore& operator=(const ItemStore&) = delete;
  /// Removes the item from its owner and frees its children.
  ~ItemStore();

  [[nodiscard]] ItemStore* Owner() const noexcept { return owner_; }
  [[nodiscard]] const ChildList& Children() const noexcept { return children_; }
  /// The index of a child, or -1.
  [[nodiscard]] std::int32_t IndexOf(const ItemStore* child) const noexcept;
  /// Makes a last child.
  ItemStore& NewChild();
  /// Appends children of `pool` that were made for this item.
  void AppendAll(std::span<ItemStore* const> children, ItemPool& pool);
  /// Frees the child at an index that must be in range; a child listed twice is freed with its last listing.
  void Delete(std::uint32_t index);
  void Move(std::uint32_t from, std::uint32_t to) noexcept { children_.Move(from, to); }
  /// Appends the item to `owner`, which may be null, and removes it from another owner.
  ///
  /// Throws `Error` if `owner` is the item itself or below it. The same owner lists the item once more.
  void SetOwner(ItemStore* owner);
  /// Frees the children and empties name, attributes and text; keeps the caller's data.
  void Clear() noexcept;

  [[nodiscard]] ECXMLParser::TECXMLParser* Document() const noexcept { return document_; }
  /// For this item and everything below it.
  void SetDocument(ECXMLParser::TECXMLParser* document);

  /// The pool that the item's children and bytes come from; made if there is no pool yet.
  [[nodiscard]] ItemPool& Pool() {
    if (PoolOrNull() == nullptr) MakePool();
    return *extras_->pool;
  }
  /// The pool whose memory holds the item itself, or null.
  [[nodiscard]] ItemPool* OwnMemory() const noexcept { return in_pool_ ? PoolOrNull() : nullptr; }
  /// Makes an item without bytes of its source use `pool`, unless it has children or is in memory of a pool.
  void UsePool(ItemPool& pool) noexcept;

  [[nodiscard]] std::u16string Name() const;
  void SetName(std::u16string_view name);
  [[nodiscard]] std::u16string Text() const;
  void SetText(std::u16string_view text);
  [[nodiscard]] StringList Attributes() const;
  /// The attributes as a list to edit; from now on they are kept as this list.
  [[nodiscard]] StringList& EditAttributes();
  void SetAttributes(StringList attributes);
  [[nodiscard]] void* Data() const noexcept;
  void SetData(void* data);
  /// Whether the item is written without line breaks.
  [[nodiscard]] bool OnOneLine() const noexcept { return on_one_line_; }
  void SetOnOneLine(bool on) noexcept { on_one_line_ = on; }

  [[nodiscard]] bool HasName() const noexcept { return name_size_ != 0 || WideName() != nullptr; }
  /// Whether the text is more than blanks and control characters.
  [[nodiscard]] bool HasText() const noexcept { return has_text_; }

  /// Sets name and attributes from the bytes of a tag, "<" and ">" included, in the code page of `pool`.
  /// `kReadAhead` bytes after the tag must be readable.
  void LoadTag(std::string_view tag, ItemPool& pool);
  /// Sets the text from unescaped bytes in the code page of `pool`.
  void LoadText(std::string_view text, ItemPool& pool);
  /// Sets the text from bytes that are escaped as in a saved document and more than blanks.
  void LoadSavedText(std::string_view saved, ItemPool& pool);

  /// The code page of the bytes below; only for items that have some.
  [[nodiscard]] const CodePage& Page() const noexcept { return *extras_->page; }
  /// Whether the text is bytes in the code page of `pool`.
  [[nodiscard]] bool HasTextBytes(const ItemPool& pool) const noexcept;
  [[nodiscard]] std::string_view NameBytes() const noexcept { return tag_.View().substr(0, name_size_); }
  /// The name, then for each attribute a blank and `name="value"`.
  [[nodiscard]] std::string_view TagBytes() const noexcept { return tag_.View(); }
  [[nodiscard]] std::string_view TextBytes() const noexcept { return text_.View(); }
  /// Content that is not bytes, or null.
  [[nodiscard]] const std::u16string* WideName() const noexcept {
    return extras_ != nullptr && !extras_->name.empty() ? &extras_->name : nullptr;
  }
  [[nodiscard]] const std::u16string* WideText() const noexcept {
    return extras_ != nullptr && !extras_->text.empty() ? &extras_->text : nullptr;
  }
  [[nodiscard]] const StringList* AttributeList() const noexcept {
    return extras_ != nullptr ? extras_->attributes.get() : nullptr;
  }

 private:
  [[nodiscard]] ItemPool* PoolOrNull() const noexcept { return extras_ != nullptr ? extras_->pool : nullptr; }
  void MakePool();
  void SetPool(ItemPool* pool) noexcept;
  void LeavePool() noexcept;
  void MarkExternal() noexcept;
  void Remove(const ItemStore& child) noexcept;
  void FreeChildren() noexcept;
  void FreeChildrenOneByOne() noexcept;

  [[nodiscard]] bool HasOwnExtras() const noexcept { return extras_ != nullptr && !extras_->is_common; }
  ItemExtras& MakeExtras();
  void DropExtras() noexcept;
  void ClearContent() noexcept;

  [[nodiscard]] bool Holds(std::string_view bytes, const ItemPool& pool);
  void KeepTag(std::string_view bytes, std::size_t name_size, ItemPool* source);
  void KeepText(std::string_view saved, bool has_text, ItemPool* source);
  void KeepBytes(KeptBytes& kept, std::string_view bytes, ItemPool* source);

  ItemStore* owner_ = nullptr;
  ECXMLParser::TECXMLParser* document_ = nullptr;
  // The item's own, or those that its pool has for all; null before the item has a pool.
  ItemExtras* extras_ = nullptr;
  ChildList children_;
  // Each of the members after bytes uses the room that those leave.
  [[no_unique_address]] KeptBytes tag_;
  std::uint32_t name_size_ = 0;
  [[no_unique_address]] KeptBytes text_;
  bool in_pool_ = false;
  bool has_text_ = false;
  bool on_one_line_ = false;
  bool listed_twice_ = false;
};

/// Frees an item, wherever its memory is.
struct FreeItem {
  void operator()(ItemStore* item) const noexcept;
};
/// An item that its owner does not list yet.
using UnlistedItem = std::unique_ptr<ItemStore, FreeItem>;

/// The objects that callers know as items: an item is an object around one store. Defined with the item, the
/// only place that knows both.
struct ItemObjects {
  using Item = ECXMLParser::TXMLItem;
  /// Makes an item in memory of `pool`, for `owner`.
  [[nodiscard]] static UnlistedItem New(ItemStore& owner, ItemPool& pool);
  /// Frees an item, wherever its memory is.
  static void Free(ItemStore& item) noexcept;
  /// Null for null.
  [[nodiscard]] static Item* ItemOf(ItemStore* store) noexcept;
  [[nodiscard]] static ItemStore& StoreOf(Item& item) noexcept;
};

}  // namespace ravo::xml
