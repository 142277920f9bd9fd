#pragma once

#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/codec/run_until.h>
#include <ravo/codec/single_byte.h>
#include <ravo/codec/utf8.h>
#include <ravo/codec/wide_units.h>

#include <algorithm>
#include <bit>
#include <cstddef>

/// An engine over spans: kernels as far as they go, single characters in between.
namespace ravo::codec {

/// Decodes complete characters one by one.
template <class Codec>
Run DecodeSingly(ByteSpan bytes, TextRoom text) {
  Run run;
  for (; run.made < text.size(); ++run.made) {
    SpanSource source(bytes.subspan(run.taken));
    char16_t ch = 0;
    if (!Codec::Decode(source, ch) || source.Exhausted()) break;
    text[run.made] = ch;
    run.taken += source.Position();
  }
  return run;
}

template <class Codec>
Run EncodeSingly(TextSpan text, ByteRoom bytes) {
  SpanTarget target(bytes);
  Run run;
  while (run.taken < text.size() && target.Room() >= Codec::kMostBytes &&
         Codec::Encode(target, text[run.taken])) {
    ++run.taken;
  }
  run.made = target.Count();
  return run;
}

/// The kernels of an engine; none unless specialized.
template <class Codec>
struct Blocks {
  static Run Decode(ByteSpan, TextRoom) { return {}; }
  static Run Encode(TextSpan, ByteRoom) { return {}; }
};

template <const ByteTable& table>
struct Blocks<SingleByte<table>> {
  static Run Decode(ByteSpan bytes, TextRoom text) {
    if constexpr (!HasAscii(table)) return DecodeSingleByteBlocks(table, bytes, text);
    // Untested: unreachable in the instances without ASCII.
    return ChosenKernels().decode_single_byte(table, bytes, text);
  }
  static Run Encode(TextSpan text, ByteRoom bytes) {
    return ChosenKernels().encode_single_byte(Reversed<table>::Table(), HasAscii(table), text, bytes);
  }
};

template <class Policy>
struct Blocks<Utf8Engine<Policy>> {
  static Run Decode(ByteSpan bytes, TextRoom text) { return ChosenKernels().decode_utf8(bytes, text); }
  static Run Encode(TextSpan text, ByteRoom bytes) { return ChosenKernels().encode_utf8(text, bytes); }
};

template <class Order, bool plain_only>
struct UnitBlocks {
  static constexpr bool kSwap = Order::kUpperHalfFirst == (std::endian::native == std::endian::little);
  static Run Decode(ByteSpan bytes, TextRoom text) {
    return ChosenKernels().decode_units(kSwap, plain_only, bytes, text);
  }
  static Run Encode(TextSpan text, ByteRoom bytes) {
    return ChosenKernels().encode_units(kSwap, plain_only, text, bytes);
  }
};
template <class Order>
struct Blocks<Utf16<Order>> : UnitBlocks<Order, true> {};
template <class Order>
struct Blocks<Ucs2<Order>> : UnitBlocks<Order, false> {};

/// Alternates blocks, as far as they go, with some single characters, until neither makes progress.
template <class Source, class Target, class InBlocks, class Singly>
Run Alternate(Source source, Target target, InBlocks in_blocks, Singly singly) {
  constexpr std::size_t kSome = 16;
  Run run;
  for (;;) {
    const Run blocks = in_blocks(source.subspan(run.taken), target.subspan(run.made));
    run.taken += blocks.taken;
    run.made += blocks.made;
    const Run some = singly(source.subspan(run.taken), target.subspan(run.made), kSome);
    if (some.taken == 0) return run;
    run.taken += some.taken;
    run.made += some.made;
  }
}

template <class Codec>
Run DecodeWith(ByteSpan bytes, TextRoom text) {
  const auto singly = [](ByteSpan from, TextRoom to, std::size_t count) {
    return DecodeSingly<Codec>(from, to.first(std::min(to.size(), count)));
  };
  return Alternate(bytes, text, Blocks<Codec>::Decode, singly);
}

template <class Codec>
Run EncodeWith(TextSpan text, ByteRoom bytes) {
  const auto singly = [](TextSpan from, ByteRoom to, std::size_t count) {
    return EncodeSingly<Codec>(from.first(std::min(from.size(), count)), to);
  };
  return Alternate(text, bytes, Blocks<Codec>::Encode, singly);
}

/// Runs that end before a given byte, for encodings in which ASCII characters and bytes below 0x80 are the
/// same.
template <class Codec>
struct Until {
  static constexpr DecodeUntil kDecode = nullptr;
};

template <const ByteTable& table>
struct Until<SingleByte<table>> {
  static RunUntil Decode(ByteSpan bytes, TextRoom text, EndBytes ends) {
    const auto until = ChosenKernels().decode_single_byte_until;
    return until != nullptr ? until(bytes, text, ends, table)
                            : DecodeUntilByBlocks(bytes, text, ends, DecodeWith<SingleByte<table>>);
  }
  static constexpr DecodeUntil kDecode = KeepsAscii(table) ? Decode : nullptr;
};

template <class Policy>
struct Until<Utf8Engine<Policy>> {
  static RunUntil Decode(ByteSpan bytes, TextRoom text, EndBytes ends) {
    const auto until = ChosenKernels().decode_utf8_until;
    return until != nullptr ? until(bytes, text, ends)
                            : DecodeUntilByBlocks(bytes, text, ends, DecodeWith<Utf8Engine<Policy>>);
  }
  static constexpr DecodeUntil kDecode = Decode;
};

}  // namespace ravo::codec
