// Reads every malformed form of the multi-byte encodings to the end, from every kind of source.
#include "decoded_sources.h"
#include "encoding_texts.h"

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using test::Read;
using Way = test::SourceUnderTest::Way;
using namespace std::string_literals;

struct Vector {
  const TDIUnicodeReadMethods& methods;
  std::string bytes;
  std::u16string text;
};

// Sequences truncated at the end, in the middle and by another sequence; sequences that are too long,
// overlong or stray, or lead bytes of the wrong kind.
const Vector kUtf8[] = {
    {Read_UTF_8, "\xC3", u"\uFFFD"},
    {Read_UTF_8, "\xC3z", u"\uFFFDz"},
    {Read_UTF_8, "\xE2\x82", u"\uFFFD"},
    {Read_UTF_8, "\xE2z\x82", u"\uFFFDz\uFFFD"},
    {Read_UTF_8, "\xE2\x82z", u"\uFFFDz"},
    {Read_UTF_8, "\xE2\xE2\x82\xAC", u"\uFFFD€"},
    {Read_UTF_8, "\xE2\x82\xC3\xA1", u"\uFFFDá"},
    {Read_UTF_8, "\xC0\x80", u"\uFFFD"},
    {Read_UTF_8, "\xC1\xBFz", u"\uFFFDz"},
    {Read_UTF_8, "\xE0\x80\x80", u"\uFFFD"},
    {Read_UTF_8, "\xE0\x9F\xBF\xE0\xA0\x80", u"\uFFFD\u0800"},
    {Read_UTF_8, "\xED\xA0\x80\xED\xBF\xBF", u"\xD800\xDFFF"},
    {Read_UTF_8, "\x80z\xBF\x80", u"\uFFFDz\uFFFD\uFFFD"},
    {Read_UTF_8, "\xF0\x9F\x98", u"\uFFFD"},
    {Read_UTF_8, "\xF0\x9F\x98z", u"\uFFFDz"},
    {Read_UTF_8, "\xF0z", u"\uFFFDz"},
    {Read_UTF_8, "\xF7\xBF\xBF\xBF\xBF", u"\uFFFD\uFFFD"},
    {Read_UTF_8, "\xFB\xBF\xBF\xBF\xBF\xBF", u"\uFFFD\uFFFD"},
    {Read_UTF_8, "\xFD\xBF\xBF\xBF\xBF\xBF\xBF", u"\uFFFD\uFFFD"},
    {Read_UTF_8, "\xFC\x80\xFC\x80", u"\uFFFD\uFFFD"},
    {Read_UTF_8, "\xFE\xFF\xFEz", u"\uFFFD\uFFFD\uFFFDz"},
    {Read_UTF_8, "\xEF\xBB\xBFz\0\xEF\xBF\xBF"s, u"\uFEFFz\0\uFFFF"s},
};

const Vector kUtf7[] = {
    {Read_UTF_7, "+", u"\uFFFD"},
    {Read_UTF_7, "+-", u"+"},
    {Read_UTF_7, "+-+-", u"++"},
    {Read_UTF_7, "-", u"-"},
    {Read_UTF_7, "+z", u"\uFFFD"},                   // six bits make nothing
    {Read_UTF_7, "+!z", u"\uFFFD!z"},                // an empty run
    {Read_UTF_7, "+ ", u"\uFFFD "},                  //
    {Read_UTF_7, "++", u"\uFFFD"},                   // "+" is of base 64
    {Read_UTF_7, "+AGE-", u"a"},                     //
    {Read_UTF_7, "+AGE", u"a"},                      // the end of the data ends a run
    {Read_UTF_7, "+AGE!", u"a!"},                    // so does any byte that is not of base 64
    {Read_UTF_7, "+AGE--", u"a-"},                   // the first "-" belongs to the run
    {Read_UTF_7, "+AGF-", u"a\uFFFD"},               // a last bit that is not zero
    {Read_UTF_7, "+AGEA-z", u"a\uFFFDz"},            // eight bits left over
    {Read_UTF_7, "+AGEAA!z", u"a\uFFFD!z"},          // fourteen
    {Read_UTF_7, "+AGEAA", u"a\uFFFD"},              //
    {Read_UTF_7, "+AGE\xC3\xA1", u"a\uFFFD\uFFFD"},  // bytes beyond ASCII end a run and mean nothing
    {Read_UTF_7, "+\xC3z", u"\uFFFD\uFFFDz"},        //
    {Read_UTF_7, "\x80\xFFz", u"\uFFFD\uFFFDz"},     //
    {Read_UTF_7, "~\\\0\x7F"s, u"~\\\0\x7F"s},       // read as they are, though not written so
    {Read_UTF_7, "+2D3eAA-", u"\xD83D\xDE00"},       //
    {Read_UTF_7, "+3gDYPQ-", u"\xDE00\xD83D"},       // halves in the wrong order pass too
    {Read_UTF_7, "+AGE-+AGI-", u"ab"},               //
    {Read_UTF_7, "+AGE\0+AGI-"s, u"a\0b"s},          //
    {Read_UTF_7, "Hi Mom +Jjo-!", u"Hi Mom \u263A!"},
    {Read_UTF_7, "+ZeVnLIqe-", u"\u65E5\u672C\u8A9E"},
};

