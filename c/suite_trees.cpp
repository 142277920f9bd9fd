#include "handles.h"
#include "support.h"
#include <ravo/document/suite.h>
#include <ravo/runtime/text.h>
#include <ravo/unicode/code_pages.h>
#include <ravo/xml/document.h>
#include <ravo/xml/escape.h>

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

using ravo::c::Fail;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailUnknown;
using ravo::c::Guarded;
using ravo::c::ReadBytes;
using ravo::c::ReadText;
using ravo::c::Units;
using ravo::c::WriteBytes;
using ravo::c::WriteText;
using ravo::c::WriteTexts;
using ravo::ECXMLParser::TECXMLParser;
using ravo::ECXMLParser::TXMLItem;

struct ravo_suite_tree : ravo::c::Handle {
  TECXMLParser document;
  std::vector<TXMLItem*> items;  // by their numbers; null if deleted
  std::unordered_map<const TXMLItem*, std::size_t> numbers;
};

namespace {

static_assert(RAVO_SUITE_TOKEN_COMMENT == ravo::ECXMLTokenizer::xtComment);
static_assert(RAVO_SUITE_TOKEN_HEADER == ravo::ECXMLTokenizer::xtHeader);
static_assert(RAVO_SUITE_TOKEN_TEXT == ravo::ECXMLTokenizer::xtText);
static_assert(RAVO_SUITE_TOKEN_OPEN_TAG == ravo::ECXMLTokenizer::xtOpenTag);
static_assert(RAVO_SUITE_TOKEN_CLOSE_TAG == ravo::ECXMLTokenizer::xtCloseTag);
static_assert(RAVO_SUITE_TOKEN_STAND_ALONE_TAG == ravo::ECXMLTokenizer::xtStandAloneTag);

// An item of a caller's tree, or the status with which the function must return.
struct ItemIn {
  TXMLItem* item = nullptr;
  ravo_status status = RAVO_OK;
};

ItemIn ReadItem(const ravo_suite_tree* tree, ravo_suite_item number, ravo_error* error) {
  if (!IsOpen(tree)) return {nullptr, FailArgument(error, "the tree is null or closed")};
  TXMLItem* const item = number < tree->items.size() ? tree->items[number] : nullptr;
  if (item == nullptr) return {nullptr, FailUnknown(error, "the tree has no such item")};
  return {item};
}

std::size_t CountOf(const TXMLItem& item) { return static_cast<std::size_t>(item.SubItemCount()); }

TXMLItem* ChildOf(const TXMLItem& item, std::size_t index) {
  return item.SubItems(static_cast<std::int32_t>(index));
}

// The items from one on, each before those below it.
std::vector<TXMLItem*> AllFrom(TXMLItem* top) {
  std::vector<TXMLItem*> all;
  std::vector<TXMLItem*> waiting{top};
  while (!waiting.empty()) {
    TXMLItem* const item = waiting.back();
    waiting.pop_back();
    all.push_back(item);
    for (std::size_t i = CountOf(*item); i > 0; --i) waiting.push_back(ChildOf(*item, i - 1));
  }
  return all;
}

void GiveNumbers(ravo_suite_tree& tree) {
  tree.items = AllFrom(tree.document.Root());
  tree.numbers.reserve(tree.items.size());
  for (std::size_t i = 0; i < tree.items.size(); ++i) tree.numbers.emplace(tree.items[i], i);
}

// Thrown through the tokenizer by a caller that stops.
struct Stopped {
  std::int32_t answer;
};

// Calls `work`, which reads what may be no document.
template <class Work>
ravo_status GuardedReading(ravo_error* error, Work work) {
  return Guarded(error, [&]() -> ravo_status {
    try {
      work();
    } catch (const Stopped& stop) {
      return ravo::c::FailStopped(error, stop.answer, 0);
    } catch (const ravo::Error& fault) {
      return Fail(error, {RAVO_WRONG, 0, 0, fault.what()});
    }
    return RAVO_OK;
  });
}

// Calls `work` with the item of a number; it returns the text to be written.
template <class Work>
ravo_status WriteOfItem(const ravo_suite_tree* tree, ravo_suite_item number, const ravo::c::TextOut& out,
                        ravo_error* error, Work work) {
  const auto [item, status] = ReadItem(tree, number, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &found = *item] { return WriteText(out, ravo::ToUtf8(work(found)), error); });
}

