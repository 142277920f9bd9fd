#include <ravo/czech/payment_code.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::czech {
namespace {

using Fields = std::vector<PaymentCodeField>;

constexpr std::string_view kIban = "CZ6508000000192000145399";
constexpr auto kPayment = PaymentCodeKind::Payment;
constexpr auto kInvoice = PaymentCodeKind::Invoice;

std::string Written(PaymentCodeKind kind, const Fields& fields, bool checksum = false) {
  const auto written = WritePaymentCode(kind, fields, checksum);
  return written ? std::string(written.text.View())
                 : std::string(CodeText(written.code)) + " " + std::to_string(written.field) + " " +
                       std::to_string(written.position);
}

// A payment with one more field.
std::string WrittenWith(std::string_view key, std::string_view value) {
  return Written(kPayment, {{"ACC", kIban}, {key, value}});
}

std::string Decoded(std::string_view value) {
  std::string text(value.size(), '\0');
  text.resize(DecodePaymentValue(value, text));
  return text;
}

TEST(PaymentCode, IsWrittenInTheOrderOfTheFields) {
  EXPECT_EQ(Written(kPayment, {{"ACC", kIban}}), "SPD*1.0*ACC:CZ6508000000192000145399");
  EXPECT_EQ(
      Written(kPayment, {{"AM", "450.00"}, {"ACC", "CZ6508000000192000145399+GIBACZPX"}, {"X-VS", "007"}}),
      "SPD*1.0*AM:450.00*ACC:CZ6508000000192000145399+GIBACZPX*X-VS:007");
  EXPECT_EQ(Written(kInvoice, {{"ID", "FV 1"}, {"DD", "20261122"}, {"AM", "-12.5"}}),
            "SID*1.0*ID:FV 1*DD:20261122*AM:-12.5");
}

// The example that the standard's authors published.
TEST(PaymentCode, ChecksumIsOfTheAttributesByKey) {
  EXPECT_EQ(Written(kPayment, {{"CC", "CZK"}, {"AM", "100.00"}, {"ACC", "CZ5855000000001265098001"}}, true),
            "SPD*1.0*CC:CZK*AM:100.00*ACC:CZ5855000000001265098001*CRC32:AAD80227");
}

TEST(PaymentCode, EncodesWhatWouldNotBeRead) {
  EXPECT_EQ(WrittenWith("MSG", "a*b%c+d,e"), "SPD*1.0*ACC:CZ6508000000192000145399*MSG:a%2Ab%25c%2Bd,e");
  EXPECT_EQ(WrittenWith("RN", "Žluťoučký"),
            "SPD*1.0*ACC:CZ6508000000192000145399*RN:%C5%BDlu%C5%A5ou%C4%8Dk%C3%BD");
}

struct Refused {
  std::string_view key;
  std::string value;
  std::string answer;
};

TEST(PaymentCode, WriterRefusesWhatTheStandardDoesNotPermit) {
  const Refused rows[] = {
      {"MSG", "", "code.empty 1 0"},
      {"MSG", "a\nb", "code.character 1 1"},
      {"MSG", "a\x80", "code.encoding 1 1"},
      {"MSG", std::string(61, 'M'), "code.length 1 60"},
      {"RN", std::string(36, 'R'), "code.length 1 35"},
      {"NTA", std::string(321, 'n'), "code.length 1 320"},
      {"X-ID", std::string(21, 'i'), "code.length 1 20"},
      {"X-URL", std::string(141, 'u'), "code.length 1 140"},
      {"PT", "INST", "code.length 1 3"},
      {"AM", "12345678.00", "code.length 1 10"},
      {"AM", "1.005", "code.amount 1 4"},
      {"AM", "1,50", "code.amount 1 1"},
      {"AM", "-1", "code.amount 1 0"},
      {"AM", "1.", "code.amount 1 2"},
      {"AM", ".50", "code.amount 1 0"},
      {"CC", "czk", "code.currency 1 0"},
      {"CC", "CZ", "code.currency 1 2"},
      {"DT", "20260229", "code.date 1 0"},
      {"DT", "2026-1-1", "code.date 1 4"},
      {"X-VS", "12345678901", "code.length 1 10"},
      {"X-VS", "12a", "code.character 1 2"},
      {"X-KS", "03 08", "code.character 1 2"},
      {"X-SS", "-1", "code.character 1 0"},
      {"RF", std::string(17, '1'), "code.length 1 16"},
      {"X-PER", "31", "code.choice 1 0"},
      {"X-PER", "0", "code.choice 1 0"},
      {"NT", "X", "code.choice 1 0"},
      {"CRC32", "AAD80227", "code.key 1 0"},
      {"ACC", std::string(kIban), "code.twice 1 0"},
      {"Msg", "a", "code.key 1 0"},
      {"", "a", "code.key 1 0"},
      {"ALT-ACC", "CZ6508000000192000145399,CZ6508000000192000145398", "iban.checksum 1 27"},
      {"ALT-ACC", "CZ6508000000192000145399+GIBACZP", "bic.length 1 32"},
      {"ALT-ACC", "CZ65 0800 0000 1920 0014 5399", "code.character 1 4"},
      {"X-INV", "SPD*1.0*ACC:CZ6508000000192000145399", "code.header 1 0"},
      {"X-INV", "SID*1.0*ID:1", "code.missing 1 12"},
  };
  for (const Refused& row : rows) EXPECT_EQ(WrittenWith(row.key, row.value), row.answer) << row.key;
  EXPECT_EQ(Written(kPayment, {{"AM", "1"}}), "code.missing 1 0");
  EXPECT_EQ(Written(kInvoice, {{"ID", "1"}, {"DD", "20260101"}}), "code.missing 2 0");
  EXPECT_EQ(Written(kInvoice, {{"INI", "27082441"}}), "ico.checksum 0 7");
  EXPECT_EQ(Written(kInvoice, {{"VII", "CZ27082441"}}).substr(0, 3), "dic");
}

// Lengths are in characters: two bytes of a letter are one.
TEST(PaymentCode, LongestValuesPass) {
  const std::string hooks = [] {
    std::string text;
    for (int i = 0; i < 60; ++i) text += "č";
    return text;
  }();
  EXPECT_TRUE(WritePaymentCode(kPayment, Fields{{"ACC", kIban}, {"MSG", hooks}, {"AM", "9999999.99"}}));
}

// An account with one wrong digit is refused, whichever digit it is.
TEST(PaymentCode, EveryWrongDigitOfTheAccountIsRefused) {
  for (std::size_t at = 2; at < kIban.size(); ++at) {
    for (char digit = '0'; digit <= '9'; ++digit) {
      std::string changed(kIban);
      changed[at] = digit;
      const bool same = changed == kIban;
      EXPECT_EQ(static_cast<bool>(WritePaymentCode(kPayment, Fields{{"ACC", changed}})), same) << changed;
    }
  }
}

TEST(PaymentCode, AllKeysTogetherFit) {
  const std::string wide = [] {
    std::string text;
    for (int i = 0; i < 140; ++i) text += "…";
    return text;
  }();
  const auto texts = [&](std::size_t count) { return std::string_view(wide).substr(0, count * 3); };
  const Fields fields{{"ACC", kIban}, {"RN", texts(35)}, {"MSG", texts(60)}, {"X-URL", texts(140)}};
  const auto written = WritePaymentCode(kPayment, fields, true);
  ASSERT_TRUE(written) << CodeText(written.code);
  ASSERT_TRUE(ParsePaymentCode(written.text.View()));
  Fields more = fields;
  more.push_back({"X-OWN", texts(140)});
  EXPECT_EQ(Written(kPayment, more), "code.room 4 0");
}

TEST(PaymentCode, IsReadBack) {
  const auto code = ParsePaymentCode("SPD*1.0*ACC:CZ5855000000001265098001*AM:100.00*CC:CZK*CRC32:AAD80227");
  ASSERT_TRUE(code) << CodeText(code.code);
  EXPECT_EQ(code.value.kind, kPayment);
  EXPECT_EQ(code.value.count, 4);
  EXPECT_EQ(code.value.Value("AM"), "100.00");
  EXPECT_EQ(code.value.Value("MSG"), "");
  EXPECT_EQ(Decoded("%C5%BDlu+%5"), "Žlu+%5");
}

// Amounts and symbols have no check digits of their own: a checksum finds each digit that changed.
TEST(PaymentCode, EveryWrongDigitUnderAChecksumIsRefused) {
  const std::string text = Written(
      kPayment, {{"ACC", kIban}, {"AM", "1210.50"}, {"DT", "20261206"}, {"X-VS", "2026000579"}}, true);
  ASSERT_TRUE(ParsePaymentCode(text));
  bool in_value = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    in_value = text[at] == ':' || (in_value && text[at] != '*');
    if (!in_value || text[at] < '0' || text[at] > '9') continue;
    std::string changed = text;
    changed[at] = text[at] == '9' ? '0' : static_cast<char>(text[at] + 1);
    EXPECT_FALSE(ParsePaymentCode(changed)) << changed;
  }
}

