#pragma once

#include <ravo/codec/gb18030.h>
#include <ravo/codec/generated/single_byte_tables.h>
#include <ravo/codec/single_byte.h>
#include <ravo/codec/utf7.h>
#include <ravo/codec/utf8.h>
#include <ravo/codec/wide_units.h>

/// The codec of every encoding, under its name: an engine over a table. A codec has `Decode` from a source of
/// bytes, `Encode` to a target, or both; `kHasState` if it keeps state between characters.
namespace ravo::codec::codecs {

#define RAVO_CODEC_SingleByte(table) SingleByte<tables::k##table>
#define RAVO_CODEC_Utf8(table) Utf8
#define RAVO_CODEC_Utf16(table) Utf16<table>
#define RAVO_CODEC_Ucs2(table) Ucs2<table>
#define RAVO_CODEC_Utf32(table) Utf32<table>
#define RAVO_CODEC_Ucs4(table) Ucs4<table>
#define RAVO_CODEC_Utf7(table) Utf7
#define RAVO_CODEC_Utf7Odc(table) Utf7Encoder<Utf7Direct::Optional>
#define RAVO_CODEC_Gb18030(table) Gb18030

// A declared name cannot be in parentheses.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define RAVO_ENCODING(name, label, code_page, aliases, engine, ways, table, sources, notes) \
  using name = RAVO_CODEC_##engine(table);
#include <ravo/codec/rows.inc>
#undef RAVO_ENCODING
// NOLINTEND(bugprone-macro-parentheses)

#undef RAVO_CODEC_SingleByte
#undef RAVO_CODEC_Utf8
#undef RAVO_CODEC_Utf16
#undef RAVO_CODEC_Ucs2
#undef RAVO_CODEC_Utf32
#undef RAVO_CODEC_Ucs4
#undef RAVO_CODEC_Utf7
#undef RAVO_CODEC_Utf7Odc
#undef RAVO_CODEC_Gb18030

template <class Codec>
concept HasState = requires {
  Codec::kHasState;
};

}  // namespace ravo::codec::codecs
