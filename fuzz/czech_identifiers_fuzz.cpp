// Czech identifiers over any bytes and any units: what is correct in form is read again from its canonical
// form and its usual spelling, a refusal has its words and a position within the input, and UTF-8 and UTF-16
// of one text get one answer.
#include <ravo/czech/czech.h>
#include <ravo/runtime/text.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace ravo::czech;

void Require(bool condition) {
  if (!condition) std::abort();
}

template <class Text>
void CheckKind(Kind kind, Text text) {
  const auto checked = Check(kind, text);
  Require(checked.position <= text.size());
  Require(!Sentence(checked.code, Language::Czech).empty());
  const auto respelled = Respell(kind, text);
  Require(respelled.code == checked.code && respelled.position == checked.position);
  if (!checked) return;
  Require(Check(kind, checked.value.View()).value == checked.value);
  Require(Check(kind, respelled.value.View()).value == checked.value);
}

void CheckBothEncodings(Kind kind, std::string_view text) {
  const std::u16string wide = ravo::FromUtf8(text);
  if (ravo::ToUtf8(wide) != text) return;
  const auto narrow_answer = Check(kind, text);
  const auto wide_answer = Check(kind, std::u16string_view(wide));
  Require(narrow_answer.code == wide_answer.code && narrow_answer.value == wide_answer.value);
  Require(ravo::ToUtf8(std::u16string_view(wide).substr(0, wide_answer.position)).size() ==
          narrow_answer.position);
}

void CheckAccount(std::string_view text) {
  const auto account = ParseAccount(text);
  if (account) Require(AccountOf(ParseIban(IbanOf(account.value).text.View()).value) == account.value);
}

template <class Text>
void CheckFound(Text text) {
  std::size_t from = 0;
  while (const auto found = FindPayment(text, from)) {
    Require(found->begin >= from && found->end > found->begin && found->end <= text.size());
    Require(Check(found->kind, text.substr(found->begin, found->end - found->begin)).value ==
            found->canonical);
    from = found->end;
  }
}

void CheckPaymentCode(std::string_view text) {
  const auto code = ParsePaymentCode(text);
  Require(code.position <= text.size());
  if (!code) return;
  std::array<std::string, kPaymentCodeFields> values;
  std::vector<PaymentCodeField> fields;
  for (std::size_t i = 0; i < code.value.Fields().size(); ++i) {
    const PaymentCodeField field = code.value.Fields()[i];
    if (field.key == "CRC32") continue;
    values[i].resize(field.value.size());
    values[i].resize(DecodePaymentValue(field.value, values[i]));
    fields.push_back({field.key, values[i]});
  }
  // The same attributes, percent-encoded in the writer's own way, which may take more room.
  const auto written = WritePaymentCode(code.value.kind, fields, true);
  if (written.code == Code::PaymentCodeRoom) return;
  Require(static_cast<bool>(written) && ParsePaymentCode(written.text.View()));
}

void CheckBanks(std::string_view text) {
  std::array<Bank, 16> room;
  const auto count = ReadBankList(text, room);
  Require(count.position <= text.size());
  if (count)
    Require(FindBank({std::span(room).first(count.value), {}}, room[0].code, {}).bank == room.data());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::u16string wide = ravo::FromUtf8(text);
  std::u16string units(size / 2, u'\0');
  for (std::size_t i = 0; i < units.size(); ++i)
    units[i] = static_cast<char16_t>(data[2 * i] | data[2 * i + 1] << 8);
  for (const Kind kind : AllKinds()) {
    CheckKind(kind, text);
    CheckKind(kind, std::u16string_view(units));
    CheckBothEncodings(kind, text);
  }
  CheckAccount(text);
  CheckFound(text);
  CheckFound(std::u16string_view(wide));
  CheckBanks(text);
  CheckPaymentCode(text);
  return 0;
}
