// Decoding whole runs and single characters has identical results: each operation on the same bytes both
// ways, from every kind of source.
#include "decoded_sources.h"
#include "support/effort.h"
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/unicode/encoding_of.h>

#include <array>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using codec::KernelSet;
using codec::KernelSets;
using codec::ScopedKernels;
using unicode::EncodingOf;

using Reader = TDIUnicodeReader;
using Way = test::SourceUnderTest::Way;
using namespace std::string_view_literals;

// An encoding with runs, and the same encoding by routines without runs.
struct Encoding {
  std::string_view name;
  const TDIUnicodeReadMethods& known;
  TDIUnicodeReadMethods unknown;
};

template <bool (*read_char)(Reader&, char16_t&)>
constexpr TDIUnicodeReadMethods Hidden() {
  return {nullptr, [](Reader& reader, char16_t& ch) { return read_char(reader, ch); }, nullptr};
}

const std::array kEncodings = {
    Encoding{"Iso_8859_1", Read_Iso_8859_1, Hidden<Read_Iso_8859_1_ReadChar>()},
    Encoding{"Windows_1250", Read_Windows_1250, Hidden<Read_Windows_1250_ReadChar>()},
    Encoding{"UTF_8", Read_UTF_8, Hidden<Read_UTF_8_ReadChar>()},
    Encoding{"UTF_16_LE", Read_UTF_16_LE, Hidden<Read_UTF_16_LE_ReadChar>()},
    Encoding{"UTF_16_BE", Read_UTF_16_BE, Hidden<Read_UTF_16_BE_ReadChar>()},
    Encoding{"UCS_2_LE", Read_UCS_2_LE, Hidden<Read_UCS_2_LE_ReadChar>()},
    Encoding{"UTF_32_BE", Read_UTF_32_BE, Hidden<Read_UTF_32_BE_ReadChar>()},
    Encoding{"GB_18030", Read_GB_18030, Hidden<Read_GB_18030_ReadChar>()},
};

bool IsVowel(char16_t c) { return u"aeiouy"sv.find(c) != std::u16string_view::npos; }

using Operation = void (*)(Reader&);

constexpr Operation kOperations[] = {
    [](Reader& r) { r.ReadChar(); },
    [](Reader& r) { r.ReadChars(u'a'); },
    [](Reader& r) { r.SkipChars(u'a'); },
    [](Reader& r) { r.ReadChars(u'a', u' '); },
    [](Reader& r) { r.SkipChars(u'a', u' '); },
    [](Reader& r) { r.ReadChars(IsVowel); },
    [](Reader& r) { r.SkipChars(IsVowel); },
    [](Reader& r) { r.ReadChars(CharIsAlphaW, u'e'); },
    [](Reader& r) { r.SkipChars(CharIsAlphaW, u'e'); },
    [](Reader& r) { r.ReadCharsTill(u';'); },
    [](Reader& r) { r.SkipCharsTill(u';'); },
    [](Reader& r) { r.ReadCharsTill(u';', u'\n'); },
    [](Reader& r) { r.SkipCharsTill(u';', u'\n'); },
    [](Reader& r) { r.ReadCharsTill(u';', u'\x10D', u'\r'); },
    [](Reader& r) { r.SkipCharsTill(u';', u'\x10D', u'\r'); },
    [](Reader& r) { r.ReadCharsTill(IsVowel); },
    [](Reader& r) { r.SkipCharsTill(IsVowel); },
    [](Reader& r) { r.ReadDigits(); },
    [](Reader& r) { r.SkipDigits(); },
    [](Reader& r) { r.ReadHexDigits(); },
    [](Reader& r) { r.SkipHexDigits(); },
    [](Reader& r) { r.ReadWhiteSpace(); },
    [](Reader& r) { r.SkipWhiteSpace(); },
    [](Reader& r) { r.ReadCharsTillWhiteSpace(); },
    [](Reader& r) { r.ReadTillEndOfLine(); },
    [](Reader& r) { r.SkipTillEndOfLine(); },
    [](Reader& r) { r.ReadLine(); },
    [](Reader& r) { r.SkipLine(); },
    [](Reader& r) { r.SkipEmptyLines(); },
    [](Reader& r) { r.SkipEmptyLines(IsVowel); },
    [](Reader& r) { r.PeekChars(3); },
    [](Reader& r) { r.PeekChars(40); },
};

