#include "text.h"

#include <ravo/codec/encoding_label.h>

#include <algorithm>
#include <array>
#include <utility>

namespace ravo::document {
namespace {

using codec::Encoding;
using codec::FindEncoding;

// The first bytes of a document, which say how to read its declaration.
struct Beginning {
  std::string_view bytes;
  std::size_t mark;  // the number of bytes in a byte-order mark
  const char* encoding;
};

// A longer beginning precedes its prefixes.
constexpr auto kBeginnings = std::to_array<Beginning>({
    {std::string_view("\0\0\xFE\xFF", 4), 4, "UTF_32_BE"},
    {std::string_view("\xFF\xFE\0\0", 4), 4, "UTF_32_LE"},
    {std::string_view("\0\0\0<", 4), 0, "UTF_32_BE"},
    {std::string_view("<\0\0\0", 4), 0, "UTF_32_LE"},
    {"\xFE\xFF", 2, "UTF_16_BE"},
    {"\xFF\xFE", 2, "UTF_16_LE"},
    {std::string_view("\0<", 2), 0, "UTF_16_BE"},
    {std::string_view("<\0", 2), 0, "UTF_16_LE"},
    {"\xEF\xBB\xBF", 3, "UTF_8"},
    {"\x4C\x6F\xA7\x94", 0, "CP_424"},
});

Beginning BeginningOf(std::string_view bytes) {
  for (const Beginning& beginning : kBeginnings) {
    if (bytes.starts_with(beginning.bytes)) return beginning;
  }
  return {"", 0, ""};
}

// Returns the encoding that a declaration names; empty if it names none, or `text` starts with no
// declaration.
std::string_view DeclaredEncoding(std::string_view text) {
  if (!text.starts_with("<?xml") || text.size() < 6 || text.find_first_of(" \t\r\n", 5) != 5) return {};
  text = text.substr(0, text.find("?>"));
  const std::size_t word = text.find("encoding");
  if (word == std::string_view::npos) return {};
  const std::size_t quote = text.find_first_not_of(" \t\r\n=", word + 8);
  if (quote == std::string_view::npos || (text[quote] != '"' && text[quote] != '\'')) return {};
  const std::size_t end = text.find(text[quote], quote + 1);
  return end == std::string_view::npos ? std::string_view() : text.substr(quote + 1, end - quote - 1);
}

// Returns the start of a document, as far as a declaration goes, with "?" for characters past ASCII.
std::string BeginningText(std::string_view bytes, const DocumentCodec* codec) {
  constexpr std::size_t kFar = 1024;
  std::string text;
  for (std::size_t at = 0; at < bytes.size() && text.size() < kFar;) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    const auto [c, size] = codec != nullptr ? codec->DecodeOne(bytes, at) : DocumentCodec::Character{byte, 1};
    if (size == 0) break;
    text += c < 0x80 ? static_cast<char>(c) : '?';
    at += size;
  }
  return text;
}

[[noreturn]] void FailAtStart(Message message, std::initializer_list<std::string_view> values) {
  throw PlacedError(Fault(message, values), {}, 0);
}

// Whether the units have the same width. "UTF-16" names no byte order; the mark decides.
bool IsSameFamily(const Encoding& named, const Encoding& seen) {
  const auto family = [](const Encoding& row) {
    if (row.engine == "Ucs2") return std::string_view("Utf16");
    return row.engine == "Ucs4" ? std::string_view("Utf32") : row.engine;
  };
  return family(named) == family(seen);
}

bool IsWide(const Encoding& row) {
  return row.engine == "Utf16" || row.engine == "Ucs2" || row.engine == "Utf32" || row.engine == "Ucs4";
}

const Encoding& EncodingOf(const Beginning& beginning, std::string_view declared) {
  const Encoding* const seen = FindEncoding(beginning.encoding);
  if (declared.empty()) return seen != nullptr ? *seen : *FindEncoding("UTF_8");
  const Encoding* const named = FindEncoding(declared);
  if (named == nullptr) FailAtStart(Message::UnknownEncoding, {declared});
  if (seen == nullptr && !IsWide(*named)) return *named;
  if (seen != nullptr && IsSameFamily(*named, *seen)) return *seen;
  if (seen == nullptr) FailAtStart(Message::WrongEncodingWidth, {declared});
  FailAtStart(Message::WrongEncoding, {declared, seen->label});
}

bool IsUtf8(const DocumentText& text) { return text.encoding == "UTF_8"; }

void DecodeAll(DocumentText& text) {
  const std::size_t end = text.codec->Decode(text.bytes, text.mark, text.utf8);
  if (end == text.bytes.size()) return;
  throw PlacedError(Fault(Message::BadBytes, {text.label}), PlaceFinder(text.utf8).Find(text.utf8.size()),
                    end);
}

std::size_t Utf8Size(char32_t c) { return c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4; }

std::size_t CharactersIn(std::string_view utf8) {
  return static_cast<std::size_t>(std::ranges::count_if(
      utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

// Finds the bytes of characters of a text that are asked for in ascending order.
class BytePlaces {
 public:
  explicit BytePlaces(const DocumentText& text) : text_(text), byte_(text.mark) {}
  [[nodiscard]] std::size_t Find(std::size_t at) {
    if (IsUtf8(text_)) return text_.mark + at;
    if (text_.codec->IsSingleByte()) {
      byte_ += CharactersIn(std::string_view(text_.utf8).substr(at_, at - at_));
      at_ = at;
    }
    while (at_ < at) {
      const auto [c, size] = text_.codec->DecodeOne(text_.bytes, byte_);
      at_ += Utf8Size(c);
      byte_ += size;
    }
    return byte_;
  }

 private:
  const DocumentText& text_;
  std::size_t at_ = 0;
  std::size_t byte_;
};

}  // namespace

PlacedError PlacedIn(const DocumentText& text, const DocumentError& error) {
  return {error.What(), PlaceFinder(text.utf8).Find(error.At()), BytePlaces(text).Find(error.At())};
}

DocumentText DecodeDocument(std::string bytes) {
  DocumentText text;
  text.bytes = std::move(bytes);
  const Beginning beginning = BeginningOf(text.bytes);
  text.mark = beginning.mark;
  const Encoding* const seen = FindEncoding(beginning.encoding);
  const auto first = seen != nullptr ? CodecOf(*seen) : nullptr;
  const std::string begin = BeginningText(std::string_view(text.bytes).substr(text.mark), first.get());
  const Encoding& row = EncodingOf(beginning, DeclaredEncoding(begin));
  text.encoding = row.name;
  text.label = codec::ShortLabel(row.label);
  text.codec = CodecOf(row);
  if (text.codec == nullptr) FailAtStart(Message::StatefulEncoding, {row.label});
  text.utf8.reserve(text.bytes.size());
  DecodeAll(text);
  return text;
}

std::string EditedBytes(const DocumentText& text, std::span<const DocumentEdit> edits) {
  BytePlaces places(text);
  std::string edited;
  edited.reserve(text.bytes.size());
  std::size_t from = 0;
  for (const DocumentEdit& edit : edits) {
    edited += std::string_view(text.bytes).substr(from, places.Find(edit.span.begin) - from);
    from = places.Find(edit.span.end);
    for (std::size_t at = 0; at < edit.utf8.size();) {
      const auto [c, size] = FirstCharacter(std::string_view(edit.utf8).substr(at));
      static_cast<void>(text.codec->Encode(c, edited));
      at += size;
    }
  }
  return edited.append(text.bytes, from);
}

OpenDocument::OpenDocument(std::string bytes) : text_(DecodeDocument(std::move(bytes))) {
  try {
    document_ = ScanDocument(text_.utf8);
  } catch (const DocumentError& error) {
    throw PlacedIn(text_, error);
  }
}

}  // namespace ravo::document
