#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/convert/text_converter.h>

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace ravo::convert {
namespace {

namespace codec = ravo::codec;

// The units of a run and their bytes stay in the first-level cache.
constexpr std::size_t kUnits = std::size_t{1} << 13;
constexpr std::size_t kFewUnits = 64;

// How many units are what the bytes say: up to the first special one.
std::size_t CountUsual(const codec::Encoding& from, codec::TextSpan text) {
  return from.has_every_byte ? text.size() : codec::ChosenKernels().find_special(text);
}

std::string AsText(codec::ByteSpan bytes) { return {bytes.begin(), bytes.end()}; }

// The UTF-16 of a character.
struct Units {
  explicit Units(char32_t code) : units{static_cast<char16_t>(code)} {
    if (code <= 0xFFFF) return;
    units = {static_cast<char16_t>(0xD7C0 + (code >> 10)), static_cast<char16_t>(0xDC00 + (code & 0x3FF))};
    size = 2;
  }
  [[nodiscard]] std::u16string_view View() const { return {units.data(), size}; }

  std::array<char16_t, 2> units;
  std::size_t size = 1;
};

}  // namespace

// Characters that the engines read rightly.
struct TextConverter::Run {
  std::size_t taken = 0;
  std::size_t made = 0;
  bool ends_before_other = false;  // the next character is for `ExactEncoding`
  codec::State before;             // of the decoder
};

TextConverter::TextConverter(const Conversion& conversion)
    : conversion_(conversion),
      from_(*conversion.from),
      to_(*conversion.to),
      units_(kUnits + 1),
      room_(kUnits) {}

void TextConverter::Restart(const codec::Encoding& from) {
  from_ = ExactEncoding(from);
  Restart();
}

void TextConverter::Restart() {
  decoder_ = {};
  room_ = kUnits;
}

TextConverter::Run TextConverter::DecodeRun(codec::ByteSpan bytes) {
  const codec::State before = decoder_;
  const auto decode = [&](std::size_t room) {
    return codec::Decode(from_.Row(), decoder_, bytes, std::span(units_).first(room),
                         codec::Input::MoreFollows);
  };
  codec::Step step = decode(room_);
  const std::size_t usual = CountUsual(from_.Row(), std::span(units_).first(step.made));
  if (usual < step.made) {
    decoder_ = before;
    step = decode(usual);
    room_ = kFewUnits;
    return {step.taken, step.made, true, before};
  }
  room_ = std::min(2 * room_, kUnits);
  // A low surrogate is taken, and no character of UTF-16.
  if (step.stop == codec::Stop::EndOfData) return {step.taken - 2, step.made, true, before};
  return {step.taken, step.made, step.stop != codec::Stop::RoomUsed, before};
}

// Up to the first character that the encoding lacks: how many units that are.
std::size_t TextConverter::Encode(std::u16string_view text, ByteBuffer& to) {
  std::size_t taken = 0;
  codec::Step step{.taken = 0, .made = 0, .stop = codec::Stop::RoomUsed};
  while (step.stop == codec::Stop::RoomUsed) {
    // Most characters are one or two bytes long; others need another round.
    const auto room = to.Room(2 * (text.size() - taken) + codec::kMostBytesAtOnce);
    step = codec::Encode(to_.Row(), encoder_, text.substr(taken), room);
    to.Add(step.made);
    taken += step.taken;
  }
  return taken;
}

bool TextConverter::Has(char16_t unit) const {
  codec::State state;
  std::array<std::uint8_t, codec::kMostBytesAtOnce> bytes{};
  return codec::Encode(to_.Row(), state, {&unit, 1}, bytes).taken == 1;
}

bool TextConverter::Spell(char32_t code, ByteBuffer& to) {
  auto found = spellings_.find(code);
  if (found == spellings_.end())
    found = spellings_.emplace(code, conversion_.spelling(code, [this](char16_t unit) { return Has(unit); }))
                .first;
  return !found->second.empty() && Encode(found->second, to) == found->second.size();
}

// For a character that the encoding lacks: its spelling, or else the replacement, "?" if the encoding lacks
// that too, at last nothing.
bool TextConverter::Substitute(char32_t code, ByteBuffer& to) {
  if (conversion_.spelling != nullptr && Spell(code, to)) return true;
  if (!conversion_.replacement) return false;
  for (const char32_t c : {*conversion_.replacement, U'?'}) {
    if (WriteCharacter(c, to)) break;
  }
  return true;
}

bool TextConverter::WriteCharacter(char32_t code, ByteBuffer& to) {
  if (code > 0xFFFF) return to_.Write(encoder_, code, to);
  return Encode(Units(code).View(), to) == 1;
}

// How many bytes of a run its first `count` units are. Decodes them again, over themselves.
std::size_t TextConverter::LengthOf(const Run& run, codec::ByteSpan bytes, std::size_t count) {
  codec::State state = run.before;
  return codec::Decode(from_.Row(), state, bytes.first(run.taken), std::span(units_).first(count),
                       codec::Input::MoreFollows)
      .taken;
}

void TextConverter::Transfer(const Run& run, codec::ByteSpan bytes, Converted& converted) {
  const std::u16string_view text(units_.data(), run.made);
  for (std::size_t at = 0; at != text.size(); ++at) {
    at += Encode(text.substr(at), converted.bytes);
    if (at == text.size()) break;
    if (Substitute(text[at], converted.bytes)) continue;
    converted.fault = {Fault::Kind::Lacking, text[at], {}, LengthOf(run, bytes, at)};
    converted.extent += TextExtent(text.substr(0, at));
    return;
  }
  if (!conversion_.measures) return;
  converted.extent +=
      from_.Row().decode_until != nullptr ? TextExtent(text, bytes.first(run.taken)) : TextExtent(text);
}

// Converts one character; returns false at the end of the bytes and at a fault.
bool TextConverter::ConvertNext(codec::ByteSpan bytes, Following following, std::size_t& taken,
                                Converted& converted) {
  using Reading = Character::Reading;
  const auto rest = bytes.subspan(taken);
  if (rest.empty() && following != Following::Nothing) return false;
  Character next = from_.Read(decoder_, rest, following == Following::Nothing);
  if (next.reading == Reading::CutShort && following == Following::Bytes) return false;
  if (next.reading == Reading::CutShort && following == Following::Character)
    next.reading = Reading::Malformed;
  taken += next.bytes;
  if (next.reading == Reading::Nothing) return taken != bytes.size();
  const bool whole = next.reading == Reading::Whole;
  const char32_t code = whole ? next.code : codec::kReplacement;
  const bool passes = whole || conversion_.replacement.has_value();
  if (passes && (WriteCharacter(code, converted.bytes) || Substitute(code, converted.bytes))) {
    converted.extent += TextExtent(Units(code).View());
    return true;
  }
  const auto kind = whole                               ? Fault::Kind::Lacking
                    : next.reading == Reading::CutShort ? Fault::Kind::CutShort
                                                        : Fault::Kind::Malformed;
  converted.fault = {kind, code, AsText(rest.first(next.bytes)), 0};
  return false;
}

std::size_t TextConverter::Convert(codec::ByteSpan bytes, Following following, Converted& converted) {
  std::size_t taken = 0;
  for (;;) {
    const Run run = DecodeRun(bytes.subspan(taken));
    Transfer(run, bytes.subspan(taken), converted);
    if (converted.fault) {
      converted.fault->position += taken;
      return taken + run.taken;
    }
    taken += run.taken;
    const std::size_t before = taken;
    if (run.ends_before_other && !ConvertNext(bytes, following, taken, converted)) {
      if (converted.fault) converted.fault->position = before;
      return taken;
    }
  }
}

bool TextConverter::ConvertAtOnce(codec::ByteSpan bytes, ByteBuffer& to) {
  constexpr std::size_t kMostBytes = 4;  // from one unit
  const codec::Encoding& from = from_.Row();
  const codec::EncodeRun encode = to_.Row().encode_run;
  const bool lacks_special = to_.Row().table != nullptr;
  if (bytes.size() > kUnits || from.decode_run == nullptr || encode == nullptr) return false;
  const codec::Run read = from.decode_run(bytes, units_);
  const auto text = std::span(units_).first(read.made);
  if (read.taken != bytes.size()) return false;
  if (!lacks_special && CountUsual(from, text) != text.size()) return false;
  const codec::Run written = encode(text, to.Room(kMostBytes * text.size()));
  if (written.taken != text.size()) return false;
  to.Add(written.made);
  return true;
}

void TextConverter::Finish(ByteBuffer& bytes) {
  const auto room = bytes.Room(codec::kMostBytesAtOnce);
  bytes.Add(codec::Flush(to_.Row(), encoder_, room.first<codec::kMostBytesAtOnce>()));
}

}  // namespace ravo::convert