// Calls `work` with the item of a number and a text for it.
template <class Work>
ravo_status ChangeItem(ravo_suite_tree* tree, ravo_suite_item number, const char* text,
                       std::size_t text_length, ravo_error* error, Work work) {
  const auto [item, status] = ReadItem(tree, number, error);
  if (status != RAVO_OK) return status;
  const auto [input, text_status] = ReadText(text, text_length, error);
  if (text_status != RAVO_OK) return text_status;
  return Guarded(error, [&, &found = *item, &utf8 = input] {
    work(found, Units(utf8).View());
    return RAVO_OK;
  });
}

// The same with the tree itself.
template <class Work>
ravo_status ChangeTree(ravo_suite_tree* tree, const char* text, std::size_t text_length, ravo_error* error,
                       Work work) {
  return ChangeItem(tree, 0, text, text_length, error,
                    [&](TXMLItem&, std::u16string_view units) { work(tree->document, units); });
}

// A number is kept for an item before there is one.
void AddItem(ravo_suite_tree& tree, TXMLItem& parent, std::u16string_view name, ravo_suite_item& number) {
  tree.items.push_back(nullptr);
  TXMLItem* const item = parent.New();
  try {
    item->SetName(name);
    tree.numbers.emplace(item, tree.items.size() - 1);
  } catch (...) {
    delete item;
    throw;
  }
  number = tree.items.size() - 1;
  tree.items.back() = item;
}

void DeleteItem(ravo_suite_tree& tree, TXMLItem* top) {
  for (TXMLItem* const item : AllFrom(top)) {
    const auto number = tree.numbers.find(item);
    tree.items[number->second] = nullptr;
    tree.numbers.erase(number);
  }
  delete top;
}

template <class Work>
ravo_status WriteConverted(const char* text, std::size_t text_length, const ravo::c::TextOut& out,
                           ravo_error* error, Work work) {
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(
      error, [&, &utf8 = input] { return WriteText(out, ravo::ToUtf8(work(Units(utf8).View())), error); });
}

void GiveToken(const ravo::ECXMLTokenizer::TXMLTokenizer& tokenizer, ravo_suite_take take, void* context) {
  const std::string text = ravo::ToUtf8(ravo::FromCodePage(tokenizer.TokenString()));
  const ravo_suite_token token{sizeof token,      text.c_str(),           text.size(),
                               tokenizer.Token(), tokenizer.SourceLine(), tokenizer.SourcePos()};
  if (const std::int32_t answer = take(context, &token); answer != 0) throw Stopped{answer};
}

}  // namespace

ravo_status ravo_suite_tree_open(const void* bytes, size_t bytes_length, ravo_suite_tree** tree,
                                 ravo_error* error) {
  if (tree == nullptr) return FailNullResult(error);
  const auto [input, status] = ReadBytes(bytes, bytes_length, error);
  if (status != RAVO_OK) return status;
  return GuardedReading(error, [&, &xml = input] {
    auto opened = std::make_unique<ravo_suite_tree>();
    ravo::document::LoadAsSuite(xml, opened->document);
    GiveNumbers(*opened);
    *tree = opened.release();
  });
}

void ravo_suite_tree_close(ravo_suite_tree* tree) { ravo::c::Close(tree); }

ravo_status ravo_suite_tree_save(ravo_suite_tree* tree, void* buffer, size_t size, size_t* length,
                                 ravo_error* error) {
  if (!IsOpen(tree)) return FailArgument(error, "the tree is null or closed");
  return Guarded(error, [&] {
    return WriteBytes({static_cast<char*>(buffer), size, length},
                      ravo::document::SavedBySuite(tree->document), error);
  });
}

ravo_status ravo_suite_tree_encoding(const ravo_suite_tree* tree, char* buffer, size_t size, size_t* length,
                                     ravo_error* error) {
  return WriteOfItem(tree, 0, {buffer, size, length}, error,
                     [&](const TXMLItem&) { return tree->document.Encoding(); });
}

ravo_status ravo_suite_tree_set_encoding(ravo_suite_tree* tree, const char* name, size_t name_length,
                                         ravo_error* error) {
  return ChangeTree(tree, name, name_length, error,
                    [](TECXMLParser& document, std::u16string_view value) { document.SetEncoding(value); });
}

ravo_status ravo_suite_tree_style_sheet(const ravo_suite_tree* tree, char* buffer, size_t size,
                                        size_t* length, ravo_error* error) {
  return WriteOfItem(tree, 0, {buffer, size, length}, error,
                     [&](const TXMLItem&) { return tree->document.StyleSheet(); });
}

ravo_status ravo_suite_tree_set_style_sheet(ravo_suite_tree* tree, const char* address, size_t address_length,
                                            ravo_error* error) {
  return ChangeTree(tree, address, address_length, error,
                    [](TECXMLParser& document, std::u16string_view value) { document.SetStyleSheet(value); });
}

