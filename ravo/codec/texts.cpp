#include <ravo/codec/codecs.h>
#include <ravo/codec/engine_runs.h>
#include <ravo/codec/texts.h>

#include <array>

namespace ravo::codec {
namespace {

constexpr ByteTable kWindows1250OfSystem = WithControls(tables::kWindows_1250);

using StringUtf8 = Utf8Engine<Utf8OfStrings>;
using System1250 = SingleByte<kWindows1250OfSystem>;

// Units or bytes that are looked at together, so that they stay in the nearest cache.
constexpr std::size_t kPiece = 4096;

ByteSpan BytesOf(std::string_view bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

void Append(std::string& to, ByteSpan bytes) {
  to.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

// Runs, and single characters between them; a sequence that the end cuts short is one too.
template <class Engine>
std::size_t DecodeAll(ByteSpan bytes, TextRoom text) {
  ChooseKernels();
  std::size_t made = 0;
  for (;;) {
    const Run run = DecodeWith<Engine>(bytes, text.subspan(made));
    made += run.made;
    bytes = bytes.subspan(run.taken);
    SpanSource source(bytes);
    if (bytes.empty() || !Engine::Decode(source, text[made])) return made;
    ++made;
    bytes = bytes.subspan(source.Position());
  }
}

// Every engine with one or more bytes for each unit.
template <class Engine>
std::u16string DecodedBy(std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  text.resize(DecodeAll<Engine>(BytesOf(bytes), text));
  return text;
}

// In pieces, whose bytes are appended: the result needs no memory for the worst case before.
template <class Engine>
std::string EncodedBy(std::u16string_view text) {
  ChooseKernels();
  std::array<std::uint8_t, Engine::kMostBytes * kPiece> piece;
  std::string result;
  if (text.size() > kPiece) result.reserve(Engine::kMostBytes * text.size());
  while (!text.empty()) {
    const Run run = EncodeWith<Engine>(text.substr(0, kPiece), piece);
    Append(result, std::span(piece).first(run.made));
    text.remove_prefix(run.taken);
    if (run.taken != 0 || text.empty()) continue;
    result += '?';
    text.remove_prefix(1);
  }
  return result;
}

}  // namespace

std::u16string Decoded(const Encoding& encoding, std::string_view bytes) {
  State state;
  // One more: an encoding with state may have a character at the end.
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
  std::size_t count = 0;
  SpanSource source(BytesOf(bytes));
  for (char16_t ch = 0; StringUtf8::Decode(source, ch);) ++count;
  return count;
}

std::string EncodedUtf8OfStrings(std::u16string_view text) { return EncodedBy<StringUtf8>(text); }

std::u16string DecodedWindows1250OfSystem(std::string_view bytes) { return DecodedBy<System1250>(bytes); }

std::string EncodedWindows1250OfSystem(std::u16string_view text) { return EncodedBy<System1250>(text); }

}  // namespace ravo::codec
