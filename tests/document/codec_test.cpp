#include "support/effort.h"
#include <ravo/codec/encoding.h>
#include <ravo/document/codec.h>

#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

namespace ravo::document {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

std::shared_ptr<const DocumentCodec> CodecNamed(std::string_view name) {
  return CodecOf(*codec::FindEncoding(name));
}

std::string Encoded(std::string_view name, char32_t c) {
  std::string bytes;
  return CodecNamed(name)->Encode(c, bytes) ? bytes : "none";
}

// The text up to the first malformed bytes, and their position.
std::pair<std::string, std::size_t> Decoded(std::string_view name, std::string_view bytes,
                                            std::size_t from = 0) {
  std::string utf8;
  const std::size_t end = CodecNamed(name)->Decode(bytes, from, utf8);
  return {utf8, end};
}

// The bytes are those that Python's codecs write.
TEST(DocumentCodec, WritesCharactersOfEveryLength) {
  EXPECT_EQ(Encoded("Windows_1250", U'ř'), "\xF8");
  EXPECT_EQ(Encoded("Windows_1250", U'я'), "none");
  EXPECT_EQ(Encoded("Windows_1250", 0xFFFD), "none");
  EXPECT_EQ(Encoded("Windows_1250", 0x1F600), "none");
  EXPECT_EQ(Encoded("UTF_8", 0x1F600), "\xF0\x9F\x98\x80");
  EXPECT_EQ(Encoded("UTF_16_LE", 0x1F600), "\x3D\xD8\x00\xDE"sv);
  EXPECT_EQ(Encoded("UTF_16_BE", 0xFFFD), "\xFF\xFD");
  EXPECT_EQ(Encoded("UTF_32_BE", U'ř'), "\0\0\x01\x59"sv);
  EXPECT_EQ(Encoded("GB_18030", U'€'), "\xA2\xE3");
  EXPECT_EQ(Encoded("GB_18030", U'ř'), "\x81\x30\x94\x30");
  EXPECT_EQ(Encoded("GB_18030", 0xFFFD), "\x84\x31\xA4\x37");
  EXPECT_EQ(Encoded("GB_18030", 0x10000), "\x90\x30\x81\x30");
  EXPECT_EQ(Encoded("GB_18030", 0x10FFFF), "\xE3\x32\x9A\x35");
}

TEST(DocumentCodec, ReadsUpToMalformedBytes) {
  EXPECT_EQ(Decoded("Windows_1250", "k\xF9\xF2"), std::pair("kůň"s, std::size_t{3}));
  EXPECT_EQ(Decoded("Windows_1250", "k\xF9\x81\xF2"), std::pair("ků"s, std::size_t{2}));
  EXPECT_EQ(Decoded("UTF_8", "xk\xC5\xAF\xC5", 1), std::pair("ků"s, std::size_t{4}));
  EXPECT_EQ(Decoded("UTF_16_LE", "k\0\x3D\xD8\x00\xDE\x3D\xD8"sv),
            std::pair("k\xF0\x9F\x98\x80"s, std::size_t{6}));
  EXPECT_EQ(Decoded("UTF_16_BE", "\0k\xDC\0"sv), std::pair("k"s, std::size_t{2}));
  EXPECT_EQ(Decoded("UTF_32_BE", "\0\0\0k\0\x11\0\0"sv), std::pair("k"s, std::size_t{4}));
  EXPECT_EQ(Decoded("GB_18030", "k\x84\x31\xA4\x37\xFF"), std::pair("k\xEF\xBF\xBD"s, std::size_t{5}));
  EXPECT_EQ(Decoded("GB_18030", "\x90\x30\x81\x30\xE3\x32\x9A\x36"),
            std::pair("\xF0\x90\x80\x80"s, std::size_t{4}));
}

// Long texts are read in pieces.
TEST(DocumentCodec, ReadsLongTextsAsShortOnes) {
  for (const std::string_view name : {"UTF_16_BE", "GB_18030", "Windows_1250"}) {
    const auto codec = CodecNamed(name);
    std::string bytes = name == "UTF_16_BE" ? "" : "a";
    std::string text = bytes;
    while (bytes.size() < 200000) {
      if (codec->Encode(0x1F600, bytes)) text += "\xF0\x9F\x98\x80";
      if (codec->Encode(U'ř', bytes)) text += "ř";
    }
    EXPECT_EQ(Decoded(name, bytes), std::pair(text, bytes.size())) << name;
    EXPECT_EQ(Decoded(name, bytes + '\x81'), std::pair(text, bytes.size())) << name;
  }
}

TEST(DocumentCodec, IsNoneIfBytesDependOnThoseBefore) {
  EXPECT_EQ(CodecNamed("UTF_7"), nullptr);
  EXPECT_EQ(CodecNamed("UTF_7_ODC"), nullptr);
}

// One character after another, as places in a document are found.
TEST(DocumentCodec, ReadsWhatItWrites) {
  for (const codec::Encoding& row : codec::Encodings()) {
    const auto codec = CodecOf(row);
    if (codec == nullptr) continue;
    for (char32_t c = 0; c < 0x11000; c += test::StepUnderSanitizers(41)) {
      std::string bytes;
      if ((c >= 0xD800 && c < 0xE000) || !codec->Encode(c, bytes)) continue;
      const auto [value, size] = codec->DecodeOne(bytes, 0);
      ASSERT_EQ(size, bytes.size()) << row.name << " " << std::uint32_t{c};
      ASSERT_TRUE(value == c || row.engine == "SingleByte") << row.name << " " << std::uint32_t{c};
    }
  }
}

}  // namespace
}  // namespace ravo::document
