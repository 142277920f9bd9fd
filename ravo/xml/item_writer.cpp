#include <ravo/platform/code_pages.h>
#include <ravo/xml/code_page.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/item_writer.h>

#include <cstring>
#include <memory>
#include <span>
#include <vector>

namespace ravo::xml {
namespace {

// Writes bytes to a stream through a buffer.
class ByteSink {
 public:
  explicit ByteSink(ByteStream& stream)
      : stream_(stream),
        page_(CodePage::Current()),
        buffer_(std::make_unique_for_overwrite<char[]>(kCapacity)) {}

  void Ascii(std::string_view bytes) { Bytes(bytes); }
  void Blanks(std::size_t count) {
    for (; count > kBlanks.size(); count -= kBlanks.size()) Bytes(kBlanks);
    Bytes(kBlanks.substr(0, count));
  }
  // Content is bytes already, unless of another code page.
  void Content(const ItemStore& item, std::string_view bytes) {
    if (bytes.empty()) return;
    if (&item.Page() == &page_) {
      Bytes(bytes);
    } else {
      Wide(item.Page().Widened(bytes));
    }
  }
  void Wide(std::u16string_view text) { Bytes(platform::CodePages().ToCodePage(text)); }
  void Flush() {
    stream_.WriteChecked(std::as_bytes(std::span(buffer_.get(), used_)));
    used_ = 0;
  }

 private:
  static constexpr std::size_t kCapacity = 65536;
  static constexpr std::string_view kBlanks = "                                ";

  void Bytes(std::string_view bytes) {
    if (bytes.size() > kCapacity - used_) {
      Flush();
      if (bytes.size() > kCapacity) return stream_.WriteChecked(std::as_bytes(std::span(bytes)));
    }
    std::memcpy(buffer_.get() + used_, bytes.data(), bytes.size());
    used_ += bytes.size();
  }

  ByteStream& stream_;
  const CodePage& page_;
  std::unique_ptr<char[]> buffer_;
  std::size_t used_ = 0;
};

class TextSink {
 public:
  void Ascii(std::string_view bytes) { text_.append(bytes.begin(), bytes.end()); }
  void Blanks(std::size_t count) { text_.append(count, u' '); }
  void Content(const ItemStore& item, std::string_view bytes) {
    if (!bytes.empty()) item.Page().AppendWidened(text_, bytes);
  }
  void Wide(std::u16string_view text) { text_ += text; }
  std::u16string Take() { return std::move(text_); }

 private:
  std::u16string text_;
};

template <class Sink>
void WriteName(Sink& sink, const ItemStore& item) {
  if (const auto* wide = item.WideName()) return sink.Wide(*wide);
  sink.Content(item, item.NameBytes());
}

template <class Sink>
void WriteList(Sink& sink, const StringList& list) {
  for (std::size_t i = 0; i < list.Count(); ++i) {
    sink.Wide(u" " + std::u16string(list.NameAt(i)) + u"=\"" + ECXMLParser::StrToXML(list.ValueAt(i)) +
              u"\"");
  }
}

// Name and attributes.
template <class Sink>
void WriteTag(Sink& sink, const ItemStore& item) {
  const StringList* const list = item.AttributeList();
  if (list == nullptr && item.WideName() == nullptr) return sink.Content(item, item.TagBytes());
  WriteName(sink, item);
  if (list != nullptr) return WriteList(sink, *list);
  sink.Content(item, item.TagBytes().substr(item.NameBytes().size()));
}

template <class Sink>
class Writer {
 public:
  Writer(Sink& sink, bool on_one_line, const WriteOptions& options)
      : sink_(sink), on_one_line_(on_one_line), level_(options.level) {}

  // With a stack of its own: depth costs no stack of the thread.
  void Write(ItemStore& top) {
    Open(top);
    while (!open_.empty()) {
      Element& element = open_.back();
      const ChildList& children = element.item->Children();
      if (element.next < children.Count()) {
        ItemStore* const child = children.At(element.next++);
        child->SetOnOneLine(on_one_line_);
        Open(*child);
      } else {
        Close();
      }
    }
  }

 private:
  struct Element {
    const ItemStore* item;
    std::uint32_t next;
  };

  // Kept: without line breaks each tag still has two blanks before it. Test:
  // SaveToStream.WithoutLineBreaksKeepsTwoBlanksBeforeEachTag
  void Indent(std::int64_t more) {
    const std::int64_t blanks = level_ + more;
    if (blanks > 0) sink_.Blanks(static_cast<std::size_t>(blanks));
  }
  void EndLine() {
    if (!on_one_line_) sink_.Ascii("\r\n");
  }
  [[nodiscard]] std::int64_t Step() const { return on_one_line_ ? 0 : 2; }

  void Text(const ItemStore& item) {
    Indent(Step());
    if (const auto* wide = item.WideText()) {
      sink_.Wide(ECXMLParser::StrToXML(*wide));
    } else {
      sink_.Content(item, item.TextBytes());
    }
    EndLine();
  }

  void Open(const ItemStore& item) {
    Indent(0);
    sink_.Ascii("<");
    WriteTag(sink_, item);
    if (!item.HasText() && item.Children().IsEmpty()) {
      sink_.Ascii("/>");
      return EndLine();
    }
    sink_.Ascii(">");
    EndLine();
    if (item.HasText()) Text(item);
    open_.push_back({&item, 0});
    level_ += Step();
  }

  void Close() {
    level_ -= Step();
    Indent(0);
    sink_.Ascii("</");
    WriteName(sink_, *open_.back().item);
    sink_.Ascii(">");
    EndLine();
    open_.pop_back();
  }

  Sink& sink_;
  bool on_one_line_;
  std::int64_t level_;
  std::vector<Element> open_;
};

}  // namespace

void WriteItem(ByteStream& stream, ItemStore& item, const WriteOptions& options) {
  ByteSink sink(stream);
  Writer<ByteSink>(sink, item.OnOneLine(), options).Write(item);
  sink.Flush();
}

std::u16string TextOfItem(ItemStore& item, const WriteOptions& options) {
  TextSink sink;
  Writer<TextSink>(sink, item.OnOneLine(), options).Write(item);
  return sink.Take();
}

std::u16string TextOfTag(const ItemStore& item) {
  TextSink sink;
  WriteTag(sink, item);
  return sink.Take();
}

}  // namespace ravo::xml
