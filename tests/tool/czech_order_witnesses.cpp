// The Czech order beside two witnesses: ICU's collator and the C library's locale.
//
// Both are asked about words and random strings. They differ in two places, which are decided in
// `Witnesses.DifferInSigns` and by --digits-first.
#include "support/effort.h"
#include <ravo/order/czech_order.h>

#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/ucol.h>
#include <unicode/unistr.h>

namespace {

using Strings = std::vector<std::string>;
using Compare = std::function<int(const std::string&, const std::string&)>;

int Sign(int value) { return (value > 0) - (value < 0); }

enum class Digits { First, Last };

class Icu {
 public:
  Icu(const char* locale, Digits digits) {
    UErrorCode status = U_ZERO_ERROR;
    collator_ = ucol_open(locale, &status);
    // Combining marks count as their letters do.
    ucol_setAttribute(collator_, UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
    const std::int32_t latin_and_digits[] = {USCRIPT_LATIN, UCOL_REORDER_CODE_DIGIT};
    if (digits == Digits::Last) ucol_setReorderCodes(collator_, latin_and_digits, 2, &status);
    if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
  }
  Icu(const Icu&) = delete;
  Icu& operator=(const Icu&) = delete;
  ~Icu() { ucol_close(collator_); }
  // By its sort keys: its comparison of version 72 does not know that the digits were moved.
  int operator()(const std::string& a, const std::string& b) const { return Key(a).compare(Key(b)); }

 private:
  [[nodiscard]] std::string Key(const std::string& text) const {
    const icu::UnicodeString units = icu::UnicodeString::fromUTF8(text);
    std::vector<std::uint8_t> key(1000);
    const std::int32_t size = ucol_getSortKey(collator_, units.getBuffer(), units.length(), key.data(), 1000);
    return {key.begin(), key.begin() + size};
  }

  UCollator* collator_ = nullptr;
};

// The system's Czech locale, or one of our own where it has none.
class Glibc {
 public:
  Glibc() : locale_(newlocale(LC_ALL_MASK, "cs_CZ.UTF-8", nullptr)) {
    if (locale_ == nullptr) locale_ = Generated();
  }
  Glibc(const Glibc&) = delete;
  Glibc& operator=(const Glibc&) = delete;
  ~Glibc() {
    if (locale_ != nullptr) freelocale(locale_);
  }
  [[nodiscard]] bool Exists() const { return locale_ != nullptr; }
  int operator()(const std::string& a, const std::string& b) const {
    return Sign(strcoll_l(a.c_str(), b.c_str(), locale_));
  }

 private:
  static locale_t Generated() {
    const auto folder = std::filesystem::current_path() / "locales";
    std::filesystem::create_directories(folder);
    const std::string command = "localedef -i cs_CZ -f UTF-8 '" + (folder / "cs_CZ.UTF-8").string() + "'";
    if (std::system(command.c_str()) != 0) return nullptr;
    setenv("LOCPATH", folder.c_str(), 1);
    return newlocale(LC_ALL_MASK, "cs_CZ.UTF-8", nullptr);
  }

  locale_t locale_;
};

class Ours {
 public:
  explicit Ours(const ravo::order::CzechOrder& order = {}) : order_(order), keys_(order) {}
  std::string Key(const std::string& text) {
    std::string key;
    keys_.Append(text, key);
    return key;
  }
  // By keys and without them.
  int operator()(const std::string& a, const std::string& b) {
    const int by_keys = Sign(Key(a).compare(Key(b)));
    EXPECT_EQ(ravo::order::CompareCzech(a, b, order_), by_keys) << a << " and " << b;
    return by_keys;
  }

