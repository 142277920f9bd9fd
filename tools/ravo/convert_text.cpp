#include "convert_text.h"

#include <ravo/codec/byte_order_mark.h>
#include <ravo/codec/kernels/run_search.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <utility>

namespace tool {
namespace {

namespace codec = ravo::codec;

// A block, its units and their bytes fit into the second-level cache together.
constexpr std::size_t kBlock = 1 << 16;

std::string CodePoint(char16_t c) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "U+%04X", static_cast<unsigned>(c));
  return text.data();
}

std::size_t FindUnreadable(std::u16string_view text) {
  return codec::LengthBefore(std::span<const char16_t>(text), codec::OneOf(codec::kReplacement));
}

std::string_view AsText(std::span<const std::uint8_t> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace

// The bytes that are read and not yet converted.
struct Converter::Input {
  explicit Input(const Read& from) : read(from) {}

  // Reads more after the bytes that are left.
  void Fill() {
    std::memmove(block.data(), block.data() + begin, end - begin);
    end -= std::exchange(begin, 0);
    const std::size_t count = read(std::as_writable_bytes(std::span(block).subspan(end)));
    is_last = count == 0;
    end += count;
  }
  // False at the end of the text.
  bool FillUpTo(std::size_t size) {
    while (end - begin < size && !is_last) Fill();
    return end != begin;
  }
  void Take(std::size_t count) {
    begin += count;
    taken += static_cast<std::int64_t>(count);
  }
  [[nodiscard]] std::span<const std::uint8_t> Bytes() const {
    return std::span(block).subspan(begin, end - begin);
  }

  const Read& read;
  std::vector<std::uint8_t> block = std::vector<std::uint8_t>(kBlock);
  std::size_t begin = 0;
  std::size_t end = 0;
  bool is_last = false;
  std::int64_t taken = 0;
};

Converter::Converter(const Conversion& conversion, Write write)
    : conversion_(conversion), write_(std::move(write)), units_(kBlock + 1), made_(2 * kBlock) {}

// The place of the last character of `text`, which begins after the current one.
std::string Converter::At(std::u16string_view text) {
  place_.Advance(text);
  return std::to_string(place_.Line()) + ":" + std::to_string(place_.Column()) + ": ";
}

// Up to the first character that the encoding lacks: how many characters that are.
std::size_t Converter::Encode(std::u16string_view text) {
  std::size_t taken = 0;
  codec::Step step{.taken = 0, .made = 0, .stop = codec::Stop::RoomUsed};
  while (step.stop == codec::Stop::RoomUsed) {
    step = codec::Encode(*conversion_.to, state_, text.substr(taken), made_);
    write_(AsText(std::span(made_).first(step.made)));
    taken += step.taken;
  }
  return taken;
}

// For a character that the encoding lacks: the replacement, "?" if it lacks that too, at last nothing.
void Converter::Replace() {
  for (const char16_t c : {*conversion_.replacement, u'?'}) {
    if (Encode({&c, 1}) == 1) return;
  }
}

Refusal Converter::Transfer(std::u16string_view text) {
  const bool strict = !conversion_.replacement;
  const std::size_t readable = strict ? FindUnreadable(text) : text.size();
  for (std::size_t at = 0; at != readable; ++at) {
    at += Encode(text.substr(at, readable - at));
    if (at == readable) break;
    if (strict)
      return At(text.substr(0, at + 1)) + CodePoint(text[at]) + " cannot be written in " +
             std::string(conversion_.to->name);
    Replace();
  }
  if (readable != text.size()) return At(text.substr(0, readable + 1)) + "bytes that cannot be read";
  place_.Advance(text);
  return {};
}

Refusal Converter::Convert(const Read& read, const Progress& progress) {
  Input input(read);
  const codec::Encoding* from = conversion_.from;
  if (from == nullptr) {
    input.FillUpTo(codec::kLongestByteOrderMark);
    const codec::ByteOrderMark mark = codec::FindByteOrderMark(input.Bytes());
    from = codec::FindEncoding(mark.length != 0 ? mark.encoding : "UTF_8");
    input.Take(mark.length);
  }
  place_ = {};
  codec::State state;
  codec::Step step;
  for (;;) {
    const auto more = input.is_last ? codec::Input::IsLast : codec::Input::MoreFollows;
    step = codec::Decode(*from, state, input.Bytes(), units_, more);
    input.Take(step.taken);
    if (Refusal refusal = Transfer({units_.data(), step.made})) return refusal;
    progress(input.taken);
    // Some encodings end at a unit that nothing can be made of, with bytes after it.
    if (step.stop == codec::Stop::EndOfData && input.FillUpTo(1)) {
      if (!conversion_.replacement) return At({}) + "bytes that cannot be read after this character";
      if (Encode(std::u16string_view(&codec::kReplacement, 1)) == 0) Replace();
    } else if (step.stop != codec::Stop::RoomUsed) {
      if (input.is_last) return {};
      input.Fill();
    }
  }
}

void Converter::Finish() {
  write_(AsText(std::span(made_).first(
      codec::Flush(*conversion_.to, state_, std::span(made_).first<codec::kMostBytesAtOnce>()))));
}

}  // namespace tool
