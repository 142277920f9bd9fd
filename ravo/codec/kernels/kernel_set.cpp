#include <ravo/codec/kernels/kernels.h>

#include <algorithm>

namespace ravo::codec {
namespace {

bool RunsEverywhere() noexcept { return true; }

Run DecodeNone(ByteSpan, TextRoom) noexcept { return {}; }
Run EncodeNone(TextSpan, ByteRoom) noexcept { return {}; }
std::size_t PlainUtf8Length(TextSpan text) noexcept {
  std::size_t length = text.size();
  for (const char16_t unit : text) length += (unit >= 0x80 ? 1U : 0U) + (unit >= 0x800 ? 1U : 0U);
  return length;
}
Run DecodeNoTable(const ByteTable&, ByteSpan, TextRoom) noexcept { return {}; }
Run EncodeNoTable(const ReverseTable&, bool, TextSpan, ByteRoom) noexcept { return {}; }
Run DecodeNoUnits(bool, bool, ByteSpan, TextRoom) noexcept { return {}; }
Run EncodeNoUnits(bool, bool, TextSpan, ByteRoom) noexcept { return {}; }
std::size_t FindSpecialPlainly(TextSpan text) noexcept {
  return static_cast<std::size_t>(std::ranges::find_if(text, IsSpecial) - text.begin());
}

template <class Char>
std::size_t SkipNone(const Char*, const Char*, std::size_t, const Char (&)[2]) noexcept {
  return 0;
}

// Converts nothing, so the engine of one character converts everything.
constexpr KernelSet kPlain = {.name = "plain",
                              .runs_here = RunsEverywhere,
                              .decode_utf8 = DecodeNone,
                              .encode_utf8 = EncodeNone,
                              .utf8_length = PlainUtf8Length,
                              .decode_utf8_until = nullptr,
                              .decode_single_byte = DecodeNoTable,
                              .decode_single_byte_until = nullptr,
                              .encode_single_byte = EncodeNoTable,
                              .decode_units = DecodeNoUnits,
                              .encode_units = EncodeNoUnits,
                              .find_special = FindSpecialPlainly,
                              .skip_bytes = SkipNone<char>,
                              .skip_units = SkipNone<char16_t>};

// Every other set replaces the functions that it improves.

// Untested: runs at compile time only.
constexpr KernelSet Baseline() {
  KernelSet set = kPlain;
  set.name = "baseline";
  set.decode_utf8 = DecodeUtf8Ascii;
  set.encode_utf8 = EncodeUtf8Ascii;
  set.utf8_length = Utf8Length;
  set.decode_single_byte = DecodeSingleByteAscii;
  set.encode_single_byte = EncodeSingleByteBlocks;
  set.decode_units = DecodeUnitBlocks;
  set.encode_units = EncodeUnitBlocks;
  set.find_special = FindSpecialBlocks;
  return set;
}

#if defined(__SSE2__)

// Untested: runs at compile time only.
constexpr KernelSet Shuffling() {
  KernelSet set = Baseline();
  set.name = "shuffling";
  set.runs_here = HasSsse3;
  set.decode_utf8 = DecodeUtf8Ssse3;
  set.encode_utf8 = EncodeUtf8Ssse3;
  return set;
}

// Untested: runs at compile time only.
constexpr KernelSet Avx2() {
  KernelSet set = Baseline();
  set.name = "avx2";
  set.runs_here = HasAvx2;
  set.decode_utf8 = DecodeUtf8Avx2;
  set.encode_utf8 = EncodeUtf8Avx2;
  set.utf8_length = Utf8LengthAvx2;
  set.find_special = FindSpecialAvx2;
  set.skip_bytes = SkipBytesAvx2;
  set.skip_units = SkipUnitsAvx2;
  return set;
}

#endif

#if defined(__SSE2__) && defined(__x86_64__)

// Untested: runs at compile time only.
constexpr KernelSet Wide() {
  KernelSet set = Avx2();
  set.name = "wide";
  set.runs_here = HasAvx512;
  set.decode_utf8 = DecodeUtf8Avx512;
  set.encode_utf8 = EncodeUtf8Avx512;
  set.utf8_length = Utf8LengthAvx512;
  set.decode_utf8_until = DecodeUtf8UntilAvx512;
  set.decode_single_byte = DecodeSingleByteAvx512;
  set.decode_single_byte_until = DecodeSingleByteUntilAvx512;
  set.encode_single_byte = EncodeSingleByteAvx512;
  set.find_special = FindSpecialAvx512;
  return set;
}

#endif

constexpr KernelSet kSets[] = {
    kPlain,      Baseline(),
#if defined(__SSE2__)
    Shuffling(), Avx2(),
#endif
#if defined(__SSE2__) && defined(__x86_64__)
    Wide(),
#endif
};

}  // namespace

constinit KernelChoice<KernelSet> kernel_choice(kSets);

}  // namespace ravo::codec
