#include "table_text.h"

#include "encoding_label.h"
#include <ravo/RavoInterface.h>
#include <ravo/codec/kernels/block.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace tool {
namespace {

using namespace ravo::DIUnicode;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char16_t kNoCharacter = 0xFFFD;

unsigned char Byte(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

// Returns the index of the first byte from `at` on that is not ASCII, or the size.
static_assert(std::endian::native == std::endian::little);
std::size_t SkipAscii(std::string_view text, std::size_t at) {
  for (; at + 8 <= text.size(); at += 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, 8);
    word &= 0x8080808080808080U;
    if (word != 0) return at + static_cast<std::size_t>(std::countr_zero(word)) / 8;
  }
  while (at < text.size() && Byte(text, at) < 0x80) ++at;
  return at;
}

// The least second byte after `lead` and the greatest one: no overlong forms, surrogates or numbers past
// U+10FFFF.
unsigned LeastSecond(unsigned lead) { return lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80; }
unsigned GreatestSecond(unsigned lead) { return lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF; }

// Returns the length of the sequence that `lead` starts, 0 if it starts none.
std::size_t LengthOf(unsigned lead) {
  if (lead < 0xC2 || lead > 0xF4) return 0;
  return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// Returns the length of the sequence at `at`, whose byte is not ASCII; 0 if it is ill-formed or cut.
std::size_t SequenceAt(std::string_view text, std::size_t at) {
  const unsigned lead = Byte(text, at);
  const std::size_t length = LengthOf(lead);
  if (length == 0 || at + length > text.size()) return 0;
  const unsigned second = Byte(text, at + 1);
  if (second < LeastSecond(lead) || second > GreatestSecond(lead)) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if ((Byte(text, at + i) & 0xC0) != 0x80) return 0;
  }
  return length;
}

// Returns the index of the first byte from `at` on that starts no sequence, once past `enough`, or the size.
std::size_t FirstWrongSequence(std::string_view text, std::size_t at, std::size_t enough) {
  while (at < enough && (at = SkipAscii(text, at)) < text.size()) {
    const std::size_t length = SequenceAt(text, at);
    if (length == 0) return at;
    at += length;
  }
  return at;
}

constexpr std::size_t kPairPiece = 64;

struct PieceBytes {
  std::uint64_t upper = 0;  // not ASCII
  std::uint64_t trailing = 0;
  std::uint64_t leads_of_two = 0;
};

PieceBytes BytesOf(const char* piece) {
  using Block = ravo::codec::Block<std::uint8_t>;
  PieceBytes all;
  for (unsigned i = 0; i < kPairPiece; i += ravo::codec::kBlockBytes) {
    const Block bytes = Block::Load(piece + i);
    all.upper |= std::uint64_t{bytes.AsHits().Bits()} << i;
    all.trailing |= std::uint64_t{bytes.Within(0x80, 0xBF).AsHits().Bits()} << i;
    all.leads_of_two |= std::uint64_t{bytes.Within(0xC2, 0xDF).AsHits().Bits()} << i;
  }
  return all;
}

// Returns the index past the pieces from `at` on that have only ASCII and whole sequences of two bytes.
std::size_t SkipPairs(std::string_view text, std::size_t at) {
  for (; at + kPairPiece <= text.size(); at += kPairPiece) {
    const PieceBytes bytes = BytesOf(text.data() + at);
    if (bytes.upper == 0) continue;
    const bool are_pairs = bytes.upper == (bytes.trailing | bytes.leads_of_two) &&
                           bytes.trailing == bytes.leads_of_two << 1 && bytes.leads_of_two >> 63 == 0;
    if (!are_pairs) break;
  }
  return at;
}

std::size_t FirstWrongUtf8(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    at = SkipPairs(text, at);
    const std::size_t enough = std::min(at + kPairPiece, text.size());
    const std::size_t reached = FirstWrongSequence(text, at, enough);
    if (reached < enough) return reached;
    at = reached;
  }
  return at;
}

