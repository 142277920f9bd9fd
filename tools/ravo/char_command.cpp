#include "columns.h"
#include "commands.h"
#include "json_text.h"
#include "text.h"
#include <ravo/DIUnicode.h>
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

namespace unicode = ravo::DIUnicode;
namespace utils = ravo::DIUtils;

struct CharOptions {
  std::vector<std::string> characters;
  bool json = false;
};

struct Category {
  const char* name;
  const char* words;
  bool (*contains)(char16_t) noexcept;
};

constexpr Category kCategories[] = {
    {"Lu", ToTranslate("upper-case letter"), unicode::CharIsLetterUpperCaseW},
    {"Ll", ToTranslate("lower-case letter"), unicode::CharIsLetterLowerCaseW},
    {"Lt", ToTranslate("title-case letter"), unicode::CharIsLetterTitleCaseW},
    {"Lm", ToTranslate("modifier letter"), unicode::CharIsLetterModifierW},
    {"Lo", ToTranslate("letter without case"), unicode::CharIsLetterOtherW},
    {"Mn", ToTranslate("mark that takes no room"), unicode::CharIsMarkNon_SpacingW},
    {"Mc", ToTranslate("mark that takes room"), unicode::CharIsMarkSpacing_CombinedW},
    {"Me", ToTranslate("enclosing mark"), unicode::CharIsMarkEnclosingW},
    {"Nd", ToTranslate("decimal digit"), unicode::CharIsNumber_DecimalW},
    {"Nl", ToTranslate("letter used as a number"), unicode::CharIsNumber_LetterW},
    {"No", ToTranslate("other number"), unicode::CharIsNumber_OtherW},
    {"Pc", ToTranslate("connector"), unicode::CharIsPunctuation_ConnectorW},
    {"Pd", ToTranslate("dash"), unicode::CharIsPunctuation_DashW},
    {"Ps", ToTranslate("opening punctuation"), unicode::CharIsPunctuation_OpenW},
    {"Pe", ToTranslate("closing punctuation"), unicode::CharIsPunctuation_CloseW},
    {"Pi", ToTranslate("initial quote"), unicode::CharIsPunctuation_InitialQuoteW},
    {"Pf", ToTranslate("final quote"), unicode::CharIsPunctuation_FinalQuoteW},
    {"Po", ToTranslate("other punctuation"), unicode::CharIsPunctuation_OtherW},
    {"Sm", ToTranslate("mathematical symbol"), unicode::CharIsSymbolMathW},
    {"Sc", ToTranslate("currency sign"), unicode::CharIsSymbolCurrencyW},
    {"Sk", ToTranslate("modifier symbol"), unicode::CharIsSymbolModifierW},
    {"So", ToTranslate("other symbol"), unicode::CharIsSymbolOtherW},
    {"Zs", ToTranslate("space"), unicode::CharIsSeparatorSpaceW},
    {"Zl", ToTranslate("line separator"), unicode::CharIsSeparatorLineW},
    {"Zp", ToTranslate("paragraph separator"), unicode::CharIsSeparatorParagraphW},
    {"Cc", ToTranslate("control character"), unicode::CharIsOtherControlW},
    {"Cf", ToTranslate("format character"), unicode::CharIsOtherFormatW},
    {"Cs", ToTranslate("half of a surrogate pair"), unicode::CharIsOtherSurrogateW},
    {"Co", ToTranslate("for private use"), unicode::CharIsOtherPrivateUseW},
    {"Cn", ToTranslate("unassigned"), [](char16_t) noexcept { return true; }},
};

const Category& CategoryOf(char16_t c) {
  const Category* category = kCategories;
  while (!category->contains(c)) ++category;
  return *category;
}

std::string Code(char16_t c) { return "U+" + utils::IntToHexA(std::int32_t{c}, 4); }

std::string Codes(std::u16string_view units) {
  std::string codes;
  for (const char16_t c : units) codes += (codes.empty() ? "" : " ") + Code(c);
  return codes;
}

std::string Hex(const std::vector<std::uint8_t>& bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes)
    text += (text.empty() ? "" : " ") + utils::IntToHexA(std::int32_t{byte}, 2);
  return text;
}

