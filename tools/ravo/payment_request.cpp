#include "payment_request.h"

#include "amount.h"
#include "czech_day.h"
#include "date_input.h"
#include "date_steps.h"
#include "spelling.h"
#include "text.h"
#include "user_language.h"
#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>
#include <ravo/czech/account.h>
#include <ravo/czech/symbols.h>

#include <algorithm>
#include <array>

namespace tool {
namespace {

namespace czech = ravo::czech;
using czech::PaymentCodeKind;

// An attribute that owns its value, and the words with which the user gave it.
struct AskedField {
  std::string key;
  std::string value;
  std::string given;
};
using AskedFields = std::vector<AskedField>;

// Leaves the work with a message; caught by `AskForPayment` alone.
struct Refusal {
  std::string message;
};

std::string Quoted(const std::string& given, const std::string& value, const std::string& why) {
  return Text("{0} '{1}': {2}", {given, value, why});
}

std::string SentenceOf(czech::Code code) { return std::string(czech::Sentence(code, UserLanguage())); }

template <class Value>
Value Require(const czech::Parsed<Value>& parsed, const std::string& given, const std::string& text) {
  if (!parsed) throw Refusal{Quoted(given, text, SentenceOf(parsed.code))};
  return parsed.value;
}

// "19-2000145399/0800", an IBAN, or an IBAN with a BIC.
std::string IbanText(const std::string& account, const std::string& given) {
  if (account.find('/') != std::string::npos) {
    const auto parsed = Require(czech::ParseAccount(account), given, account);
    return std::string(czech::IbanOf(parsed).text.View());
  }
  const std::size_t plus = account.find('+');
  const auto iban = Require(czech::ParseIban(account.substr(0, plus)), given, account);
  std::string text(iban.text.View());
  return plus == std::string::npos ? text : text + account.substr(plus);
}

std::string AmountDigits(const std::string& amount, const std::string&) {
  const auto parsed = ParseAmount(amount);
  if (!parsed) throw Refusal{Text("'{0}' is not an amount of at most four decimals", {amount})};
  return AmountText(*parsed);
}

std::string DueDigits(const std::string& due, const std::string&) {
  const auto read = ReadDate(due, czech::PartsOf(DayOrToday({})));
  if (const auto* fault = std::get_if<DateFault>(&read)) throw Refusal{fault->message};
  const auto& input = std::get<DateInput>(read);
  const ravo::DateParts day = MovedExactly(input.start, input.steps).date;
  std::string text = DayText(czech::DayOf(day));
  std::erase(text, '-');
  return text;
}

// The digits of a symbol as they were given, so that a constant symbol keeps its zeros.
template <class Parse>
std::string SymbolDigits(const std::string& symbol, const std::string& given, Parse parse) {
  static_cast<void>(Require(parse(std::string_view(symbol)), given, symbol));
  std::string digits;
  std::ranges::copy_if(symbol, std::back_inserter(digits), [](char c) { return c >= '0' && c <= '9'; });
  return digits;
}

AskedField SplitField(const std::string& text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string::npos || equals == 0)
    throw Refusal{Text("'{0}' is not a key and a value such as X-ID=17", {text})};
  const std::string key = text.substr(0, equals);
  return {key, text.substr(equals + 1), key};
}

AskedFields SplitFields(const std::vector<std::string>& texts) {
  AskedFields fields;
  for (const std::string& text : texts) fields.push_back(SplitField(text));
  return fields;
}

// What messages call the value of an attribute.
std::string GivenAs(const PaymentRequest& request, const std::string& key, const std::string& option) {
  const auto found = request.origins.find(key);
  return found == request.origins.end() ? option : found->second;
}

AskedFields InvoiceFieldsOf(const PaymentRequest& request) {
  AskedFields fields = SplitFields(request.invoice);
  for (AskedField& field : fields) field.given = GivenAs(request, "X-INV/" + field.key, field.given);
  return fields;
}

AskedFields FieldsOf(const PaymentRequest& request) {
  AskedFields fields;
  const auto add = [&](const char* key, const std::string& asked, const std::string& option,
                       const auto& value_of) {
    const std::string given = GivenAs(request, key, option);
    if (!asked.empty()) fields.push_back({key, value_of(asked, given), given});
  };
  const auto as_it_is = [](const std::string& value, const std::string&) { return value; };
  add("ACC", request.account, Text("the account"), IbanText);
  add("AM", request.amount, "--amount", AmountDigits);
  add("CC", request.currency.empty() ? "CZK" : request.currency, "--currency", as_it_is);
  add("DT", request.due, "--due", DueDigits);
  add("X-VS", request.vs, "--vs", [](const std::string& text, const std::string& given) {
    return SymbolDigits(text, given, [](std::string_view vs) { return czech::ParseVariableSymbol(vs); });
  });
  add("X-KS", request.ks, "--ks", [](const std::string& text, const std::string& given) {
    return SymbolDigits(text, given, [](std::string_view ks) { return czech::ParseConstantSymbol(ks); });
  });
  add("X-SS", request.ss, "--ss", [](const std::string& text, const std::string& given) {
    return SymbolDigits(text, given, [](std::string_view ss) { return czech::ParseSpecificSymbol(ss); });
  });
  add("RN", request.recipient, "--recipient", as_it_is);
  add("MSG", request.message, "--message", as_it_is);
  std::ranges::move(SplitFields(request.fields), std::back_inserter(fields));
  return fields;
}

bool IsAscii(char32_t c) { return c < 0x80; }

// In ASCII; `spelled` tells whether a character was not.
std::string AsciiText(const AskedField& field, bool& spelled) {
  std::string text;
  for (const char16_t unit : ravo::FromUtf8(field.value)) {
    std::u16string spelling(1, unit);
    if (!IsAscii(unit)) {
      spelled = true;
      spelling = SpellingOf(unit, [](char16_t c) { return IsAscii(c); });
    }
    if (spelling.empty()) {
      throw Refusal{Quoted(field.given, field.value,
                           Text("'{0}' has no spelling in ASCII; --utf8 keeps it",
                                {ravo::ToUtf8(std::u16string_view(&unit, 1))}))};
    }
    text += ravo::ToUtf8(spelling);
  }
  return text;
}

bool IsFreeText(const std::string& key) { return key == "MSG" || key == "RN"; }

void MakeAscii(AskedFields& fields, std::vector<PaymentNote>& notes) {
  bool spelled = false;
  for (AskedField& field : fields) {
    field.value = AsciiText(field, spelled);
    if (!IsFreeText(field.key)) continue;
    for (char& c : field.value) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  const bool is_known = std::ranges::find(notes, "transliterated", &PaymentNote::code) != notes.end();
  if (!spelled || is_known) return;
  notes.push_back(
      {"transliterated", Text("characters beyond ASCII are spelled without diacritics; --utf8 keeps them")});
}

// Where a text of at most `longest` characters ends; it may be shorter.
std::size_t EndOf(const std::string& utf8, std::size_t longest) {
  std::size_t at = 0;
  for (; at < utf8.size(); ++at) {
    const bool begins = (static_cast<unsigned char>(utf8[at]) & 0xC0) != 0x80;
    if (begins && longest-- == 0) break;
  }
  return at;
}

// Names and numbers that the user did not type may be longer than a code permits.
void Shorten(const PaymentRequest& request, AskedFields& fields, std::vector<PaymentNote>& notes) {
  for (AskedField& field : fields) {
    if (!IsFreeText(field.key) || !request.origins.contains(field.key)) continue;
    const std::size_t longest = field.key == "RN" ? 35 : 60;
    const std::size_t end = EndOf(field.value, longest);
    if (end == field.value.size()) continue;
    field.value.resize(end);
    while (field.value.ends_with(' ')) field.value.pop_back();
    notes.push_back({"shortened", Text("{0} is shortened to {1} characters: {2}",
                                       {field.given, std::to_string(longest), field.value})});
  }
}

std::vector<czech::PaymentCodeField> ViewsOf(const AskedFields& fields) {
  std::vector<czech::PaymentCodeField> views;
  views.reserve(fields.size());
  for (const AskedField& field : fields) views.push_back({field.key, field.value});
  return views;
}

std::string TextOrRefusal(const czech::WrittenPaymentCode& written, const AskedFields& fields) {
  if (written) return std::string(written.text.View());
  if (written.code == czech::Code::PaymentCodeMissing)
    throw Refusal{Text("an invoice needs ID, DD and AM: number, day of issue and amount")};
  if (written.field >= fields.size()) throw Refusal{SentenceOf(written.code)};
  const AskedField& wrong = fields[written.field];
  throw Refusal{Quoted(wrong.given, wrong.value, SentenceOf(written.code))};
}

std::string CodeOfFields(PaymentCodeKind kind, const AskedFields& fields, bool checksum) {
  return TextOrRefusal(czech::WritePaymentCode(kind, ViewsOf(fields), checksum), fields);
}

// Without what the payment has too.
void LeaveShared(AskedFields& invoice, const AskedFields& payment) {
  constexpr std::array<std::array<std::string_view, 2>, 6> kShared{
      {{"ACC", "ACC"}, {"AM", "AM"}, {"CC", "CC"}, {"DT", "DT"}, {"MSG", "MSG"}, {"VS", "X-VS"}}};
  std::erase_if(invoice, [&](const AskedField& field) {
    return std::ranges::any_of(kShared, [&](const auto& keys) {
      return keys[0] == field.key && std::ranges::any_of(payment, [&](const AskedField& other) {
               return other.key == keys[1] && other.value == field.value;
             });
    });
  });
}

void NoteCurrency(const AskedFields& fields, std::vector<PaymentNote>& notes) {
  const auto found = std::ranges::find(fields, "CC", &AskedField::key);
  if (found == fields.end() || found->value == "CZK") return;
  notes.push_back({"currency", Text("banks need not read codes in {0}: the standard is for payments in CZK",
                                    {found->value})});
}

bool HasPaymentParts(const PaymentRequest& request) {
  const std::array parts{&request.amount, &request.currency, &request.vs,  &request.ks,
                         &request.ss,     &request.message,  &request.due, &request.recipient};
  return !request.fields.empty() ||
         std::ranges::any_of(parts, [](const std::string* part) { return !part->empty(); });
}

PaymentAnswer InvoiceAlone(const PaymentRequest& request) {
  if (request.invoice.empty()) throw Refusal{Text("give an account, or --invoice")};
  if (HasPaymentParts(request))
    throw Refusal{
        Text("a payment needs an account; the data of an invoice are given as --invoice AM=450.00")};
  PaymentAnswer answer;
  AskedFields invoice = SplitFields(request.invoice);
  if (!request.utf8) MakeAscii(invoice, answer.notes);
  answer.text = CodeOfFields(PaymentCodeKind::Invoice, invoice, request.checksum);
  return answer;
}

PaymentAnswer Payment(const PaymentRequest& request) {
  PaymentAnswer answer;
  AskedFields payment = FieldsOf(request);
  AskedFields invoice = InvoiceFieldsOf(request);
  if (!request.utf8) {
    MakeAscii(payment, answer.notes);
    MakeAscii(invoice, answer.notes);
  }
  Shorten(request, payment, answer.notes);
  LeaveShared(invoice, payment);
  if (!invoice.empty()) {
    const auto inside = czech::WriteInvoiceInside(ViewsOf(invoice));
    payment.push_back({"X-INV", TextOrRefusal(inside, invoice), "--invoice"});
  }
  NoteCurrency(payment, answer.notes);
  answer.text = CodeOfFields(PaymentCodeKind::Payment, payment, request.checksum);
  return answer;
}

}  // namespace

std::variant<PaymentAnswer, PaymentFault> AskForPayment(const PaymentRequest& request) {
  try {
    return request.account.empty() ? InvoiceAlone(request) : Payment(request);
  } catch (const Refusal& refusal) {
    return PaymentFault{refusal.message};
  } catch (const ravo::ConvertError& error) {
    return PaymentFault{error.what()};
  }
}

}  // namespace tool
