#include <ravo/runtime/checked.h>
#include <ravo/runtime/text.h>
#include <ravo/xml/byte_scan.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/item_access.h>

#include <cstring>

namespace ravo::xml {

ItemArena& ItemAccess::Arena(Item& item) {
  if (item.arena_ == nullptr) item.arena_ = new ItemArena;
  return *item.arena_;
}

ItemAccess::Item* ItemAccess::NewBelow(Item& parent, ItemArena& arena) {
  auto* child = ::new (arena.NewItem()) Item;
  child->arena_ = &arena;
  child->flags_ = Item::kArenaBorn;
  child->FParent = &parent;
  child->FParser = parent.FParser;
  return child;
}

// The document can no longer be freed without a look at each of its items.
void ItemAccess::TellOutside(Item& item) {
  if (item.arena_ != nullptr) item.arena_->CountOutside(1);
}

void ItemAccess::Append(Item& parent, Item* child) {
  // Untested: needs 2,147,483,647 children.
  if (parent.children_.Count() >= INT32_MAX) throw RangeError(u"Too many items");
  parent.children_.Append(child);
  if (parent.Has(Item::kArenaBorn)) TellOutside(parent);
}

// A parent without memory of its own yet must not be freed unseen either.
void ItemAccess::AppendStranger(Item& parent, Item* child) {
  ItemArena& arena = Arena(parent);
  Append(parent, child);
  arena.CountOutside(1);
}

void ItemAccess::AppendAll(Item& parent, std::span<Item* const> children) {
  if (children.empty()) return;
  parent.children_.AppendAll(children, Arena(parent));
  if (parent.Has(Item::kArenaBorn) && parent.children_.OwnsMemory()) TellOutside(parent);
}

void ItemAccess::RemoveAll(Item& parent, const Item* child) {
  for (std::uint32_t i = parent.children_.Count(); i-- > 0;) {
    if (parent.children_.At(i) != child) continue;
    parent.children_.Remove(i);
    if (!child->Has(Item::kListedTwice)) return;
  }
}

void ItemAccess::Adopt(Item& item, ItemArena& arena) {
  if (item.Has(Item::kArenaBorn)) {
    // Its children have a home of their own, which the document's memory does not know.
    TellOutside(item);
    return;
  }
  if (item.Has(Item::kRare)) arena.Rare(&item) = std::move(item.arena_->Rare(&item));
  if (item.arena_ != nullptr) {
    item.arena_->ForgetRare(&item);
    item.arena_->Release();
  }
  item.arena_ = &arena;
  arena.Hold();
}

ItemAccess::Kept ItemAccess::KeepBytes(Item& item, std::string_view bytes, ItemArena* arena) {
  if (bytes.empty()) return {nullptr, false};
  if (arena != nullptr && arena == item.arena_) return {arena->Keep(bytes), false};
  static_cast<void>(Arena(item));
  auto* copy = new char[bytes.size()];
  std::memcpy(copy, bytes.data(), bytes.size());
  if (item.Has(Item::kArenaBorn)) TellOutside(item);
  return {copy, true};
}

void ItemAccess::FreeBody(Item& item) noexcept {
  if (item.Has(Item::kBodyOwned)) delete[] item.body_;
  item.SetFlag(Item::kBodyOwned, false);
  item.body_ = nullptr;
  item.body_size_ = item.name_size_ = 0;
}

void ItemAccess::FreeText(Item& item) noexcept {
  if (item.Has(Item::kTextOwned)) delete[] item.text_;
  // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): a wide text is kept in the arena
  if (item.Has(Item::kWideText)) item.arena_->FoundRare(&item).text.clear();
  item.flags_ &= ~std::uint32_t{Item::kTextOwned | Item::kWideText | Item::kHasText};
  item.text_ = nullptr;
  item.text_size_ = 0;
}

// `bytes` may be part of what the item has now.
void ItemAccess::SetBody(Item& item, std::string_view bytes, std::size_t name_size, ItemArena* arena) {
  const auto size = CheckedCast<std::uint32_t>(bytes.size());
  const Kept kept = KeepBytes(item, bytes, arena);
  FreeBody(item);
  item.SetFlag(Item::kBodyOwned, kept.owned);
  item.body_ = kept.bytes;
  item.body_size_ = size;
  item.name_size_ = static_cast<std::uint32_t>(name_size);
}

void ItemAccess::SetTextWritten(Item& item, std::string_view written, bool has_text, ItemArena* arena) {
  const auto size = CheckedCast<std::uint32_t>(written.size());
  const Kept kept = KeepBytes(item, written, arena);
  FreeText(item);
  item.SetFlag(Item::kTextOwned, kept.owned);
  item.text_ = kept.bytes;
  item.text_size_ = size;
  item.SetFlag(Item::kHasText, has_text);
}

RareParts& ItemAccess::MakeRare(Item& item) {
  RareParts& rare = Arena(item).Rare(&item);
  item.SetFlag(Item::kRare, true);
  return rare;
}

void ItemAccess::SetTag(Item& item, std::string_view tag, ItemArena& arena) {
  TagBody plain;
  if (TakePlainBody(tag, plain) && arena.Page().IsFaithful(plain.bytes) && !item.Has(Item::kRare)) {
    SetBody(item, plain.bytes, plain.name_size, &arena);
    return;
  }
  std::string text(tag);
  Normalise(text);
  SetParts(item, ReadTag(text), arena);
}

void ItemAccess::SetParts(Item& item, const TagParts& parts, ItemArena& arena) {
  if (item.Has(Item::kParamList)) MakeRare(item).params.reset();
  item.flags_ &= ~std::uint32_t{Item::kParamList | Item::kWideName};
  std::string body = parts.name;
  if (AppendLines(body, parts.lines) && arena.Page().IsFaithful(body)) {
    SetBody(item, body, parts.name.size(), &arena);
    return;
  }
  SetBody(item, {}, 0, &arena);
  SetName(item, arena.Page().Widened(parts.name));
  StringList list;
  for (const std::string& line : parts.lines) list.Add(arena.Page().Widened(line));
  SetParams(item, std::move(list));
}

void ItemAccess::SetTextBytes(Item& item, std::string_view text, ItemArena& arena) {
  if (!arena.Page().IsFaithful(text)) return SetText(item, arena.Page().Widened(text));
  const bool has_text = !TrimmedBytes(text).empty();
  if (NeedsEscape(text)) {
    SetTextWritten(item, Escaped(text), has_text, &arena);
  } else {
    SetTextWritten(item, text, has_text, &arena);
  }
}

void ItemAccess::SetTextPlain(Item& item, std::string_view written, ItemArena& arena) {
  if (!arena.Page().IsFaithful(written)) return SetTextBytes(item, Unescaped(written), arena);
  SetTextWritten(item, written, true, &arena);
}

void ItemAccess::SetName(Item& item, std::u16string_view name) {
  name = Trimmed(name);
  const std::string attributes(BodyBytes(item).substr(item.name_size_));
  std::string bytes;
  if (Arena(item).Page().Narrow(name, bytes)) {
    SetBody(item, bytes + attributes, bytes.size(), nullptr);
    item.SetFlag(Item::kWideName, false);
    return;
  }
  std::u16string wide(name);
  RareParts& rare = MakeRare(item);
  SetBody(item, attributes, 0, nullptr);
  rare.name = std::move(wide);
  item.SetFlag(Item::kWideName, true);
}

void ItemAccess::SetText(Item& item, std::u16string_view text) {
  const bool has_text = !Trimmed(text).empty();
  std::string bytes;
  if (Arena(item).Page().Narrow(ECXMLParser::StrToXML(text), bytes)) {
    SetTextWritten(item, bytes, has_text, nullptr);
    return;
  }
  std::u16string wide(text);
  RareParts& rare = MakeRare(item);
  FreeText(item);
  rare.text = std::move(wide);
  item.flags_ |= Item::kWideText | (has_text ? Item::kHasText : 0U);
}

void ItemAccess::SetParams(Item& item, StringList params) {
  MakeRare(item).params = std::make_unique<StringList>(std::move(params));
  item.SetFlag(Item::kParamList, true);
  item.body_size_ = item.name_size_;
}

StringList ItemAccess::Params(const Item& item) {
  if (const StringList* list = ParamList(item)) return *list;
  StringList params;
  std::string_view rest = BodyBytes(item).substr(item.name_size_);
  while (!rest.empty()) {
    const WrittenAttribute attribute = TakeAttribute(rest);
    std::string line(attribute.name);
    line.append("=").append(Unwritten(attribute.value));
    params.Add(Page(item).Widened(line));
  }
  return params;
}

void ItemAccess::ClearParts(Item& item) noexcept {
  FreeBody(item);
  FreeText(item);
  item.flags_ &= ~std::uint32_t{Item::kWideName | Item::kParamList};
  if (!item.Has(Item::kRare)) return;
  // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): rare parts are kept in the arena
  RareParts& rare = item.arena_->FoundRare(&item);
  if (rare.data != nullptr) {
    rare = RareParts{.data = rare.data, .name = {}, .text = {}, .params = nullptr};
    return;
  }
  item.arena_->ForgetRare(&item);
  item.SetFlag(Item::kRare, false);
}

// Walks down to the last leaf and up again, so that depth costs no stack.
void ItemAccess::FreeChildren(Item& top) noexcept {
  if (!top.Has(Item::kArenaBorn) && top.arena_ != nullptr && top.arena_->IsClosed()) {
    ClearParts(top);
    top.children_.Free();
    top.arena_->DropItems();
    top.arena_->Release();
    top.arena_ = nullptr;
    return;
  }
  Item* at = &top;
  while (at != &top || at->children_.Count() != 0) {
    // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): the way up ends at `top`
    if (at->children_.Count() != 0) {
      Item* const child = at->children_.TakeLast();
      if (child->Has(Item::kListedTwice) && at->IndexOf(child) >= 0) continue;
      child->FParent = at;
      at = child;
      continue;
    }
    Item* const parent = at->FParent;
    at->FParent = nullptr;
    delete at;
    at = parent;
  }
  top.children_.Free();
}

}  // namespace ravo::xml
