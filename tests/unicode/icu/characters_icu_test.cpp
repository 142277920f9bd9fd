// Compares every function of the character database for every unit with the International Components for
// Unicode.
#include "../category_list.h"
#include "support/tried.h"

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace ravo {
namespace {

template <class Check>
void ForEachOfUnits(Check check) {
  for (unsigned unit = 0; unit < test::kUnits; ++unit) check(static_cast<char16_t>(unit));
  test::Tried("code_units", test::kUnits);
}

std::string CategoryName(char16_t unit) {
  const auto name = u_getPropertyValueName(UCHAR_GENERAL_CATEGORY, u_charType(unit), U_SHORT_PROPERTY_NAME);
  return std::string(name) == "Cn" ? "" : name;
}

TEST(CharactersAsIcu, SameVersionOfUnicode) { EXPECT_STREQ(U_UNICODE_VERSION, "15.0"); }

TEST(CharactersAsIcu, Categories) {
  ForEachOfUnits([](char16_t unit) {
    const std::string category = CategoryName(unit);
    for (const test::CategoryTest& row : test::kCategoryTests) {
      const bool wanted = !category.empty() && category.starts_with(row.category);
      ASSERT_EQ(row.function(unit), wanted) << row.name << ' ' << unsigned{unit};
    }
  });
}

TEST(CharactersAsIcu, CaseAndClass) {
  ForEachOfUnits([](char16_t unit) {
    ASSERT_EQ(DIUnicode::CharToUpperW(unit), u_toupper(unit)) << unsigned{unit};
    ASSERT_EQ(DIUnicode::CharToLowerW(unit), u_tolower(unit)) << unsigned{unit};
    ASSERT_EQ(DIUnicode::CharToTitleW(unit), u_totitle(unit)) << unsigned{unit};
    ASSERT_EQ(DIUnicode::CharToCaseFoldW(unit), u_foldCase(unit, U_FOLD_CASE_DEFAULT)) << unsigned{unit};
    ASSERT_EQ(DIUnicode::CharCanonicalCombiningClassW(unit), u_getCombiningClass(unit)) << unsigned{unit};
    ASSERT_EQ(DIUnicode::CharIsWhiteSpaceW(unit), u_isUWhiteSpace(unit) != 0) << unsigned{unit};
  });
}

// ICU decomposes Hangul with the same function; the library has a separate one.
void ExpectDecompositions(const icu::Normalizer2& normalizer, std::u16string (*function)(char16_t)) {
  ForEachOfUnits([&](char16_t unit) {
    if (U16_IS_SURROGATE(unit)) return;
    UErrorCode error = U_ZERO_ERROR;
    const icu::UnicodeString whole = normalizer.normalize(icu::UnicodeString(unit), error);
    std::u16string wanted(whole.getBuffer(), static_cast<std::size_t>(whole.length()));
    if (wanted == std::u16string(1, unit)) wanted.clear();
    const std::u16string ours =
        DIUnicode::CharIsHangulW(unit) ? DIUnicode::CharDecomposeHangulW(unit) : function(unit);
    ASSERT_EQ(ours, wanted) << unsigned{unit};
  });
}

TEST(CharactersAsIcu, Decompositions) {
  UErrorCode error = U_ZERO_ERROR;
  ExpectDecompositions(*icu::Normalizer2::getNFDInstance(error), DIUnicode::CharDecomposeCanonicalStrW);
  ExpectDecompositions(*icu::Normalizer2::getNFKDInstance(error), DIUnicode::CharDecomposeCompatibleStrW);
}

}  // namespace
}  // namespace ravo