std::string Standing(const Reader& reader) {
  return std::to_string(reader.CharOK()) + " U+" + std::to_string(reader.Char()) + " at " +
         std::to_string(reader.CharPos()) + " (" + std::to_string(reader.CharLine()) + ":" +
         std::to_string(reader.CharCol()) + "), byte " + std::to_string(reader.SourceBufferPosition()) +
         " of " + std::to_string(reader.SourceBufferSize());
}

void ExpectSameStanding(const Reader& expected, const Reader& reader, const std::string& what) {
  ASSERT_EQ(Standing(reader), Standing(expected)) << what;
  ASSERT_EQ(reader.Data(), expected.Data()) << what;
  ASSERT_EQ(reader.DataCapacity(), expected.DataCapacity()) << what;
  ASSERT_EQ(reader.PeekedChars(), expected.PeekedChars()) << what;
}

// Runs random operations on both, from the same source.
void RunBothHere(const Encoding& encoding, std::string_view bytes, Way way, std::uint32_t seed,
                 std::size_t cut) {
  Reader expected;
  Reader reader;
  expected.SetReadMethods(encoding.unknown);
  reader.SetReadMethods(encoding.known);
  const test::SourceUnderTest expected_source(expected, bytes, way, cut);
  const test::SourceUnderTest source(reader, bytes, way, cut);
  std::mt19937 random(seed);
  for (int idle = 0; idle < 3;) {
    const std::size_t operation = random() % std::size(kOperations);
    const std::uint32_t before = expected.CharPos();
    // Advances once, in case no operation matches the current character.
    expected.ReadChar();
    reader.ReadChar();
    kOperations[operation](expected);
    kOperations[operation](reader);
    ASSERT_NO_FATAL_FAILURE(ExpectSameStanding(expected, reader,
                                               std::string(encoding.name) + ", operation " +
                                                   std::to_string(operation) + ", seed " +
                                                   std::to_string(seed)));
    if (random() % 8 == 0) {
      expected.ClearData();
      reader.ClearData();
    }
    idle = expected.CharPos() == before ? idle + 1 : 0;
  }
}

// Repeats the comparison with every kernel.
void RunBoth(const Encoding& encoding, std::string_view bytes, Way way, std::uint32_t seed,
             std::size_t cut = 0) {
  for (const KernelSet& kernel : KernelSets()) {
    if (!kernel.runs_here()) continue;
    SCOPED_TRACE(kernel.name);
    const ScopedKernels chosen(kernel);
    ASSERT_NO_FATAL_FAILURE(RunBothHere(encoding, bytes, way, seed, cut));
  }
}

// Returns text with runs of many lengths and some invalid bytes.
std::string RandomText(std::mt19937& random, std::size_t size) {
  constexpr std::string_view pieces[] = {"a",
                                         "e",
                                         "  ",
                                         "\t",
                                         "\r\n",
                                         "\n",
                                         "\r",
                                         ";",
                                         "0123456789",
                                         "\xC4\x8D",
                                         "\xE2\x82\xAC",
                                         "\xE8",
                                         "\xFF",
                                         "The quick brown fox jumps over the lazy dog "};
  std::string text;
  while (text.size() < size) {
    const std::string_view piece = pieces[random() % std::size(pieces)];
    const std::size_t count = random() % 4 == 0 ? random() % 90 : 1;
    for (std::size_t i = 0; i < count; ++i) text += piece;
  }
  text.resize(size);
  return text;
}

// Returns the text in two or four bytes per character.
std::string Widened(std::string_view text, std::size_t bytes_each, bool high_first) {
  std::string wide;
  for (const char c : text) {
    std::string unit(bytes_each, '\0');
    unit[high_first ? bytes_each - 1 : 0] = c;
    wide += unit;
  }
  return wide;
}

