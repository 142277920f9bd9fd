#pragma once

#include <ravo/codec/byte_spans.h>
#include <ravo/codec/utf7_state.h>

#include <cstdint>

/// UTF-7 by RFC 2152. The caller keeps the state between characters.
namespace ravo::codec {

/// Whether a character may be written directly, by RFC 2152.
enum class Utf7Direct : std::uint8_t { Always, Optional, Never };
[[nodiscard]] Utf7Direct Utf7DirectKind(char16_t ch) noexcept;

/// Returns the six bits of a base 64 byte; negative for any other byte.
[[nodiscard]] int Base64Value(std::uint8_t byte) noexcept;
[[nodiscard]] std::uint8_t Base64Byte(std::uint32_t six_bits) noexcept;

struct Utf7Decoder {
  static constexpr bool kHasState = true;

  template <class Source>
  static bool Decode(Source& source, Utf7State& state, char16_t& ch) {
    std::uint8_t byte = 0;
    while (source.PeekByte(byte)) {
      if (!state.in_base64) {
        source.SkipByte();
        if (byte != '+') return Give(byte < 0x80 ? char16_t{byte} : kReplacement, ch);
        state = {.in_base64 = true, .empty = true};
      } else if (const int value = Base64Value(byte); value >= 0) {
        source.SkipByte();
        if (Add(state, static_cast<std::uint32_t>(value), ch)) return true;
      } else {
        if (byte == '-') source.SkipByte();
        if (byte == '-' && state.empty) return Give(u'+', Leave(state, ch));
        if (!LeavesWhole(state, ch)) return true;
      }
    }
    return !LeavesWhole(state, ch);
  }

 private:
  static bool Give(char16_t value, char16_t& ch) {
    ch = value;
    return true;
  }

  static char16_t& Leave(Utf7State& state, char16_t& ch) {
    state = {};
    return ch;
  }

  /// Ends a run. False, with U+FFFD, if the run is empty or has six or more bits, or nonzero ones, left.
  static bool LeavesWhole(Utf7State& state, char16_t& ch) {
    const bool whole = !state.empty && state.bit_count < 6 && state.bits == 0;
    state = {};
    if (!whole) ch = kReplacement;
    return whole;
  }

  /// Adds six bits. True if they complete a unit.
  static bool Add(Utf7State& state, std::uint32_t six_bits, char16_t& ch) {
    state.empty = false;
    state.bits = state.bits << 6 | six_bits;
    state.bit_count = static_cast<std::uint8_t>(state.bit_count + 6);
    if (state.bit_count < 16) return false;
    state.bit_count = static_cast<std::uint8_t>(state.bit_count - 16);
    ch = static_cast<char16_t>(state.bits >> state.bit_count);
    state.bits &= (1U << state.bit_count) - 1;
    return true;
  }
};

/// Writes characters that are always direct, and those of `most`, as they are; all others in base 64.
template <Utf7Direct most>
struct Utf7Encoder {
  static constexpr bool kHasState = true;

  template <class Target>
  static bool Encode(Target& target, Utf7State& state, char16_t ch) {
    if (Utf7DirectKind(ch) <= most) {
      if (state.in_base64)
        EndRun(target, state, Base64Value(static_cast<std::uint8_t>(ch)) >= 0 || ch == u'-');
      target.WriteByte(static_cast<std::uint8_t>(ch));
    } else if (ch == u'+' && !state.in_base64) {
      target.WriteByte('+');
      target.WriteByte('-');
    } else {
      if (!state.in_base64) target.WriteByte('+');
      state.in_base64 = true;
      Add(target, state, ch);
    }
    return true;
  }

  template <class Target>
  static void Flush(Target& target, Utf7State& state) {
    if (state.in_base64) EndRun(target, state, true);
  }

 private:
  template <class Target>
  static void Add(Target& target, Utf7State& state, char16_t ch) {
    state.bits = state.bits << 16 | ch;
    int count = state.bit_count + 16;
    for (; count >= 6; count -= 6) target.WriteByte(Base64Byte(state.bits >> (count - 6)));
    state.bit_count = static_cast<std::uint8_t>(count);
    state.bits &= (1U << count) - 1;
  }

  template <class Target>
  static void EndRun(Target& target, Utf7State& state, bool closed) {
    if (state.bit_count > 0) target.WriteByte(Base64Byte(state.bits << (6 - state.bit_count)));
    if (closed) target.WriteByte('-');
    state = {};
  }
};

struct Utf7 : Utf7Decoder, Utf7Encoder<Utf7Direct::Always> {
  using Utf7Decoder::kHasState;
};

}  // namespace ravo::codec