const Vector kWide[] = {
    {Read_UTF_16_BE, "\0", u""},
    {Read_UTF_16_BE, "\0a\0"s, u"a"},
    {Read_UTF_16_LE, "a\0b"s, u"a"},
    {Read_UTF_16_BE, "\xD8\0"s, u"\uFFFD"},
    {Read_UTF_16_BE, "\xD8\0\xD8"s, u"\uFFFD"},
    {Read_UTF_16_LE, "\0\xDB\0\xD8\0\xDCz\0"s, u"\uFFFD"},
    {Read_UTF_16_BE, "\xDB\xFF\xD8\0\0z"s, u"\uFFFDz"},
    {Read_UTF_16_BE, "\0a\xDF\xFF\0z"s, u"a"},
    {Read_UTF_16_LE, "\xFF\xFE\xFE\xFF\xFF\xFF"s, u"\uFEFF\uFFFE\uFFFF"},
    {Read_UCS_2_BE, "\xD8\0\xDC"s, u"\xD800"},
    {Read_UCS_2_LE, "\0\xDC\0\xD8z\0\0"s, u"\xDC00\xD800z"},
    {Read_UTF_32_BE, "\0\0\0"s, u""},
    {Read_UTF_32_LE, "z\0\0\0\0\0"s, u"z"},
    {Read_UTF_32_BE, "\0\x10\xFF\xFF\0\x11\0\0\xFF\xFF\xFF\xFF\0\0\xFF\xFF"s, u"\uFFFD\uFFFD\uFFFD\uFFFF"},
    {Read_UTF_32_LE, "\0\xD8\0\0\xFF\xDF\0\0z\0\0\x01\xFF\xFF\0\0"s, u"\uFFFD\uFFFD\uFFFD\uFFFF"},
    {Read_UCS_4_BE, "\0\0\xD8\0\0\x01\0\0\0\0\0z\0"s, u"\xD800\uFFFDz"},
    {Read_UCS_4_LE, "\xFF\xDF\0\0\0\0\0\x80z\0\0\0"s, u"\xDFFF\uFFFDz"},
};

const Vector kGb18030[] = {
    {Read_GB_18030, "\x81", u"\uFFFD"},
    {Read_GB_18030, "\x81@\x81", u"\u4E02\uFFFD"},
    {Read_GB_18030, "\x81\x20", u"\uFFFD "},
    {Read_GB_18030, "\x81\x7Fz", u"\uFFFD\x7Fz"},
    {Read_GB_18030, "\x81\xFFz", u"\uFFFD\uFFFDz"},
    {Read_GB_18030, "\x80\x40", u"\uFFFD@"},
    {Read_GB_18030, "\xFF\x40", u"\uFFFD@"},
    {Read_GB_18030, "\x81\x30", u"\uFFFD"},
    {Read_GB_18030, "\x81\x30z", u"\uFFFDz"},
    {Read_GB_18030, "\x81\x30\x81", u"\uFFFD"},
    {Read_GB_18030, "\x81\x30\x81z", u"\uFFFDz"},
    {Read_GB_18030, "\x81\x30\xFF\x30", u"\uFFFD\uFFFD0"},
    {Read_GB_18030, "\x81\x30\x81\xB0\xA1", u"\uFFFD啊"},
    {Read_GB_18030, "\x84\x31\xA4\x37\x84\x31\xA4\x39\x84\x31\xA5\x30", u"\uFFFD\xFFFF\uFFFD"},
    {Read_GB_18030, "\x90\x30\x81\x30\xE3\x32\x9A\x35\xE3\x32\x9A\x36\xFE\x39\xFE\x39z",
     u"\uFFFD\uFFFD\uFFFD\uFFFDz"},
};

std::u16string ReadBy(const TDIUnicodeReadMethods& methods, std::string_view bytes, Way way,
                      std::size_t cut = 0) {
  TDIUnicodeReader reader;
  reader.SetReadMethods(methods);
  const test::SourceUnderTest source(reader, bytes, way, cut);
  return test::ReadAll(reader);
}

// Adds padding of zeros, four at a time, which are whole characters U+0000 in every encoding.
void ExpectBehindPadding(const Vector& vector, std::size_t count) {
  const std::string padding(4 * count, '\0');
  const std::u16string padded = Read(vector.methods, padding);
  EXPECT_EQ(ReadBy(vector.methods, padding + vector.bytes, Way::Buffer), padded + vector.text) << count;
  EXPECT_EQ(ReadBy(vector.methods, padding + vector.bytes, Way::Stream), padded + vector.text) << count;
}

void ExpectHoweverTheBytesArrive(std::span<const Vector> vectors) {
  for (const Vector& vector : vectors) {
    SCOPED_TRACE(testing::PrintToString(vector.bytes));
    for (const Way way : {Way::Buffer, Way::Stream, Way::SingleBytes}) {
      EXPECT_EQ(ReadBy(vector.methods, vector.bytes, way), vector.text);
    }
    for (std::size_t cut = 0; cut <= vector.bytes.size(); ++cut) {
      EXPECT_EQ(ReadBy(vector.methods, vector.bytes, Way::TwoPieces, cut), vector.text) << cut;
    }
    for (std::size_t count = 0; count < 32; ++count) ExpectBehindPadding(vector, count);
    // The end of the reader's own buffer of 4096 bytes.
    for (std::size_t count = 1020; count <= 1025; ++count) ExpectBehindPadding(vector, count);
  }
}

TEST(EncodingVectors, Utf8) { ExpectHoweverTheBytesArrive(kUtf8); }
TEST(EncodingVectors, Utf7) { ExpectHoweverTheBytesArrive(kUtf7); }
TEST(EncodingVectors, UnitsOfTwoAndFourBytes) { ExpectHoweverTheBytesArrive(kWide); }
TEST(EncodingVectors, Gb18030) { ExpectHoweverTheBytesArrive(kGb18030); }

}  // namespace
}  // namespace ravo::DIUnicode
