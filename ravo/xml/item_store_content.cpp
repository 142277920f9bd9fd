#include <ravo/runtime/text.h>
#include <ravo/xml/byte_scan.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/item_pool.h>
#include <ravo/xml/item_store.h>
#include <ravo/xml/tag_parts.h>

#include <utility>

// Name, attributes and text of an item.
namespace ravo::xml {

bool ItemStore::HasTextBytes(const ItemPool& pool) const noexcept {
  return WideText() == nullptr && (TextBytes().empty() || &Page() == &pool.Page());
}

// Bytes of the source go into the arena they belong to; all other bytes are the item's own, since they may
// change any number of times.
void ItemStore::KeepBytes(KeptBytes& kept, std::string_view bytes, ItemPool* source) {
  kept.Assign(bytes, source != nullptr && source == PoolOrNull() ? &source->Memory() : nullptr);
  if (in_pool_ && kept.OwnsMemory()) MarkExternal();
}

void ItemStore::KeepTag(std::string_view bytes, std::size_t name_size, ItemPool* source) {
  KeepBytes(tag_, bytes, source);
  name_size_ = static_cast<std::uint32_t>(name_size);
  if (HasOwnExtras()) extras_->name.clear();
}

void ItemStore::KeepText(std::string_view saved, bool has_text, ItemPool* source) {
  KeepBytes(text_, saved, source);
  has_text_ = has_text;
  if (HasOwnExtras()) extras_->text.clear();
}

// Whether the item can keep `bytes` of `pool` as they are: they are read and written back unchanged.
bool ItemStore::Holds(std::string_view bytes, const ItemPool& pool) {
  return &Pool().Page() == &pool.Page() && pool.Page().IsRoundTrip(bytes);
}

std::u16string ItemStore::Name() const {
  if (const auto* wide = WideName()) return *wide;
  return name_size_ == 0 ? std::u16string() : Page().Widened(NameBytes());
}

void ItemStore::SetName(std::u16string_view name) {
  name = Trimmed(name);
  const std::string attributes(TagBytes().substr(name_size_));
  std::string bytes;
  if (Pool().Page().Narrow(name, bytes)) return KeepTag(bytes + attributes, bytes.size(), nullptr);
  std::u16string wide(name);
  ItemExtras& extras = MakeExtras();
  KeepTag(attributes, 0, nullptr);
  extras.name = std::move(wide);
}

std::u16string ItemStore::Text() const {
  if (const auto* wide = WideText()) return *wide;
  return TextBytes().empty() ? std::u16string() : Page().Widened(Unsaved(TextBytes()));
}

void ItemStore::SetText(std::u16string_view text) {
  const bool has_text = !Trimmed(text).empty();
  std::string bytes;
  if (Pool().Page().Narrow(ECXMLParser::StrToXML(text), bytes)) return KeepText(bytes, has_text, nullptr);
  std::u16string wide(text);
  ItemExtras& extras = MakeExtras();
  KeepText({}, has_text, nullptr);
  extras.text = std::move(wide);
}

StringList ItemStore::Attributes() const {
  if (const StringList* list = AttributeList()) return *list;
  StringList list;
  std::string_view rest = TagBytes().substr(name_size_);
  while (!rest.empty()) {
    const WrittenAttribute attribute = TakeAttribute(rest);
    list.Add(Page().Widened(std::string(attribute.name).append("=").append(Unsaved(attribute.value))));
  }
  return list;
}

StringList& ItemStore::EditAttributes() {
  if (AttributeList() == nullptr) SetAttributes(Attributes());
  return *extras_->attributes;
}

void ItemStore::SetAttributes(StringList attributes) {
  MakeExtras().attributes = std::make_unique<StringList>(std::move(attributes));
  tag_.Truncate(name_size_);
}

void ItemStore::LoadTag(std::string_view tag, ItemPool& pool) {
  TagBody body;
  if (!HasOwnExtras() && TakePlainBody(tag, body) && Holds(body.bytes, pool)) {
    return KeepTag(body.bytes, body.name_size, &pool);
  }
  const TagParts parts = ReadTag(tag);
  std::string bytes = parts.name;
  if (AppendLines(bytes, parts.lines) && Holds(bytes, pool)) {
    if (HasOwnExtras()) extras_->attributes.reset();
    return KeepTag(bytes, parts.name.size(), &pool);
  }
  KeepTag({}, 0, &pool);
  SetName(pool.Page().Widened(parts.name));
  SetAttributes(ListOf(parts.lines, pool.Page()));
}

void ItemStore::LoadText(std::string_view text, ItemPool& pool) {
  if (!Holds(text, pool)) return SetText(pool.Page().Widened(text));
  const bool has_text = !TrimmedBytes(text).empty();
  if (NeedsEscape(text)) return KeepText(Escaped(text), has_text, &pool);
  KeepText(text, has_text, &pool);
}

void ItemStore::LoadSavedText(std::string_view saved, ItemPool& pool) {
  if (!Holds(saved, pool)) return LoadText(Unescaped(saved), pool);
  KeepText(saved, true, &pool);
}

void ItemStore::ClearContent() noexcept {
  tag_.Clear();
  text_.Clear();
  name_size_ = 0;
  has_text_ = false;
  if (!HasOwnExtras()) return;
  extras_->name.clear();
  extras_->text.clear();
  extras_->attributes.reset();
}

}  // namespace ravo::xml
