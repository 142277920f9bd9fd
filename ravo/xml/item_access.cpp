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
  if (parent.children_.Count() >= INT32_MAX) throw RangeError(u"Too many items");
  parent.children_.Append(child);
  if (parent.Has(Item::kArenaBorn)) TellOutside(parent);
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
  RareParts kept;
  const bool rare = item.Has(Item::kRare);
  if (rare) kept = std::move(item.arena_->Rare(&item));
  if (item.arena_ != nullptr) {
    item.arena_->ForgetRare(&item);
    item.arena_->Release();
  }
  item.arena_ = &arena;
  arena.Hold();
  if (rare) arena.Rare(&item) = std::move(kept);
}

const char* ItemAccess::KeepBytes(Item& item, std::string_view bytes, ItemArena* arena, Item::Flag owned) {
  if (bytes.empty()) return nullptr;
  if (arena != nullptr && arena == item.arena_) return arena->Keep(bytes);
  static_cast<void>(Arena(item));
  auto* copy = new char[bytes.size()];
  std::memcpy(copy, bytes.data(), bytes.size());
  item.SetFlag(owned, true);
  if (item.Has(Item::kArenaBorn)) TellOutside(item);
  return copy;
}

void ItemAccess::FreeBody(Item& item) {
  if (item.Has(Item::kBodyOwned)) delete[] item.body_;
  item.SetFlag(Item::kBodyOwned, false);
  item.body_ = nullptr;
  item.body_size_ = item.name_size_ = 0;
}

void ItemAccess::FreeText(Item& item) {
  if (item.Has(Item::kTextOwned)) delete[] item.text_;
  if (item.Has(Item::kWideText)) MakeRare(item).text.clear();
  item.flags_ &= ~std::uint32_t{Item::kTextOwned | Item::kWideText | Item::kHasText};
  item.text_ = nullptr;
  item.text_size_ = 0;
}

// `bytes` may be part of what the item has now.
void ItemAccess::SetBody(Item& item, std::string_view bytes, std::size_t name_size, ItemArena* arena) {
  const auto size = CheckedCast<std::uint32_t>(bytes.size());
  const std::uint32_t owned_before = item.flags_ & Item::kBodyOwned;
  const char* const before = item.body_;
  const char* const kept = KeepBytes(item, bytes, arena, Item::kBodyOwned);
  if (owned_before != 0) delete[] before;
  if (kept == nullptr || (arena != nullptr && arena == item.arena_)) item.SetFlag(Item::kBodyOwned, false);
  item.body_ = kept;
  item.body_size_ = size;
  item.name_size_ = static_cast<std::uint32_t>(name_size);
}

void ItemAccess::SetTextWritten(Item& item, std::string_view written, bool has_text, ItemArena* arena) {
  FreeText(item);
  const auto size = CheckedCast<std::uint32_t>(written.size());
  item.text_ = KeepBytes(item, written, arena, Item::kTextOwned);
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
  const bool narrow = Arena(item).Page().Narrow(name, bytes);
  if (!narrow) {
    bytes.clear();
    MakeRare(item).name = name;
  }
  item.SetFlag(Item::kWideName, !narrow);
  SetBody(item, bytes + attributes, bytes.size(), nullptr);
}

void ItemAccess::SetText(Item& item, std::u16string_view text) {
  const bool has_text = !Trimmed(text).empty();
  std::string bytes;
  if (Arena(item).Page().Narrow(ECXMLParser::StrToXML(text), bytes)) {
    SetTextWritten(item, bytes, has_text, nullptr);
    return;
  }
  std::u16string copy(text);
  FreeText(item);
  MakeRare(item).text = std::move(copy);
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

void ItemAccess::ClearParts(Item& item) {
  FreeBody(item);
  FreeText(item);
  item.flags_ &= ~std::uint32_t{Item::kWideName | Item::kParamList};
  if (item.Has(Item::kRare)) {
    RareParts& rare = MakeRare(item);
    rare = RareParts{.data = rare.data, .name = {}, .text = {}, .params = nullptr};
  }
}

// Walks down to the last leaf and up again, so that depth costs no stack.
void ItemAccess::FreeChildren(Item& top) {
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