ravo_status ravo_suite_item_child_count(const ravo_suite_tree* tree, ravo_suite_item item, size_t* count,
                                        ravo_error* error) {
  const auto [found, status] = ReadItem(tree, item, error);
  if (status != RAVO_OK) return status;
  if (count == nullptr) return FailNullResult(error);
  *count = CountOf(*found);
  return RAVO_OK;
}

ravo_status ravo_suite_item_child(const ravo_suite_tree* tree, ravo_suite_item item, size_t index,
                                  ravo_suite_item* child, ravo_error* error) {
  const auto [found, status] = ReadItem(tree, item, error);
  if (status != RAVO_OK) return status;
  if (child == nullptr) return FailNullResult(error);
  if (index >= CountOf(*found)) return FailUnknown(error, "the item has fewer children");
  *child = tree->numbers.find(ChildOf(*found, index))->second;
  return RAVO_OK;
}

ravo_status ravo_suite_item_parent(const ravo_suite_tree* tree, ravo_suite_item item, ravo_suite_item* parent,
                                   ravo_error* error) {
  const auto [found, status] = ReadItem(tree, item, error);
  if (status != RAVO_OK) return status;
  if (parent == nullptr) return FailNullResult(error);
  if (item == 0) return FailUnknown(error, "the root has no parent");
  *parent = tree->numbers.find(found->Parent())->second;
  return RAVO_OK;
}

ravo_status ravo_suite_item_find(const ravo_suite_tree* tree, ravo_suite_item item, const char* name,
                                 size_t name_length, size_t from, size_t* index, ravo_error* error) {
  const auto [found, status] = ReadItem(tree, item, error);
  if (status != RAVO_OK) return status;
  if (index == nullptr) return FailNullResult(error);
  const auto [input, text_status] = ReadText(name, name_length, error);
  if (text_status != RAVO_OK) return text_status;
  return Guarded(error, [&, &parent = *found, &utf8 = input]() -> ravo_status {
    const std::int32_t at =
        from < CountOf(parent) ? parent.IndexOfName(Units(utf8), static_cast<std::int32_t>(from)) : -1;
    if (at < 0) return FailUnknown(error, "the item has no child of that name there");
    *index = static_cast<std::size_t>(at);
    return RAVO_OK;
  });
}

ravo_status ravo_suite_item_name(const ravo_suite_tree* tree, ravo_suite_item item, char* buffer, size_t size,
                                 size_t* length, ravo_error* error) {
  return WriteOfItem(tree, item, {buffer, size, length}, error,
                     [](const TXMLItem& found) { return found.Name(); });
}

ravo_status ravo_suite_item_set_name(ravo_suite_tree* tree, ravo_suite_item item, const char* name,
                                     size_t name_length, ravo_error* error) {
  return ChangeItem(tree, item, name, name_length, error,
                    [](TXMLItem& found, std::u16string_view value) { found.SetName(value); });
}

ravo_status ravo_suite_item_text(const ravo_suite_tree* tree, ravo_suite_item item, char* buffer, size_t size,
                                 size_t* length, ravo_error* error) {
  return WriteOfItem(tree, item, {buffer, size, length}, error,
                     [](const TXMLItem& found) { return found.Text(); });
}

ravo_status ravo_suite_item_set_text(ravo_suite_tree* tree, ravo_suite_item item, const char* text,
                                     size_t text_length, ravo_error* error) {
  return ChangeItem(tree, item, text, text_length, error,
                    [](TXMLItem& found, std::u16string_view value) { found.SetText(value); });
}

ravo_status ravo_suite_item_attribute_count(const ravo_suite_tree* tree, ravo_suite_item item, size_t* count,
                                            ravo_error* error) {
  const auto [found, status] = ReadItem(tree, item, error);
  if (status != RAVO_OK) return status;
  if (count == nullptr) return FailNullResult(error);
  return Guarded(error, [&, &one = std::as_const(*found)] {
    *count = one.Params().Count();
    return RAVO_OK;
  });
}

ravo_status ravo_suite_item_attribute_at(const ravo_suite_tree* tree, ravo_suite_item item, size_t index,
                                         char* name, size_t name_size, size_t* name_length, char* value,
                                         size_t value_size, size_t* value_length, ravo_error* error) {
  const auto [found, status] = ReadItem(tree, item, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &one = std::as_const(*found)] {
    const ravo::StringList params = one.Params();
    if (index >= params.Count()) return FailUnknown(error, "the item has fewer attributes");
    return WriteTexts({name, name_size, name_length}, ravo::ToUtf8(params.NameAt(index)),
                      {value, value_size, value_length}, ravo::ToUtf8(params.ValueAt(index)), error);
  });
}

