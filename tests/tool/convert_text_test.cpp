#include "czech_sentences.h"
#include "support/effort.h"
#include "text_divisions.h"
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/codec/texts.h>
#include <ravo/convert/byte_conversions.h>
#include <ravo/convert/text_converter.h>

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tool {
namespace {

namespace codec = ravo::codec;

codec::ByteSpan BytesOf(std::string_view text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

// The place after a text, character by character.
std::pair<std::uint64_t, std::uint64_t> PlaceAfter(std::u16string_view text) {
  std::uint64_t line = 1;
  std::uint64_t column = 1;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool second_of_break = text[i] == u'\n' && i > 0 && text[i - 1] == u'\r';
    if (second_of_break) continue;
    const bool ends = text[i] == u'\n' || text[i] == u'\r';
    const bool second_of_pair = text[i] >= 0xDC00 && text[i] < 0xE000;
    line += ends ? 1 : 0;
    column = ends ? 1 : column + (second_of_pair ? 0 : 1);
  }
  return {line, column};
}

TEST(TextExtent, CountsLinesAndCharactersOfAnyPieces) {
  std::mt19937 random(17);
  for (int round = 0; round < 3000; ++round) {
    std::u16string text;
    for (std::size_t length = random() % (round % 10 == 0 ? 1500 : 12); length > 0; --length)
      text += u"\r\n\naé\xD83D\xDE00\rx"[random() % 9];
    TextExtent sum;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t length = std::min<std::size_t>(1 + random() % 700, text.size() - at);
      sum += TextExtent(std::u16string_view(text).substr(at, length));
      at += length;
    }
    ASSERT_EQ(std::pair(sum.Line(), sum.Column()), PlaceAfter(text)) << testing::PrintToString(text);
    const TextExtent whole{text};
    ASSERT_EQ(std::pair(whole.Line(), whole.Column()), PlaceAfter(text));
  }
}

TEST(TextExtent, IsTheSameByTheBytesOfTheText) {
  std::u16string text;
  for (const char16_t* const sentence : test::kCzechSentences) text += std::u16string(sentence) + u"\r\n";
  for (const char* const encoding : {"UTF_8", "Windows_1250"}) {
    const std::string bytes = codec::Encoded(*codec::FindEncoding(encoding), text);
    const TextExtent extent(text, BytesOf(bytes));
    EXPECT_EQ(std::pair(extent.Line(), extent.Column()), PlaceAfter(text));
  }
}

// Texts with characters that the engines leave out, malformed ones and a cut at any place.
std::string RandomBytes(std::mt19937& random, const codec::Encoding& from) {
  std::string bytes;
  for (std::size_t count = random() % 12; count > 0; --count) {
    const auto kind = random() % 8;
    if (from.encode_one != nullptr && kind < 5)
      bytes += codec::Encoded(from, test::kCzechSentences[random() % std::size(test::kCzechSentences)])
                   .substr(0, random() % 60);
    else if (kind == 5)
      bytes += std::string_view("\xF0\x9F\x98\x80\xEF\xBF\xBD").substr(0, random() % 8);
    else if (kind == 6)
      bytes += std::string_view("\x3D\xD8\x00\xDE\xFD\xFF\xD8\x3D", 8).substr(0, random() % 9);
    else
      bytes += static_cast<char>(random());
  }
  return bytes;
}

// Pieces of one byte, and blocks of few, give the bytes, the place and the end of the whole.
TEST(TextConverter, IsTheSameForEveryDivisionOfTheText) {
  std::mt19937 random(19);
  const codec::Encoding* const targets[] = {codec::FindEncoding("UTF_8"), codec::FindEncoding("UTF_16_LE"),
                                            codec::FindEncoding("Windows_1250"),
                                            codec::FindEncoding("UTF_7")};
  for (const codec::Encoding& from : codec::Encodings()) {
    if (from.decode_one == nullptr) continue;
    for (int round = 0; round < ravo::test::Rounds(120); ++round) {
      const std::string bytes = RandomBytes(random, from);
      Conversion conversion;
      conversion.from = &from;
      conversion.to = targets[random() % std::size(targets)];
      if (random() % 2 == 0) conversion.replacement = U'?';
      const test::Outcome whole = test::InPieces(conversion, BytesOf(bytes), bytes.size() + 1);
      for (const std::size_t size : {1U, 2U, 7U, 64U})
        ASSERT_EQ(test::InPieces(conversion, BytesOf(bytes), size), whole)
            << from.name << testing::PrintToString(bytes);
      if (!ExactEncoding(from).IsDivisible() || !ExactEncoding(*conversion.to).IsDivisible()) continue;
      for (const std::size_t size : {8U, 9U, 33U})
        ASSERT_EQ(test::InBlocks(conversion, BytesOf(bytes), size), whole)
            << from.name << testing::PrintToString(bytes);
    }
  }
}

test::Outcome AtOnce(const Conversion& conversion, codec::ByteSpan bytes) {
  TextConverter converter(conversion);
  Converted converted;
  converted.bytes.Append(BytesOf("before"));
  const bool is_done = converter.ConvertAtOnce(bytes, converted.bytes);
  return {std::string(converted.bytes.Text()), 0, 0, is_done ? "" : "refused"};
}

// A text that is converted at once has the bytes of the long way; what is refused leaves nothing.
TEST(TextConverter, ConvertsAtOnceWhatNeedsNoOtherLook) {
  std::mt19937 random(29);
  std::size_t done = 0;
  for (const auto& kernels : codec::KernelSets()) {
    if (!kernels.runs_here()) continue;
    const codec::ScopedKernels scope(kernels);
    for (const codec::Encoding& from : codec::Encodings()) {
      if (from.decode_one == nullptr) continue;
      for (int round = 0; round < ravo::test::Rounds(40); ++round) {
        const codec::Encoding& to = codec::Encodings()[random() % codec::Encodings().size()];
        if (to.encode_one == nullptr) continue;
        const std::string bytes = RandomBytes(random, from).substr(0, random() % 80);
        Conversion conversion;
        conversion.from = &from;
        conversion.to = &to;
        const test::Outcome whole = test::InPieces(conversion, BytesOf(bytes), bytes.size() + 1);
        const test::Outcome at_once = AtOnce(conversion, BytesOf(bytes));
        const bool is_done = at_once.fault.empty();
        ASSERT_EQ(at_once.bytes, is_done ? "before" + whole.bytes : "before") << from.name << to.name;
        ASSERT_TRUE(!is_done || whole.fault.empty()) << from.name << to.name;
        done += is_done ? 1 : 0;
      }
    }
  }
  EXPECT_GT(done, 100U);
}

TEST(TextConverter, ConvertsCzechAtOnce) {
  const std::u16string text = u"Příliš žluťoučký kůň";
  for (const char* const from : {"UTF_8", "Windows_1250", "Iso_8859_2", "UTF_16_LE", "UTF_32_BE"}) {
    for (const char* const to : {"UTF_8", "Windows_1250", "CP_852", "UCS_2_BE", "UCS_4_LE"}) {
      Conversion conversion;
      conversion.from = codec::FindEncoding(from);
      conversion.to = codec::FindEncoding(to);
      const test::Outcome outcome = AtOnce(conversion, BytesOf(codec::Encoded(*conversion.from, text)));
      EXPECT_EQ(outcome.fault, "") << from << to;
      EXPECT_EQ(outcome.bytes, "before" + codec::Encoded(*conversion.to, text)) << from << to;
    }
  }
}

// The bytes of the long way; nothing for each text that the long way refuses.
void ExpectByByte(const Conversion& conversion, const ravo::convert::ByteConversions& by_byte,
                  const std::string& bytes) {
  const test::Outcome whole = test::InPieces(conversion, BytesOf(bytes), bytes.size() + 1);
  std::vector<std::uint8_t> room(bytes.size() * by_byte.kMostBytes);
  const auto size = by_byte.Convert(BytesOf(bytes), room);
  ASSERT_EQ(size.has_value(), whole.fault.empty()) << testing::PrintToString(bytes);
  if (!size) return;
  ASSERT_EQ(std::string(room.begin(), room.begin() + static_cast<std::ptrdiff_t>(*size)), whole.bytes);
}

TEST(ByteConversions, AreThoseOfTheTextConverter) {
  std::mt19937 random(31);
  for (const codec::Encoding& from : codec::Encodings()) {
    if (from.table == nullptr || from.decode_one == nullptr) continue;
    for (const char* const to : {"UTF_8", "Windows_1250", "CP_852", "UTF_16_LE", "UCS_4_BE", "US_ASCII"}) {
      Conversion conversion;
      conversion.from = &from;
      conversion.to = codec::FindEncoding(to);
      const ravo::convert::ByteConversions by_byte(from, *conversion.to);
      ASSERT_NO_FATAL_FAILURE(ExpectByByte(conversion, by_byte, "")) << from.name << to;
      for (int byte = 0; byte < 256; ++byte)
        ASSERT_NO_FATAL_FAILURE(ExpectByByte(conversion, by_byte, std::string(1, static_cast<char>(byte))))
            << from.name << to;
      for (int round = 0; round < ravo::test::Rounds(20); ++round)
        ASSERT_NO_FATAL_FAILURE(ExpectByByte(conversion, by_byte, RandomBytes(random, from)))
            << from.name << to;
    }
  }
}

}  // namespace
}  // namespace tool
