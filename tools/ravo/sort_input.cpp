#include "sort_input.h"

#include "encoding_label.h"
#include "text.h"
#include "utf8_reader.h"
#include "whole_input.h"
#include <ravo/RavoInterface.h>
#include <ravo/codec/texts.h>

#include <algorithm>
#include <stdexcept>

namespace tool {
namespace {

constexpr std::string_view kMarkInUtf8 = "\uFEFF";

const ravo::codec::Encoding& EncodingCalled(const std::string& name) {
  const ravo::codec::Encoding* const encoding = ravo::codec::FindEncoding(std::string_view(name));
  if (encoding == nullptr || encoding->decode_one == nullptr || encoding->encode_one == nullptr) {
    throw std::runtime_error(Text("there is no encoding {0}; see ravo encodings", {name}));
  }
  return *encoding;
}

// The line and the column of a character, both from 1.
std::string PlaceOf(std::string_view text, std::size_t at) {
  const std::string_view before = text.substr(0, at);
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const std::string_view start = before.substr(before.rfind('\n') + 1);
  const auto column =
      1 + std::count_if(start.begin(), start.end(), [](char c) { return (c & 0xC0) != 0x80; });
  return std::to_string(line) + ":" + std::to_string(column);
}

// The last line ends as the first one does.
void EndLastLine(std::string& text) {
  if (text.empty() || text.ends_with('\n')) return;
  const std::size_t end = text.find('\n');
  text += end != std::string::npos && end > 0 && text[end - 1] == '\r' ? "\r\n" : "\n";
}

}  // namespace

SortInput::SortInput(const std::string& encoding) : encoding_(EncodingCalled(encoding)) {}

std::string SortInput::InUtf8(std::string bytes, const std::string& name) const {
  if (IsUtf8()) {
    const std::size_t valid = ValidUtf8Length(bytes);
    if (valid == bytes.size()) return bytes;
    throw std::runtime_error(name + ":" + PlaceOf(bytes, valid) + ": " +
                             Text("this byte is not UTF-8; --encoding names the encoding of the files"));
  }
  std::string text = ravo::ToUtf8(ravo::codec::Decoded(encoding_, bytes));
  const std::string back = InEncoding(text);
  if (back == bytes) return text;
  const auto differ =
      std::mismatch(bytes.begin(), bytes.end(), back.begin(), back.end()).first - bytes.begin();
  throw std::runtime_error(
      name + ": " +
      Text("byte {0} cannot be read as {1}", {std::to_string(differ + 1), ShortLabel(encoding_.label)}));
}

void SortInput::Add(const std::string& name) {
  std::string reason;
  std::optional<std::string> bytes = ReadWhole(name, &reason);
  if (!bytes) throw std::runtime_error(name + ": " + reason);
  std::string& text = sources_.emplace_back(Source{name, InUtf8(std::move(*bytes), name)}).text;
  if (text.starts_with(kMarkInUtf8)) {
    text.erase(0, kMarkInUtf8.size());
    if (sources_.size() == 1) mark_ = kMarkInUtf8;
  }
  EndLastLine(text);
}

std::optional<std::string_view> SortInput::TakeHeader() {
  std::optional<std::string_view> header;
  for (Source& source : sources_) {
    if (source.text.empty()) continue;
    const std::string_view line = std::string_view(source.text).substr(0, source.text.find('\n'));
    source.begin = line.size() + 1;
    if (!header) header = line;
    if (TextOfLine(line) != TextOfLine(*header))
      throw std::runtime_error(source.name + ": " + Text("its first line is not that of the first file"));
  }
  return header;
}

Lines SortInput::AllLines() const {
  Lines lines;
  for (const Source& source : sources_) {
    std::string_view text = std::string_view(source.text).substr(source.begin);
    lines.reserve(lines.size() + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')));
    while (!text.empty()) {
      const std::size_t end = text.find('\n');
      lines.push_back(text.substr(0, end));
      text.remove_prefix(end + 1);
    }
  }
  return lines;
}

std::string SortInput::InEncoding(std::string_view text) const {
  return IsUtf8() ? std::string(text) : ravo::codec::Encoded(encoding_, ravo::FromUtf8(text));
}

}  // namespace tool
