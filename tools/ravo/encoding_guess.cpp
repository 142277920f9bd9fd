#include "encoding_guess.h"

#include "czech_likeness.h"
#include "encoding_label.h"
#include "text.h"
#include <ravo/codec/byte_order_mark.h>
#include <ravo/codec/texts.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace tool {
namespace {

namespace codec = ravo::codec;

// The rest of a longer text decides no more.
constexpr std::size_t kEnough = std::size_t{1} << 16;

std::span<const std::uint8_t> ByteSpanOf(std::string_view text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

const codec::Encoding& RowNamed(std::string_view name) { return *codec::FindEncoding(name); }

std::string_view LabelOf(std::string_view name) { return ShortLabel(RowNamed(name).label); }

// The length of the sequence at the start of `bytes`, 1 for ASCII; 0 if it is malformed, and no value if the
// end cuts it short.
std::optional<std::size_t> SequenceLength(std::span<const std::uint8_t> bytes) {
  const std::uint8_t lead = bytes[0];
  if (lead < 0x80) return 1;
  const std::size_t length = lead < 0xC2 || lead > 0xF4 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  for (std::size_t i = 1; i < length; ++i) {
    if (i == bytes.size()) return {};
    if ((bytes[i] & 0xC0) != 0x80) return 0;
  }
  return length;
}

struct Sequences {
  bool all_valid = true;
  std::size_t count = 0;  // past ASCII
  std::size_t bytes = 0;
};

Sequences CountSequences(std::span<const std::uint8_t> bytes) {
  Sequences found;
  while (!bytes.empty()) {
    const auto length = SequenceLength(bytes);
    if (!length) break;
    if (*length == 0) return {false};
    found.count += *length > 1 ? 1 : 0;
    found.bytes += *length > 1 ? *length : 0;
    bytes = bytes.subspan(*length);
  }
  found.all_valid = found.count > 0;
  return found;
}

// Whether they could not be valid by chance. Two letters of a short text in CP 852 can be.
bool IsSurelyUtf8(const Sequences& found) { return found.count > 3 || found.bytes > 2 * found.count; }

bool IsPastAscii(char byte) { return static_cast<unsigned char>(byte) >= 0x80; }

// A form of UTF-16 or UTF-32.
struct Wide {
  const char* name;
  std::size_t size;  // of a unit, in bytes
  bool upper_first;
};

constexpr Wide kWide[] = {
    {"UTF_32_LE", 4, false}, {"UTF_32_BE", 4, true}, {"UTF_16_LE", 2, false}, {"UTF_16_BE", 2, true}};

// ASCII, the letters of Europe, and general punctuation.
bool IsUsual(std::uint32_t unit) {
  return (unit >= 0x20 && unit < 0x7F) || (unit >= 9 && unit <= 13) || (unit >= 0xA0 && unit < 0x590) ||
         (unit >= 0x2010 && unit < 0x2030) || unit == 0x20AC;
}

std::uint32_t UnitOf(std::span<const std::uint8_t> bytes, bool upper_first) {
  std::uint32_t unit = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i)
    unit = unit << 8 | bytes[upper_first ? i : bytes.size() - 1 - i];
  return unit;
}

bool Reads(const Wide& wide, std::span<const std::uint8_t> bytes) {
  const std::size_t count = bytes.size() / wide.size;
  std::size_t usual = 0;
  for (std::size_t i = 0; i < count; ++i) {
    usual += IsUsual(UnitOf(bytes.subspan(i * wide.size, wide.size), wide.upper_first)) ? 1 : 0;
  }
  return count != 0 && usual * 10 >= count * 9;
}

EncodingGuess GuessByZeros(std::span<const std::uint8_t> bytes) {
  for (const Wide& wide : kWide) {
    if (Reads(wide, bytes))
      return {wide.name, true, Text("it has the zero bytes of {0}", {LabelOf(wide.name)})};
  }
  return {"Windows_1250", false, Text("it has zero bytes and may not be text")};
}

struct Candidate {
  const char* name;
  int bits;
  std::u16string text;
};

// From the most likely one on. Most files of unknown origin come from Windows.
std::vector<Candidate> CandidatesOf(std::string_view bytes, const Sequences& found) {
  constexpr int kBitsOfSequence = 10;
  std::vector<Candidate> candidates{{"Windows_1250", 2, {}}, {"Iso_8859_2", 0, {}}, {"CP_852", 0, {}}};
  if (found.all_valid) candidates.push_back({"UTF_8", kBitsOfSequence * static_cast<int>(found.count), {}});
  for (Candidate& candidate : candidates) {
    candidate.text = codec::Decoded(RowNamed(candidate.name), bytes);
    candidate.bits += CzechLikeness(candidate.text);
  }
  std::ranges::stable_sort(candidates, std::ranges::greater(), &Candidate::bits);
  return candidates;
}

int CountPastAscii(std::u16string_view text) {
  return static_cast<int>(std::ranges::count_if(text, [](char16_t c) { return c >= 0x80; }));
}

EncodingGuess GuessByLetters(std::string_view bytes, const Sequences& found) {
  constexpr int kClear = 10;
  // A character of Czech text has nine on average, one of Polish text three.
  constexpr int kBitsOfCzech = 4;
  const auto candidates = CandidatesOf(bytes, found);
  const Candidate& best = candidates[0];
  const Candidate& second = candidates[1];
  const std::string_view label = LabelOf(best.name);
  if (best.text == second.text)
    return {best.name, false, Text("{0} and {1} read it alike", {label, LabelOf(second.name)})};
  if (best.bits < second.bits + kClear)
    return {best.name, false, Text("{0} and {1} are both possible", {label, LabelOf(second.name)})};
  if (best.bits < kBitsOfCzech * CountPastAscii(best.text))
    return {best.name, false, Text("it does not look like Czech in any encoding")};
  return {best.name, true, Text("it looks most like Czech in {0}", {label})};
}

}  // namespace

EncodingGuess GuessEncoding(std::string_view first_bytes) {
  const codec::ByteOrderMark mark = codec::FindByteOrderMark(ByteSpanOf(first_bytes));
  if (mark.length != 0) return {std::string(mark.encoding), true, Text("it begins with a byte-order mark")};
  const auto start = first_bytes.substr(0, kEnough);
  if (start.find('\0') != std::string_view::npos) return GuessByZeros(ByteSpanOf(start));
  const auto telling = std::ranges::find_if(first_bytes, IsPastAscii);
  if (telling == first_bytes.end()) return {"UTF_8", true, Text("it has ASCII characters only")};
  // With the letters before it, by which the first one is judged.
  const auto before = static_cast<std::size_t>(telling - first_bytes.begin());
  const auto bytes = first_bytes.substr(before - std::min<std::size_t>(before, 2), kEnough);
  const Sequences found = CountSequences(ByteSpanOf(bytes));
  if (found.all_valid && IsSurelyUtf8(found)) return {"UTF_8", true, Text("its bytes are valid UTF-8")};
  return GuessByLetters(bytes, found);
}

}  // namespace tool