// Empty if the byte is no character.
std::string CharacterOf(const EncodingRow& encoding, unsigned char byte) {
  TDIUnicodeReader reader;
  const std::string_view bytes(reinterpret_cast<const char*>(&byte), 1);
  reader.SetReadMethods(*encoding.read);
  reader.SetSourceBufferAsStrA(bytes);
  const bool is_character = reader.ReadChar() && reader.Char() != kNoCharacter;
  return is_character ? ravo::ToUtf8(std::u16string(1, reader.Char())) : std::string();
}

// Control characters of ASCII, and those from U+0080 to U+009F, which are C2 80 to C2 9F.
bool IsControlByte(std::string_view utf8, std::size_t at) {
  const unsigned char byte = Byte(utf8, at);
  return byte < 0x20 || byte == 0x7F || (byte == 0xC2 && at + 1 < utf8.size() && Byte(utf8, at + 1) < 0xA0);
}

void AppendControl(std::string& to, std::string_view utf8, std::size_t& at) {
  if (Byte(utf8, at) == 0xC2) ++at;
  const unsigned char code = Byte(utf8, at);
  constexpr std::string_view kNamed = "\n\r\t";
  const std::size_t named = kNamed.find(static_cast<char>(code));
  char text[8];
  std::snprintf(text, sizeof text, "\\u%04X", unsigned{code});
  to += named == std::string_view::npos ? std::string(text) : std::string{'\\', "nrt"[named]};
}

}  // namespace

EncodingGuess GuessTableEncoding(std::string_view sample) {
  constexpr std::size_t kCut = 3;  // the most bytes of a character that is cut
  EncodingGuess guess = GuessEncoding(sample);
  if (guess.encoding != "UTF_8" || MarkSize(sample) != 0) return guess;
  const std::size_t wrong = FirstWrongUtf8(sample, 0);
  if (wrong + kCut >= sample.size() || SkipAscii(sample, 0) < wrong) return guess;
  // All before is ASCII, which tells nothing: the guess did not look so far.
  return GuessEncoding(sample.substr(wrong - std::min(wrong, kCut)));
}

std::size_t MarkSize(std::string_view sample) noexcept {
  return sample.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
}

bool TableText::CanRead(const EncodingRow& encoding) {
  if (encoding.read == nullptr) return false;
  if (encoding.name == "UTF_8") return true;
  for (unsigned char byte = 0; byte < 0x80; ++byte) {
    if (CharacterOf(encoding, byte) != std::string(1, static_cast<char>(byte))) return false;
  }
  return encoding.engine == "SingleByte";
}

TableText::TableText(const EncodingRow& encoding)
    : label_(ShortLabel(encoding.label)), is_utf8_(encoding.name == "UTF_8") {
  if (is_utf8_) return;
  for (unsigned i = 0; i < upper_.size(); ++i) {
    upper_[i] = CharacterOf(encoding, static_cast<unsigned char>(i + 0x80));
  }
}

std::size_t TableText::FirstWrong(std::string_view text, std::size_t from) const noexcept {
  if (is_utf8_) return FirstWrongUtf8(text, from);
  while ((from = SkipAscii(text, from)) < text.size() && !upper_[Byte(text, from) - 0x80U].empty()) ++from;
  return from;
}

std::string TableText::Utf8(std::string_view bytes) const {
  if (is_utf8_)
    return FirstWrong(bytes, 0) == bytes.size() ? std::string(bytes) : ravo::ToUtf8(ravo::FromUtf8(bytes));
  std::string utf8;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const unsigned char byte = Byte(bytes, i);
    if (byte < 0x80) {
      utf8 += bytes[i];
    } else {
      utf8 += upper_[byte - 0x80U].empty() ? "\xEF\xBF\xBD" : upper_[byte - 0x80U];
    }
  }
  return utf8;
}

bool IsPrintableAscii(std::string_view text) noexcept {
  return std::ranges::all_of(text, [](char byte) { return byte >= 0x20 && byte < 0x7F; });
}

void AppendJson(std::string& json, std::string_view utf8) {
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const bool is_special = utf8[i] == '"' || utf8[i] == '\\';
    if (is_special) json += '\\';
    if (!is_special && IsControlByte(utf8, i)) {
      AppendControl(json, utf8, i);
    } else {
      json += utf8[i];
    }
  }
}

}  // namespace tool
