#include "czech/spellings.h"
#include <ravo/czech/payment_text.h>

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace ravo::czech {
namespace {

struct TextRow {
  std::string_view text;
  std::string_view found;  // "kind=canonical" of each, with blanks between them
};
const TextRow kTexts[] = {
    {"VS 2026 000 579, 19-2000145399/0800", "vs=2026000579 account=19-2000145399/0800"},
    {"Platba VS: 2026000579 KS: 0308 SS 42 na účet 1011038930/5500.",
     "vs=2026000579 ks=0308 ss=42 account=1011038930/5500"},
    {"variabilní symbol 20260024, konst. symbol: 308", "vs=20260024 ks=0308"},
    {"v. s. 123 k.s. 0008", "vs=123 ks=0008"},
    {"var.sym.=77", "vs=77"},
    {"VS\u00a0123\u00a0456", "vs=123456"},
    {"VS2026000579 ks0308", "vs=2026000579 ks=0308"},
    {"VS 123 456 789 012", "vs=123456789"},
    {"VS 123 4567", "vs=123"},
    {"VS 123 19-2000145399/0800", "vs=123 account=19-2000145399/0800"},
    {"VS 123 2000145399/0800", "vs=123 account=2000145399/0800"},
    {"IBAN CZ65 0800 0000 1920 0014 5399 BIC GIBACZPX", "iban=CZ6508000000192000145399"},
    {"(CZ6508000000192000145399)", "iban=CZ6508000000192000145399"},
    {"cz65 0800 0000 1920 0014 5399, VS 1", "iban=CZ6508000000192000145399 vs=1"},
    {"CZ65 0800 0000 1920 0014 5399 0308", "iban=CZ6508000000192000145399"},
    {"NO93 8601 1117 947 je norský", "iban=NO9386011117947"},
    {"19 - 2000145399 / 0800", "account=19-2000145399/0800"},
    {"2000145399/0800;1011038930/5500", "account=2000145399/0800 account=1011038930/5500"},
    // Nothing of the kind.
    {"", ""},
    {"12. 3. 2026", ""},
    {"faktura 51/2026", ""},
    {"VS", ""},
    {"VSE 123", ""},
    {"VSE123", ""},
    {"S5", ""},
    {"OSVS 123", ""},
    {"VS 12345678901", ""},
    {"VS 2026-01-05", ""},
    {"VS 12a", ""},
    {"19-2000145398/0800", ""},
    {"20-2000145399/0800", ""},
    {"19-2000145399/08001", ""},
    {"X19-2000145399/0800", ""},
    {"1/19-2000145399/0800", ""},
    {"19-2000145399/0800/1", ""},
    {"čtvrt19-2000145399/0800", ""},
    {"CZ6608000000192000145399", ""},
    {"XCZ6508000000192000145399", ""},
    {"CZ6508000000192000145399X", ""},
    {"CZ65", ""},
    {"US12 3456 7890 1234 5678", ""},
    {"barevný symbol 5", ""},
    {"symbol 5", ""},
    {"s 5", ""},
};

template <class Text>
std::string FindAll(Text text) {
  std::string all;
  std::size_t from = 0;
  while (const auto found = FindPayment(text, from)) {
    EXPECT_LT(found->begin, found->end);
    EXPECT_GE(found->begin, from);
    // What was found is what `Check` takes.
    EXPECT_EQ(Check(found->kind, text.substr(found->begin, found->end - found->begin)).value,
              found->canonical);
    all += (all.empty() ? "" : " ") + std::string(KindText(found->kind)) + "=" +
           std::string(found->canonical.View());
    from = found->end;
  }
  return all;
}

TEST(PaymentText, FindsWhatIsThereAndNothingElse) {
  for (const TextRow& row : kTexts) {
    EXPECT_EQ(FindAll(row.text), row.found) << row.text;
    const std::u16string wide = FromUtf8(row.text);
    EXPECT_EQ(FindAll(std::u16string_view(wide)), row.found) << row.text;
  }
}

TEST(PaymentText, TellsWhereItIs) {
  const std::string_view text = "č. ú. 19-2000145399/0800 a VS 2026 000 579.";
  const auto account = FindPayment(text);
  ASSERT_TRUE(account);
  EXPECT_EQ(text.substr(account->begin, account->end - account->begin), "19-2000145399/0800");
  const auto symbol = FindPayment(text, account->end);
  ASSERT_TRUE(symbol);
  EXPECT_EQ(text.substr(symbol->begin, symbol->end - symbol->begin), "2026 000 579");
  EXPECT_FALSE(FindPayment(text, symbol->end));
}

TEST(PaymentText, ASearchWithinDigitsBeginsPastThem) {
  EXPECT_FALSE(FindPayment(std::string_view("192000145399/0800"), 2));
  EXPECT_FALSE(FindPayment(std::string_view("VS 123"), 100));
}

}  // namespace
}  // namespace ravo::czech
