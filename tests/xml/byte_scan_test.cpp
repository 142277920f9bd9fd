#include "support/guarded_buffer.h"
#include "xml_text.h"
#include <ravo/xml/byte_scan.h>
#include <ravo/xml/escape.h>

#include <random>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace ravo;
using namespace ravo::test;
using namespace ravo::xml;

constexpr std::size_t kLongest = 50;

// Bytes at the end of readable memory, followed by just as many as the loops may read.
class Room {
 public:
  explicit Room(const std::string& text) : bytes_(BytesOf(text + std::string(kReadAhead, '<'))) {}
  [[nodiscard]] char* Begin() const { return reinterpret_cast<char*>(bytes_.Bytes().data()); }

 private:
  GuardedBuffer bytes_;
};

const char* PlainEndOfOrdinary(const char* at, const char* end) {
  for (const char* begin = at; at != end; ++at) {
    if (static_cast<unsigned char>(*at) < 0x20 ||
        std::string_view("&<>\"").find(*at) != std::string_view::npos)
      break;
    if (*at == ' ' && at != begin && at[-1] == ' ') break;
  }
  return at;
}

TEST(FindEither, FindsEachByteAtEveryPlace) {
  for (std::size_t size = 0; size < kLongest; ++size) {
    for (const char stop : {'<', '\0'}) {
      const Room room(std::string(size, 'x') + stop);
      for (std::size_t from = 0; from <= size; ++from) {
        EXPECT_EQ(FindEither(room.Begin() + from, '<', '\0'), room.Begin() + size);
      }
    }
  }
}

TEST(Normalise, RemovesPairsAndJoinsBlanks) {
  const std::pair<std::string, std::string> rows[] = {
      {"", ""},         {" a", " a"},         {"  a  b ", " a b "}, {"a\r\nb", "ab"},
      {"a\n\rb", "ab"}, {"a\n\r\nb", "a\nb"}, {"a\r\n\rb", "a\rb"}, {"a\nb\r", "a\nb\r"},
      {"\r\n\r", "\r"}, {"\n", "\n"},         {"\n\r\n", "\n"},
  };
  for (const auto& [text, wanted] : rows) {
    std::string bytes = text;
    Normalise(bytes);
    EXPECT_EQ(bytes, wanted) << text;
    EXPECT_TRUE(!IsNormalised(text) || text == wanted) << text;
  }
}

TEST(EndOfOrdinary, IsEachByteThatIsSpecialAtEveryPlace) {
  for (int byte = 0; byte < 256; ++byte) {
    for (const std::size_t place : {0U, 1U, 14U, 15U, 16U, 17U, 31U, 32U, 40U}) {
      std::string text(41, 'x');
      text[place] = static_cast<char>(byte);
      const Room room(text);
      const char* const end = room.Begin() + text.size();
      EXPECT_EQ(EndOfOrdinary(room.Begin(), end), PlainEndOfOrdinary(room.Begin(), end))
          << byte << " at " << place;
    }
  }
}

TEST(EndOfOrdinary, SeesTwoBlanksAtEveryPlace) {
  for (std::size_t place = 0; place + 1 < kLongest; ++place) {
    std::string text(kLongest, 'x');
    text[place] = text[place + 1] = ' ';
    const Room room(text);
    for (std::size_t from = 0; from <= text.size(); ++from) {
      const char* const at = room.Begin() + from;
      const char* const end = room.Begin() + text.size();
      EXPECT_EQ(EndOfOrdinary(at, end), PlainEndOfOrdinary(at, end)) << place << " from " << from;
    }
  }
}

TEST(EndOfOrdinary, AgreesWithThePlainLoopOnAnyText) {
  std::mt19937 random(3);
  const std::string_view letters = "abcdefgh \xE8\x80 =/'0";
  for (int i = 0; i < 20000; ++i) {
    std::string text(random() % kLongest, ' ');
    for (char& ch : text) ch = letters[random() % letters.size()];
    if (!text.empty() && random() % 2 == 0) text[random() % text.size()] = "&<>\"\r\n\t "[random() % 8];
    const Room room(text);
    const char* const end = room.Begin() + text.size();
    ASSERT_EQ(EndOfOrdinary(room.Begin(), end), PlainEndOfOrdinary(room.Begin(), end)) << text;
  }
}

TEST(EndOfPlainText, StepsOverWholeEntitiesAlone) {
  const auto plain = [](const std::string& text) {
    const Room room(text);
    return EndOfPlainText(room.Begin(), room.Begin() + text.size()) - room.Begin();
  };
  EXPECT_EQ(plain("a &lt; b &amp;&quot;&gt; c"), 26);
  EXPECT_EQ(plain("a &lt"), 2);
  EXPECT_EQ(plain("&apos;"), 0);
  EXPECT_EQ(plain("&amp;&"), 5);
  EXPECT_EQ(plain(""), 0);
}

}  // namespace
