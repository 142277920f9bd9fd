#include <ravo/runtime/text.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/tag_parts.h>
#include <ravo/xml/tree_builder.h>

#include <exception>
#include <span>

namespace ravo::xml {
namespace {

// Each text that joins makes the text before it be unescaped once more.
std::string JoinedText(const std::vector<std::string>& pieces) {
  std::string text;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i > 0) text += "\r\n";
    text += Unescaped(pieces[i], pieces.size() - 1 - i);
  }
  return text;
}

}  // namespace

TreeBuilder::TreeBuilder(ItemStore& top, bool reports_changes)
    : current_(&top), pool_(new ItemPool), reports_changes_(reports_changes) {
  top.UsePool(*pool_);
}

TreeBuilder::~TreeBuilder() {
  for (; IsPending(); current_ = current_->Owner()) StoreOrDrop();
}

void TreeBuilder::Finish() {
  for (; IsPending(); current_ = current_->Owner()) Store();
}

bool TreeBuilder::OpenTag(std::string_view tag) {
  if (current_ == nullptr) return false;
  if (current_->HasName()) {
    ItemStore& child = AddChild();
    starts_.push_back(children_.size());
    current_ = &child;
  }
  SetTag(*current_, tag);
  return true;
}

// Kept: a stand-alone tag is a child even if it comes first; only an open tag names the root. Test:
// LoadFromStream.AStandAloneTagIsAChildEvenFirst
bool TreeBuilder::StandAloneTag(std::string_view tag) {
  if (current_ == nullptr) return false;
  SetTag(AddChild(), tag);
  return true;
}

// Kept: any close tag closes the innermost element, whatever its name. Test: LoadFromStream.AnyCloseTagCloses
bool TreeBuilder::CloseTag() {
  if (current_ == nullptr) return false;
  Store();
  current_ = current_->Owner();
  return true;
}

ItemStore& TreeBuilder::AddChild() {
  UnlistedItem child = ItemObjects::New(*current_, *pool_);
  children_.push_back(child.get());
  ItemStore& added = *child.release();
  if (reports_changes_) {
    StoreChildren();
    Changed(*current_);
  }
  return added;
}

void TreeBuilder::SetTag(ItemStore& item, std::string_view tag) {
  if (reports_changes_) return SetTagReporting(item, tag);
  item.LoadTag(tag, *pool_);
}

void TreeBuilder::SetTagReporting(ItemStore& item, std::string_view tag) {
  const TagParts parts = ReadTag(tag);
  item.SetName(pool_->Page().Widened(parts.name));
  Changed(item);
  item.SetAttributes(ListOf(parts.lines, pool_->Page()));
  Changed(item);
}

bool TreeBuilder::SavedText(std::string_view text) {
  if (current_ == nullptr) return false;
  if (current_->HasText()) {
    JoinText(text);
  } else {
    current_->LoadSavedText(text, *pool_);
  }
  TextChanged();
  return true;
}

bool TreeBuilder::OtherText(std::string_view text) {
  if (current_ == nullptr) return false;
  if (current_->HasText()) {
    JoinText(text);
  } else {
    current_->LoadText(Unescaped(text), *pool_);
  }
  TextChanged();
  return true;
}

// Kept: text that is joined by more text is unescaped again. Test:
// LoadFromStream.JoinedTextIsUnescapedOnceMore
void TreeBuilder::JoinText(std::string_view text) {
  if (!current_->HasTextBytes(*pool_)) {
    const std::u16string joined = current_->Text() + u"\r\n" + pool_->Page().Widened(text);
    return current_->SetText(ECXMLParser::XMLToStr(joined));
  }
  if (joined_.empty() || joined_.back().item != current_) {
    joined_.push_back({current_, {Unsaved(current_->TextBytes())}});
  }
  joined_.back().pieces.push_back(Unescaped(text));
}

void TreeBuilder::TextChanged() {
  if (!reports_changes_) return;
  StoreText();
  Changed(*current_);
}

void TreeBuilder::Store() {
  StoreChildren();
  StoreText();
  if (!starts_.empty()) starts_.pop_back();
}

void TreeBuilder::StoreChildren() {
  const std::size_t start = starts_.empty() ? 0 : starts_.back();
  current_->AppendAll(std::span<ItemStore* const>(children_).subspan(start), *pool_);
  children_.resize(start);
}

void TreeBuilder::StoreText() {
  if (joined_.empty() || joined_.back().item != current_) return;
  current_->LoadText(JoinedText(joined_.back().pieces), *pool_);
  joined_.pop_back();
}

void TreeBuilder::StoreOrDrop() noexcept {
  try {
    Store();
  } catch (const std::exception&) {
    Drop();
  }
}

// Frees the children of the current item that are not stored.
void TreeBuilder::Drop() noexcept {
  const std::size_t start = starts_.empty() ? 0 : starts_.back();
  for (; children_.size() > start; children_.pop_back()) ItemObjects::Free(*children_.back());
  if (!joined_.empty() && joined_.back().item == current_) joined_.pop_back();
  if (!starts_.empty()) starts_.pop_back();
}

}  // namespace ravo::xml
