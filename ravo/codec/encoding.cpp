#include <ravo/codec/codecs.h>
#include <ravo/codec/encoding.h>
#include <ravo/codec/engine_runs.h>

#include <algorithm>
#include <array>

namespace ravo::codec {
namespace {

template <class Codec>
bool DecodeOne(SpanSource& bytes, State& state, char16_t& ch) {
  if constexpr (codecs::HasState<Codec>)
    return Codec::Decode(bytes, state, ch);
  else
    return Codec::Decode(bytes, ch);
}

template <class Codec>
bool EncodeOne(SpanTarget& bytes, State& state, char16_t ch) {
  if constexpr (codecs::HasState<Codec>)
    return Codec::Encode(bytes, state, ch);
  else
    return Codec::Encode(bytes, ch);
}

// The texts of a row; its functions come from its codec.
struct Words {
  std::string_view name;
  std::string_view label;
  std::uint32_t code_page;
  std::string_view aliases;
  std::string_view engine;
  std::string_view notes;
};

template <class Codec>
constexpr const ByteTable* kTable = nullptr;
template <const ByteTable& table>
constexpr const ByteTable* kTable<SingleByte<table>> = &table;

// Untested: runs at compile time only.
template <class Codec, bool reads, bool writes>
consteval Encoding Row(const Words& words) {
  Encoding row{words.name,  words.label, words.code_page, words.aliases, words.engine,
               words.notes, nullptr,     nullptr,         nullptr,       nullptr,
               nullptr,     nullptr,     false,           kTable<Codec>};
  if constexpr (kTable<Codec> != nullptr)
    row.has_every_byte = std::ranges::none_of(*kTable<Codec>, IsSpecial);
  if constexpr (reads) row.decode_one = DecodeOne<Codec>;
  if constexpr (writes) row.encode_one = EncodeOne<Codec>;
  if constexpr (writes && codecs::HasState<Codec>) row.flush = Codec::template Flush<SpanTarget>;
  if constexpr (!codecs::HasState<Codec>) {
    if constexpr (reads) row.decode_run = DecodeWith<Codec>;
    if constexpr (reads) row.decode_until = Until<Codec>::kDecode;
    if constexpr (writes) row.encode_run = EncodeWith<Codec>;
  }
  return row;
}

#define RAVO_WAYS_Both true, true
#define RAVO_WAYS_ReadOnly true, false
#define RAVO_WAYS_WriteOnly false, true
#define RAVO_ENCODING(name, label, code_page, aliases, engine, ways, table, sources, notes) \
  Row<codecs::name, RAVO_WAYS_##ways>({#name, label, code_page, aliases, #engine, notes}),
constexpr Encoding kEncodings[] = {
#include <ravo/codec/rows.inc>
};
#undef RAVO_ENCODING

// Converts a whole run, if the encoding has a function for it.
template <class From, class To>
void Advance(Run (*convert)(From, To), From from, To to, Step& step) {
  if (convert == nullptr) return;
  const Run run = convert(from.subspan(step.taken), to.subspan(step.made));
  step.taken += run.taken;
  step.made += run.made;
}

// Decodes the next character, even if it is truncated by the end of the last bytes.
bool DecodeNext(const Encoding& encoding, State& state, ByteSpan bytes, TextRoom text, Input input,
                Step& step) {
  const State before = state;
  SpanSource source(bytes.subspan(step.taken));
  char16_t ch = 0;
  const bool made = encoding.decode_one(source, state, ch);
  if (source.Exhausted() && input == Input::MoreFollows) {
    state = before;
    step.stop = step.taken == bytes.size() ? Stop::SourceUsed : Stop::CutShort;
    return false;
  }
  step.taken += source.Position();
  if (made) text[step.made++] = ch;
  if (!made) step.stop = source.Exhausted() ? Stop::SourceUsed : Stop::EndOfData;
  return made;
}

// Encodes into a local buffer, because the length is known only afterwards.
bool EncodeNext(const Encoding& encoding, State& state, char16_t unit, ByteRoom bytes, Step& step) {
  const State before = state;
  std::array<std::uint8_t, kMostBytesAtOnce> made{};
  SpanTarget target(made);
  if (!encoding.encode_one(target, state, unit)) {
    step.stop = Stop::NotEncodable;
  } else if (target.Count() > bytes.size() - step.made) {
    state = before;
    step.stop = Stop::RoomUsed;
  } else {
    std::copy_n(made.begin(), target.Count(), bytes.begin() + static_cast<std::ptrdiff_t>(step.made));
    step.made += target.Count();
    ++step.taken;
    return true;
  }
  return false;
}

}  // namespace

std::span<const Encoding> Encodings() noexcept { return kEncodings; }

Step Decode(const Encoding& encoding, State& state, ByteSpan bytes, TextRoom text, Input input) noexcept {
  Step step;
  do {
    Advance(encoding.decode_run, bytes, text, step);
    // An encoding with state may produce a character at the end.
    const bool used =
        step.taken == bytes.size() && (encoding.decode_run != nullptr || input != Input::IsLast);
    if (used) return {step.taken, step.made, Stop::SourceUsed};
    if (step.made == text.size()) return {step.taken, step.made, Stop::RoomUsed};
  } while (DecodeNext(encoding, state, bytes, text, input, step));
  return step;
}

Step Encode(const Encoding& encoding, State& state, TextSpan text, ByteRoom bytes) noexcept {
  Step step;
  do {
    Advance(encoding.encode_run, text, bytes, step);
    if (step.taken == text.size()) return {step.taken, step.made, Stop::SourceUsed};
  } while (EncodeNext(encoding, state, text[step.taken], bytes, step));
  return step;
}

std::size_t Flush(const Encoding& encoding, State& state,
                  std::span<std::uint8_t, kMostBytesAtOnce> bytes) noexcept {
  if (encoding.flush == nullptr) return 0;
  SpanTarget target(bytes);
  encoding.flush(target, state);
  return target.Count();
}

}  // namespace ravo::codec
