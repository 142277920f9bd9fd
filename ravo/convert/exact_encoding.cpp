#include <ravo/codec/byte_spans.h>
#include <ravo/convert/exact_encoding.h>

#include <algorithm>
#include <array>

namespace ravo::convert {
namespace {

namespace codec = ravo::codec;
using Reading = Character::Reading;

constexpr char32_t kPastUnits = 0x10000;
constexpr char32_t kLastCode = 0x10FFFF;

bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }
char32_t OfPair(char32_t high, char32_t low) { return kPastUnits + ((high - 0xD800) << 10) + (low - 0xDC00); }

struct Utf8Lead {
  std::size_t length = 0;  // 0: no lead byte
  // The range of the second byte: no overlong forms, no surrogates, nothing past U+10FFFF.
  std::uint8_t least = 0x80;
  std::uint8_t most = 0xBF;
};

Utf8Lead LeadOf(std::uint8_t byte) {
  if (byte < 0x80) return {1};
  if (byte < 0xC2 || byte > 0xF4) return {};
  if (byte < 0xE0) return {2};
  if (byte < 0xF0)
    return {3, static_cast<std::uint8_t>(byte == 0xE0 ? 0xA0 : 0x80),
            static_cast<std::uint8_t>(byte == 0xED ? 0x9F : 0xBF)};
  return {4, static_cast<std::uint8_t>(byte == 0xF0 ? 0x90 : 0x80),
          static_cast<std::uint8_t>(byte == 0xF4 ? 0x8F : 0xBF)};
}

Character ReadUtf8(codec::ByteSpan bytes) {
  const Utf8Lead lead = LeadOf(bytes[0]);
  if (lead.length == 0) return {Reading::Malformed, 0, 1};
  if (lead.length == 1) return {Reading::Whole, bytes[0], 1};
  char32_t code = bytes[0] & (0x7F >> lead.length);
  for (std::size_t i = 1; i < lead.length; ++i) {
    if (i == bytes.size()) return {Reading::CutShort, 0, i};
    const bool fits = i == 1 ? bytes[i] >= lead.least && bytes[i] <= lead.most : (bytes[i] & 0xC0) == 0x80;
    if (!fits) return {Reading::Malformed, 0, i};
    code = code << 6 | (bytes[i] & 0x3F);
  }
  return {Reading::Whole, code, lead.length};
}

std::array<std::uint8_t, 4> Utf8OfFour(char32_t code) {
  const auto trail = [code](unsigned shift) {
    return static_cast<std::uint8_t>(0x80 | (code >> shift & 0x3F));
  };
  return {static_cast<std::uint8_t>(0xF0 | code >> 18), trail(12), trail(6), trail(0)};
}

// The start of the sequence that the end cuts short; the size otherwise.
std::size_t LengthOfWholeUtf8(codec::ByteSpan bytes) {
  for (std::size_t back = 1; back <= std::min<std::size_t>(3, bytes.size()); ++back) {
    const std::uint8_t byte = bytes[bytes.size() - back];
    if (byte >= 0xC0) return LeadOf(byte).length > back ? bytes.size() - back : bytes.size();
    if (byte < 0x80) break;
  }
  return bytes.size();
}

// Four bytes of GB 18030 that are a character; the engine has checked their ranges.
Character OfFourInGb18030(codec::ByteSpan bytes) {
  constexpr std::uint32_t kReplacementCharacter = 39417;
  constexpr std::uint32_t kFirstPastUnits = 189000;
  const std::uint32_t pair = (bytes[0] - 0x81U) * 10 + (bytes[1] - 0x30U);
  const std::uint32_t number = (pair * 126 + (bytes[2] - 0x81U)) * 10 + (bytes[3] - 0x30U);
  if (number == kReplacementCharacter) return {Reading::Whole, codec::kReplacement, 4};
  if (number < kFirstPastUnits || number - kFirstPastUnits > kLastCode - kPastUnits)
    return {Reading::Malformed, 0, 4};
  return {Reading::Whole, number - kFirstPastUnits + kPastUnits, 4};
}

}  // namespace

ExactEncoding::ExactEncoding(const codec::Encoding& row)
    : row_(&row),
      form_(FormOf(row)),
      unit_size_(form_ == Form::Four                           ? 4
                 : form_ == Form::Utf16 || form_ == Form::Ucs2 ? 2
                                                               : 1),
      upper_first_(row.name.ends_with("_BE")) {}

ExactEncoding::Form ExactEncoding::FormOf(const codec::Encoding& row) {
  struct Named {
    std::string_view engine;
    Form form;
  };
  static constexpr Named kForms[] = {{"Utf8", Form::Utf8},    {"Utf16", Form::Utf16},    {"Ucs2", Form::Ucs2},
                                     {"Utf32", Form::Four},   {"Ucs4", Form::Four},      {"Utf7", Form::Utf7},
                                     {"Utf7Odc", Form::Utf7}, {"Gb18030", Form::Gb18030}};
  const auto* const found = std::ranges::find(kForms, row.engine, &Named::engine);
  return found == std::end(kForms) ? Form::SingleByte : found->form;
}

