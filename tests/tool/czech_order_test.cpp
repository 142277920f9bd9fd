#include <ravo/convert/utf8_reader.h>
#include <ravo/order/czech_order.h>
#include <ravo/order/number_keys.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::string KeyOf(std::string_view text, const ravo::order::CzechOrder& order = {}) {
  std::string key;
  ravo::order::CzechKeys(order).Append(text, key);
  return key;
}

// Each text comes before the next one.
void ExpectInOrder(const std::vector<std::string_view>& texts, const ravo::order::CzechOrder& order = {}) {
  for (std::size_t i = 1; i < texts.size(); ++i) {
    EXPECT_LT(KeyOf(texts[i - 1], order), KeyOf(texts[i], order)) << texts[i - 1] << " and " << texts[i];
    EXPECT_EQ(ravo::order::CompareCzech(texts[i - 1], texts[i], order), -1) << texts[i];
    EXPECT_EQ(ravo::order::CompareCzech(texts[i], texts[i - 1], order), 1) << texts[i];
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
  const ravo::order::CzechOrder order{.ignore_case = true};
  EXPECT_EQ(KeyOf("CHATA Ř", order), KeyOf("chata ř", order));
  EXPECT_NE(KeyOf("chátá", order), KeyOf("chata", order));
}

TEST(CzechOrder, KeepsOtherLettersAfterItsOwn) { ExpectInOrder({"ž", "9", "α", "я", "中", "\U00010400"}); }

TEST(NaturalOrder, ComparesNumbersOfAnyLengthByValue) {
  const ravo::order::CzechOrder order{.natural = true};
  ExpectInOrder({"FV1", "FV2", "FV10", "FV100", "FV1000", "FV1000a"}, order);
  const std::string long_number(300, '9');
  const std::string longer_number = "1" + std::string(300, '0');
  ExpectInOrder({"a5", "a" + long_number, "a" + longer_number, "b1"}, order);
  EXPECT_EQ(KeyOf("FV007", order), KeyOf("FV7", order));
  EXPECT_LT(KeyOf("FV0", order), KeyOf("FV1", order));
}

int Sign(int value) { return (value > 0) - (value < 0); }

std::string Utf8Of(char32_t code) {
  if (code < 0x80) return {static_cast<char>(code)};
  const auto trail = [code](int shift) { return static_cast<char>(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x800) return {static_cast<char>(0xC0 | code >> 6), trail(0)};
  if (code < 0x10000) return {static_cast<char>(0xE0 | code >> 12), trail(6), trail(0)};
  return {static_cast<char>(0xF0 | code >> 18), trail(12), trail(6), trail(0)};
}

// Many share their beginning, and some are of characters that the table does not have.
std::string RandomText(std::mt19937& random) {
  constexpr std::string_view kPieces[] = {"a",      "A",      "á", "c", "h",  "CH",  "cH",  "č", "c\u030C",
                                          "\u0301", "\uFDFA", "ﬁ", "1", "10", "000", "007", " ", "-"};
  std::string text;
  for (std::size_t length = random() % 6; length != 0; --length) {
    const auto code = static_cast<char32_t>(random() % 0x30000);
    const bool is_surrogate = code >= 0xD800 && code < 0xE000;
    text += random() % 3 != 0 || is_surrogate ? std::string(kPieces[random() % std::size(kPieces)])
                                              : Utf8Of(code % (random() % 2 == 0 ? 0x500 : 0x30000));
  }
  return text;
}

TEST(CompareCzech, IsHowKeysCompare) {
  using ravo::order::CzechOrder;
  constexpr CzechOrder kOrders[] = {
      {}, {.ignore_case = true}, {.natural = true}, {.digits_first = true}, {true, true, true}};
  std::mt19937 random(3);
  int equal = 0;
  for (std::size_t count = 0; count < 200'000; ++count) {
    const std::string a = RandomText(random);
    const std::string b = RandomText(random);
    const CzechOrder& order = kOrders[count % std::size(kOrders)];
    const int expected = Sign(KeyOf(a, order).compare(KeyOf(b, order)));
    ASSERT_EQ(ravo::order::CompareCzech(a, b, order), expected) << '"' << a << "\" and \"" << b << '"';
    equal += expected == 0 ? 1 : 0;
  }
  EXPECT_GT(equal, 1000);
}

std::string DecimalKey(std::string_view text) {
  std::string key;
  ravo::order::AppendDecimalKey(text, key);
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
    EXPECT_EQ(ravo::order::CompareDecimals(in_order[i - 1], in_order[i]), -1) << in_order[i];
    EXPECT_EQ(ravo::order::CompareDecimals(in_order[i], in_order[i - 1]), 1) << in_order[i];
  }
  for (const std::string_view zero : {"-0", "0,00", "+0", " 000", "-0,0", ".0", ",00"})
    EXPECT_EQ(DecimalKey(zero), DecimalKey("0")) << zero;
  EXPECT_EQ(DecimalKey("."), DecimalKey("Kč"));
  EXPECT_EQ(DecimalKey("1,50"), DecimalKey("1.5"));
}

TEST(CompareDecimals, IsHowKeysCompare) {
  constexpr std::string_view kPieces[] = {"0", "1", "9", "5",      "00", " ",      ",",
                                          ".", "-", "+", "\u00A0", "x",  "\u2212", "100"};
  std::mt19937 random(5);
  const auto number = [&] {
    std::string text;
    for (std::size_t length = random() % 7; length != 0; --length)
      text += kPieces[random() % std::size(kPieces)];
    return text;
  };
  for (int count = 0; count < 100'000; ++count) {
    const std::string a = number();
    const std::string b = number();
    ASSERT_EQ(ravo::order::CompareDecimals(a, b), Sign(DecimalKey(a).compare(DecimalKey(b))))
        << '"' << a << "\" and \"" << b << '"';
  }
}

TEST(Utf8Reader, FindsTheFirstWrongByte) {
  EXPECT_EQ(ravo::convert::ValidUtf8Length("Příliš žluťoučký kůň \U0001F600"),
            std::string_view("Příliš žluťoučký kůň \U0001F600").size());
  // A lone continuation, a cut character, overlong forms, a surrogate, a code past the last one, no lead at
  // all.
  for (const std::string_view wrong :
       {"\x80", "\xC4", "\xC0\x80", "\xE0\x80\x80", "\xF0\x80\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
        "\xFF", "\xC4z", "\xE2\x82", "\xF0\x9F\x98"}) {
    for (const std::size_t before : {0U, 1U, 7U, 8U, 9U}) {
      EXPECT_EQ(ravo::convert::ValidUtf8Length(std::string(before, 'a').append(wrong)), before);
    }
  }
}

}  // namespace
