#pragma once

#include <ravo/platform/code_pages.h>
#include <ravo/runtime/string_list.h>
#include <ravo/runtime/text.h>
#include <ravo/xml/tokenizer.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The rules of the tree, step by step, for plain values of UTF-16: a witness for the tree that keeps bytes.
namespace ravo::test::plain {

inline std::u16string Escaped(std::u16string text) {
  text = ReplaceAll(text, u"&", u"&amp;");
  text = ReplaceAll(text, u"<", u"&lt;");
  text = ReplaceAll(text, u">", u"&gt;");
  text = ReplaceAll(text, u"\"", u"&quot;");
  return ReplaceAll(text, u"\r\n", u"<br/>");
}

inline std::u16string Unescaped(std::u16string text) {
  text = ReplaceAll(text, u"&lt;", u"<");
  text = ReplaceAll(text, u"&gt;", u">");
  text = ReplaceAll(text, u"&quot;", u"\"");
  return ReplaceAll(text, u"&amp;", u"&");
}

struct Item {
  std::u16string name;
  std::u16string text;
  StringList params;
  std::vector<std::unique_ptr<Item>> items;
  Item* parent = nullptr;

  Item* New() {
    items.push_back(std::make_unique<Item>());
    items.back()->parent = this;
    return items.back().get();
  }
};

inline std::u16string TagName(std::u16string_view tag) {
  const std::u16string n(tag.substr(1));
  std::size_t p = n.find(u' ');
  if (p == std::u16string::npos) p = n.find(u'/');
  return std::u16string(Trimmed(p == std::u16string::npos ? n.substr(0, n.size() - 1) : n.substr(0, p)));
}

inline std::u16string AttributeValue(std::u16string_view text) {
  std::u16string_view v = Trimmed(text);
  const auto is_quote = [](char16_t ch) { return ch == u'"' || ch == u'\''; };
  if (v.size() >= 3) {
    if (is_quote(v.front())) v.remove_prefix(1);
    if (is_quote(v.back())) v.remove_suffix(1);
  }
  return Unescaped(std::u16string(v));
}

inline void SetAttributes(Item& item, std::u16string_view tag) {
  item.params.Clear();
  const std::size_t p = tag.find(u' ');
  if (p == std::u16string_view::npos) return;
  std::size_t e = tag.find(u'>');
  if (e > 0 && tag[e - 1] == u'/') --e;
  const std::u16string_view a = e > p ? tag.substr(p + 1, e - p - 1) : std::u16string_view();
  std::u16string text;
  bool quoted = false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const bool last = i + 1 == a.size();
    if (!last && a[i] == u'"') quoted = !quoted;
    text += !last && a[i] == u' ' && !quoted ? std::u16string(u"\r\n") : std::u16string(1, a[i]);
  }
  item.params.SetText(text);
  for (std::size_t i = 0; i < item.params.Count();) {
    const std::size_t before = item.params.Count();
    const std::u16string name(item.params.NameAt(i));
    const std::size_t set = item.params.IndexOfName(name).value_or(before);
    item.params.SetValue(name, AttributeValue(item.params.ValueAt(i)));
    // An empty value deletes a line: this one, an earlier or a later one.
    if (item.params.Count() == before || set > i) ++i;
  }
}

/// Throws std::runtime_error for content outside of every element.
inline void Load(Item& top, ByteStream& stream) {
  using namespace ECXMLTokenizer;
  TXMLTokenizer tokenizer(stream);
  Item* current = &top;
  for (; tokenizer.Token() != xtEndOfInput; tokenizer.NextToken()) {
    const std::uint8_t kind = tokenizer.Token();
    if (kind != xtText && kind != xtOpenTag && kind != xtCloseTag && kind != xtStandAloneTag) continue;
    if (current == nullptr) throw std::runtime_error("outside");
    std::u16string s = platform::CodePages().FromCodePage(tokenizer.TokenString());
    if (kind == xtText) {
      if (s.starts_with(u"<![CDATA[")) {
        s = std::u16string(Trimmed(s).substr(9));
        s.resize(s.size() - std::min<std::size_t>(3, s.size()));
      }
      const bool empty = Trimmed(current->text).empty();
      current->text = Unescaped(empty ? s : current->text + u"\r\n" + s);
    } else if (kind == xtOpenTag) {
      if (!Trimmed(current->name).empty()) current = current->New();
      current->name = TagName(s);
      SetAttributes(*current, s);
    } else if (kind == xtCloseTag) {
      current = current->parent;
    } else {
      Item* child = current->New();
      child->name = TagName(s);
      SetAttributes(*child, s);
    }
  }
}

inline std::u16string NameAndParams(const Item& item) {
  std::u16string text = item.name;
  for (std::size_t i = 0; i < item.params.Count(); ++i) {
    text.append(u" ").append(item.params.NameAt(i)).append(u"=\"");
    text.append(Escaped(std::u16string(item.params.ValueAt(i)))).append(u"\"");
  }
  return text;
}

inline std::u16string AsString(const Item& item, std::size_t level, bool lines) {
  const std::u16string end = lines ? u"\r\n" : u"";
  const std::size_t step = lines ? 2 : 0;
  const std::u16string indent(level, u' ');
  const bool blank = Trimmed(item.text).empty();
  if (blank && item.items.empty()) return indent + u"<" + NameAndParams(item) + u"/>" + end;
  std::u16string text = indent + u"<" + NameAndParams(item) + u">" + end;
  if (!blank) text += std::u16string(level + step, u' ') + Escaped(item.text) + end;
  for (const auto& child : item.items) text += AsString(*child, level + step, lines);
  return text + indent + u"</" + item.name + u">" + end;
}

}  // namespace ravo::test::plain