std::string BytesFor(const Encoding& encoding, std::mt19937& random, std::size_t size) {
  std::string text = RandomText(random, size);
  // Some bytes stay unchanged: malformed characters of all kinds.
  if (random() % 4 == 0) return text;
  if (encoding.name.ends_with("_LE")) return Widened(text, 2, false);
  if (encoding.name == "UTF_16_BE") return Widened(text, 2, true);
  if (encoding.name == "UTF_32_BE") return Widened(text, 4, true);
  return text;
}

TEST(WholeRuns, AreKnownForTheseEncodings) {
  for (const Encoding& encoding : kEncodings) {
    if (encoding.name == "GB_18030") continue;
    EXPECT_NE(EncodingOf(encoding.known), nullptr) << encoding.name;
    EXPECT_EQ(EncodingOf(encoding.unknown), nullptr) << encoding.name;
  }
}

TEST(WholeRuns, GiveWhatSingleCharactersGive) {
  std::mt19937 random(72);
  for (const Encoding& encoding : kEncodings) {
    for (const Way way : {Way::Buffer, Way::Stream, Way::StingyStream, Way::SingleBytes}) {
      for (std::uint32_t seed = 0; seed < 40; seed += test::StepUnderSanitizers(3)) {
        const std::string bytes = BytesFor(encoding, random, random() % (seed % 4 == 0 ? 9000 : 700));
        ASSERT_NO_FATAL_FAILURE(RunBoth(encoding, bytes, way, seed));
      }
    }
  }
}

constexpr std::string_view kVectors[] = {
    "a\r\nb\rc\nd"sv,
    "word  \xC4\x8D\xE2\x82\xAC;\r\n\tnext \xF0\x9F\x98\x80 line\n\n12ab\xC4"sv,
    "\xE2\x82\x41\xC0\x80\xED\xA0\x80;\xFF\xFE\x80 \r"sv,
};

TEST(WholeRuns, GiveTheSameAtEverySplit) {
  for (const Encoding& encoding : kEncodings) {
    for (const std::string_view vector : kVectors) {
      for (std::size_t cut = 0; cut <= vector.size(); ++cut)
        ASSERT_NO_FATAL_FAILURE(
            RunBoth(encoding, vector, Way::TwoPieces, static_cast<std::uint32_t>(cut), cut));
    }
  }
}

TEST(WholeRuns, GiveTheSameAtAnyAlignment) {
  for (const Encoding& encoding : kEncodings) {
    for (const std::string_view vector : kVectors) {
      for (std::size_t padding = 0; padding < 32; ++padding)
        ASSERT_NO_FATAL_FAILURE(RunBoth(encoding, std::string(padding, ' ').append(vector), Way::Buffer,
                                        static_cast<std::uint32_t>(padding)));
    }
  }
}

TEST(WholeRuns, GiveTheSameAcrossTheEdgeOfTheBuffer) {
  for (const Encoding& encoding : kEncodings) {
    for (const std::string_view vector : kVectors) {
      for (std::size_t before = 4096 - vector.size(); before <= 4097; ++before)
        ASSERT_NO_FATAL_FAILURE(RunBoth(encoding, std::string(before, 'x').append(vector), Way::Stream,
                                        static_cast<std::uint32_t>(before)));
    }
  }
}

// A source ends inside a run, and the source below it has another encoding.
TEST(WholeRuns, EndWithTheirSource) {
  const std::string text(100, 'x');
  for (const bool known : {false, true}) {
    const auto methods = [known](const Encoding& encoding) {
      return known ? encoding.known : encoding.unknown;
    };
    Reader reader;
    reader.SetReadMethods(methods(kEncodings[3]));
    const std::string outer = Widened("ab" + text + ";cd", 2, false);
    reader.SetSourceBufferAsStrA(outer);
    reader.ReadChar();
    reader.PushSource(true);
    reader.SetReadMethods(methods(kEncodings[0]));
    reader.SetSourceBufferAsStrA(text);
    reader.ReadChar();
    reader.ReadCharsTill(u';');
    EXPECT_EQ(reader.Data(), std::u16string(100, u'x').append(u"b").append(100, u'x'));
    EXPECT_EQ(reader.CharPos(), 103u);
    EXPECT_EQ(reader.Char(), u';');
  }
}

}  // namespace
}  // namespace ravo::DIUnicode
