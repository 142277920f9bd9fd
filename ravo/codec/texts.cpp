#include <ravo/codec/codecs.h>
#include <ravo/codec/engine_runs.h>
#include <ravo/codec/texts.h>
#include <ravo/runtime/overwrite.h>

#include <algorithm>
#include <array>

namespace ravo::codec {
namespace {

constexpr ByteTable kWindows1250OfSystem = WithControls(tables::kWindows_1250);

using StringUtf8 = Utf8Engine<Utf8OfStrings>;
using System1250 = SingleByte<kWindows1250OfSystem>;

// Texts up to this length are encoded on the stack: faster than counting their bytes first.
constexpr std::size_t kShort = 512;
constexpr std::size_t kPiece = 4096;

ByteSpan BytesOf(std::string_view bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

void Append(std::string& to, ByteSpan bytes) {
  to.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

// Decodes the front of `bytes` and removes it; all of it if there is room. Alternates runs and single
// characters; a sequence that the end truncates counts as one.
template <class Engine>
std::size_t DecodeFront(ByteSpan& bytes, TextRoom text) {
  std::size_t made = 0;
  for (;;) {
    const Run run = DecodeWith<Engine>(bytes, text.subspan(made));
    made += run.made;
    bytes = bytes.subspan(run.taken);
    if (bytes.empty() || made == text.size()) return made;
    SpanSource source(bytes);
    static_cast<void>(Engine::Decode(source, text[made++]));
    bytes = bytes.subspan(source.Position());
  }
}

// No engine here gives more units than it takes bytes.
template <class Engine>
std::u16string DecodedBy(std::string_view bytes) {
  return Written<char16_t>(bytes.size(), [bytes](char16_t* to, std::size_t room) {
    ByteSpan rest = BytesOf(bytes);
    return DecodeFront<Engine>(rest, {to, room});
  });
}

// Encodes into enough room, with "?" for what the encoding lacks.
template <class Engine>
std::size_t EncodeAll(TextSpan text, ByteRoom bytes) {
  std::size_t made = 0;
  for (;;) {
    const Run run = EncodeWith<Engine>(text, bytes.subspan(made));
    made += run.made;
    text = text.subspan(run.taken);
    if (text.empty()) return made;
    std::array<std::uint8_t, Engine::kMostBytes> one{'?'};
    SpanTarget target(one);
    const std::size_t count = Engine::Encode(target, text.front()) ? target.Count() : 1;
    std::copy_n(one.begin(), count, bytes.begin() + static_cast<std::ptrdiff_t>(made));
    made += count;
    text = text.subspan(1);
  }
}

template <class Engine>
std::string EncodedBy(std::u16string_view text, std::size_t size) {
  return Written<char>(size, [text](char* to, std::size_t room) {
    return EncodeAll<Engine>(text, {reinterpret_cast<std::uint8_t*>(to), room});
  });
}

}  // namespace

std::u16string Decoded(const Encoding& encoding, std::string_view bytes) {
  State state;
  // One more unit: an encoding with state may produce a character at the end.
  std::u16string text(bytes.size() + 1, u'\0');
  text.resize(Decode(encoding, state, BytesOf(bytes), text, Input::IsLast).made);
  return text;
}

std::string Encoded(const Encoding& encoding, std::u16string_view text) {
  State state;
  std::string bytes;
  std::array<std::uint8_t, kPiece> piece;
  Stop stop = Stop::RoomUsed;
  while (stop != Stop::SourceUsed) {
    Step step = Encode(encoding, state, text, piece);
    Append(bytes, std::span(piece).first(step.made));
    text.remove_prefix(step.taken);
    stop = step.stop;
    if (stop != Stop::NotEncodable) continue;
    step = Encode(encoding, state, std::u16string_view(u"?"), piece);
    if (step.taken == 0) break;
    Append(bytes, std::span(piece).first(step.made));
    text.remove_prefix(1);
  }
  Append(bytes, std::span(piece).first(Flush(encoding, state, std::span(piece).first<kMostBytesAtOnce>())));
  return bytes;
}

std::u16string DecodedUtf8OfStrings(std::string_view bytes) { return DecodedBy<StringUtf8>(bytes); }

std::size_t CountUtf8OfStrings(std::string_view bytes) noexcept {
  std::array<char16_t, kShort> text;
  std::size_t count = 0;
  for (ByteSpan rest = BytesOf(bytes); !rest.empty();) count += DecodeFront<StringUtf8>(rest, text);
  return count;
}

std::string EncodedUtf8OfStrings(std::u16string_view text) {
  if (text.size() > kShort) return EncodedBy<StringUtf8>(text, ChosenKernels().utf8_length(text));
  std::array<std::uint8_t, StringUtf8::kMostBytes * kShort> bytes;
  const std::size_t size = EncodeAll<StringUtf8>(text, bytes);
  return {reinterpret_cast<const char*>(bytes.data()), size};
}

std::u16string DecodedWindows1250OfSystem(std::string_view bytes) { return DecodedBy<System1250>(bytes); }

std::string EncodedWindows1250OfSystem(std::u16string_view text) {
  return EncodedBy<System1250>(text, text.size());
}

}  // namespace ravo::codec
