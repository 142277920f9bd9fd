#include <ravo/platform/locale.h>
#include <ravo/runtime/error.h>
#include <ravo/xml/item.h>
#include <ravo/xml/item_pool.h>
#include <ravo/xml/item_writer.h>

#include <type_traits>

namespace ravo {

using ECXMLParser::TXMLItem;

namespace xml {

// The store is the first member of an item, so that one pointer reaches both.
static_assert(std::is_standard_layout_v<TXMLItem>);
static_assert(sizeof(TXMLItem) == sizeof(ItemStore) && alignof(TXMLItem) <= alignof(void*));

UnlistedItem ItemObjects::New(ItemStore& owner, ItemPool& pool) {
  auto* const item = ::new (pool.NewItem(sizeof(TXMLItem))) TXMLItem(owner, pool);
  return UnlistedItem(&item->store_);
}

void ItemObjects::Free(ItemStore& item) noexcept { delete ItemOf(&item); }

TXMLItem* ItemObjects::ItemOf(ItemStore* store) noexcept { return reinterpret_cast<TXMLItem*>(store); }

ItemStore& ItemObjects::StoreOf(TXMLItem& item) noexcept { return item.store_; }

}  // namespace xml

namespace ECXMLParser {

using xml::ItemObjects;
using xml::ItemStore;

TXMLItem::TXMLItem(ItemStore& owner, xml::ItemPool& pool) noexcept : store_(owner, pool) {}

TXMLItem::~TXMLItem() = default;

void* TXMLItem::operator new(std::size_t size) { return ::operator new(size); }

// Untested: compilers want it beside `operator new`; the constructor of an item cannot throw.
void TXMLItem::operator delete(void* memory) noexcept { ::operator delete(memory); }

void TXMLItem::operator delete(TXMLItem* item, std::destroying_delete_t) {
  xml::ItemPool* const pool = item->store_.OwnMemory();
  item->~TXMLItem();
  if (pool != nullptr) {
    pool->FreeItem(item);
  } else {
    ::operator delete(item);
  }
}

void TXMLItem::Clear() { store_.Clear(); }

TXMLItem* TXMLItem::New() {
  TXMLItem* const child = ItemObjects::ItemOf(&store_.NewChild());
  DoChanged();
  return child;
}

std::uint32_t TXMLItem::CheckedIndex(std::int32_t index) const {
  if (index < 0 || index >= SubItemCount()) throw RangeError(u"List index out of bounds");
  return static_cast<std::uint32_t>(index);
}

TXMLItem* TXMLItem::SubItems(std::int32_t Index) const {
  return ItemObjects::ItemOf(store_.Children().At(CheckedIndex(Index)));
}

void TXMLItem::Delete(std::int32_t Index) {
  store_.Delete(CheckedIndex(Index));
  DoChanged();
}

void TXMLItem::Move(TXMLItem* Item, std::int32_t ToPosition) {
  const std::uint32_t from = CheckedIndex(IndexOf(Item));
  store_.Move(from, CheckedIndex(ToPosition));
}

std::int32_t TXMLItem::IndexOf(const TXMLItem* Item) const noexcept {
  return Item != nullptr ? store_.IndexOf(&Item->store_) : -1;
}

std::int32_t TXMLItem::IndexOfName(std::u16string_view ItemName, std::int32_t IndexFrom) const {
  if (IndexFrom < 0) throw RangeError(u"List index out of bounds");
  const platform::LocaleCalls& locale = platform::Locale();
  for (std::int32_t i = IndexFrom; i < SubItemCount(); ++i) {
    if (locale.SameText(SubItems(i)->Name(), ItemName)) return i;
  }
  return -1;
}

// Kept: a look-up of a missing name adds an item with that name. Test: GetNamedItem.AddsWhatIsMissing
TXMLItem* TXMLItem::GetNamedItem(std::u16string_view Name) {
  const std::int32_t index = IndexOfName(Name, 0);
  if (index >= 0) return SubItems(index);
  TXMLItem* const child = New();
  child->SetName(Name);
  return child;
}

std::u16string TXMLItem::XMLItemAsString(std::int32_t Level) {
  return xml::TextOfItem(store_, {.level = Level});
}

std::u16string TXMLItem::XMLItemName() const { return xml::TextOfTag(store_); }

std::u16string TXMLItem::Name() const { return store_.Name(); }

void TXMLItem::SetName(std::u16string_view Value) {
  store_.SetName(Value);
  DoChanged();
}

std::u16string TXMLItem::Text() const { return store_.Text(); }

void TXMLItem::SetText(std::u16string_view Value) {
  store_.SetText(Value);
  DoChanged();
}

StringList& TXMLItem::Params() { return store_.EditAttributes(); }

StringList TXMLItem::Params() const { return store_.Attributes(); }

void TXMLItem::SetParams(const StringList& Value) {
  store_.SetAttributes(Value);
  DoChanged();
}

TXMLItem* TXMLItem::Parent() const noexcept { return ItemObjects::ItemOf(store_.Owner()); }

void TXMLItem::SetParent(TXMLItem* Value) { store_.SetOwner(Value != nullptr ? &Value->store_ : nullptr); }

void* TXMLItem::Data() const { return store_.Data(); }

void TXMLItem::SetData(void* Value) { store_.SetData(Value); }

void TXMLItem::SetParser(TECXMLParser* Value) { store_.SetDocument(Value); }

}  // namespace ECXMLParser
}  // namespace ravo
