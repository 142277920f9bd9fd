#include "support/allocation_count.h"
#include <ravo/czech/kinds.h>

#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace ravo::czech {
namespace {

// One correct input of each kind, and what its usual spelling is.
struct UsualRow {
  std::string_view kind;
  std::string_view input;
  std::string_view usual;
};
const UsualRow kUsual[] = {
    {"ico", "IČ: 046 25 781", "04625781"},
    {"dic", "cz27082440", "CZ27082440"},
    {"vat", "de 123456789", "DE123456789"},
    {"rc", "7103192745", "710319/2745"},
    {"iban", "cz6508000000192000145399", "CZ65 0800 0000 1920 0014 5399"},
    {"bic", "kombczpp", "KOMBCZPP"},
    {"account", "000019-2000145399/0800", "19-2000145399/0800"},
    {"vs", "0042", "42"},
    {"ks", "308", "0308"},
    {"ss", "7", "7"},
    {"psc", "11000", "110 00"},
    {"ean", "978-0-471-11709-4", "9780471117094"},
    {"isbn", "8020009809", "80-200-0980-9"},
};

TEST(Kinds, AllAreSpelledInTheUsualWay) {
  std::set<std::string_view> seen;
  for (const UsualRow& row : kUsual) {
    const auto kind = KindOf(row.kind);
    ASSERT_TRUE(kind) << row.kind;
    EXPECT_EQ(Respell(*kind, row.input).value.View(), row.usual) << row.kind;
    EXPECT_EQ(KindText(*kind), row.kind);
    EXPECT_FALSE(KindName(*kind, Language::Czech).empty());
    EXPECT_FALSE(KindName(*kind, Language::English).empty());
    seen.insert(row.kind);
  }
  EXPECT_EQ(seen.size(), AllKinds().size());
}

// The canonical form and the usual spelling are read again as what they are.
TEST(Kinds, AreReadAgainFromWhatWasWritten) {
  for (const UsualRow& row : kUsual) {
    const Kind kind = *KindOf(row.kind);
    const auto canonical = Check(kind, row.input).value;
    EXPECT_EQ(Check(kind, canonical.View()).value, canonical) << row.kind;
    EXPECT_EQ(Check(kind, row.usual).value, canonical) << row.kind;
  }
}

TEST(Kinds, RefuseWithCodesOfTheirOwnHundred) {
  for (const Kind kind : AllKinds()) {
    for (const std::string_view text : {"", "  ", "\x01", "0", "99999999999999999999999999999999999999999"}) {
      const auto checked = Check(kind, text);
      if (!checked) {
        EXPECT_EQ(static_cast<int>(checked.code) / 100, static_cast<int>(kind))
            << KindText(kind) << ": " << text;
        EXPECT_TRUE(CodeText(checked.code).starts_with(KindText(kind)));
      }
      EXPECT_LE(checked.position, text.size());
    }
    EXPECT_EQ(Respell(kind, std::string_view()).code, Check(kind, std::u16string_view()).code);
    EXPECT_FALSE(Check(kind, std::string_view()));
  }
}

TEST(Kinds, NumbersThatAreNoKindHaveNothing) {
  EXPECT_TRUE(KindText(static_cast<Kind>(0)).empty());
  EXPECT_TRUE(KindName(static_cast<Kind>(200), Language::Czech).empty());
  EXPECT_FALSE(KindOf("shoe size"));
  EXPECT_TRUE(Check(static_cast<Kind>(200), std::string_view("1")).value.View().empty());
}

struct ProtectedRow {
  std::string_view kind;
  std::string_view value;
};
// The bank code of an account has no sum of its own, and a symbol or a postcode has none at all.
const ProtectedRow kProtected[] = {
    {"ico", "27082440"},
    {"dic", "CZ27082440"},
    {"dic", "CZ7103192745"},
    {"dic", "CZ699004237"},
    {"rc", "7103192745"},
    {"iban", "CZ6508000000192000145399"},
    {"iban", "DE89370400440532013000"},
    {"ean", "8594001021512"},
    {"ean", "73513537"},
    {"isbn", "9788073673130"},
    {"isbn", "8020009809"},
};

TEST(Kinds, EachDigitChangedOnceIsReported) {
  for (const ProtectedRow& row : kProtected) {
    const Kind kind = *KindOf(row.kind);
    ASSERT_TRUE(Check(kind, row.value)) << row.value;
    for (std::size_t i = 0; i < row.value.size(); ++i) {
      for (char digit = '0'; digit <= '9'; ++digit) {
        std::string changed(row.value);
        changed[i] = digit;
        EXPECT_EQ(static_cast<bool>(Check(kind, std::string_view(changed))), digit == row.value[i])
            << changed;
      }
    }
  }
}

TEST(Kinds, AllocateNothing) {
  const std::size_t before = test::AllocationCount();
  bool all = true;
  for (const UsualRow& row : kUsual) {
    all &= static_cast<bool>(Respell(*KindOf(row.kind), row.input));
    all &= !Check(*KindOf(row.kind), std::string_view("nothing of the kind, and rather long"));
  }
  const std::size_t after = test::AllocationCount();
  EXPECT_EQ(after, before);
  EXPECT_TRUE(all);
  EXPECT_TRUE(before > 0 || !test::kAllocationsCounted);
}

}  // namespace
}  // namespace ravo::czech
