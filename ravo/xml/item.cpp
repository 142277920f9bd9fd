#include <ravo/platform/locale.h>
#include <ravo/runtime/checked.h>
#include <ravo/runtime/text.h>
#include <ravo/xml/document.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/item.h>
#include <ravo/xml/item_access.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace ravo::ECXMLParser {

using xml::ItemAccess;

TXMLItem::~TXMLItem() {
  if (FParent != nullptr) ItemAccess::RemoveAll(*FParent, this);
  ItemAccess::FreeChildren(*this);
  ItemAccess::ClearParts(*this);
  if (Has(kRare)) arena_->ForgetRare(this);
  if (!Has(kArenaBorn) && arena_ != nullptr) arena_->Release();
}

void* TXMLItem::operator new(std::size_t size) { return ::operator new(size); }

// Untested: compilers want it beside `operator new`; the constructor of an item cannot throw.
void TXMLItem::operator delete(void* memory) noexcept { ::operator delete(memory); }

void TXMLItem::operator delete(TXMLItem* item, std::destroying_delete_t) {
  xml::ItemArena* const arena = item->Has(kArenaBorn) ? item->arena_ : nullptr;
  item->~TXMLItem();
  if (arena != nullptr) {
    arena->FreeItem(item);
  } else {
    ::operator delete(item);
  }
}

void TXMLItem::Clear() {
  ItemAccess::FreeChildren(*this);
  ItemAccess::ClearParts(*this);
  if (!Has(kArenaBorn | kRare) && arena_ != nullptr) {
    arena_->Release();
    arena_ = nullptr;
  }
}

TXMLItem* TXMLItem::New() {
  std::unique_ptr<TXMLItem> child(ItemAccess::NewBelow(*this, ItemAccess::Arena(*this)));
  ItemAccess::Append(*this, child.get());
  TXMLItem* const listed = child.release();
  DoChanged();
  return listed;
}

TXMLItem* TXMLItem::SubItems(std::int32_t Index) const {
  if (Index < 0 || Index >= SubItemCount()) throw RangeError(u"List index out of bounds");
  return children_.At(static_cast<std::uint32_t>(Index));
}

void TXMLItem::Delete(std::int32_t Index) {
  TXMLItem* const child = SubItems(Index);
  children_.Remove(static_cast<std::uint32_t>(Index));
  // An item that is listed twice goes with its last listing.
  if (!child->Has(kListedTwice) || IndexOf(child) < 0) {
    child->FParent = nullptr;
    delete child;
  }
  DoChanged();
}

void TXMLItem::Move(TXMLItem* Item, std::int32_t ToPosition) {
  const std::int32_t from = IndexOf(Item);
  if (from < 0 || ToPosition < 0 || ToPosition >= SubItemCount())
    throw RangeError(u"List index out of bounds");
  children_.Move(static_cast<std::uint32_t>(from), static_cast<std::uint32_t>(ToPosition));
}

std::int32_t TXMLItem::IndexOf(const TXMLItem* Item) const noexcept {
  const auto all = children_.All();
  const auto found = std::ranges::find(all, Item);
  return found != all.end() ? static_cast<std::int32_t>(found - all.begin()) : -1;
}

std::int32_t TXMLItem::IndexOfName(std::u16string_view ItemName, std::int32_t IndexFrom) const {
  if (IndexFrom < 0) throw RangeError(u"List index out of bounds");
  const platform::LocaleCalls& locale = platform::Locale();
  for (std::int32_t i = IndexFrom; i < SubItemCount(); ++i) {
    if (locale.SameText(children_.At(static_cast<std::uint32_t>(i))->Name(), ItemName)) return i;
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

void TXMLItem::DoChanged() {
  if (FParser == nullptr || !FParser->XMLItemChanged()) return;
  // A copy: the handler may put another one in its place.
  const TXMLItemChanged handler = FParser->XMLItemChanged();
  handler(*FParser, *this);
}

std::u16string TXMLItem::Name() const {
  if (const auto* wide = ItemAccess::WideName(*this)) return *wide;
  return name_size_ == 0 ? std::u16string() : ItemAccess::Page(*this).Widened(ItemAccess::NameBytes(*this));
}

void TXMLItem::SetName(std::u16string_view Value) {
  ItemAccess::SetName(*this, Value);
  DoChanged();
}

std::u16string TXMLItem::Text() const {
  if (const auto* wide = ItemAccess::WideText(*this)) return *wide;
  if (text_size_ == 0) return {};
  return ItemAccess::Page(*this).Widened(xml::Unwritten(ItemAccess::TextBytes(*this)));
}

void TXMLItem::SetText(std::u16string_view Value) {
  ItemAccess::SetText(*this, Value);
  DoChanged();
}

StringList& TXMLItem::Params() {
  if (!Has(kParamList)) ItemAccess::SetParams(*this, ItemAccess::Params(*this));
  return *ItemAccess::MakeRare(*this).params;
}

StringList TXMLItem::Params() const { return ItemAccess::Params(*this); }

void TXMLItem::SetParams(const StringList& Value) {
  ItemAccess::SetParams(*this, Value);
  DoChanged();
}

// Kept: an item given its own parent again is listed twice; it is freed once. Test:
// SetParent.OfTheSameParentListsTheItemTwice
void TXMLItem::SetParent(TXMLItem* Value) {
  for (const TXMLItem* above = Value; above != nullptr; above = above->FParent) {
    if (above == this) throw Error(u"An item cannot stand below itself");
    if (children_.Count() == 0) break;
  }
  if (Value != nullptr) ItemAccess::AppendStranger(*Value, this);
  // From here on nothing can fail.
  ItemAccess::TellOutside(*this);
  if (FParent != nullptr && FParent != Value) ItemAccess::RemoveAll(*FParent, this);
  SetFlag(kListedTwice, FParent == Value && Value != nullptr);
  FParent = Value;
}

void* TXMLItem::Data() const {
  const xml::RareParts* rare = ItemAccess::Rare(*this);
  return rare != nullptr ? rare->data : nullptr;
}

void TXMLItem::SetData(void* Value) { ItemAccess::MakeRare(*this).data = Value; }

// In the order of the document, going up by the parents of the children on the way.
void TXMLItem::SetParser(TECXMLParser* Value) {
  struct Place {
    TXMLItem* item;
    std::uint32_t next;
  };
  FParser = Value;
  std::vector<Place> way = {{this, 0}};
  while (!way.empty()) {
    Place& place = way.back();
    if (place.next == place.item->children_.Count()) {
      way.pop_back();
      continue;
    }
    TXMLItem* const child = place.item->children_.At(place.next++);
    child->FParser = Value;
    if (child->children_.Count() != 0) way.push_back({child, 0});
  }
}

}  // namespace ravo::ECXMLParser