// The bytes of the character in the encodings that have it.
Json BytesByEncoding(char16_t c) {
  Json all = Json::object();
  for (const unicode::EncodingRow& encoding : unicode::EncodingRows()) {
    const std::vector<std::uint8_t> bytes = unicode::EncodedCharacter(encoding, c);
    if (!bytes.empty()) all[std::string(encoding.name)] = Hex(bytes);
  }
  return all;
}

Json Describe(char16_t c) {
  const Category& category = CategoryOf(c);
  Json facts = {{"character", Code(c)}};
  if (!unicode::CharIsOtherW(c)) facts["text"] = ravo::ToUtf8({&c, 1});
  facts["category"] = std::string(category.name) + ", " + category.words;
  facts["class"] = unicode::CharCanonicalCombiningClassW(c);
  facts["upper"] = Code(unicode::CharToUpperW(c));
  facts["lower"] = Code(unicode::CharToLowerW(c));
  facts["title"] = Code(unicode::CharToTitleW(c));
  facts["fold"] = Code(unicode::CharToCaseFoldW(c));
  const bool is_hangul = unicode::CharIsHangulW(c);
  const std::u16string letters = unicode::CharDecomposeHangulW(c);
  facts["canonical"] = Codes(is_hangul ? letters : unicode::CharDecomposeCanonicalStrW(c));
  facts["compatible"] = Codes(is_hangul ? letters : unicode::CharDecomposeCompatibleStrW(c));
  facts["bytes"] = BytesByEncoding(c);
  return facts;
}

// Parses "U+" and four hexadecimal digits, or returns the characters of the word itself.
std::u16string Units(const std::string& word) {
  std::u16string text = ravo::FromUtf8(word);
  if (!utils::StrSameStartI(text, u"U+") || text.size() < 3) return text;
  const std::int32_t code = utils::HexToIntW(std::u16string_view(text).substr(2));
  if (code < 0 || code > 0xFFFF)
    throw CLI::ValidationError(Text("'{0}' is not from U+0000 to U+FFFF", {word}));
  return {static_cast<char16_t>(code)};
}

// One row per sequence of bytes, with all encodings that share it.
void AddBytes(const Json& by_encoding, Columns& rows) {
  Json shared = Json::object();
  for (const auto& [encoding, bytes] : by_encoding.items())
    shared[bytes.get<std::string>()].push_back(encoding);
  for (const auto& [bytes, encodings] : shared.items()) {
    std::string names;
    for (const Json& encoding : encodings) names += (names.empty() ? "" : " ") + encoding.get<std::string>();
    rows.Add({"bytes", bytes, names});
  }
}

// The category of a script has a stable name; its words are for people.
std::string TextOfFact(const std::string& name, const Json& value) {
  if (!value.is_string()) return value.dump();
  if (name != "category") return value.get<std::string>();
  const Category& category = *std::ranges::find_if(
      kCategories, [&](const Category& row) { return value.get<std::string>().starts_with(row.name); });
  return std::string(category.name) + ", " + Text(category.words);
}

std::string TextOfFacts(const Json& facts) {
  Columns rows;
  for (const auto& [name, value] : facts.items()) {
    if (value.is_object())
      AddBytes(value, rows);
    else
      rows.Add({name, TextOfFact(name, value)});
  }
  return rows.Text();
}

void Run(const CharOptions& options, Outcome& outcome) {
  Json all = Json::array();
  for (const std::string& word : options.characters) {
    for (const char16_t c : Units(word)) all.push_back(Describe(c));
  }
  if (options.json) {
    outcome.out = JsonText(all);
    return;
  }
  for (const Json& facts : all) outcome.out += (outcome.out.empty() ? "" : "\n") + TextOfFacts(facts);
}

constexpr const char* kCharFooter = ToTranslate(
    "Characters past U+FFFF are shown as their two surrogates.\n"
    "\n"
    "Exit status: 0, or 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo char č\n"
    "  ravo char U+010D U+FB01\n"
    "  ravo char --json Kč\n");

}  // namespace

void AddCharCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand(
      "char", Text("Shows category, class, mappings, decompositions and bytes in every encoding"));
  const auto options = std::make_shared<CharOptions>();
  command
      ->add_option(Text("CHARACTER"), options->characters, Text("Characters, or U+ and a hexadecimal number"))
      ->required();
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kCharFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool
