// Compares every function of the character database for every unit with the text files of the standard.
#include "category_list.h"
#include "support/tried.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using Codes = std::vector<unsigned>;
using Fields = std::vector<std::string>;

std::string Stripped(const std::string& text) {
  const auto first = text.find_first_not_of(" \t\r");
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::vector<Fields> Rows(const std::string& name) {
  std::ifstream file("unicode-data/" + name);
  EXPECT_TRUE(file.is_open()) << name;
  std::vector<Fields> rows;
  for (std::string line; std::getline(file, line);) {
    line = Stripped(line.substr(0, line.find('#')));
    if (line.empty()) continue;
    std::istringstream stream(line + ";");
    Fields fields;
    for (std::string field; std::getline(stream, field, ';');) fields.push_back(Stripped(field));
    rows.push_back(fields);
  }
  return rows;
}

unsigned Hex(const std::string& text) { return static_cast<unsigned>(std::stoul(text, nullptr, 16)); }

struct Character {
  std::string category;
  unsigned combining_class = 0;
  bool is_compatible = false;
  Codes mapping;
  unsigned upper = 0;
  unsigned lower = 0;
  unsigned title = 0;
};

Character Described(const Fields& row) {
  Character character{row[2], static_cast<unsigned>(std::stoul(row[3])), row[5].starts_with('<'), {}, 0, 0,
                      0};
  std::istringstream mapping(row[5].substr(row[5].find('>') + 1));
  for (std::string code; mapping >> code;) character.mapping.push_back(Hex(code));
  if (!row[12].empty()) character.upper = Hex(row[12]);
  if (!row[13].empty()) character.lower = Hex(row[13]);
  character.title = row[14].empty() ? character.upper : Hex(row[14]);
  return character;
}

using Characters = std::map<unsigned, Character>;

Characters ReadCharacters() {
  Characters characters;
  unsigned first = 0;
  for (const Fields& row : Rows("UnicodeData.txt")) {
    const unsigned code = Hex(row[0]);
    if (row[1].ends_with(", First>")) first = code;
    for (unsigned at = row[1].ends_with(", Last>") ? first : code; at <= code; ++at) {
      characters[at] = Described(row);
    }
  }
  return characters;
}

const Characters& AllCharacters() {
  static const Characters characters = ReadCharacters();
  return characters;
}

Character Of(unsigned code) {
  const auto found = AllCharacters().find(code);
  return found == AllCharacters().end() ? Character() : found->second;
}

template <class Check>
void ForEveryUnit(Check check) {
  for (unsigned unit = 0; unit < test::kUnits; ++unit) check(static_cast<char16_t>(unit), Of(unit));
  test::Tried("code_units", test::kUnits);
}

void Expand(unsigned code, bool compatible, Codes& out) {
  const Character character = Of(code);
  if (character.mapping.empty() || (character.is_compatible && !compatible)) {
    out.push_back(code);
  } else {
    for (const unsigned part : character.mapping) Expand(part, compatible, out);
  }
}

std::u16string Decomposition(unsigned code, bool compatible) {
  Codes codes;
  Expand(code, compatible, codes);
  if (codes == Codes{code}) return {};
  for (auto at = codes.begin(); at != codes.end();) {
    const auto end = std::find_if(at, codes.end(), [](unsigned c) { return Of(c).combining_class == 0; });
    std::stable_sort(at, end,
                     [](unsigned a, unsigned b) { return Of(a).combining_class < Of(b).combining_class; });
    at = end == codes.end() ? end : end + 1;
  }
  std::u16string text;
  for (const unsigned c : codes) {
    if (c >= 0x10000) text.push_back(static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)));
    text.push_back(static_cast<char16_t>(c >= 0x10000 ? 0xDC00 + (c & 0x3FF) : c));
  }
  return text;
}

TEST(CharacterFiles, TheWholeFileIsRead) {
  EXPECT_GT(AllCharacters().size(), 200000u);
  EXPECT_EQ(Of(0x4E01).category, "Lo");
}

