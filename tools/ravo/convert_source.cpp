#include "convert_source.h"

#include "encoding_guess.h"
#include "text.h"
#include <ravo/codec/byte_order_mark.h>
#include <ravo/convert/exact_encoding.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace tool {
namespace {

namespace codec = ravo::codec;

std::string_view CharsOf(codec::ByteSpan bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// The name without byte order, of the row in big-endian order.
constexpr std::string_view kOpenNames[] = {"UTF_16", "UTF_32", "UCS_2", "UCS_4"};

bool SameName(std::string_view left, std::string_view right) {
  const auto folded = [](std::string_view name) {
    std::string letters;
    for (const char c : name) {
      if (c >= 'A' && c <= 'Z') letters += static_cast<char>(c + ('a' - 'A'));
      if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) letters += c;
    }
    return letters;
  };
  return folded(left) == folded(right);
}

const codec::Encoding& InOrder(const codec::Encoding& row, std::string_view order) {
  return *codec::FindEncoding(std::string(row.name.substr(0, row.name.size() - 3)) + std::string(order));
}

bool BeginsWithMark(const codec::Encoding& row, codec::ByteSpan bytes) {
  constexpr char32_t kMark = 0xFEFF;
  codec::State state;
  return ravo::convert::ExactEncoding(row).Read(state, bytes, true).code == kMark;
}

// The order by the mark or, without one, by the zero bytes; big-endian if there are none.
FoundEncoding FindOrder(const codec::Encoding& row, ByteSource& source) {
  const auto first = source.Peek(kSampleSize);
  for (const std::string_view order : {"_BE", "_LE"}) {
    const codec::Encoding& ordered = InOrder(row, order);
    if (!BeginsWithMark(ordered, first)) continue;
    source.Skip(row.name.ends_with("4_BE") || row.name.ends_with("32_BE") ? 4 : 2);
    return {&ordered, {}};
  }
  const EncodingGuess guess = GuessEncoding(CharsOf(first));
  const codec::Encoding& found = InOrder(row, guess.encoding.ends_with("_LE") ? "_LE" : "_BE");
  return {&found,
          first.empty() ? std::string() : Text("taken as {0}: it has no byte-order mark", {found.label})};
}

FoundEncoding Guess(ByteSource& source) {
  const auto first = source.Peek(kSampleSize);
  const EncodingGuess guess = GuessEncoding(CharsOf(first));
  source.Skip(codec::FindByteOrderMark(first).length);
  const codec::Encoding* const row = codec::FindEncoding(std::string_view(guess.encoding));
  const auto label = row->label.substr(0, row->label.find(" ("));
  if (guess.certain) return {row, Text("taken as {0}: {1}", {label, guess.why})};
  return {row, Text("taken as {0}, which is not certain: {1}", {label, guess.why})};
}

}  // namespace

codec::ByteSpan ByteSource::Peek(std::size_t size) {
  ahead_.erase(ahead_.begin(), ahead_.begin() + static_cast<std::ptrdiff_t>(std::exchange(begin_, 0)));
  std::size_t have = ahead_.size();
  ahead_.resize(std::max(have, size));
  while (have < size) {
    const std::size_t count = read_(std::span(ahead_).subspan(have));
    if (count == 0) break;
    have += count;
  }
  ahead_.resize(have);
  return codec::ByteSpan(ahead_).first(std::min(have, size));
}

std::size_t ByteSource::ReadSome(std::span<std::uint8_t> to) {
  if (begin_ == ahead_.size()) return read_(to);
  const std::size_t count = std::min(to.size(), ahead_.size() - begin_);
  std::ranges::copy(std::span(ahead_).subspan(begin_, count), to.begin());
  begin_ += count;
  return count;
}

std::size_t ByteSource::ReadFully(std::span<std::uint8_t> to) {
  std::size_t have = 0;
  while (have < to.size()) {
    const std::size_t count = ReadSome(to.subspan(have));
    if (count == 0) break;
    have += count;
  }
  return have;
}

std::optional<SourceEncoding> SourceEncodingOf(const std::string& name) {
  if (name.empty() || name == "auto") return SourceEncoding{};
  const codec::Encoding* const row = codec::FindEncoding(std::string_view(name));
  if (row == nullptr) return {};
  const bool is_open =
      std::ranges::any_of(kOpenNames, [&](std::string_view open) { return SameName(open, name); });
  return SourceEncoding{row, is_open};
}

std::size_t LengthOfPlain(codec::ByteSpan bytes) {
  const auto tells = [](std::uint8_t byte) { return byte == 0 || byte >= 0x80; };
  return static_cast<std::size_t>(std::ranges::find_if(bytes, tells) - bytes.begin());
}

FoundEncoding FindOut(const SourceEncoding& encoding, ByteSource& source) {
  if (encoding.row == nullptr) return Guess(source);
  if (encoding.order_is_open) return FindOrder(*encoding.row, source);
  return {encoding.row, {}};
}

}  // namespace tool
