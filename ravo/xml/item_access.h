#pragma once

#include <ravo/xml/item.h>
#include <ravo/xml/item_arena.h>
#include <ravo/xml/tag_parts.h>

#include <span>
#include <string>
#include <string_view>

namespace ravo::xml {

/// The insides of items for the loader and the writer. Nothing here reports a change.
class ItemAccess {
 public:
  using Item = ECXMLParser::TXMLItem;

  [[nodiscard]] static ItemArena& Arena(Item& item);
  [[nodiscard]] static const CodePage& Page(const Item& item) { return item.arena_->Page(); }
  /// A child-to-be, not yet listed.
  [[nodiscard]] static Item* NewBelow(Item& parent, ItemArena& arena);
  static void Append(Item& parent, Item* child);
  /// The same for an item that was not born below this one.
  static void AppendStranger(Item& parent, Item* child);
  static void AppendAll(Item& parent, std::span<Item* const> children);
  static void RemoveAll(Item& parent, const Item* child);
  static void ForgetParent(Item& item) noexcept { item.FParent = nullptr; }

  /// From now on the item's children are born in that arena, if it stands alone. It must have none.
  static void Adopt(Item& item, ItemArena& arena);

  static void SetTag(Item& item, std::string_view tag, ItemArena& arena);
  /// `text` is text of the code page, not escaped.
  static void SetTextBytes(Item& item, std::string_view text, ItemArena& arena);
  /// `written` stands escaped already and is more than blanks.
  static void SetTextPlain(Item& item, std::string_view written, ItemArena& arena);
  static void SetName(Item& item, std::u16string_view name);
  static void SetText(Item& item, std::u16string_view text);
  static void SetParams(Item& item, StringList params);
  [[nodiscard]] static StringList Params(const Item& item);

  [[nodiscard]] static bool HasName(const Item& item) noexcept {
    return item.name_size_ != 0 || item.Has(Item::kWideName);
  }
  [[nodiscard]] static bool HasText(const Item& item) noexcept { return item.Has(Item::kHasText); }
  [[nodiscard]] static std::string_view NameBytes(const Item& item) noexcept {
    return {item.body_, item.name_size_};
  }
  [[nodiscard]] static std::string_view BodyBytes(const Item& item) noexcept {
    return {item.body_, item.body_size_};
  }
  [[nodiscard]] static std::string_view TextBytes(const Item& item) noexcept {
    return {item.text_, item.text_size_};
  }
  /// The parts that are not bytes; null where there are none.
  [[nodiscard]] static const RareParts* Rare(const Item& item) {
    return item.Has(Item::kRare) ? &item.arena_->FoundRare(&item) : nullptr;
  }
  [[nodiscard]] static const std::u16string* WideName(const Item& item) {
    return item.Has(Item::kWideName) ? &Rare(item)->name : nullptr;
  }
  [[nodiscard]] static const std::u16string* WideText(const Item& item) {
    return item.Has(Item::kWideText) ? &Rare(item)->text : nullptr;
  }
  [[nodiscard]] static const StringList* ParamList(const Item& item) {
    return item.Has(Item::kParamList) ? Rare(item)->params.get() : nullptr;
  }
  [[nodiscard]] static const ChildList& Children(const Item& item) noexcept { return item.children_; }

  static RareParts& MakeRare(Item& item);
  static void TellOutside(Item& item);
  static void FreeChildren(Item& item) noexcept;
  static void ClearParts(Item& item) noexcept;

 private:
  static void SetBody(Item& item, std::string_view bytes, std::size_t name_size, ItemArena* arena);
  static void SetTextWritten(Item& item, std::string_view written, bool has_text, ItemArena* arena);
  static void SetParts(Item& item, const TagParts& parts, ItemArena& arena);
  static void FreeBody(Item& item) noexcept;
  static void FreeText(Item& item) noexcept;

  // Bytes in the arena, or the item's own.
  struct Kept {
    const char* bytes;
    bool owned;
  };
  static Kept KeepBytes(Item& item, std::string_view bytes, ItemArena* arena);
};

}  // namespace ravo::xml