TEST(CharacterFiles, CategoriesOfEveryUnit) {
  for (const test::CategoryTest& row : test::kCategoryTests) {
    unsigned differing = 0;
    ForEveryUnit([&](char16_t unit, const Character& character) {
      const bool wanted = !character.category.empty() && character.category.starts_with(row.category);
      if (row.function(unit) != wanted && ++differing == 1)
        ADD_FAILURE() << row.name << ' ' << unsigned{unit};
    });
    EXPECT_EQ(differing, 0u) << row.name;
  }
}

TEST(CharacterFiles, CombiningClassOfEveryUnit) {
  ForEveryUnit([](char16_t unit, const Character& character) {
    ASSERT_EQ(DIUnicode::CharCanonicalCombiningClassW(unit), character.combining_class) << unsigned{unit};
  });
}

TEST(CharacterFiles, CaseOfEveryUnit) {
  ForEveryUnit([](char16_t unit, const Character& character) {
    const auto or_itself = [unit](unsigned code) { return code == 0 ? unsigned{unit} : code; };
    ASSERT_EQ(unsigned{DIUnicode::CharToUpperW(unit)}, or_itself(character.upper)) << unsigned{unit};
    ASSERT_EQ(unsigned{DIUnicode::CharToLowerW(unit)}, or_itself(character.lower)) << unsigned{unit};
    ASSERT_EQ(unsigned{DIUnicode::CharToTitleW(unit)}, or_itself(character.title)) << unsigned{unit};
  });
}

TEST(CharacterFiles, CaseFoldOfEveryUnit) {
  std::map<unsigned, unsigned> folds;
  for (const Fields& row : Rows("CaseFolding.txt")) {
    if (row[1] == "C" || row[1] == "S") folds[Hex(row[0])] = Hex(row[2]);
  }
  for (unsigned unit = 0; unit < test::kUnits; ++unit) {
    const unsigned wanted = folds.contains(unit) ? folds[unit] : unit;
    ASSERT_EQ(unsigned{DIUnicode::CharToCaseFoldW(static_cast<char16_t>(unit))}, wanted) << unit;
  }
}

TEST(CharacterFiles, DecompositionsOfEveryUnit) {
  ForEveryUnit([](char16_t unit, const Character&) {
    ASSERT_EQ(DIUnicode::CharDecomposeCanonicalStrW(unit), Decomposition(unit, false)) << unsigned{unit};
    ASSERT_EQ(DIUnicode::CharDecomposeCompatibleStrW(unit), Decomposition(unit, true)) << unsigned{unit};
  });
}

TEST(CharacterFiles, WhiteSpaceOfEveryUnit) {
  std::vector<bool> wanted(test::kUnits);
  for (const Fields& row : Rows("PropList.txt")) {
    if (row[1] != "White_Space") continue;
    const auto dots = row[0].find("..");
    const unsigned last = Hex(dots == std::string::npos ? row[0] : row[0].substr(dots + 2));
    for (unsigned code = Hex(row[0].substr(0, dots)); code <= last && code < test::kUnits; ++code)
      wanted[code] = true;
  }
  EXPECT_EQ(std::count(wanted.begin(), wanted.end(), true), 25);
  for (unsigned unit = 0; unit < test::kUnits; ++unit) {
    ASSERT_EQ(DIUnicode::CharIsWhiteSpaceW(static_cast<char16_t>(unit)), wanted[unit]) << unit;
  }
}

TEST(CharacterFiles, KindsMadeOfCategoriesForEveryUnit) {
  ForEveryUnit([](char16_t unit, const Character& character) {
    const bool letter = character.category.starts_with('L');
    const bool common =
        letter && (unit < 0x250 || (unit >= 0x370 && unit < 0x530) || (unit >= 0x1E00 && unit < 0x1F00));
    ASSERT_EQ(DIUnicode::CharIsLetterCommonW(unit), common) << unsigned{unit};
    ASSERT_EQ(DIUnicode::CharIsAlphaNumW(unit), letter || character.category == "Nd") << unsigned{unit};
    const bool of_word = letter || character.category.starts_with('M') ||
                         character.category.starts_with('N') || character.category == "Pc" ||
                         character.category == "Cs" || character.category.empty();
    ASSERT_EQ(DIUnicode::IsCharWordSeparatorW(unit), !of_word) << unsigned{unit};
  });
}

}  // namespace
}  // namespace ravo
