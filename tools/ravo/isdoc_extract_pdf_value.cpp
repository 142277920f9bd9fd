#include "isdoc_extract_pdf_value.h"

#include <ravo/RavoInterface.h>

#include <algorithm>

namespace tool {
namespace {

constexpr int kDeepest = 64;
constexpr std::size_t kMostValues = 200'000;
constexpr std::size_t kLongestString = std::size_t{1} << 20;
constexpr std::string_view kPdfBlanks("\0\t\n\f\r ", 6);
constexpr std::string_view kPdfDelimiters = "()<>[]{}/%";

bool IsRegular(char c) { return !IsPdfBlank(c) && kPdfDelimiters.find(c) == std::string_view::npos; }

bool IsPdfDigit(char c) { return c >= '0' && c <= '9'; }

int PdfHexValue(char c) {
  if (IsPdfDigit(c)) return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

}  // namespace

bool IsPdfBlank(char c) { return kPdfBlanks.find(c) != std::string_view::npos; }

const PdfValue* PdfValue::Find(std::string_view key) const {
  if (kind != Kind::Dictionary) return nullptr;
  const auto found = std::ranges::find(keys, key);
  return found == keys.end() ? nullptr : &items[static_cast<std::size_t>(found - keys.begin())];
}

void PdfReader::SkipBlanks() {
  while (at_ < bytes_.size()) {
    if (bytes_[at_] == '%') {
      while (at_ < bytes_.size() && bytes_[at_] != '\n' && bytes_[at_] != '\r') ++at_;
    } else if (IsPdfBlank(bytes_[at_])) {
      ++at_;
    } else {
      return;
    }
  }
}

bool PdfReader::Take(std::string_view word) {
  SkipBlanks();
  if (!IsAt(word)) return false;
  at_ += word.size();
  return true;
}

std::optional<std::int64_t> PdfReader::Unsigned() {
  constexpr std::size_t kMostDigits = 12;
  SkipBlanks();
  const std::size_t begin = at_;
  std::int64_t number = 0;
  while (IsPdfDigit(Peek()) && at_ - begin < kMostDigits) number = number * 10 + (bytes_[at_++] - '0');
  if (at_ == begin || IsPdfDigit(Peek())) return std::nullopt;
  return number;
}

std::optional<PdfValue> PdfReader::Value(int depth) {
  SkipBlanks();
  if (at_ >= bytes_.size() || depth > kDeepest || ++values_ > kMostValues) return std::nullopt;
  if (IsAt("<<")) return Dictionary(depth);
  switch (Peek()) {
    case '<':
      return Hexadecimal();
    case '(':
      return Literal();
    case '[':
      return Array(depth);
    case '/':
      return Name();
    default:
      break;
  }
  for (const std::string_view word : {"true", "false", "null"}) {
    if (Take(word)) return PdfValue{};
  }
  return Number();
}

std::optional<PdfValue> PdfReader::Array(int depth) {
  PdfValue array{PdfValue::Kind::Array, 0, {}, {}, {}};
  ++at_;
  while (!Take("]")) {
    auto item = Value(depth + 1);
    if (!item) return std::nullopt;
    array.items.push_back(std::move(*item));
  }
  return array;
}

std::optional<PdfValue> PdfReader::Dictionary(int depth) {
  PdfValue dictionary{PdfValue::Kind::Dictionary, 0, {}, {}, {}};
  at_ += 2;
  while (!Take(">>")) {
    auto key = Value(depth + 1);
    if (!key || key->kind != PdfValue::Kind::Name) return std::nullopt;
    auto value = Value(depth + 1);
    if (!value) return std::nullopt;
    dictionary.keys.push_back(std::move(key->text));
    dictionary.items.push_back(std::move(*value));
  }
  return dictionary;
}

// A number, or a reference: "12 0 R".
std::optional<PdfValue> PdfReader::Number() {
  const std::size_t begin = at_;
  const auto whole = Unsigned();
  if (whole && !IsRegular(Peek())) {
    const std::size_t end = at_;
    if (IsPdfBlank(Peek()) && Unsigned() && Take("R") && (at_ == bytes_.size() || !IsRegular(Peek())))
      return PdfValue{PdfValue::Kind::Reference, *whole, {}, {}, {}};
    at_ = end;
    return PdfValue{PdfValue::Kind::Number, *whole, {}, {}, {}};
  }
  at_ = begin;
  while (at_ < bytes_.size() && (IsPdfDigit(Peek()) || Peek() == '+' || Peek() == '-' || Peek() == '.'))
    ++at_;
  if (at_ == begin) return std::nullopt;
  return PdfValue{};
}

std::optional<PdfValue> PdfReader::Name() {
  PdfValue name{PdfValue::Kind::Name, 0, {}, {}, {}};
  ++at_;
  while (at_ < bytes_.size() && IsRegular(Peek()) && name.text.size() < kLongestString) {
    const char c = bytes_[at_++];
    const bool escaped = c == '#' && bytes_.size() - at_ >= 2 && PdfHexValue(bytes_[at_]) >= 0 &&
                         PdfHexValue(bytes_[at_ + 1]) >= 0;
    name.text +=
        escaped ? static_cast<char>(PdfHexValue(bytes_[at_]) << 4 | PdfHexValue(bytes_[at_ + 1])) : c;
    if (escaped) at_ += 2;
  }
  return name;
}

// Past the backslash.
void PdfReader::AppendEscape(std::string& text) {
  constexpr std::string_view kLetters = "nrtbf";
  constexpr std::string_view kMeanings = "\n\r\t\b\f";
  if (const std::size_t letter = kLetters.find(Peek()); letter != std::string_view::npos) {
    text += kMeanings[letter];
    ++at_;
    return;
  }
  if (Peek() == '\r' || Peek() == '\n') {
    at_ += IsAt("\r\n") ? 2 : 1;
    return;
  }
  int octal = 0;
  const std::size_t begin = at_;
  while (at_ - begin < 3 && Peek() >= '0' && Peek() <= '7') octal = octal * 8 + (bytes_[at_++] - '0');
  text += at_ > begin ? static_cast<char>(octal & 0xFF) : Peek();
  if (at_ == begin) ++at_;
}

std::optional<PdfValue> PdfReader::Literal() {
  PdfValue value{PdfValue::Kind::String, 0, {}, {}, {}};
  int open = 1;
  ++at_;
  while (at_ < bytes_.size() && value.text.size() < kLongestString) {
    const char c = bytes_[at_++];
    open += c == '(' ? 1 : c == ')' ? -1 : 0;
    if (open == 0) return value;
    if (c != '\\') {
      value.text += c;
    } else if (at_ < bytes_.size()) {
      AppendEscape(value.text);
    }
  }
  return std::nullopt;
}

std::optional<PdfValue> PdfReader::Hexadecimal() {
  PdfValue value{PdfValue::Kind::String, 0, {}, {}, {}};
  ++at_;
  bool upper = true;
  while (at_ < bytes_.size() && value.text.size() < kLongestString) {
    const char c = bytes_[at_++];
    if (c == '>') return value;
    const int digit = PdfHexValue(c);
    if (digit < 0 && !IsPdfBlank(c)) return std::nullopt;
    if (digit < 0) continue;
    if (upper) {
      value.text += static_cast<char>(digit << 4);
    } else {
      value.text.back() = static_cast<char>(static_cast<unsigned char>(value.text.back()) | digit);
    }
    upper = !upper;
  }
  return std::nullopt;
}

std::string PdfText(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) return std::string(bytes.substr(3));
  const bool is_wide = bytes.starts_with("\xFE\xFF");
  std::u16string text;
  for (std::size_t at = is_wide ? 2 : 0; at + (is_wide ? 1 : 0) < bytes.size(); at += is_wide ? 2 : 1) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    text += is_wide ? static_cast<char16_t>(first << 8 | static_cast<unsigned char>(bytes[at + 1])) : first;
  }
  return ravo::ToUtf8(text);
}

}  // namespace tool
