#include "czech_kinds.h"

#include "czech_day.h"
#include "input_lines.h"
#include "json_array.h"
#include "output_pieces.h"
#include "text.h"
#include "whole_input.h"
#include <ravo/RavoInterface.h>
#include <ravo/czech/czech.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace tool {
namespace {

namespace czech = ravo::czech;

constexpr std::size_t kMostBanks = 1000;
constexpr std::string_view kBuiltIn = "built-in";

template <czech::Kind kind>
Verdict CheckForm(std::u16string_view text) {
  const auto checked = czech::Check(kind, text);
  Verdict verdict;
  verdict.valid = static_cast<bool>(checked);
  if (!checked) verdict.reason = ReasonOf(checked.code);
  return verdict;
}

constexpr CheckKind kCzechKinds[] = {
#define RAVO_KIND(number, name, text, parse, czech_name, english) \
  {text, english, CheckForm<czech::Kind::name>},
#include <ravo/czech/kinds.inc>
#undef RAVO_KIND
};

constexpr CheckKind kCzechTitles[] = {
#define RAVO_KIND(number, name, text, parse, czech_name, english) \
  {text, czech_name, CheckForm<czech::Kind::name>},
#include <ravo/czech/kinds.inc>
#undef RAVO_KIND
};

// Accounts under the name that the suite has for them, so that answers have the name that was asked for.
constexpr std::string_view kSuiteAccount = "banka";
constexpr CheckKind kCzechBanka{kSuiteAccount, "", CheckForm<czech::Kind::Account>};

// What each kind's form is, and what it does not tell.
struct KindRule {
  czech::Kind kind;
  const char* text;
};
constexpr KindRule kKindRules[] = {
    {czech::Kind::Ico,
     ToTranslate("Eight digits, the last one a check digit modulo 11 (law 111/2009). Whether the number was "
                 "assigned is not known.")},
    {czech::Kind::Dic,
     ToTranslate(
         "CZ and eight, nine or ten digits: company number, birth number, or a number of its own (law "
         "280/2009, section 130). Whether its holder pays VAT is not known.")},
    {czech::Kind::VatNumber,
     ToTranslate("Length and characters of the 27 countries of the Union (VIES). Check digits of "
                 "other countries are not looked at.")},
    {czech::Kind::BirthNumber,
     ToTranslate("A date that exists and, in ten digits, divisibility by eleven (law 133/2000, "
                 "section 13).")},
    {czech::Kind::Iban,
     ToTranslate("Length and characters of the country and check digits (ISO 13616). Whether the "
                 "account exists is not known.")},
    {czech::Kind::Bic,
     ToTranslate("Eight or eleven characters (ISO 9362). Whether the bank exists is not known.")},
    {czech::Kind::Account,
     ToTranslate("Prefix and number each have a weighted sum divisible by eleven (decree 169/2011). "
                 "Whether the bank exists is told by --list.")},
    {czech::Kind::VariableSymbol, ToTranslate("At most ten digits.")},
    {czech::Kind::ConstantSymbol, ToTranslate("At most ten digits.")},
    {czech::Kind::SpecificSymbol, ToTranslate("At most ten digits.")},
    {czech::Kind::PostCode,
     ToTranslate("Five digits, the first 1 to 7. Whether the post office exists is not known.")},
    {czech::Kind::Ean,
     ToTranslate("8, 12, 13 or 14 digits, the last one a check digit modulo 10 (GS1). Whether the number "
                 "was assigned is not known.")},
    {czech::Kind::Isbn,
     ToTranslate("Ten characters modulo 11, or thirteen digits modulo 10 (ISO 2108). Whether the book "
                 "exists is not known.")},
};

czech::Kind KindNamed(std::string_view name) {
  return name == kSuiteAccount ? czech::Kind::Account : czech::KindOf(name).value_or(czech::Kind::Ico);
}

// The kind of the suite that checks the same values, or null.
const CheckKind* SuiteKind(czech::Kind kind) {
  return FindCheckKind(kind == czech::Kind::Account ? kSuiteAccount : czech::KindText(kind));
}

// A list of banks with the memory that it refers to.
struct OwnedBanks {
  std::string text;
  std::vector<czech::Bank> banks;
  czech::BankList list;
};

std::string ListFault(const OwnedBanks& banks, const czech::Parsed<std::size_t>& read) {
  const auto end = banks.text.begin() + static_cast<std::ptrdiff_t>(read.position);
  return Text("line {0}: {1}", {std::to_string(std::count(banks.text.begin(), end, '\n') + 1),
                                czech::Sentence(read.code, UserLanguage())});
}

// Fills in the list. Returns an empty text, or why it cannot be read.
std::string ReadBanks(const CzechCheck& check, OwnedBanks& banks) {
  if (check.list == kBuiltIn) {
    if (!check.list_date.empty()) return Text("this list has a day of its own; leave out --list-date");
    banks.list = czech::BuiltInBanks();
    return {};
  }
  std::string reason;
  std::optional<std::string> text = ReadWhole(check.list, &reason);
  if (!text) return reason;
  banks.text = std::move(*text);
  banks.banks.resize(kMostBanks);
  const auto read = czech::ReadBankList(banks.text, banks.banks);
  if (!read) return ListFault(banks, read);
  banks.list = {std::span(banks.banks).first(read.value), DayOrToday(check.list_date)};
  return {};
}

// What is found out about a value, in the order of the three layers.
struct CzechFinding {
  czech::Code code = czech::Code::Correct;
  bool is_formed = false;    // correct in form, whatever list and day say
  std::size_t position = 0;  // in code points, from 1; 0 if the whole value is meant
  std::string canonical;
  std::string spelling;
  std::string bank;
  std::string list;  // what the list says, with its day
  std::string list_day;
  std::optional<bool> suite;                               // what the suite says, if it has such a kind
  std::vector<std::pair<std::string, std::string>> facts;  // for a person
};

std::size_t CharactersBefore(std::string_view utf8, std::size_t position) {
  const std::string_view before = utf8.substr(0, position);
  return static_cast<std::size_t>(std::ranges::count_if(
      before, [](char unit) { return (static_cast<unsigned char>(unit) & 0xC0) != 0x80; }));
}

// The account that a value of these kinds names.
std::optional<czech::Account> AccountOf(czech::Kind kind, std::string_view canonical) {
  if (kind == czech::Kind::Account) return czech::ParseAccount(canonical).value;
  if (kind == czech::Kind::Iban) return czech::AccountOf(czech::ParseIban(canonical).value);
  return std::nullopt;
}

void AskList(const czech::Account& account, const czech::BankList& list, czech::Day day,
             CzechFinding& finding) {
  const czech::BankAnswer answer = czech::FindBank(list, account.bank, day);
  finding.code = answer.code;
  finding.list_day = DayText(answer.list_date);
  if (answer.bank) finding.bank = answer.bank->name;
  finding.list = answer.bank ? Text("{0}, by the list of {1}", {finding.bank, finding.list_day})
                             : Text("not in the list of {0}", {finding.list_day});
}

void AddBirthFacts(const czech::BirthNumber& number, CzechFinding& finding) {
  const std::string sex = number.sex == czech::Sex::Female ? Text("woman") : Text("man");
  finding.facts.emplace_back(Text("born"), DayText(czech::DayOf(number.born)));
  finding.facts.emplace_back(Text("sex"), sex);
}

void AddAccountFacts(czech::Kind kind, const czech::Account& account, CzechFinding& finding) {
  if (kind == czech::Kind::Account) {
    finding.facts.emplace_back("IBAN", czech::Format(czech::IbanOf(account)).View());
  } else {
    finding.facts.emplace_back(Text("account"), czech::Format(account).View());
  }
}

std::string DicFormText(czech::DicForm form) {
  switch (form) {
    case czech::DicForm::LegalEntity:
      return Text("company");
    case czech::DicForm::BirthNumber:
      return Text("person, by birth number");
    case czech::DicForm::Special:
      return Text("person without birth number");
    case czech::DicForm::Group:
      return Text("group of payers of VAT");
  }
  return {};
}

void AddFacts(czech::Kind kind, CzechFinding& finding) {
  if (kind == czech::Kind::BirthNumber)
    AddBirthFacts(czech::ParseBirthNumber(finding.canonical).value, finding);
  if (kind == czech::Kind::Dic)
    finding.facts.emplace_back(Text("holder"), DicFormText(czech::ParseDic(finding.canonical).value.form));
  if (const auto account = AccountOf(kind, finding.canonical)) AddAccountFacts(kind, *account, finding);
}

CzechFinding Examine(czech::Kind kind, const std::string& value, const CzechCheck& check,
                     const czech::BankList* list) {
  CzechFinding finding;
  if (const CheckKind* const suite = SuiteKind(kind))
    finding.suite = suite->check(ravo::FromUtf8(value)).valid;
  const auto spelled = czech::Respell(kind, value);
  finding.code = spelled.code;
  if (!spelled) {
    finding.position = CharactersBefore(value, spelled.position) + 1;
    return finding;
  }
  finding.is_formed = true;
  finding.canonical = czech::Check(kind, value).value.View();
  finding.spelling = spelled.value.View();
  AddFacts(kind, finding);
  const auto account = AccountOf(kind, finding.canonical);
  if (account && list) AskList(*account, *list, DayOrToday(check.on), finding);
  if (kind == czech::Kind::BirthNumber && !check.on.empty())
    finding.code = czech::CheckBorn(czech::ParseBirthNumber(finding.canonical).value, DayOrToday(check.on));
  return finding;
}

// Tells where the suite decides otherwise.
std::string SuiteNote(const CzechFinding& finding) {
  if (!finding.suite || *finding.suite == finding.is_formed) return {};
  return *finding.suite ? Text("the suite accepts it") : Text("the suite refuses it");
}

std::string CzechFindingText(czech::Kind kind, const std::string& value, const CzechFinding& finding,
                             bool explain) {
  std::string text = value + "\t" + std::string(czech::Sentence(finding.code, UserLanguage()));
  for (const std::string& note : {finding.list, SuiteNote(finding)})
    if (!note.empty()) text += "\t" + note;
  text += "\n";
  if (!explain) return text;
  const auto add = [&text](const std::string& name, std::string_view fact) {
    text.append("  ").append(name).append(": ").append(fact).append("\n");
  };
  if (finding.position > 0) add(Text("character"), std::to_string(finding.position));
  if (!finding.spelling.empty()) add(Text("usual spelling"), finding.spelling);
  for (const auto& [name, fact] : finding.facts) add(name, fact);
  add(Text("code"), czech::CodeText(finding.code));
  add(Text("rule"), Text(std::ranges::find(kKindRules, kind, &KindRule::kind)->text));
  return text;
}

Json CzechFindingJson(const std::string& kind, const std::string& value, const CzechFinding& finding) {
  const bool is_valid = finding.code == czech::Code::Correct;
  Json json{{"value", value},
            {"kind", kind},
            {"valid", is_valid},
            {"reason", is_valid ? Json() : Json(czech::CodeText(finding.code))},
            {"position", finding.position > 0 ? Json(finding.position) : Json()},
            {"remark", is_valid ? "" : czech::Sentence(finding.code, UserLanguage())}};
  if (!finding.canonical.empty()) json["canonical"] = finding.canonical;
  if (!finding.spelling.empty()) json["spelling"] = finding.spelling;
  if (!finding.list_day.empty()) json["list-date"] = finding.list_day;
  if (!finding.bank.empty()) json["bank"] = finding.bank;
  if (finding.suite) json["suite"] = *finding.suite;
  return json;
}

}  // namespace