ravo_status ravo_suite_item_attribute(const ravo_suite_tree* tree, ravo_suite_item item, const char* name,
                                      size_t name_length, char* buffer, size_t size, size_t* length,
                                      ravo_error* error) {
  const auto [found, status] = ReadItem(tree, item, error);
  if (status != RAVO_OK) return status;
  const auto [input, text_status] = ReadText(name, name_length, error);
  if (text_status != RAVO_OK) return text_status;
  return Guarded(error, [&, &one = std::as_const(*found), &utf8 = input] {
    const ravo::StringList params = one.Params();
    const auto index = params.IndexOfName(Units(utf8));
    if (!index) return FailUnknown(error, "the item has no attribute of that name");
    return WriteText({buffer, size, length}, ravo::ToUtf8(params.ValueAt(*index)), error);
  });
}

ravo_status ravo_suite_item_set_attribute(ravo_suite_tree* tree, ravo_suite_item item, const char* name,
                                          size_t name_length, const char* value, size_t value_length,
                                          ravo_error* error) {
  const auto [text, status] = ReadText(value, value_length, error);
  if (status != RAVO_OK) return status;
  return ChangeItem(tree, item, name, name_length, error,
                    [&utf8 = text](TXMLItem& found, std::u16string_view named) {
                      ravo::StringList params = std::as_const(found).Params();
                      params.SetValue(named, Units(utf8));
                      found.SetParams(params);
                    });
}

ravo_status ravo_suite_item_add(ravo_suite_tree* tree, ravo_suite_item item, const char* name,
                                size_t name_length, ravo_suite_item* child, ravo_error* error) {
  if (child == nullptr) return FailNullResult(error);
  return ChangeItem(tree, item, name, name_length, error, [&](TXMLItem& found, std::u16string_view named) {
    AddItem(*tree, found, named, *child);
  });
}

ravo_status ravo_suite_item_delete(ravo_suite_tree* tree, ravo_suite_item item, ravo_error* error) {
  const auto [found, status] = ReadItem(tree, item, error);
  if (status != RAVO_OK) return status;
  if (item == 0) return FailArgument(error, "the root cannot be deleted");
  return Guarded(error, [&, top = found] {
    DeleteItem(*tree, top);
    return RAVO_OK;
  });
}

ravo_status ravo_suite_item_move(ravo_suite_tree* tree, ravo_suite_item item, size_t index,
                                 ravo_error* error) {
  const auto [found, status] = ReadItem(tree, item, error);
  if (status != RAVO_OK) return status;
  if (item == 0) return FailArgument(error, "the root cannot be moved");
  TXMLItem& parent = *found->Parent();
  if (index >= CountOf(parent)) return ravo::c::FailRange(error, "the parent has fewer children");
  return Guarded(error, [&, moved = found] {
    parent.Move(moved, static_cast<std::int32_t>(index));
    return RAVO_OK;
  });
}

ravo_status ravo_suite_item_as_string(ravo_suite_tree* tree, ravo_suite_item item, int32_t level,
                                      char* buffer, size_t size, size_t* length, ravo_error* error) {
  constexpr std::int32_t kMost = 1000;
  if (level < 0 || level > kMost) return ravo::c::FailRange(error, "the level is not 0 to 1000");
  return WriteOfItem(tree, item, {buffer, size, length}, error,
                     [level](TXMLItem& found) { return found.XMLItemAsString(level); });
}

ravo_status ravo_suite_str_to_xml(const char* text, size_t text_length, char* buffer, size_t size,
                                  size_t* length, ravo_error* error) {
  return WriteConverted(text, text_length, {buffer, size, length}, error, ravo::ECXMLParser::StrToXML);
}

ravo_status ravo_suite_xml_to_str(const char* text, size_t text_length, char* buffer, size_t size,
                                  size_t* length, ravo_error* error) {
  return WriteConverted(text, text_length, {buffer, size, length}, error, ravo::ECXMLParser::XMLToStr);
}

ravo_status ravo_suite_tokens(const void* bytes, size_t bytes_length, ravo_suite_take take, void* context,
                              ravo_error* error) {
  if (take == nullptr) return FailArgument(error, "the function is null");
  const auto [input, status] = ReadBytes(bytes, bytes_length, error);
  if (status != RAVO_OK) return status;
  return GuardedReading(error, [&, &xml = input] {
    ravo::document::ReadSuiteTokens(xml, [&](const auto& tokenizer) { GiveToken(tokenizer, take, context); });
  });
}
