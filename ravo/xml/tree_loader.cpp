#include <ravo/xml/byte_scan.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/tree_loader.h>

#include <span>

namespace ravo::xml {

using namespace ECXMLTokenizer;

TreeLoader::TreeLoader(ECXMLParser::TXMLItem& top, TXMLTokenizer& tokenizer)
    : tokenizer_(tokenizer), parser_(top.Parser()), arena_(new ItemArena) {
  ItemAccess::Adopt(top, *arena_);
  open_.push_back({&top, 0, nullptr});
}

void TreeLoader::Run() {
  try {
    while (tokenizer_.Token() != xtEndOfInput) {
      TakeToken();
      tokenizer_.NextToken();
    }
    while (!open_.empty()) CloseFrame();
  } catch (...) {
    while (!open_.empty()) CloseFrameOrDrop();
    throw;
  }
}

void TreeLoader::TakeToken() {
  switch (tokenizer_.Token()) {
    case xtHeader:
      TakeHeader(parser_, CodePage::Current().Widened(tokenizer_.TokenString()));
      break;
    case xtText:
      TakeText();
      break;
    case xtOpenTag:
      TakeOpenTag();
      break;
    case xtCloseTag:
      TakeCloseTag();
      break;
    case xtStandAloneTag:
      TakeStandAloneTag();
      break;
    default:
      break;
  }
}

TreeLoader::Frame& TreeLoader::Current() {
  if (open_.empty()) RaiseOutside(tokenizer_);
  return open_.back();
}

ECXMLParser::TXMLItem* TreeLoader::NewChild(Frame& parent) {
  // In two steps, so that an item that was made is never lost.
  children_.push_back(nullptr);
  try {
    children_.back() = ItemAccess::NewBelow(*parent.item, *arena_);
  } catch (...) {
    children_.pop_back();
    throw;
  }
  return children_.back();
}

void TreeLoader::TakeOpenTag() {
  Frame& current = Current();
  Item* item = current.item;
  if (ItemAccess::HasName(*item)) {
    item = NewChild(current);
    open_.push_back({item, children_.size(), nullptr});
  }
  ItemAccess::SetTag(*item, tokenizer_.TokenBytes(), *arena_);
}

// Kept: a stand-alone tag is a child even if it comes first; only an open tag names the root. Test:
// LoadFromStream.AStandAloneTagIsAChildEvenFirst
void TreeLoader::TakeStandAloneTag() {
  ItemAccess::SetTag(*NewChild(Current()), tokenizer_.TokenBytes(), *arena_);
}

// Kept: any close tag closes the innermost element, whatever its name. Test: LoadFromStream.AnyCloseTagCloses
void TreeLoader::TakeCloseTag() {
  Item* const above = Current().item->Parent();
  CloseFrame();
  // An item inside a document was loaded, and the tokens leave it: what stands above goes on.
  if (open_.empty() && above != nullptr) open_.push_back({above, children_.size(), nullptr});
}

void TreeLoader::CloseFrame() {
  const Frame& frame = open_.back();
  ItemAccess::AppendAll(*frame.item, std::span<Item* const>(children_).subspan(frame.first_child));
  children_.resize(frame.first_child);
  if (frame.texts != nullptr) ItemAccess::SetTextBytes(*frame.item, Joined(*frame.texts), *arena_);
  open_.pop_back();
}

// Where memory ends even for that, what was not listed yet is freed.
void TreeLoader::CloseFrameOrDrop() noexcept {
  try {
    CloseFrame();
  } catch (const std::exception&) {
    for (; children_.size() > open_.back().first_child; children_.pop_back()) {
      ItemAccess::ForgetParent(*children_.back());
      delete children_.back();
    }
    open_.pop_back();
  }
}

// Each text that joins makes what is there already be unescaped once more.
std::string TreeLoader::Joined(const Pieces& pieces) {
  std::string text;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i > 0) text += "\r\n";
    text += Unescaped(pieces[i], pieces.size() - 1 - i);
  }
  return text;
}

std::string_view TreeLoader::TokenText(std::string& scratch) const {
  const std::string_view bytes = tokenizer_.TokenBytes();
  if (IsNormalised(bytes)) return TextOfToken(bytes);
  scratch = tokenizer_.TokenString();
  return TextOfToken(scratch);
}

void TreeLoader::TakeText() {
  Frame& frame = Current();
  const std::string_view bytes = tokenizer_.TokenBytes();
  // Most texts stand as they will be written.
  const bool is_plain =
      EndOfPlainText(bytes.data(), bytes.data() + bytes.size()) == bytes.data() + bytes.size();
  if (is_plain && !ItemAccess::HasText(*frame.item)) {
    return ItemAccess::SetTextPlain(*frame.item, bytes, *arena_);
  }
  std::string scratch;
  const std::string_view text = TokenText(scratch);
  if (ItemAccess::HasText(*frame.item)) return JoinText(frame, text);
  ItemAccess::SetTextBytes(*frame.item, Unescaped(text), *arena_);
}

// Kept: text that is joined by more text is unescaped again. Test:
// LoadFromStream.JoinedTextIsUnescapedOnceMore
void TreeLoader::JoinText(Frame& frame, std::string_view text) {
  if (const auto* wide = ItemAccess::WideText(*frame.item)) {
    const std::u16string joined = *wide + u"\r\n" + arena_->Page().Widened(text);
    return ItemAccess::SetText(*frame.item, ECXMLParser::XMLToStr(joined));
  }
  if (frame.texts == nullptr) {
    frame.texts = std::make_unique<Pieces>();
    frame.texts->push_back(Unwritten(ItemAccess::TextBytes(*frame.item)));
  }
  frame.texts->push_back(Unescaped(text));
}

}  // namespace ravo::xml