std::span<const CheckKind> CzechKinds() {
  return UserLanguage() == czech::Language::Czech ? kCzechTitles : kCzechKinds;
}

const CheckKind* FindCzechKind(std::string_view name) {
  if (name == kSuiteAccount) return &kCzechBanka;
  const auto* const found = std::ranges::find(kCzechKinds, name, &CheckKind::name);
  return found == std::end(kCzechKinds) ? nullptr : found;
}

void CheckCzechValues(const CzechCheck& check, Outcome& outcome) {
  const czech::Kind kind = KindNamed(check.kind);
  OwnedBanks banks;
  if (!check.list.empty()) {
    const std::string fault = ReadBanks(check, banks);
    if (!fault.empty()) {
      return Complain(outcome, check.list + ": " + fault, Answer::WrongUsage);
    }
  }
  JsonArray answers(outcome);
  ForEachValue(check.values, [&](const std::string& value) {
    const CzechFinding finding = Examine(kind, value, check, check.list.empty() ? nullptr : &banks.list);
    if (finding.code != czech::Code::Correct) outcome.answer = Answer::No;
    if (check.json) return answers.Add(CzechFindingJson(check.kind, value, finding));
    AddOutput(outcome, CzechFindingText(kind, value, finding, check.explain));
  });
  if (check.json) answers.Finish();
}

}  // namespace tool
