#include "encoding_guess.h"

#include "czech_sentences.h"
#include "support/effort.h"
#include <ravo/codec/texts.h>
#include <ravo/convert/detection.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tool {
namespace {

namespace codec = ravo::codec;

std::u16string ReadAs(std::string_view encoding, std::string_view bytes) {
  return codec::Decoded(*codec::FindEncoding(encoding), bytes);
}

// Sentences in random order; the start is anywhere.
std::u16string Prose(std::mt19937& random, std::size_t length) {
  std::u16string text;
  while (text.size() < length + 100) {
    text += test::kCzechSentences[random() % std::size(test::kCzechSentences)];
    text += random() % 3 == 0 ? u"\r\n" : u" ";
  }
  return text.substr(random() % 80, length);
}

// The bytes of text, at most `size`, up to the last character that fits. Signs that the encoding lacks are
// left out.
std::string Fitting(const std::u16string& text, const codec::Encoding& encoding, std::size_t size) {
  std::string bytes;
  for (const char16_t c : text) {
    const std::string one = codec::Encoded(encoding, {&c, 1});
    if (bytes.size() + one.size() > size) break;
    if (one != "?") bytes += one;
  }
  return bytes;
}

bool IsAscii(std::u16string_view text) {
  return std::ranges::all_of(text, [](char16_t c) { return c < 0x80; });
}

struct Tally {
  int right = 0;  // it reads as what it is
  int certain_and_wrong = 0;
  std::map<std::string, int> guesses;
};

constexpr int kTexts = ravo::test::Rounds(1000);

// Texts of ASCII alone, which all of them read alike, do not count.
Tally Guess(std::string_view encoding, std::size_t size) {
  std::mt19937 random(static_cast<unsigned>(size));
  Tally tally;
  for (int count = 0; count < kTexts;) {
    const std::string bytes = Fitting(Prose(random, size), *codec::FindEncoding(encoding), size);
    const std::u16string text = ReadAs(encoding, bytes);
    if (IsAscii(text)) continue;
    ++count;
    const EncodingGuess guess = GuessEncoding(bytes);
    const bool right = ReadAs(guess.encoding, bytes) == text;
    tally.right += right ? 1 : 0;
    tally.certain_and_wrong += guess.certain && !right ? 1 : 0;
    ++tally.guesses[guess.encoding + (guess.certain ? "" : "?")];
  }
  return tally;
}

std::string Shown(const Tally& tally) {
  std::string text;
  for (const auto& [name, count] : tally.guesses) text += "  " + name + " " + std::to_string(count);
  return text;
}

TEST(GuessEncoding, FindsTheEncodingOfCzechText) {
  constexpr const char* kEncodings[] = {"Windows_1250", "Iso_8859_2", "CP_852",
                                        "UTF_8",        "UTF_16_LE",  "UTF_16_BE"};
  struct Size {
    std::size_t bytes;
    double least;
    double most_certain_and_wrong;
  };
  constexpr Size kSizes[] = {{20, 0.95, 0.01}, {100, 0.995, 0.001}, {1000, 1.0, 0.0}};
  for (const Size& size : kSizes) {
    for (const char* const encoding : kEncodings) {
      const Tally tally = Guess(encoding, size.bytes);
      std::printf("%5zu bytes  %-12s right %6.2f %%  certain and wrong %d %s\n", size.bytes, encoding,
                  100.0 * tally.right / kTexts, tally.certain_and_wrong, Shown(tally).c_str());
      EXPECT_GE(tally.right, size.least * kTexts) << encoding << ", " << size.bytes << " bytes";
      EXPECT_LE(tally.certain_and_wrong, size.most_certain_and_wrong * kTexts) << encoding;
    }
  }
}

using namespace std::literals;

TEST(GuessEncoding, Rows) {
  struct Row {
    std::string_view bytes;
    std::string_view encoding;
    bool certain;
    std::string_view why;
  };
  constexpr Row rows[] = {
      {"", "UTF_8", true, "ASCII"},
      {"Ucet;Castka\r\n", "UTF_8", true, "ASCII"},
      {"\xEF\xBB\xBF", "UTF_8", true, "byte-order mark"},
      {"\xFF\xFE\xE1\0"sv, "UTF_16_LE", true, "byte-order mark"},
      {"\xFE\xFF\0\xE1"sv, "UTF_16_BE", true, "byte-order mark"},
      {"\0\0\xFE\xFF\0\0\0a"sv, "UTF_32_BE", true, "byte-order mark"},
      {"a\0"sv, "UTF_16_LE", true, "zero bytes of UTF-16"},
      {"\0a\1\x0D"sv, "UTF_16_BE", true, "zero bytes of UTF-16"},
      {"a\0b\0c"sv, "UTF_16_LE", true, "zero bytes"},
      {"a\0\0\0\x0D\1\0\0"sv, "UTF_32_LE", true, "zero bytes of UTF-32"},
      {"\0\0\0a\0\0\1\x0D"sv, "UTF_32_BE", true, "zero bytes of UTF-32"},
      {"\0\x10\4\x10\4 \0\x11\4"sv.substr(1), "UTF_16_LE", true, "zero bytes of UTF-16"},
      {"\x7F\x45LF\0\0\0\1\2\3\4\0"sv, "Windows_1250", false, "may not be text"},
      {"Už je to tady, řekl.", "UTF_8", true, "UTF-8"},
      {"😀", "UTF_8", true, "valid UTF-8"},
      {"Кто", "UTF_8", false, "UTF-8 and"},
      {"Привет", "UTF_8", true, "valid UTF-8"},
      {"Příliš žluťou\xC4", "UTF_8", true, "valid UTF-8"},
      {"Dobr\xFD den", "Windows_1250", false, "Windows-1250 and ISO 8859-2 read it alike"},
      {"\xE1\xC4", "Windows_1250", false, "alike"},
      {"P\xF8\xEDli\x9A \x9Elu\x9Dou\xE8k\xFD k\xF9\xF2", "Windows_1250", true, "Windows-1250"},
      {"P\xF8\xEDli\xB9 \xBElu\xBBou\xE8k\xFD k\xF9\xF2", "Iso_8859_2", true, "ISO 8859-2"},
      {"P\xFD\xA1li\xE7 \xA7lu\x9Cou\x9Fk\xEC k\x85\xE5", "CP_852", true, "Code page 852"},
      {"\xC9\xCD\xCD\xCD\xCD\xBB\r\n\xBA st\xA0t \xBA", "CP_852", true, "Code page 852"},
      {"\x81\x83\x88\x90\x98", "CP_852", false, "does not look like Czech"},
  };
  for (const Row& row : rows) {
    const EncodingGuess guess = GuessEncoding(row.bytes);
    EXPECT_EQ(guess.encoding, row.encoding) << testing::PrintToString(row.bytes);
    EXPECT_EQ(guess.certain, row.certain) << testing::PrintToString(row.bytes) << guess.why;
    EXPECT_NE(guess.why.find(row.why), std::string::npos) << guess.why;
  }
}

// The same letters as in Mac Central European, which are no Czech text in any other encoding.
TEST(GuessEncoding, NeverIsAnEncodingOfMacintosh) {
  std::mt19937 random(7);
  for (int count = 0; count < 200; ++count) {
    const std::string bytes = Fitting(Prose(random, 200), *codec::FindEncoding("Mac_CentralEurope"), 200);
    EXPECT_EQ(GuessEncoding(bytes).encoding.find("Mac"), std::string::npos);
  }
}

using ravo::convert::DetectEncoding;
using ravo::convert::Detection;
using ravo::convert::Evidence;
using ravo::convert::MacTexts;

std::vector<std::string> NamesOf(const Detection& detection) {
  std::vector<std::string> names;
  for (const codec::Encoding* const one : detection.candidates) names.emplace_back(one->name);
  return names;
}

TEST(DetectEncoding, TellsWhatCannotBeToldApart) {
  struct Row {
    std::string_view bytes;
    Evidence evidence;
    std::vector<std::string> candidates;
  };
  const Row rows[] = {
      {"", Evidence::Ascii, {"UTF_8"}},
      {"P\xF8\xEDli\x9A \x9Elu\x9Dou\xE8k\xFD k\xF9\xF2", Evidence::Czech, {"Windows_1250"}},
      {"Dobr\xFD den", Evidence::Alike, {"Windows_1250", "Iso_8859_2", "CP_852"}},
      {"Кто", Evidence::Close, {"UTF_8", "CP_852"}},
      {"\x81\x83\x88\x90\x98", Evidence::Foreign, {"CP_852", "Windows_1250", "Iso_8859_2"}},
      {"\x7F\x45LF\0\0\0\1\2\3\4\0"sv, Evidence::Binary, {"Windows_1250"}},
  };
  for (const Row& row : rows) {
    const Detection detection = DetectEncoding(row.bytes);
    EXPECT_EQ(detection.evidence, row.evidence) << testing::PrintToString(row.bytes);
    EXPECT_EQ(NamesOf(detection), row.candidates) << testing::PrintToString(row.bytes);
    EXPECT_EQ(detection.IsSure(), row.evidence <= Evidence::Czech);
  }
}

// Texts of all encodings, with Mac Central European among the possible ones.
TEST(DetectEncoding, FindsTextsOfMacintoshOnRequest) {
  constexpr const char* kEncodings[] = {"Mac_CentralEurope", "Windows_1250", "Iso_8859_2", "CP_852", "UTF_8"};
  std::mt19937 random(13);
  for (const char* const encoding : kEncodings) {
    int right = 0;
    for (int count = 0; count < kTexts; ++count) {
      const std::string bytes = Fitting(Prose(random, 100), *codec::FindEncoding(encoding), 100);
      const Detection detection = DetectEncoding(bytes, MacTexts::Possible);
      const bool same = ReadAs(detection.Encoding().name, bytes) == ReadAs(encoding, bytes);
      right += same ? 1 : 0;
      EXPECT_TRUE(same || !detection.IsSure()) << encoding;
    }
    EXPECT_GE(right, 0.995 * kTexts) << encoding;
  }
}

TEST(GuessEncoding, IsTheSameForEveryLengthOfASample) {
  std::mt19937 random(11);
  const std::string bytes = Fitting(Prose(random, 3000), *codec::FindEncoding("UTF_8"), 3000);
  for (std::size_t length = 200; length <= bytes.size(); ++length)
    ASSERT_EQ(GuessEncoding(std::string_view(bytes).substr(0, length)).encoding, "UTF_8") << length;
}

}  // namespace
}  // namespace tool