 private:
  ravo::order::CzechOrder order_;
  ravo::order::CzechKeys keys_;
};

const Strings kLetters = {"a", "á",  "b",  "c",  "č", "d", "ď", "e", "é", "ě", "f", "g", "h", "ch", "i",
                          "í", "j",  "k",  "l",  "m", "n", "ň", "o", "ó", "p", "q", "r", "ř", "s",  "š",
                          "t", "ť",  "u",  "ú",  "ů", "v", "w", "x", "y", "ý", "z", "ž", "A", "Á",  "C",
                          "Č", "CH", "Ch", "cH", "D", "Ď", "E", "Ě", "H", "Ř", "R", "S", "Š", "U",  "Ů",
                          "Ú", "Z",  "Ž",  "ä",  "ö", "ü", "ß", "ľ", "ĺ", "ŕ", "ł", "đ", "ő", "ż"};
const Strings kDigits = {"0", "1", "2", "5", "9", "10", "007"};
const Strings kSigns = {" ", "-", ",", ".", "/", "(", ")", "\"", "'",      "&", "+",
                        "%", "_", ":", "!", "„", "“", "–", "§",  "\u00A0", "€", "°"};
const Strings kMarks = {"c\u030C", "R\u030C", "e\u0301", "u\u030A", "S\u030C", "h\u030C"};

Strings Together(std::initializer_list<Strings> parts) {
  Strings all;
  for (const Strings& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

// Many of them are prefixes of others, or differ in an accent or a capital alone.
Strings RandomStrings(const Strings& pieces, unsigned seed) {
  std::mt19937 random(seed);
  Strings strings;
  for (int i = 0; i < 3000; ++i) {
    std::string text;
    for (std::size_t length = random() % 5; length != 0; --length) text += pieces[random() % pieces.size()];
    strings.push_back(text);
  }
  return strings;
}

Strings CzechWords() {
  std::set<std::string> words;
  for (const char* const name : {"ravo/catalogue/tables.inc", "samples/ledger.csv"}) {
    std::ifstream file(std::filesystem::path(RAVO_SOURCE_FOLDER) / name);
    std::string text(std::istreambuf_iterator<char>(file), {});
    for (char& c : text) {
      if (std::strchr(" \t\r\n;,.()\"/-:+%_&", c) != nullptr) c = ' ';
    }
    std::istringstream all(text);
    words.insert(std::istream_iterator<std::string>(all), {});
  }
  return {words.begin(), words.end()};
}

// Every string beside every other one up to a thousand, then beside its followers.
void ExpectSame(const Strings& strings, const Compare& ours, const Compare& witness) {
  std::size_t pairs = 0;
  for (std::size_t i = 0; i < strings.size(); ++i) {
    for (std::size_t step = 1;
         i + step < strings.size() && step < static_cast<std::size_t>(ravo::test::Rounds(200)); ++step) {
      const std::string& a = strings[i];
      const std::string& b = strings[i + step];
      ASSERT_EQ(ours(a, b), Sign(witness(a, b))) << '"' << a << "\" and \"" << b << '"';
      ++pairs;
    }
  }
  EXPECT_GT(pairs, static_cast<std::size_t>(ravo::test::Rounds(100'000)));
}

TEST(CzechOrderWitnesses, IcuWithDigitsLast) {
  const Icu icu("cs", Digits::Last);
  ExpectSame(RandomStrings(Together({kLetters, kDigits, kSigns, kMarks}), 1), Ours(), std::cref(icu));
  ExpectSame(RandomStrings({"c", "h", "C", "H", "č", "Č", "á", "a", " "}, 2), Ours(), std::cref(icu));
  ExpectSame(CzechWords(), Ours(), std::cref(icu));
}

TEST(CzechOrderWitnesses, IcuWithDigitsFirst) {
  const Icu icu("cs", Digits::First);
  ExpectSame(RandomStrings(Together({kLetters, kDigits, kSigns, kMarks}), 3), Ours({.digits_first = true}),
             std::cref(icu));
}

TEST(CzechOrderWitnesses, IcuWithNumbers) {
  const Icu icu("cs-u-kn-true", Digits::Last);
  ExpectSame(RandomStrings(Together({kLetters, kDigits, kDigits, kDigits, kSigns}), 4),
             Ours({.natural = true}), std::cref(icu));
}

TEST(CzechOrderWitnesses, IcuWithoutCase) {
  const Icu icu("cs-u-ks-level2", Digits::Last);
  ExpectSame(RandomStrings(Together({kLetters, kDigits, kSigns, kMarks}), 5), Ours({.ignore_case = true}),
             std::cref(icu));
}

// All characters of Windows-1250, one beside the other.
TEST(CzechOrderWitnesses, IcuForEachCharacter) {
  const Icu icu("cs", Digits::Last);
  Strings all;
  for (char c = '!'; c <= '~'; ++c) all.emplace_back(1, c);
  std::istringstream others(
      "€ ‚ „ … † ‡ ‰ Š ‹ Ś Ť Ž Ź ‘ ’ “ ” • – — ™ š › ś ť ž ź ˇ ˘ Ł ¤ Ą ¦ § ¨ © Ş « ¬ ® Ż ° ± ˛ ł ´ µ ¶ · ¸ ą "
      "ş » Ľ ˝ ľ ż Ŕ Á Â Ă Ä Ĺ "
      "Ć Ç Č É Ę Ë Ě Í Î Ď Đ Ń Ň Ó Ô Ő Ö × Ř Ů Ú Ű Ü Ý Ţ ß ŕ á â ă ä ĺ ć ç č é ę ë ě í î ď đ ń ň ó ô ő ö ÷ ř "
      "ů ú ű ü ý ţ ˙");
  all.insert(all.end(), std::istream_iterator<std::string>(others), {});
  Ours ours;
  for (const std::string& a : all) {
    for (const std::string& b : all) EXPECT_EQ(ours(a, b), Sign(icu(a, b))) << a << " and " << b;
  }
}

TEST(CzechOrderWitnesses, Glibc) {
  const Glibc glibc;
  if (!glibc.Exists()) GTEST_SKIP() << "no Czech locale, and localedef makes none";
  ExpectSame(RandomStrings({"a", "á", "b", "c", "č", "Č", "C", "h", "H", "ch", "Ch", "d", "ď", "e", "ě", "é",
                            "ř", "r", "š", "s", "Š", "ů", "ú", "u", "ž", "z",  "Z",  "Ž", "0", "1", "9"},
                           6),
             Ours(), std::cref(glibc));
  ExpectSame(CzechWords(), Ours(), std::cref(glibc));
}

// The C library skips blanks and signs unless all else is equal; ICU counts them, as ČSN 97 6030 does with
// the blank: the shorter word comes first.
TEST(CzechOrderWitnesses, DifferInSigns) {
  const Icu icu("cs", Digits::Last);
  const Glibc glibc;
  if (!glibc.Exists()) GTEST_SKIP() << "no Czech locale, and localedef makes none";
  Ours ours;
  for (const auto& [a, b] : {std::pair("Nová Ves", "Nováček"), {"a-z", "ab"}, {"s. r. o.", "spol"}}) {
    EXPECT_EQ(ours(a, b), -1) << a;
    EXPECT_EQ(Sign(icu(a, b)), -1) << a;
    EXPECT_EQ(glibc(a, b), 1) << a;
  }
}

}  // namespace
