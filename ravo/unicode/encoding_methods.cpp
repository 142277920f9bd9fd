#include <ravo/codec/codecs.h>
#include <ravo/unicode/encodings.h>
#include <ravo/unicode/utf7_state.h>

// Defines the routines and constants of every row, over its codec.
namespace ravo::DIUnicode {
namespace {

namespace codecs = codec::codecs;
using unicode::FreeUtf7State;
using unicode::Utf7StateOf;

template <class Codec>
consteval TDIUnicodeReadMethods ReadMethods(bool (*read_char)(TDIUnicodeReader&, char16_t&)) {
  if constexpr (codecs::HasState<Codec>) return {Read_UTF_7_Init, read_char, Read_UTF_7_Finalize};
  return {nullptr, read_char, nullptr};
}

template <class Codec>
consteval TDIUnicodeWriteMethods WriteMethods(bool (*write_char)(TDIUnicodeWriter&, char16_t)) {
  if constexpr (codecs::HasState<Codec>) {
    return {Write_UTF_7_Init, write_char, Write_UTF_7_Flush, Write_UTF_7_Finalize};
  }
  return {nullptr, write_char, nullptr, nullptr};
}

template <class Codec>
bool Read(TDIUnicodeReader& reader, char16_t& ch) {
  if constexpr (codecs::HasState<Codec>)
    return Codec::Decode(reader, Utf7StateOf(reader), ch);
  else
    return Codec::Decode(reader, ch);
}

template <class Codec>
bool Write(TDIUnicodeWriter& writer, char16_t ch) {
  if constexpr (codecs::HasState<Codec>)
    return Codec::Encode(writer, Utf7StateOf(writer), ch);
  else
    return Codec::Encode(writer, ch);
}

}  // namespace

#define RAVO_DEFINE_ReadOnly(name)                                      \
  bool Read_##name##_ReadChar(TDIUnicodeReader& reader, char16_t& ch) { \
    return Read<codecs::name>(reader, ch);                              \
  }                                                                     \
  constinit const TDIUnicodeReadMethods Read_##name = ReadMethods<codecs::name>(Read_##name##_ReadChar);
#define RAVO_DEFINE_WriteOnly(name)                                      \
  bool Write_##name##_WriteChar(TDIUnicodeWriter& writer, char16_t ch) { \
    return Write<codecs::name>(writer, ch);                              \
  }                                                                      \
  constinit const TDIUnicodeWriteMethods Write_##name = WriteMethods<codecs::name>(Write_##name##_WriteChar);
#define RAVO_DEFINE_Both(name) RAVO_DEFINE_ReadOnly(name) RAVO_DEFINE_WriteOnly(name)

#define RAVO_ENCODING(name, label, code_page, aliases, engine, ways, table, sources, notes) \
  RAVO_DEFINE_##ways(name)
#include <ravo/codec/rows.inc>
#undef RAVO_ENCODING

void Read_UTF_7_Init(TDIUnicodeReader& reader) { static_cast<void>(Utf7StateOf(reader)); }
void Read_UTF_7_Finalize(TDIUnicodeReader& reader) { FreeUtf7State(reader); }
void Write_UTF_7_Init(TDIUnicodeWriter& writer) { static_cast<void>(Utf7StateOf(writer)); }
void Write_UTF_7_Flush(TDIUnicodeWriter& writer) {
  codec::Utf7Encoder<codec::Utf7Direct::Always>::Flush(writer, Utf7StateOf(writer));
}
void Write_UTF_7_Finalize(TDIUnicodeWriter& writer) { FreeUtf7State(writer); }

}  // namespace ravo::DIUnicode