TEST(PaymentCode, OneAsteriskMayEndIt) {
  EXPECT_TRUE(ParsePaymentCode("SPD*1.0*ACC:CZ6508000000192000145399*"));
  EXPECT_EQ(ParsePaymentCode("SPD*1.0*ACC:CZ6508000000192000145399**").code, Code::PaymentCodeField);
}

struct ReadRow {
  std::string_view text;
  std::string_view code;
  std::size_t position;
};

TEST(PaymentCode, ReaderRefuses) {
  const ReadRow rows[] = {
      {"", "code.empty", 0},
      {"SPD", "code.header", 0},
      {"SPD*1.0", "code.header", 0},
      {"SPD*2.0*ACC:CZ6508000000192000145399", "code.header", 0},
      {"spd*1.0*ACC:CZ6508000000192000145399", "code.header", 0},
      {"SPD*1.0*", "code.missing", 8},
      {"SPD*1.0*ACC", "code.field", 8},
      {"SPD*1.0*acc:CZ6508000000192000145399", "code.key", 8},
      {"SPD*1.0*ACC:", "code.empty", 12},
      {"SPD*1.0*ACC:CZ6508000000192000145398", "iban.checksum", 14},
      {"SPD*1.0*ACC:CZ6508000000192000145399*ACC:1", "code.twice", 37},
      {"SPD*1.0*ACC:CZ6508000000192000145399*MSG:A%2", "code.encoding", 42},
      {"SPD*1.0*ACC:CZ6508000000192000145399*MSG:%C5%BD%FF", "code.encoding", 47},
      {"SPD*1.0*ACC:CZ6508000000192000145399*MSG:%C5%BD%0A", "code.character", 47},
      {"SPD*1.0*ACC:CZ5855000000001265098001*AM:100.01*CC:CZK*CRC32:AAD80227", "code.checksum", 60},
      {"SPD*1.0*ACC:CZ5855000000001265098001*CRC32:aad80227", "code.character", 43},
      {"SID*1.0*ID:1*DD:20260101", "code.missing", 24},
  };
  for (const ReadRow& row : rows) {
    const auto code = ParsePaymentCode(row.text);
    EXPECT_EQ(CodeText(code.code), row.code) << row.text;
    EXPECT_EQ(code.position, row.position) << row.text;
  }
}

