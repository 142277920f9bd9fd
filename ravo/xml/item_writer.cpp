#include <ravo/platform/code_pages.h>
#include <ravo/runtime/text.h>
#include <ravo/xml/byte_scan.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/item_access.h>
#include <ravo/xml/item_writer.h>

#include <cstring>
#include <memory>
#include <span>
#include <vector>

namespace ravo::xml {
namespace {

using ECXMLParser::TXMLItem;

// Bytes on their way to a stream, in pieces of one size.
class ByteSink {
 public:
  explicit ByteSink(ByteStream& stream)
      : stream_(stream), page_(CodePage::Current()), buffer_(std::make_unique_for_overwrite<char[]>(kRoom)) {}

  void Ascii(std::string_view bytes) { Bytes(bytes); }
  void Blanks(std::size_t count) {
    for (; count > kBlanks.size(); count -= kBlanks.size()) Bytes(kBlanks);
    Bytes(kBlanks.substr(0, count));
  }
  // Texts of the tree are bytes already, unless they are those of another code page.
  void Page(const TXMLItem& item, std::string_view bytes) {
    if (bytes.empty()) return;
    const CodePage& page = ItemAccess::Page(item);
    if (&page == &page_) {
      Bytes(bytes);
    } else {
      Wide(page.Widened(bytes));
    }
  }
  void Wide(std::u16string_view text) { Bytes(platform::CodePages().ToCodePage(text)); }
  void Flush() {
    stream_.WriteChecked(std::as_bytes(std::span(buffer_.get(), used_)));
    used_ = 0;
  }

 private:
  static constexpr std::size_t kRoom = 65536;
  static constexpr std::string_view kBlanks = "                                ";

  void Bytes(std::string_view bytes) {
    if (bytes.size() > kRoom - used_) {
      Flush();
      if (bytes.size() > kRoom) return stream_.WriteChecked(std::as_bytes(std::span(bytes)));
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
  void Page(const TXMLItem& item, std::string_view bytes) {
    if (!bytes.empty()) ItemAccess::Page(item).AppendWidened(text_, bytes);
  }
  void Wide(std::u16string_view text) { text_ += text; }
  std::u16string Take() { return std::move(text_); }

 private:
  std::u16string text_;
};

template <class Sink>
class Writer {
 public:
  Writer(Sink& sink, TXMLItem& top, std::int32_t level)
      : sink_(sink), top_(top), on_lines_(top.CrLfInAsString()), level_(level) {}

  void Run() {
    Open(top_);
    while (!way_.empty()) {
      Place& place = way_.back();
      const ChildList& children = ItemAccess::Children(*place.item);
      if (place.next < children.Count()) {
        TXMLItem* const child = children.At(place.next++);
        child->SetCrLfInAsString(on_lines_);
        Open(*child);
      } else {
        Close();
      }
    }
  }

  void Name(const TXMLItem& item) {
    if (const auto* wide = ItemAccess::WideName(item)) {
      sink_.Wide(*wide);
    } else {
      sink_.Page(item, ItemAccess::NameBytes(item));
    }
  }

  void Body(const TXMLItem& item) {
    const StringList* list = ItemAccess::ParamList(item);
    if (list == nullptr && ItemAccess::WideName(item) == nullptr) {
      return sink_.Page(item, ItemAccess::BodyBytes(item));
    }
    Name(item);
    if (list == nullptr)
      return sink_.Page(item, ItemAccess::BodyBytes(item).substr(ItemAccess::NameBytes(item).size()));
    for (std::size_t i = 0; i < list->Count(); ++i) {
      sink_.Wide(u" " + std::u16string(list->NameAt(i)) + u"=\"" + ECXMLParser::StrToXML(list->ValueAt(i)) +
                 u"\"");
    }
  }

 private:
  struct Place {
    TXMLItem* item;
    std::uint32_t next;
  };

  // Kept: without line breaks each tag still has two blanks before it. Test:
  // SaveToStream.WithoutLineBreaksKeepsTwoBlanksBeforeEachTag
  void Indent(std::int64_t more) {
    const std::int64_t blanks = level_ + more;
    if (blanks > 0) sink_.Blanks(static_cast<std::size_t>(blanks));
  }
  void EndLine() {
    if (on_lines_) sink_.Ascii("\r\n");
  }
  [[nodiscard]] std::int64_t Step() const { return on_lines_ ? 2 : 0; }

  void Text(const TXMLItem& item) {
    Indent(Step());
    if (const auto* wide = ItemAccess::WideText(item)) {
      sink_.Wide(ECXMLParser::StrToXML(*wide));
    } else {
      sink_.Page(item, ItemAccess::TextBytes(item));
    }
    EndLine();
  }

  void Open(TXMLItem& item) {
    Indent(0);
    sink_.Ascii("<");
    Body(item);
    const bool has_text = ItemAccess::HasText(item);
    if (!has_text && item.SubItemCount() == 0) {
      sink_.Ascii("/>");
      return EndLine();
    }
    sink_.Ascii(">");
    EndLine();
    if (has_text) Text(item);
    way_.push_back({&item, 0});
    level_ += Step();
  }

  void Close() {
    level_ -= Step();
    Indent(0);
    sink_.Ascii("</");
    Name(*way_.back().item);
    sink_.Ascii(">");
    EndLine();
    way_.pop_back();
  }

  Sink& sink_;
  TXMLItem& top_;
  // The flag of the topmost item becomes that of all.
  bool on_lines_;
  std::int64_t level_;
  std::vector<Place> way_;
};

}  // namespace

void WriteItem(ByteStream& stream, TXMLItem& item, std::int32_t level) {
  ByteSink sink(stream);
  Writer<ByteSink>(sink, item, level).Run();
  sink.Flush();
}

}  // namespace ravo::xml

namespace ravo::ECXMLParser {

std::u16string TXMLItem::XMLItemAsString(std::int32_t Level) {
  xml::TextSink sink;
  xml::Writer<xml::TextSink>(sink, *this, Level).Run();
  return sink.Take();
}

std::u16string TXMLItem::XMLItemName() const {
  xml::TextSink sink;
  xml::Writer<xml::TextSink>(sink, const_cast<TXMLItem&>(*this), 0).Body(*this);
  return sink.Take();
}

}  // namespace ravo::ECXMLParser
