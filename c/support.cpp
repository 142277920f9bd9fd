#include "support.h"

#include <cstdint>

namespace ravo::c {
namespace {

constexpr std::uint64_t kHighBits = 0x8080'8080'8080'8080;

bool IsTrail(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// The bytes of the well-formed character at the beginning of a text; 0 if it is ill-formed.
std::size_t CharacterLength(std::string_view text) noexcept {
  const auto at = [text](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  const unsigned lead = at(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  // The second byte rules out surrogates, what is past U+10FFFF, and what a shorter form has.
  const unsigned char second = at(1);
  const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (second < lowest || second > highest) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if (!IsTrail(at(i))) return 0;
  }
  return length;
}

// The longest part of a text that is not longer than `most` and ends with a whole character.
std::string_view CutAtCharacter(std::string_view text, std::size_t most) noexcept {
  if (text.size() <= most) return text;
  while (most > 0 && IsTrail(static_cast<unsigned char>(text[most]))) --most;
  return text.substr(0, most);
}

}  // namespace

std::size_t WellFormedLength(std::string_view text) noexcept {
  std::size_t at = 0;
  while (at < text.size()) {
    std::uint64_t word = 0;
    if (text.size() - at >= sizeof word) {
      std::memcpy(&word, text.data() + at, sizeof word);
      if ((word & kHighBits) == 0) {
        at += sizeof word;
        continue;
      }
    }
    const std::size_t length = CharacterLength(text.substr(at));
    if (length == 0) return at;
    at += length;
  }
  return at;
}

Units::Units(std::string_view text) {
  if (text.size() > few_.size()) {
    many_.resize(text.size());
    units_ = many_.data();
  }
  for (std::size_t at = 0; at < text.size();) {
    const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(text[at + index]); };
    const auto trail = [&](std::size_t index) { return char32_t{byte(index)} & 0x3F; };
    const unsigned lead = byte(0);
    if (lead < 0x80) {
      units_[count_++] = static_cast<char16_t>(lead);
      at += 1;
    } else if (lead < 0xE0) {
      units_[count_++] = static_cast<char16_t>((lead & 0x1F) << 6 | trail(1));
      at += 2;
    } else if (lead < 0xF0) {
      units_[count_++] = static_cast<char16_t>((lead & 0x0F) << 12 | trail(1) << 6 | trail(2));
      at += 3;
    } else {
      const char32_t code = (lead & 0x07) << 18 | trail(1) << 12 | trail(2) << 6 | trail(3);
      units_[count_++] = static_cast<char16_t>(0xD7C0 + (code >> 10));
      units_[count_++] = static_cast<char16_t>(0xDC00 + (code & 0x3FF));
      at += 4;
    }
  }
}

ravo_status WriteBytes(const TextOut& out, std::string_view bytes, ravo_error* error,
                       std::size_t zeros) noexcept {
  if (IsBroken(out)) return FailArgument(error, "the buffer is null, but its size is not 0");
  const std::size_t total = bytes.size() + zeros;
  if (out.length != nullptr) *out.length = total;
  if (out.buffer == nullptr) return RAVO_OK;
  if (out.size < total) return Fail(error, {RAVO_BUFFER, 0, 0, "the result is longer than its buffer"});
  std::fill_n(std::copy_n(bytes.data(), bytes.size(), out.buffer), zeros, '\0');
  return RAVO_OK;
}

ravo_status WriteText(const TextOut& out, std::string_view text, ravo_error* error) noexcept {
  if (IsBroken(out)) return FailArgument(error, "the buffer is null, but its size is not 0");
  if (out.length != nullptr) *out.length = text.size();
  if (out.size == 0) {
    // Without a buffer the caller asks for the length.
    if (out.buffer == nullptr) return RAVO_OK;
    return Fail(error, {RAVO_BUFFER, 0, 0, "the result is longer than its buffer"});
  }
  const std::string_view fits = CutAtCharacter(text, out.size - 1);
  std::copy_n(fits.data(), fits.size(), out.buffer);
  out.buffer[fits.size()] = '\0';
  if (fits.size() == text.size()) return RAVO_OK;
  return Fail(error, {RAVO_BUFFER, 0, 0, "the result is longer than its buffer"});
}

}  // namespace ravo::c