TEST(PaymentCode, HoldsAnInvoice) {
  EXPECT_EQ(WrittenWith("X-INV", "SID*1.0*ID:FV*DD:20261122"),
            "SPD*1.0*ACC:CZ6508000000192000145399*X-INV:SID%2A1.0%2AID:FV%2ADD:20261122");
  const auto code =
      ParsePaymentCode("SPD*1.0*ACC:CZ6508000000192000145399*X-INV:SID%2A1.0%2AID:FV%2ADD:20260231");
  EXPECT_EQ(code.code, Code::PaymentCodeDate);
  EXPECT_EQ(code.position, 66U);
}

TEST(PaymentCode, InvoiceInsideMayLackTheAmount) {
  const Fields fields{{"ID", "a*b"}, {"DD", "20261122"}};
  const auto invoice = WriteInvoiceInside(fields);
  ASSERT_TRUE(invoice);
  EXPECT_EQ(invoice.text.View(), "SID*1.0*ID:a%2Ab*DD:20261122");
  EXPECT_EQ(WrittenWith("X-INV", invoice.text.View()),
            "SPD*1.0*ACC:CZ6508000000192000145399*X-INV:SID%2A1.0%2AID:a%252Ab%2ADD:20261122");
  EXPECT_EQ(WriteInvoiceInside(Fields{{"ID", "1"}}).code, Code::PaymentCodeMissing);
}

// A bank's own keys pass, and so does one that a later version of the standard adds.
TEST(PaymentCode, UnknownKeysPass) {
  EXPECT_EQ(WrittenWith("X-OWN", "1"), "SPD*1.0*ACC:CZ6508000000192000145399*X-OWN:1");
  EXPECT_FALSE(IsPaymentKey(kPayment, "X-OWN"));
  EXPECT_TRUE(IsPaymentKey(kPayment, "X-PER"));
  EXPECT_FALSE(IsPaymentKey(kPayment, "DUZP"));
  EXPECT_TRUE(IsPaymentKey(kInvoice, "DUZP"));
}

TEST(PaymentCode, TooManyFieldsAreRefused) {
  std::string text = "SPD*1.0*ACC:CZ6508000000192000145399";
  for (int i = 10; i < 58; ++i) text += "*X-" + std::to_string(i) + ":1";
  EXPECT_EQ(ParsePaymentCode(text).code, Code::PaymentCodeRoom);
  EXPECT_EQ(WritePaymentCode(kPayment, Fields(48, {"ACC", kIban})).code, Code::PaymentCodeRoom);
  const std::string large = "SPD*1.0*MSG:" + std::string(kPaymentCodeRoom + 1, 'x');
  EXPECT_EQ(ParsePaymentCode(large).code, Code::PaymentCodeRoom);
}

}  // namespace
}  // namespace ravo::czech
