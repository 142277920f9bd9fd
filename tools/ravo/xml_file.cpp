#include "xml_file.h"

#include "foreign_text.h"
#include "progress.h"
#include "text_file.h"
#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <span>
#include <stdexcept>
#include <utility>

namespace tool {
namespace {

// A file as a stream that shows its progress.
class ShownFile final : public ravo::ByteStream {
 public:
  explicit ShownFile(const std::string& name)
      : file_(PathOf(name), std::ios::binary), size_(SizeOf(name)), progress_("reading " + name, size_) {
    if (!file_) throw std::runtime_error("cannot be read");
  }

  // Skips a byte-order mark of UTF-8. Returns false if the file has no mark; keeps its bytes then, since a
  // pipe cannot seek back to them.
  [[nodiscard]] bool SkipMark() {
    while (kept_.size() < kMark.size()) {
      char byte = 0;
      if (ReadOn(std::as_writable_bytes(std::span(&byte, 1))) == 0) break;
      kept_ += byte;
    }
    if (kept_ != kMark) return false;
    position_ += std::ssize(std::exchange(kept_, std::string()));
    return true;
  }

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
    const std::size_t count = kept_.empty() ? ReadOn(to) : TakeKept(to);
    position_ += static_cast<std::int64_t>(count);
    progress_.Show(position_);
    return count;
  }
  [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  void SetPosition(std::int64_t position) override {
    file_.clear();
    file_.seekg(position);
    position_ = position;
  }
  [[nodiscard]] std::int64_t Size() const override { return size_; }

 private:
  static constexpr std::string_view kMark = "\xEF\xBB\xBF";

  std::size_t ReadOn(std::span<std::byte> to) {
    file_.read(reinterpret_cast<char*>(to.data()), static_cast<std::streamsize>(to.size()));
    if (file_.bad()) throw std::runtime_error("cannot be read to its end");
    return static_cast<std::size_t>(file_.gcount());
  }
  std::size_t TakeKept(std::span<std::byte> to) {
    const std::size_t count = std::min(to.size(), kept_.size());
    std::ranges::copy(std::as_bytes(std::span(kept_)).first(count), to.begin());
    kept_.erase(0, count);
    return count;
  }

  static std::int64_t SizeOf(const std::string& name) {
    std::error_code error;
    if (std::filesystem::is_directory(PathOf(name), error)) throw std::runtime_error("is a folder");
    const auto size = std::filesystem::file_size(PathOf(name), error);
    return error ? 0 : static_cast<std::int64_t>(size);
  }

  std::ifstream file_;
  std::string kept_;
  std::int64_t size_;
  std::int64_t position_ = 0;
  Progress progress_;
};

template <class Work>
auto WithFile(const std::string& name, Work work) {
  try {
    ShownFile file(name);
    return work(file);
  } catch (const std::exception& error) {
    throw std::runtime_error(name + ": " + error.what());
  }
}

}  // namespace

std::string XmlWords::Shown(std::u16string_view text) const {
  return utf8_ ? ForeignText(ravo::ToCodePage(text)) : ravo::ToUtf8(text);
}

std::u16string XmlWords::Kept(const std::string& utf8) const {
  std::u16string text = utf8_ ? ravo::FromCodePage(utf8) : ravo::FromUtf8(utf8);
  const std::string bytes = ravo::ToCodePage(text);
  if (utf8_ ? bytes != utf8 : ravo::FromCodePage(bytes) != text) {
    throw std::runtime_error("'" + utf8 + "' cannot be written in the encoding of the document");
  }
  return text;
}

XmlWords LoadXmlFile(const std::string& name, ravo::ECXMLParser::TECXMLParser& parser) {
  return WithFile(name, [&](ShownFile& file) {
    const bool marked = file.SkipMark();
    parser.Root()->LoadFromStream(file);
    return XmlWords(marked || ravo::SameAsciiText(parser.Encoding(), u"utf-8"));
  });
}

void ReadXmlTokens(const std::string& name,
                   const std::function<void(const ravo::ECXMLTokenizer::TXMLTokenizer&)>& take) {
  WithFile(name, [&](ShownFile& file) {
    ravo::ECXMLTokenizer::TXMLTokenizer tokenizer(file);
    for (; tokenizer.Token() != ravo::ECXMLTokenizer::xtEndOfInput; tokenizer.NextToken()) take(tokenizer);
  });
}

std::string SavedXml(ravo::ECXMLParser::TECXMLParser& parser) {
  ravo::MemoryStream stream;
  parser.SaveToStream(stream, false);
  const auto bytes = stream.Bytes();
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace tool
