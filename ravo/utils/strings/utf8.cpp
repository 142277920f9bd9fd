#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/runtime/checked.h>
#include <ravo/runtime/overwrite.h>
#include <ravo/utils/strings/text_kind.h>
#include <ravo/utils/strings/utf8.h>
#include <ravo/utils/strings/utf8_kernels.h>

#include <algorithm>
#include <array>

namespace ravo::DIUtils {
namespace {

using codec::ByteRoom;
using codec::ByteSpan;
using codec::ChosenKernels;
using codec::TextRoom;

constexpr std::size_t kMostBytes = 3;
// Texts up to this length are encoded on the stack: faster than to find out how long they get.
constexpr std::size_t kShort = 512;

// Decodes the front of `bytes`, which it takes off: all of it if there is room for a unit per byte.
std::size_t DecodeSome(std::string_view& bytes, TextRoom room) {
  char16_t* to = room.data();
  char16_t* const end = to + room.size();
  for (;;) {
    const ByteSpan from(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    const codec::Run run = ChosenKernels().decode_utf8(from, {to, end});
    bytes.remove_prefix(run.taken);
    to += run.made;
    const auto left = static_cast<std::size_t>(end - to);
    if (bytes.empty() || left < std::min(bytes.size(), strings::kFew)) break;
    to = strings::DecodeFewUtf8(bytes, to);
  }
  return static_cast<std::size_t>(to - room.data());
}

// Encodes into room that is long enough.
std::size_t Encode(std::u16string_view text, ByteRoom room) {
  std::uint8_t* to = room.data();
  while (!text.empty()) {
    const codec::Run run = ChosenKernels().encode_utf8(text, {to, room.data() + room.size()});
    text.remove_prefix(run.taken);
    const std::u16string_view few = text.substr(0, strings::kFew);
    to = reinterpret_cast<std::uint8_t*>(
        strings::EncodeUtf8Plainly(few, reinterpret_cast<char*>(to + run.made)));
    text.remove_prefix(few.size());
  }
  return static_cast<std::size_t>(to - room.data());
}

std::string EncodeShort(std::u16string_view text) {
  std::array<std::uint8_t, kMostBytes * kShort> bytes;
  const std::size_t size = Encode(text, bytes);
  return {reinterpret_cast<const char*>(bytes.data()), size};
}

}  // namespace

std::size_t StrCountUtf8Chars(std::string_view bytes) noexcept {
  std::array<char16_t, kShort> text;
  std::size_t count = 0;
  while (!bytes.empty()) count += DecodeSome(bytes, text);
  return count;
}
std::size_t BufCountUtf8Chars(const char* buffer, std::size_t length) noexcept {
  return StrCountUtf8Chars(strings::Buffer(buffer, length));
}

std::u16string StrDecodeUtf8(std::string_view bytes) {
  return Written<char16_t>(bytes.size(), [bytes](char16_t* to, std::size_t room) mutable {
    return DecodeSome(bytes, {to, room});
  });
}
std::u16string BufDecodeUtf8(const char* buffer, std::size_t length) {
  return StrDecodeUtf8(strings::Buffer(buffer, length));
}

std::string StrEncodeUtf8(std::u16string_view text) {
  if (text.size() <= kShort) return EncodeShort(text);
  static_cast<void>(CheckedMultiply<std::size_t>(text.size(), kMostBytes));
  return Written<char>(ChosenKernels().utf8_length(text), [text](char* to, std::size_t room) {
    return Encode(text, {reinterpret_cast<std::uint8_t*>(to), room});
  });
}
std::string BufEncodeUtf8(const char16_t* buffer, std::size_t length) {
  return StrEncodeUtf8(strings::Buffer(buffer, length));
}

}  // namespace ravo::DIUtils