char32_t ExactEncoding::Unit(codec::ByteSpan bytes) const {
  char32_t unit = 0;
  for (std::size_t i = 0; i < unit_size_; ++i)
    unit = unit << 8 | bytes[upper_first_ ? i : unit_size_ - 1 - i];
  return unit;
}

std::size_t ExactEncoding::LengthOfWhole(codec::ByteSpan bytes) const {
  if (form_ == Form::Utf8) return LengthOfWholeUtf8(bytes);
  const std::size_t length = bytes.size() - bytes.size() % unit_size_;
  const bool before_low =
      form_ == Form::Utf16 && length != 0 && IsHighSurrogate(Unit(bytes.subspan(length - unit_size_)));
  return before_low ? length - unit_size_ : length;
}

Character ExactEncoding::ReadUnits(codec::ByteSpan bytes) const {
  if (bytes.size() < unit_size_) return {Reading::CutShort, 0, bytes.size()};
  const char32_t unit = Unit(bytes);
  if (form_ != Form::Utf16 || !IsHighSurrogate(unit)) {
    const bool is_character = !codec::IsSurrogate(unit) && unit <= kLastCode;
    return {is_character ? Reading::Whole : Reading::Malformed, unit, unit_size_};
  }
  if (bytes.size() < 2 * unit_size_) return {Reading::CutShort, 0, bytes.size()};
  const char32_t low = Unit(bytes.subspan(unit_size_));
  if (!IsLowSurrogate(low)) return {Reading::Malformed, 0, unit_size_};
  return {Reading::Whole, OfPair(unit, low), 2 * unit_size_};
}

// UTF-7, GB 18030 and the encodings of single bytes. U+FFFD inside of base 64 is a character.
Character ExactEncoding::ReadByEngine(codec::State& state, codec::ByteSpan bytes, bool is_last) const {
  const codec::State before = state;
  codec::SpanSource source(bytes);
  char16_t unit = 0;
  const bool made = row_->decode_one(source, state, unit);
  Character character{Reading::Whole, unit, source.Position()};
  if (made && !source.Exhausted() && form_ == Form::Gb18030 && unit == codec::kReplacement &&
      source.Position() == 4)
    return OfFourInGb18030(bytes);
  if (made && IsHighSurrogate(unit)) {
    const codec::State after_high = state;
    if (row_->decode_one(source, state, unit) && IsLowSurrogate(unit))
      character = {Reading::Whole, OfPair(character.code, unit), source.Position()};
    else
      state = after_high;
  }
  if (source.Exhausted() && !is_last) {
    state = before;
    return {Reading::CutShort, 0, bytes.size()};
  }
  if (!made) return {Reading::Nothing, 0, source.Position()};
  const bool malformed =
      codec::IsSurrogate(character.code) || (character.code == codec::kReplacement && !state.in_base64);
  if (malformed) character.reading = source.Exhausted() ? Reading::CutShort : Reading::Malformed;
  return character;
}

Character ExactEncoding::Read(codec::State& state, codec::ByteSpan bytes, bool is_last) const {
  if (form_ == Form::Utf7) return ReadByEngine(state, bytes, is_last);
  if (bytes.empty()) return {};
  if (form_ == Form::Utf8) return ReadUtf8(bytes);
  return unit_size_ > 1 ? ReadUnits(bytes) : ReadByEngine(state, bytes, is_last);
}

void ExactEncoding::WriteUnit(char32_t unit, std::size_t size, ByteBuffer& to) const {
  const auto room = to.Room(size);
  for (std::size_t i = 0; i < size; ++i)
    room[i] = static_cast<std::uint8_t>(unit >> (8 * (upper_first_ ? size - 1 - i : i)));
  to.Add(size);
}

bool ExactEncoding::Write(codec::State& state, char32_t code, ByteBuffer& to) const {
  const std::array pair = {static_cast<char16_t>(0xD800 + ((code - kPastUnits) >> 10)),
                           static_cast<char16_t>(0xDC00 + ((code - kPastUnits) & 0x3FF))};
  switch (form_) {
    case Form::Utf8:
      to.Append(Utf8OfFour(code));
      return true;
    case Form::Utf16:
      for (const char16_t unit : pair) WriteUnit(unit, 2, to);
      return true;
    case Form::Four:
      WriteUnit(code, 4, to);
      return true;
    case Form::Utf7:
      to.Add(codec::Encode(*row_, state, pair, to.Room(2 * codec::kMostBytesAtOnce)).made);
      return true;
    default:
      return false;
  }
}

}  // namespace ravo::convert
