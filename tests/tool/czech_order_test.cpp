#include "czech_order.h"

#include "natural_order.h"
#include "utf8_reader.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::string KeyOf(std::string_view text, const tool::CzechOrder& order = {}) {
  std::string key;
  tool::CzechKeys(order).Append(text, key);
  return key;
}

// Each text comes before the next one.
void ExpectInOrder(const std::vector<std::string_view>& texts, const tool::CzechOrder& order = {}) {
  for (std::size_t i = 1; i < texts.size(); ++i) {
    EXPECT_LT(KeyOf(texts[i - 1], order), KeyOf(texts[i], order)) << texts[i - 1] << " and " << texts[i];
  }
}

TEST(CzechOrder, HasItsOwnLetters) {
  ExpectInOrder({"cz", "ča", "čz", "da", "hz", "cha", "chz", "i", "rz", "řa", "sz", "ša", "tz", "zz", "ža"});
}

TEST(CzechOrder, ComparesAccentsAfterLettersAndCapitalsAtLast) {
  ExpectInOrder({"rada", "Rada", "ráda", "Ráda", "radar", "řada"});
  ExpectInOrder({"uhel", "úhel", "uhelný"});
  ExpectInOrder({"den", "Den", "deň", "děn"});
  ExpectInOrder({"chata", "cHata", "Chata", "CHata", "chatař"});
}

TEST(CzechOrder, PutsBlanksAndSignsBeforeLettersAndDigitsAfterThem) {
  ExpectInOrder({"", "a", "a b", "a-b", "ab", "až", "a1"});
  ExpectInOrder({"a 1", "a-1", "a1", "aa"}, {.digits_first = true});
}

TEST(CzechOrder, TakesACombiningMarkForTheLetterWithIt) {
  EXPECT_EQ(KeyOf("c\u030Capka"), KeyOf("čapka"));
  EXPECT_EQ(KeyOf("Z\u030C"), KeyOf("Ž"));
  EXPECT_EQ(KeyOf("u\u030A"), KeyOf("ů"));
}

TEST(CzechOrder, IgnoresCaseOnRequest) {
  const tool::CzechOrder order{.ignore_case = true};
  EXPECT_EQ(KeyOf("CHATA Ř", order), KeyOf("chata ř", order));
  EXPECT_NE(KeyOf("chátá", order), KeyOf("chata", order));
}

TEST(CzechOrder, KeepsOtherLettersAfterItsOwn) { ExpectInOrder({"ž", "9", "α", "я", "中", "\U00010400"}); }

TEST(NaturalOrder, ComparesNumbersOfAnyLengthByValue) {
  const tool::CzechOrder order{.natural = true};
  ExpectInOrder({"FV1", "FV2", "FV10", "FV100", "FV1000", "FV1000a"}, order);
  const std::string long_number(300, '9');
  const std::string longer_number = "1" + std::string(300, '0');
  ExpectInOrder({"a5", "a" + long_number, "a" + longer_number, "b1"}, order);
  EXPECT_EQ(KeyOf("FV007", order), KeyOf("FV7", order));
  EXPECT_LT(KeyOf("FV0", order), KeyOf("FV1", order));
}

std::string DecimalKey(std::string_view text) {
  std::string key;
  tool::AppendDecimalKey(text, key);
  return key;
}

TEST(NaturalOrder, ComparesDecimalNumbers) {
  const std::vector<std::string_view> in_order = {"Kč",       "-1 234,50",
                                                  "-1234.4",  "\u221299",
                                                  "-0,5",     "0",
                                                  "0,05",     ".5",
                                                  "0.51",     "1,2",
                                                  "1,25 Kč",  "+9",
                                                  "12",       "1\u00A0234,5",
                                                  "1 234,51", "12345678901234567890123"};
  for (std::size_t i = 1; i < in_order.size(); ++i) {
    EXPECT_LT(DecimalKey(in_order[i - 1]), DecimalKey(in_order[i]))
        << in_order[i - 1] << " and " << in_order[i];
  }
  for (const std::string_view zero : {"-0", "0,00", "+0", " 000", "-0,0"})
    EXPECT_EQ(DecimalKey(zero), DecimalKey("0")) << zero;
  EXPECT_EQ(DecimalKey("1,50"), DecimalKey("1.5"));
}

TEST(Utf8Reader, FindsTheFirstWrongByte) {
  EXPECT_EQ(tool::ValidUtf8Length("Příliš žluťoučký kůň \U0001F600"),
            std::string_view("Příliš žluťoučký kůň \U0001F600").size());
  // A lone continuation, a cut character, overlong forms, a surrogate, a code past the last one, no lead at
  // all.
  for (const std::string_view wrong :
       {"\x80", "\xC4", "\xC0\x80", "\xE0\x80\x80", "\xF0\x80\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
        "\xFF", "\xC4z", "\xE2\x82", "\xF0\x9F\x98"}) {
    for (const std::size_t before : {0U, 1U, 7U, 8U, 9U}) {
      EXPECT_EQ(tool::ValidUtf8Length(std::string(before, 'a').append(wrong)), before);
    }
  }
}

}  // namespace
